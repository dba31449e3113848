#pragma once

#include "host/dwg/bits/BitReader.h"

#include <string_view>
#include <vector>

namespace host::dwg::test {

/// Writes the coded values that BitReader reads, under the same names: each in the shortest form that it has. A run of
/// bits in memory; the first bit of a byte is its highest one.
class BitWriter
{
public:
    std::size_t position() const { return m_size; } ///< in bits
    /// All bits, filled up with zeros to a whole byte.
    const std::vector<std::uint8_t> &bytes() const { return m_bytes; }
    void align() { m_size = m_bytes.size() * 8; }
    /// All bits of the other one behind these.
    void append(const BitWriter &other);
    void append(Bytes bytes);

    // Raw values.
    void bit(bool value) { bits(value ? 1 : 0, 1); }
    void bits(std::uint32_t value, int count);
    void byte(int value) { bits(static_cast<std::uint32_t>(value) & 0xff, 8); }
    void raw16(std::uint32_t value);
    void raw32(std::uint32_t value);
    void raw64(std::uint64_t value);
    void rawReal(double value) { raw64(std::bit_cast<std::uint64_t>(value)); }
    void rawBytes(std::string_view bytes);
    /// Writes over 32 bits that were written before.
    void putRaw32(std::size_t position, std::uint32_t value);

    // Coded values.
    void pair(int value) { bits(static_cast<std::uint32_t>(value), 2); }
    void triple(int value);
    void shortInteger(int value);
    void longInteger(std::int32_t value);
    void longLong(std::uint64_t value);
    void real(double value);
    void realNear(double usual, double value);
    void thickness(Release release, double value);
    void extrusion(Release release, Point direction);
    void point(Point point);
    void modularUnsigned(std::uint64_t value);
    void modularSigned(std::int64_t value);
    void modularShort(std::uint32_t value);
    void handle(int kind, std::uint64_t value);
    void objectType(Release release, int type);
    void text8(std::string_view text);
    /// `text` in UTF-8.
    void text16(std::string_view text);

private:
    std::vector<std::uint8_t> m_bytes;
    std::size_t m_size = 0;
};

/// The units of UTF-16 of a text in UTF-8, which must be well formed.
std::u16string wideText(std::string_view text);

} // namespace host::dwg::test
