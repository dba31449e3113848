#include "host/dwg/early/EarlyFile.h"

#include "host/dwg/bits/Checksums.h"

#include <algorithm>

namespace host::dwg {

namespace {

constexpr std::size_t earlyChecksumSize = 2;
/// Sections of R11 and R12 stand between two rows of bytes that are the same in every file, and no part of them.
constexpr std::size_t earlyMarkSize = 16;
constexpr std::size_t earlyTableHeadSize = 10;
/// Flags and a name.
constexpr std::size_t leastEarlyTableRecord = 33;

struct EarlyTableHead
{
    std::size_t at;
    Release first;
};

/// In the order of EarlyTableKind.
constexpr EarlyTableHead earlyTableHeads[static_cast<std::size_t>(EarlyTableKind::Count)] = {
    {0x2c, Release::R25},  {0x36, Release::R25},  {0x40, Release::R25},  {0x4a, Release::R25},  {0x54, Release::R25},
    {0x3ef, Release::R10}, {0x500, Release::R10}, {0x512, Release::R12}, {0x522, Release::R12},
};

std::uint32_t earlyNumber(Bytes bytes, std::size_t at)
{
    return BitReader(bytes, at * 8, bytes.size() * 8).raw32();
}

/// Of addresses in blocks and further entities the two highest bits say which; they count from the section's begin.
constexpr std::uint32_t earlyAddressMask = 0x3fffffff;

EarlySection earlySection(const EarlyFile &file, std::size_t begin, std::size_t end, Problems &problems)
{
    const std::size_t size = file.bytes.size();
    if (begin > end || end > size)
        problems.lose("A section of entities reaches beyond the file.");
    begin = std::min(begin, size);
    return {begin, std::clamp(end, begin, size)};
}

EarlyTable earlyTableAt(Bytes bytes, std::size_t head, Problems &problems)
{
    BitReader reader(bytes, head * 8, (head + earlyTableHeadSize) * 8);
    EarlyTable table;
    table.recordSize = reader.raw16();
    table.count = reader.raw16();
    reader.skip(16);
    table.at = reader.raw32();
    table.isThere = !reader.hasFailed();
    const bool isInFile = table.at <= bytes.size() && table.recordSize * table.count <= bytes.size() - table.at;
    if (table.isThere && table.count != 0 && (!isInFile || table.recordSize < leastEarlyTableRecord)) {
        problems.lose("A table has more records than the file has room for, or shorter ones than can be.");
        table.count = 0;
    }
    return table;
}

} // namespace

bool hasPlainRecords(Release release)
{
    return release >= Release::R25 && release <= Release::R12;
}

bool fitsEarlyChecksum(Bytes bytes, std::size_t begin, std::size_t end)
{
    constexpr std::uint16_t seed = 0xc0c1;
    if (end > bytes.size() || begin + earlyChecksumSize > end)
        return false;
    const std::size_t at = end - earlyChecksumSize;
    return checksum16(bytes.subspan(begin, at - begin), seed) == (bytes[at] | bytes[at + 1] << 8);
}

EarlyFile openEarlyFile(Bytes bytes, Release release, Problems &problems)
{
    EarlyFile file;
    file.release = release;
    file.bytes = bytes;
    file.entities = earlySection(file, earlyNumber(bytes, 0x14), earlyNumber(bytes, 0x18), problems);
    const std::size_t blocks = earlyNumber(bytes, 0x1c);
    file.blocks = earlySection(file, blocks, blocks + (earlyNumber(bytes, 0x20) & earlyAddressMask), problems);
    const std::size_t further = earlyNumber(bytes, 0x24);
    file.further = earlySection(file, further, further + (earlyNumber(bytes, 0x28) & earlyAddressMask), problems);
    file.variablesEnd = file.entities.begin;
    if (file.isChecked()) {
        file.variablesEnd -= std::min(file.variablesEnd, earlyMarkSize);
        if (!fitsEarlyChecksum(bytes, 0, file.variablesEnd))
            problems.warn("The checksum of the header does not fit.");
        file.variablesEnd -= std::min(file.variablesEnd, earlyChecksumSize);
    }
    for (std::size_t i = 0; i < file.tables.size(); ++i) {
        const EarlyTableHead &head = earlyTableHeads[i];
        if (release >= head.first && head.at + earlyTableHeadSize <= file.variablesEnd)
            file.tables[i] = earlyTableAt(bytes, head.at, problems);
    }
    return file;
}

} // namespace host::dwg
