#include "tests/dwg/making/BitWriter.h"

namespace host::dwg::test {

void BitWriter::append(const BitWriter &other)
{
    for (std::size_t at = 0; at < other.m_size; ++at)
        bit((other.m_bytes[at / 8] >> (7 - at % 8) & 1) != 0);
}

void BitWriter::append(Bytes bytes)
{
    if (m_size % 8 == 0) {
        m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.end());
        m_size += bytes.size() * 8;
        return;
    }
    for (const std::uint8_t one : bytes)
        byte(one);
}

void BitWriter::bits(std::uint32_t value, int count)
{
    while (--count >= 0) {
        if (m_size % 8 == 0)
            m_bytes.push_back(0);
        m_bytes.back() = static_cast<std::uint8_t>(m_bytes.back() | (value >> count & 1) << (7 - m_size % 8));
        ++m_size;
    }
}

void BitWriter::raw16(std::uint32_t value)
{
    byte(static_cast<int>(value & 0xff));
    byte(static_cast<int>(value >> 8 & 0xff));
}

void BitWriter::raw32(std::uint32_t value)
{
    raw16(value);
    raw16(value >> 16);
}

void BitWriter::raw64(std::uint64_t value)
{
    raw32(static_cast<std::uint32_t>(value));
    raw32(static_cast<std::uint32_t>(value >> 32));
}

void BitWriter::rawBytes(std::string_view bytes)
{
    for (const char one : bytes)
        byte(static_cast<std::uint8_t>(one));
}

void BitWriter::putRaw32(std::size_t position, std::uint32_t value)
{
    for (std::size_t i = 0; i < 32; ++i) {
        // The lowest byte stands first, its highest bit in front.
        const bool isOne = (value >> (i / 8 * 8 + 7 - i % 8) & 1) != 0;
        const std::size_t at = position + i;
        const auto mask = static_cast<std::uint8_t>(0x80 >> at % 8);
        std::uint8_t &byte = m_bytes[at / 8];
        byte = static_cast<std::uint8_t>(isOne ? byte | mask : byte & ~mask);
    }
}

void BitWriter::triple(int value)
{
    // Ends behind the first 0.
    for (int shift = 2; shift >= 0; --shift) {
        const bool isOne = value >= (shift == 2 ? 2 : shift == 1 ? 6 : 7);
        bit(isOne);
        if (!isOne)
            return;
    }
}

void BitWriter::shortInteger(int value)
{
    if (value == 0) {
        pair(2);
    } else if (value == 256) {
        pair(3);
    } else if (value > 0 && value < 256) {
        pair(1);
        byte(value);
    } else {
        pair(0);
        raw16(static_cast<std::uint32_t>(value));
    }
}

void BitWriter::longInteger(std::int32_t value)
{
    if (value == 0) {
        pair(2);
    } else if (value > 0 && value < 256) {
        pair(1);
        byte(value);
    } else {
        pair(0);
        raw32(static_cast<std::uint32_t>(value));
    }
}

void BitWriter::longLong(std::uint64_t value)
{
    int count = 0;
    while (count < 7 && value >> (8 * count) != 0)
        ++count;
    bits(static_cast<std::uint32_t>(count), 3);
    for (int i = 0; i < count; ++i)
        byte(static_cast<int>(value >> (8 * i) & 0xff));
}

void BitWriter::real(double value)
{
    if (value == 1.0) {
        pair(1);
    } else if (value == 0.0) {
        pair(2);
    } else {
        pair(0);
        rawReal(value);
    }
}

void BitWriter::realNear(double usual, double value)
{
    if (value == usual) {
        pair(0);
    } else {
        pair(3);
        rawReal(value);
    }
}

void BitWriter::thickness(Release release, double value)
{
    if (release >= Release::R2000)
        bit(value == 0.0);
    if (release < Release::R2000 || value != 0.0)
        real(value);
}

void BitWriter::extrusion(Release release, Point direction)
{
    const bool isUsual = direction == Point{0.0, 0.0, 1.0};
    if (release >= Release::R2000)
        bit(isUsual);
    if (release < Release::R2000 || !isUsual)
        point(direction);
}

void BitWriter::point(Point point)
{
    real(point.x);
    real(point.y);
    real(point.z);
}

void BitWriter::modularUnsigned(std::uint64_t value)
{
    for (; value >= 0x80; value >>= 7)
        byte(static_cast<int>(value & 0x7f) | 0x80);
    byte(static_cast<int>(value));
}

void BitWriter::modularSigned(std::int64_t value)
{
    std::uint64_t size = static_cast<std::uint64_t>(value < 0 ? -value : value);
    for (; size >= 0x40; size >>= 7)
        byte(static_cast<int>(size & 0x7f) | 0x80);
    byte(static_cast<int>(size) | (value < 0 ? 0x40 : 0));
}

void BitWriter::modularShort(std::uint32_t value)
{
    for (; value >= 0x8000; value >>= 15)
        raw16((value & 0x7fff) | 0x8000);
    raw16(value);
}

void BitWriter::handle(int kind, std::uint64_t value)
{
    int count = 0;
    while (count < 8 && value >> (8 * count) != 0)
        ++count;
    bits(static_cast<std::uint32_t>(kind), 4);
    bits(static_cast<std::uint32_t>(count), 4);
    while (--count >= 0)
        byte(static_cast<int>(value >> (8 * count) & 0xff));
}

void BitWriter::objectType(Release release, int type)
{
    if (release < Release::R2010) {
        shortInteger(type);
    } else if (type < 0x100) {
        pair(0);
        byte(type);
    } else if (type >= 0x1f0 && type < 0x2f0) {
        pair(1);
        byte(type - 0x1f0);
    } else {
        pair(2);
        raw16(static_cast<std::uint32_t>(type));
    }
}

void BitWriter::text8(std::string_view text)
{
    shortInteger(static_cast<int>(text.size()));
    rawBytes(text);
}

void BitWriter::text16(std::string_view text)
{
    const std::u16string units = wideText(text);
    shortInteger(static_cast<int>(units.size()));
    for (const char16_t unit : units)
        raw16(unit);
}

std::u16string wideText(std::string_view text)
{
    std::u16string units;
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<std::uint8_t>(text[i++]);
        const int more = lead < 0x80 ? 0 : lead < 0xe0 ? 1 : lead < 0xf0 ? 2 : 3;
        std::uint32_t character = more == 0 ? lead : lead & (0x3fu >> more);
        for (int k = 0; k < more; ++k)
            character = character << 6 | (static_cast<std::uint8_t>(text[i++]) & 0x3f);
        if (character >= 0x10000) {
            units += static_cast<char16_t>(0xd7c0 + (character >> 10));
            character = 0xdc00 | (character & 0x3ff);
        }
        units += static_cast<char16_t>(character);
    }
    return units;
}

} // namespace host::dwg::test
