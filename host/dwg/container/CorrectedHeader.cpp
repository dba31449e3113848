#include "host/dwg/container/CorrectedHeader.h"

#include "host/dwg/bits/BitReader.h"
#include "host/dwg/bits/Checksums.h"

#include <algorithm>
#include <array>

namespace host::dwg {

namespace {

constexpr std::size_t correctedHeadSize = 32;
constexpr std::size_t numberCount = 34;
constexpr std::size_t numbersSize = numberCount * 8;

/// What stands in front of the header's numbers.
struct CorrectedHead
{
    std::uint64_t packedChecksum = 0;
    std::uint64_t packedSize = 0;
    bool isPlain = false;
};

CorrectedHead readHead(Bytes page)
{
    BitReader reader(page);
    reader.seek(16 * 8); // a checksum and a key of other things
    CorrectedHead head;
    head.packedChecksum = reader.raw64();
    // Below 0 for one that is not packed.
    const std::int64_t size = static_cast<std::int32_t>(reader.raw32());
    head.isPlain = size < 0;
    head.packedSize = static_cast<std::uint64_t>(size < 0 ? -size : size);
    return head;
}

/// The last number is a checksum of all, taken while it was 0 itself.
bool checksumFitsIn(PageBytes plain, std::uint64_t checksum)
{
    std::fill_n(plain.end() - 8, 8, std::uint8_t(0));
    return headerChecksum2007(plain) == checksum;
}

} // namespace

std::optional<CorrectedHeader> readCorrectedHeader(Bytes page)
{
    const CorrectedHead head = readHead(page);
    const Bytes content = page.subspan(correctedHeadSize);
    if (head.isPlain && head.packedSize < numbersSize)
        return std::nullopt;
    const auto plain = unpacked(content, head.packedSize, numbersSize);
    if (!plain)
        return std::nullopt;
    std::array<std::uint64_t, numberCount> n{};
    BitReader reader(*plain);
    for (std::uint64_t &number : n)
        number = reader.raw64();
    CorrectedHeader header{{n[7], n[5], n[10], n[11], n[3], n[2], n[16]},
                           {n[24], n[23], n[22], n[25], n[27], n[26], n[21]}};
    header.checksumFits =
        headerChecksum2007(content.first(head.packedSize)) == head.packedChecksum && checksumFitsIn(*plain, n[33]);
    return header;
}

} // namespace host::dwg
