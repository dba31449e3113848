#include "host/dwg/bits/Checksums.h"

#include <algorithm>

namespace host::dwg {

namespace {

template <typename Number, Number Polynomial>
constexpr std::array<Number, 256> checksumTable()
{
    std::array<Number, 256> table{};
    for (std::uint32_t i = 0; i < 256; ++i) {
        auto value = static_cast<Number>(i);
        for (int bit = 0; bit < 8; ++bit)
            value = static_cast<Number>((value & 1) != 0 ? (value >> 1) ^ Polynomial : value >> 1);
        table[i] = value;
    }
    return table;
}

constexpr auto table16 = checksumTable<std::uint16_t, 0xa001>();
constexpr auto table32 = checksumTable<std::uint32_t, 0xedb88320>();

} // namespace

std::uint16_t checksum16(Bytes bytes, std::uint16_t seed)
{
    for (const std::uint8_t byte : bytes)
        seed = static_cast<std::uint16_t>(seed >> 8 ^ table16[(seed ^ byte) & 0xff]);
    return seed;
}

std::uint32_t checksum32(Bytes bytes, std::uint32_t seed)
{
    seed = ~seed;
    for (const std::uint8_t byte : bytes)
        seed = seed >> 8 ^ table32[(seed ^ byte) & 0xff];
    return ~seed;
}

std::uint32_t pageChecksum(Bytes bytes, std::uint32_t seed)
{
    constexpr std::uint32_t modulus = 0xfff1;
    // As many bytes as can be summed before the second sum has to be reduced.
    constexpr std::size_t run = 0x15b0;
    std::uint32_t first = seed & 0xffff;
    std::uint32_t second = seed >> 16;
    while (!bytes.empty()) {
        const Bytes part = bytes.first(std::min(run, bytes.size()));
        for (const std::uint8_t byte : part) {
            first += byte;
            second += first;
        }
        first %= modulus;
        second %= modulus;
        bytes = bytes.subspan(part.size());
    }
    return second << 16 | first;
}

} // namespace host::dwg
