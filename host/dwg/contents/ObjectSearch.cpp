#include "host/dwg/contents/ObjectSearch.h"

#include <algorithm>

namespace host::dwg {

namespace {

/// The types that files can have: those with a number of their own, proxies, and classes.
bool isPossibleType(int type)
{
    constexpr int lastOwnNumber = 0x52;
    constexpr int firstProxy = 0x1f2;
    constexpr int lastClass = 0x1000;
    return (type > 0 && type <= lastOwnNumber) || (type >= firstProxy && type <= lastClass);
}

} // namespace

std::uint64_t endOf(const ObjectFrame &frame, Bytes objects)
{
    constexpr std::uint64_t checksumSize = 2;
    return static_cast<std::uint64_t>(frame.bytes.data() - objects.data()) + frame.bytes.size() + checksumSize;
}

std::vector<MapEntry> findObjects(Bytes objects, Release release)
{
    std::vector<MapEntry> entries;
    // Bytes that are no object look like one again and again; their checksums are not taken for ever.
    std::uint64_t work = 64 * std::uint64_t(objects.size());
    for (std::uint64_t at = 0; at < objects.size();) {
        const auto frame = frameAt(objects, at, release);
        const bool isPossible =
            frame && isPossibleType(frame->type) && frame->handle != 0 && frame->bytes.size() <= work;
        work -= isPossible ? frame->bytes.size() : 0;
        if (!isPossible || !hasItsChecksum(objects, at, *frame)) {
            ++at;
            continue;
        }
        entries.push_back({frame->handle, at, *frame});
        at = endOf(*frame, objects);
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](const MapEntry &a, const MapEntry &b) { return a.handle < b.handle; });
    // The last of those with one handle stays.
    const auto isSame = [](const MapEntry &a, const MapEntry &b) { return a.handle == b.handle; };
    entries.erase(entries.begin(), std::unique(entries.rbegin(), entries.rend(), isSame).base());
    return entries;
}

} // namespace host::dwg
