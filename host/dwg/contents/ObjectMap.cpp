#include "host/dwg/bits/Checksums.h"
#include "host/dwg/contents/Contents.h"

#include <algorithm>

namespace host::dwg {

namespace {

std::size_t highFirst16(Bytes bytes, std::size_t at)
{
    return static_cast<std::size_t>(bytes[at] << 8 | bytes[at + 1]);
}

/// What the map tells, in its order.
struct MapContent
{
    std::vector<MapEntry> entries;
    bool isWhole = true;
};

/// Reads one run of the map: differences of handles and places.
void readRun(Bytes run, MapContent &content, std::size_t most)
{
    BitReader reader(run);
    MapEntry entry;
    while (reader.left() >= 16) {
        entry.handle += reader.modularUnsigned();
        entry.place += static_cast<std::uint64_t>(reader.modularSigned());
        if (reader.hasFailed() || content.entries.size() >= most) {
            content.isWhole = false;
            return;
        }
        content.entries.push_back(entry);
    }
}

/// `most` is how many objects there can be.
MapContent readRuns(Bytes map, std::size_t most, Problems &problems)
{
    MapContent content;
    content.isWhole = !map.empty();
    // Room that is not used costs nothing, while entries that move have twice their room for a time.
    constexpr std::size_t smallestEntry = 2;
    content.entries.reserve(std::min(most, map.size() / smallestEntry));
    std::size_t at = 0;
    while (map.size() - at >= 4) {
        // The length counts itself, not the checksum behind it.
        const std::size_t size = highFirst16(map, at);
        if (size <= 2)
            break;
        if (size + 2 > map.size() - at) {
            problems.warn("The map of objects ends within a run.");
            content.isWhole = false;
            break;
        }
        if (checksum16(map.subspan(at, size), 0xc0c1) != highFirst16(map, at + size)) {
            problems.warn("The checksum of a run of the map of objects does not fit.");
            content.isWhole = false;
        }
        readRun(map.subspan(at + 2, size - 2), content, most);
        at += size + 2;
    }
    return content;
}

void sortByHandle(std::vector<MapEntry> &entries)
{
    if (!std::ranges::is_sorted(entries, {}, &MapEntry::handle))
        std::ranges::stable_sort(entries, {}, &MapEntry::handle);
    const auto isSame = [](const MapEntry &a, const MapEntry &b) { return a.handle == b.handle; };
    entries.erase(std::unique(entries.begin(), entries.end(), isSame), entries.end());
}

/// Keeps how objects begin, and marks what is not at its place. False when there is any.
bool markLost(const Container &container, std::vector<MapEntry> &entries)
{
    std::uint64_t room = container.objects.size();
    bool isWhole = true;
    for (MapEntry &entry : entries) {
        const auto frame = frameAt(container.objects, entry.place, container.release);
        const std::uint64_t size = frame ? endOf(*frame, container.objects) - entry.place : 0;
        const bool isThere = frame && frame->handle == entry.handle && size <= room;
        room -= isThere ? size : 0;
        entry.place = isThere ? entry.place : lostPlace;
        entry.frame = isThere ? *frame : ObjectFrame();
        isWhole = isWhole && isThere;
    }
    return isWhole;
}

/// Gives lost objects the places where they are found, and adds those that the map should have told of.
std::size_t addFound(const std::vector<MapEntry> &found, bool isMapWhole, std::vector<MapEntry> &entries)
{
    std::size_t count = 0;
    const std::size_t told = entries.size();
    for (const MapEntry &one : found) {
        const auto end = entries.begin() + static_cast<std::ptrdiff_t>(told);
        const auto entry = std::lower_bound(entries.begin(), end, one.handle,
                                            [](const MapEntry &a, std::uint64_t handle) { return a.handle < handle; });
        const bool isTold = entry != end && entry->handle == one.handle;
        if (isTold && entry->place == lostPlace)
            *entry = one;
        else if (!isTold && !isMapWhole)
            entries.push_back(one);
        else
            continue;
        ++count;
    }
    sortByHandle(entries);
    return count;
}

} // namespace

std::vector<MapEntry> readObjectMap(const Container &container, Problems &problems)
{
    constexpr std::size_t smallestObject = 5;
    MapContent content = readRuns(container.objectMap, container.objects.size() / smallestObject, problems);
    sortByHandle(content.entries);
    const bool areThere = markLost(container, content.entries);
    if (content.isWhole && areThere)
        return std::move(content.entries);
    const std::size_t count =
        addFound(findObjects(container.objects, container.release), content.isWhole, content.entries);
    if (count > 0)
        problems.warn(std::to_string(count) + " objects were found without the map of objects.");
    return std::move(content.entries);
}

} // namespace host::dwg
