#include "host/dwg/container/Pages.h"

#include "host/dwg/bits/Checksums.h"
#include "host/dwg/container/Growth.h"
#include "host/dwg/container/PageCompression.h"

#include <algorithm>

namespace host::dwg {

namespace {

constexpr std::uint32_t dataPageType = 0x4163043b;

template <std::size_t Size>
std::array<std::uint8_t, Size> bytesAt(Bytes file, std::size_t at)
{
    std::array<std::uint8_t, Size> bytes{};
    std::copy_n(file.begin() + static_cast<std::ptrdiff_t>(at), Size, bytes.begin());
    return bytes;
}

bool hasRoom(Bytes file, std::uint64_t at, std::size_t size)
{
    return at <= file.size() && size <= file.size() - at;
}

} // namespace

std::optional<DataPage> dataPageAt(Bytes file, std::uint64_t at)
{
    if (!hasRoom(file, at, dataPageHead))
        return std::nullopt;
    // The numbers of the head are mixed with its place.
    auto head = bytesAt<dataPageHead>(file, at);
    const std::uint32_t mixture = 0x4164536b ^ static_cast<std::uint32_t>(at);
    for (std::size_t i = 0; i < head.size(); ++i)
        head[i] = static_cast<std::uint8_t>(head[i] ^ mixture >> (8 * (i % 4)));
    BitReader reader(head);
    if (reader.raw32() != dataPageType)
        return std::nullopt;
    DataPage page;
    page.section = reader.raw32();
    const std::uint32_t size = reader.raw32();
    reader.raw32(); // room that it takes in the file
    page.start = reader.raw64();
    const std::uint32_t headChecksum = reader.raw32();
    page.checksum = reader.raw32();
    if (!hasRoom(file, at + dataPageHead, size))
        return std::nullopt;
    page.packed = file.subspan(at + dataPageHead, size);
    std::fill_n(head.begin() + 24, 4, std::uint8_t(0));
    page.isHeadChecked = pageChecksum(head, page.checksum) == headChecksum;
    return page;
}

bool DataPage::isChecked() const
{
    return pageChecksum(packed, 0) == checksum;
}

std::optional<MapPage> mapPageAt(Bytes file, std::uint64_t at, MapType type)
{
    constexpr std::size_t headSize = 0x14;
    constexpr std::uint32_t isPacked = 2;
    if (!hasRoom(file, at, headSize))
        return std::nullopt;
    auto head = bytesAt<headSize>(file, at);
    BitReader reader(head);
    const bool isRightType = reader.raw32() == static_cast<std::uint32_t>(type);
    const std::uint32_t size = reader.raw32();
    const std::uint32_t packedSize = reader.raw32();
    const std::uint32_t packing = reader.raw32();
    const std::uint32_t checksum = reader.raw32();
    if (!isRightType || !hasRoom(file, at + headSize, packedSize) || size > largestMap(file.size()))
        return std::nullopt;
    const Bytes packed = file.subspan(at + headSize, packedSize);
    std::fill(head.end() - 4, head.end(), std::uint8_t(0));
    MapPage page;
    page.isChecked = pageChecksum(packed, pageChecksum(head, 0)) == checksum;
    if (packing != isPacked) {
        page.bytes.assign(packed.begin(), packed.end());
        return page;
    }
    page.bytes.resize(size);
    return unpackPage(packed, page.bytes) ? std::optional(std::move(page)) : std::nullopt;
}

std::vector<DataPage> findDataPages(Bytes file)
{
    std::vector<DataPage> pages;
    for (std::size_t at = pagesStart; at < file.size(); at += pageUnit) {
        const auto page = dataPageAt(file, at);
        if (!page || !page->isHeadChecked)
            continue;
        pages.push_back(*page);
        at += page->packed.size() / pageUnit * pageUnit;
    }
    return pages;
}

std::optional<MapPage> findMapPage(Bytes file, MapType type)
{
    std::optional<MapPage> found;
    // A hostile file has a page that begins at each unit and goes on to the end.
    int tries = 100;
    for (std::size_t at = pagesStart; at < file.size() && tries > 0; at += pageUnit) {
        if (BitReader(file, at * 8, file.size() * 8).raw32() != static_cast<std::uint32_t>(type))
            continue;
        --tries;
        auto page = mapPageAt(file, at, type);
        if (page && page->isChecked)
            found = std::move(page);
    }
    return found;
}

} // namespace host::dwg
