#include "host/dwg/bits/Checksums.h"
#include "host/dwg/contents/Contents.h"

#include <algorithm>

namespace host::dwg {

namespace {

std::size_t highFirst16(Bytes bytes, std::size_t at)
{
    return static_cast<std::size_t>(bytes[at] << 8 | bytes[at + 1]);
}

/// One run of the map: differences of handles and places.
void readRun(Bytes run, std::vector<MapEntry> &entries)
{
    BitReader reader(run);
    MapEntry entry;
    while (reader.left() >= 16) {
        entry.handle += reader.modularUnsigned();
        entry.place += static_cast<std::uint64_t>(reader.modularSigned());
        if (reader.hasFailed())
            return;
        entries.push_back(entry);
    }
}

} // namespace

std::vector<MapEntry> readObjectMap(Bytes map, Problems &problems)
{
    std::vector<MapEntry> entries;
    std::size_t at = 0;
    while (map.size() - at >= 4) {
        // The length counts itself, not the checksum behind it.
        const std::size_t size = highFirst16(map, at);
        if (size <= 2)
            break;
        if (size + 2 > map.size() - at) {
            problems.lose("The map of objects ends within a run.");
            break;
        }
        if (checksum16(map.subspan(at, size), 0xc0c1) != highFirst16(map, at + size))
            problems.warn("The checksum of a run of the map of objects does not fit.");
        readRun(map.subspan(at + 2, size - 2), entries);
        at += size + 2;
    }
    std::ranges::stable_sort(entries, {}, &MapEntry::handle);
    const auto isSame = [](const MapEntry &a, const MapEntry &b) { return a.handle == b.handle; };
    entries.erase(std::unique(entries.begin(), entries.end(), isSame), entries.end());
    return entries;
}

} // namespace host::dwg
