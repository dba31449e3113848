#include "host/dwg/bits/Checksums.h"

#include <algorithm>
#include <initializer_list>

namespace host::dwg {

namespace {

/// How many bytes go into a checksum at a time: each has a table that carries it over those behind it.
constexpr std::size_t slices = 8;

template <typename Number>
using ChecksumTables = std::array<std::array<Number, 256>, slices>;

template <typename Number, Number Polynomial>
constexpr ChecksumTables<Number> checksumTables()
{
    ChecksumTables<Number> tables{};
    for (std::uint32_t i = 0; i < 256; ++i) {
        auto value = static_cast<Number>(i);
        for (int bit = 0; bit < 8; ++bit)
            value = static_cast<Number>((value & 1) != 0 ? (value >> 1) ^ Polynomial : value >> 1);
        tables[0][i] = value;
    }
    for (std::size_t slice = 1; slice < slices; ++slice) {
        for (std::size_t i = 0; i < 256; ++i) {
            const Number before = tables[slice - 1][i];
            tables[slice][i] = static_cast<Number>(before >> 8 ^ tables[0][before & 0xff]);
        }
    }
    return tables;
}

constexpr auto tables16 = checksumTables<std::uint16_t, 0xa001>();
constexpr auto tables32 = checksumTables<std::uint32_t, 0xedb88320>();

template <typename Number>
Number checksumOf(Bytes bytes, Number sum, const ChecksumTables<Number> &tables)
{
    for (; bytes.size() >= slices; bytes = bytes.subspan(slices)) {
        Number next = 0;
        for (std::size_t i = 0; i < slices; ++i) {
            const std::size_t carried = i < sizeof sum ? sum >> 8 * i & 0xff : 0;
            next = static_cast<Number>(next ^ tables[slices - 1 - i][bytes[i] ^ carried]);
        }
        sum = next;
    }
    for (const std::uint8_t byte : bytes)
        sum = static_cast<Number>(sum >> 8 ^ tables[0][(sum ^ byte) & 0xff]);
    return sum;
}

/// The two sums of a page.
class PageSums
{
public:
    /// As many bytes as can be summed before the second sum has to be reduced; a multiple of 8.
    static constexpr std::size_t run = 0x15b0;

    explicit PageSums(std::uint32_t seed) : m_first(seed & 0xffff), m_second(seed >> 16) {}

    void add(std::uint8_t byte)
    {
        m_first += byte;
        m_second += m_first;
    }
    void reduce()
    {
        m_first %= modulus;
        m_second %= modulus;
    }
    std::uint32_t value() const { return m_second << 16 | m_first; }

private:
    static constexpr std::uint32_t modulus = 0xfff1;

    std::uint32_t m_first;
    std::uint32_t m_second;
};

/// The order that R2007 takes bytes in: the pairs of eight backwards, those of four changed.
void addInPairs(Bytes part, PageSums &sums)
{
    const auto add = [&](std::initializer_list<std::size_t> order) {
        for (const std::size_t i : order)
            sums.add(part[i]);
        part = part.subspan(order.size());
    };
    while (part.size() >= 8)
        add({6, 7, 4, 5, 2, 3, 0, 1});
    if (part.size() >= 4)
        add({2, 3, 0, 1});
    while (!part.empty())
        add({0});
}

} // namespace

std::uint16_t checksum16(Bytes bytes, std::uint16_t seed)
{
    return checksumOf(bytes, seed, tables16);
}

std::uint32_t checksum32(Bytes bytes, std::uint32_t seed)
{
    return ~checksumOf(bytes, ~seed, tables32);
}

std::uint32_t pageChecksum(Bytes bytes, std::uint32_t seed)
{
    PageSums sums(seed);
    while (!bytes.empty()) {
        const Bytes part = bytes.first(std::min(PageSums::run, bytes.size()));
        for (const std::uint8_t byte : part)
            sums.add(byte);
        sums.reduce();
        bytes = bytes.subspan(part.size());
    }
    return sums.value();
}

std::uint32_t pageChecksum2007(Bytes bytes)
{
    PageSums sums(static_cast<std::uint32_t>(bytes.size()) * 0x343fd + 0x269ec3);
    while (!bytes.empty()) {
        const Bytes part = bytes.first(std::min(PageSums::run, bytes.size()));
        addInPairs(part, sums);
        sums.reduce();
        bytes = bytes.subspan(part.size());
    }
    return sums.value();
}

} // namespace host::dwg
