#include "host/dwg/container/CorrectedPages.h"

#include "host/dwg/container/PageCompression2007.h"

#include <algorithm>

namespace host::dwg {

Correction correctPage(PageBytes &page, ErrorCode code)
{
    Correction correction;
    const std::size_t blocks = page.size() / correctedBlock;
    std::array<std::uint8_t, correctedBlock> block{};
    for (std::size_t one = 0; one < blocks; ++one) {
        for (std::size_t i = 0; i < correctedBlock; ++i)
            block[i] = page[one + i * blocks];
        const auto count = correctBlock(code, block);
        correction.count += count.value_or(0);
        correction.isWhole = correction.isWhole && count.has_value();
        for (std::size_t i = 0; count.value_or(0) > 0 && i < correctedBlock; ++i)
            page[one + i * blocks] = block[i];
    }
    return correction;
}

PageBytes ownBytesOf(Bytes page, ErrorCode code)
{
    const std::size_t blocks = page.size() / correctedBlock;
    PageBytes bytes(blocks * ownBytes(code));
    auto to = bytes.begin();
    for (std::size_t one = 0; one < blocks; ++one) {
        for (std::size_t i = 0; i < ownBytes(code); ++i)
            *to++ = page[one + i * blocks];
    }
    return bytes;
}

std::size_t blocksFor(std::uint64_t size, ErrorCode code)
{
    return (size + ownBytes(code) - 1) / ownBytes(code);
}

bool unpackInto(std::span<std::uint8_t> page, Bytes packed, std::uint64_t packedSize)
{
    if (packedSize > packed.size())
        return false;
    if (packedSize < page.size())
        return unpackPage2007(packed.first(packedSize), page);
    std::copy_n(packed.begin(), page.size(), page.begin());
    return true;
}

std::optional<PageBytes> unpacked(Bytes packed, std::uint64_t packedSize, std::uint64_t size)
{
    if (packedSize > packed.size())
        return std::nullopt;
    PageBytes page(size);
    return unpackInto(page, packed, packedSize) ? std::optional(std::move(page)) : std::nullopt;
}

} // namespace host::dwg
