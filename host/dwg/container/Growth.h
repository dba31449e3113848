#pragma once

#include <algorithm>
#include <cstdint>

namespace host::dwg {

/// How much a file may unpack to. Packed bytes can stand for 255 each, so without a limit a file of a megabyte takes a
/// quarter of a gigabyte. Drawings unpack to 3 to 9 times their size, the smallest ones, of which most is room that
/// pages are filled up with, to 15 times; 50 times, and 16 MB that every file may have, refuses none of them.
class Growth
{
public:
    explicit Growth(std::uint64_t fileSize) : m_left(fileSize * mostGrowth + always) {}

    /// Takes room for so many bytes; false where the file has no more.
    bool take(std::uint64_t size)
    {
        if (size > m_left)
            return false;
        m_left -= size;
        return true;
    }

private:
    static constexpr std::uint64_t mostGrowth = 50;
    static constexpr std::uint64_t always = 16 << 20;

    std::uint64_t m_left;
};

/// The most that a map of pages or sections may have: each page takes 32 bytes of the file and is told in fewer.
constexpr std::uint64_t largestMap(std::uint64_t fileSize)
{
    return fileSize + 0x10000;
}

/// How long the text form may become: entities of twenty bytes name layers of any length. Drawings have up to 4 times
/// their objects' bytes.
constexpr std::uint64_t largestText(std::uint64_t fileSize, std::uint64_t objectsSize)
{
    return std::min<std::uint64_t>(64 * objectsSize + (1 << 20), 100 * fileSize + (64 << 20));
}

} // namespace host::dwg
