#pragma once

#include <cstdint>

namespace host::dwg {

/// How much a file may unpack to. Packed bytes can stand for 255 each, so without a limit a file of a megabyte takes a
/// quarter of a gigabyte. Drawings unpack to 2 to 8 times their size; a hundred times, and 16 MB that even the smallest
/// may have for a picture of one colour, refuses none of them.
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
    static constexpr std::uint64_t mostGrowth = 100;
    static constexpr std::uint64_t always = 16 << 20;

    std::uint64_t m_left;
};

/// The most that a map of pages or sections may have: each page takes 32 bytes of the file and is told in fewer.
constexpr std::uint64_t largestMap(std::uint64_t fileSize)
{
    return fileSize + 0x10000;
}

} // namespace host::dwg
