#include "host/dwg/bits/Checksums.h"
#include "host/dwg/container/Container.h"

#include <algorithm>

namespace host::dwg {

namespace {

constexpr std::uint32_t mostSections = 16;

/// What the checksum of the table of sections begins with, by the count of its records.
std::uint16_t tableSeed(std::uint32_t count)
{
    switch (count) {
    case 3:
        return 0xa598;
    case 4:
        return 0x8101;
    case 5:
        return 0x3cc4;
    case 6:
        return 0x8461;
    default:
        return 0;
    }
}

/// A record of the table of sections.
struct Locator
{
    int number = 0;
    std::uint32_t at = 0;
    std::uint32_t size = 0;
};

struct LocatorTable
{
    std::vector<Locator> sections;
    bool isChecked = false;
};

LocatorTable tableInFront(Bytes file)
{
    constexpr std::size_t tableStart = 0x15;
    LocatorTable table;
    BitReader reader(file, tableStart * 8, file.size() * 8);
    const std::uint32_t count = reader.raw32();
    for (std::uint32_t i = 0; i < count && count <= mostSections; ++i) {
        const int number = reader.byte();
        const std::uint32_t at = reader.raw32();
        table.sections.push_back({number, at, reader.raw32()});
    }
    const std::size_t end = reader.position() / 8;
    table.isChecked = reader.raw16() == (checksum16(file.first(end), 0) ^ tableSeed(count)) && !reader.hasFailed();
    return table;
}

/// The same records stand coded at the end of the file, behind a mark of their own.
LocatorTable tableAtEnd(Bytes file)
{
    constexpr std::array<std::uint8_t, 16> mark = {0xd4, 0x7b, 0x21, 0xce, 0x28, 0x93, 0x9f, 0xbf,
                                                   0x53, 0x24, 0x40, 0x09, 0x12, 0x3c, 0xaa, 0x01};
    constexpr std::size_t versionSize = 12;
    LocatorTable table;
    const auto found = std::find_end(file.begin(), file.end(), mark.begin(), mark.end());
    if (found == file.end())
        return table;
    const Bytes header = Bytes(found, file.end()).subspan(mark.size());
    BitReader reader(header);
    const std::uint32_t size = reader.raw32();
    reader.longInteger(); // where it is
    reader.rawBytes(versionSize);
    reader.byte();
    reader.shortInteger();
    reader.raw16();
    const std::int32_t count = reader.longInteger();
    for (std::int32_t i = 0; i < count && count <= static_cast<std::int32_t>(mostSections); ++i) {
        const int number = reader.byte();
        const auto at = static_cast<std::uint32_t>(reader.longInteger());
        table.sections.push_back({number, at, static_cast<std::uint32_t>(reader.longInteger())});
    }
    // From R14 on eight bytes stand behind the checksum.
    for (const std::size_t behind : {std::size_t(10), std::size_t(2)}) {
        if (reader.hasFailed() || size < behind || size > header.size())
            continue;
        const std::size_t end = size - behind;
        BitReader told(header, end * 8, header.size() * 8);
        table.isChecked = table.isChecked || checksum16(header.first(end), 0xc0c1) == told.raw16();
    }
    return table;
}

/// What the tables tell of the sections: of two records of one section the last one that is not empty counts.
std::vector<Locator> findSections(Bytes file, Problems &problems)
{
    LocatorTable table = tableInFront(file);
    if (table.isChecked)
        return std::move(table.sections);
    const LocatorTable other = tableAtEnd(file);
    problems.warn(other.isChecked ? "The table of sections is damaged; its copy was read."
                                  : "The checksum of the table of sections does not fit.");
    // The copy does not have what was written behind it.
    if (other.isChecked)
        table.sections.insert(table.sections.end(), other.sections.begin(), other.sections.end());
    return std::move(table.sections);
}

Bytes partOf(Bytes file, const Locator &section)
{
    if (section.at > file.size() || section.size > file.size() - section.at)
        return {};
    return file.subspan(section.at, section.size);
}

/// A section where the table has it, else where its mark is.
Bytes markedPart(Bytes file, Bytes part, SectionMark mark)
{
    const Bytes bytes = markBytes(mark);
    if (part.size() >= bytes.size() && std::equal(bytes.begin(), bytes.end(), part.begin()))
        return part;
    const auto found = std::search(file.begin(), file.end(), bytes.begin(), bytes.end());
    return found != file.end() ? Bytes(found, file.end()) : part;
}

} // namespace

void openLocatorContainer(Bytes file, Container &container, Problems &problems)
{
    container.objects = file;
    for (const Locator &section : findSections(file, problems)) {
        const Bytes part = partOf(file, section);
        if (part.empty())
            continue;
        if (section.number == 0)
            container.headerVariables = part;
        else if (section.number == 1)
            container.classes = part;
        else if (section.number == 2)
            container.objectMap = part;
        else if (section.number == 4)
            container.measurement = part;
    }
    container.headerVariables = markedPart(file, container.headerVariables, SectionMark::Header);
    container.classes = markedPart(file, container.classes, SectionMark::Classes);
}

} // namespace host::dwg
