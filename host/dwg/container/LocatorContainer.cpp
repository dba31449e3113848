#include "host/dwg/bits/Checksums.h"
#include "host/dwg/container/Container.h"

namespace host::dwg {

namespace {

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

Bytes partOf(Bytes file, std::uint32_t at, std::uint32_t size)
{
    if (at > file.size() || size > file.size() - at)
        return {};
    return file.subspan(at, size);
}

} // namespace

void openLocatorContainer(Bytes file, Container &container, Problems &problems)
{
    constexpr std::size_t tableStart = 0x15;
    BitReader reader(file, tableStart * 8, file.size() * 8);
    const std::uint32_t count = reader.raw32();
    if (count > 16) {
        problems.lose("The table of sections has no number of records that can be.");
        return;
    }
    container.objects = file;
    for (std::uint32_t i = 0; i < count; ++i) {
        const int number = reader.byte();
        const std::uint32_t at = reader.raw32();
        const Bytes part = partOf(file, at, reader.raw32());
        if (number == 0)
            assignSection(container, "AcDb:Header", part);
        else if (number == 1)
            assignSection(container, "AcDb:Classes", part);
        else if (number == 2)
            assignSection(container, "AcDb:Handles", part);
        else if (number == 4)
            assignSection(container, "AcDb:Template", part);
    }
    const std::size_t tableEnd = reader.position() / 8;
    if (reader.raw16() != (checksum16(file.first(tableEnd), 0) ^ tableSeed(count)))
        problems.warn("The checksum of the table of sections does not fit.");
    if (container.objectMap.empty())
        problems.lose("The file has no map of its objects.");
}

} // namespace host::dwg
