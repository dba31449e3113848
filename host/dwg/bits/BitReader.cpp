#include "host/dwg/bits/BitReader.h"

#include <algorithm>
#include <array>

namespace host::dwg {

namespace {

void appendUtf8(std::string &text, std::uint32_t character)
{
    const auto add = [&text](std::uint32_t byte) { text += static_cast<char>(byte); };
    const auto addLower = [&](int shift) { add(0x80 | ((character >> shift) & 0x3f)); };
    if (character < 0x80)
        return add(character);
    if (character < 0x800) {
        add(0xc0 | (character >> 6));
    } else if (character < 0x10000) {
        add(0xe0 | (character >> 12));
        addLower(6);
    } else {
        add(0xf0 | (character >> 18));
        addLower(12);
        addLower(6);
    }
    addLower(0);
}

bool isHighHalf(std::uint32_t unit)
{
    return (unit & 0xfc00) == 0xd800;
}

bool isLowHalf(std::uint32_t unit)
{
    return (unit & 0xfc00) == 0xdc00;
}

} // namespace

std::uint64_t HandleReference::from(std::uint64_t from) const
{
    switch (kind) {
    case Next:
        return from + 1;
    case Previous:
        return from - 1;
    case Ahead:
        return from + value;
    case Behind:
        return from - value;
    default:
        return value;
    }
}

void BitReader::seek(std::size_t position)
{
    if (position > m_end)
        fail();
    else
        moveTo(position);
}

void BitReader::endAt(std::size_t position)
{
    if (position < m_at || position > m_end) {
        fail();
        return;
    }
    m_end = position;
    moveTo(m_at);
}

BitRun BitReader::runFrom(std::size_t begin) const
{
    BitReader back = *this;
    back.m_at = std::min(begin, m_at);
    const std::size_t count = std::min(m_at - back.m_at, BitRun::most);
    return count == 0 ? BitRun() : BitRun{back.ahead() >> (wordBits - count) << (wordBits - count), count};
}

bool BitReader::lookAhead(std::size_t count)
{
    if (!isThere(count))
        return false;
    m_ahead = ahead();
    m_seen = std::min(m_at / 8 * 8 + wordBits, m_end);
    return true;
}

std::uint64_t BitReader::raw64()
{
    if (!isThere(wordBits))
        return 0;
    const std::uint64_t value = wholeWord();
    moveTo(m_at + wordBits);
    return turnedAround(value);
}

std::uint64_t BitReader::aheadInFewBytes() const
{
    std::uint64_t word = 0;
    for (std::size_t i = m_at / 8; i < m_at / 8 + sizeof word; ++i)
        word = word << 8 | (i < m_size ? m_bytes[i] : 0);
    return word << m_at % 8;
}

std::string BitReader::rawBytes(std::size_t count)
{
    std::string bytes;
    appendRawBytes(count, bytes);
    return bytes;
}

void BitReader::appendRawBytes(std::size_t count, std::string &bytes)
{
    if (count > left() / 8 || !isThere(count * 8)) {
        fail();
        return;
    }
    const std::uint8_t *from = m_bytes + m_at / 8;
    const unsigned shift = m_at % 8;
    moveTo(m_at + count * 8);
    if (shift == 0) {
        bytes.append(reinterpret_cast<const char *>(from), count);
        return;
    }
    const std::size_t begin = bytes.size();
    bytes.resize(begin + count);
    char *to = bytes.data() + begin;
    // The last byte has its end in one byte more, which is there, as the bits are.
    std::size_t i = 0;
    for (; i + sizeof(std::uint64_t) <= count; i += sizeof(std::uint64_t)) {
        const std::uint64_t last = from[i + sizeof last] >> (8 - shift);
        storeWord(loadWord(from + i) << shift | last, to + i);
    }
    for (; i < count; ++i)
        to[i] = static_cast<char>(from[i] << shift | from[i + 1] >> (8 - shift));
}

int BitReader::triple()
{
    int value = 0;
    for (int i = 0; i < 3; ++i) {
        const bool isOne = bit();
        value = value << 1 | (isOne ? 1 : 0);
        if (!isOne)
            break;
    }
    return value;
}

std::uint64_t BitReader::longLong()
{
    const int count = static_cast<int>(bits(3));
    std::uint64_t value = 0;
    for (int i = 0; i < count; ++i)
        value |= static_cast<std::uint64_t>(byte()) << (8 * i);
    return value;
}

double BitReader::realNear(double usual)
{
    const auto was = std::bit_cast<std::uint64_t>(usual);
    switch (pair()) {
    case 0:
        return usual;
    case 1:
        return std::bit_cast<double>((was & 0xffffffff00000000) | raw32());
    case 2: {
        const std::uint64_t middle = raw16();
        return std::bit_cast<double>((was & 0xffff000000000000) | middle << 32 | raw32());
    }
    default:
        return rawReal();
    }
}

double BitReader::thickness(Release release)
{
    return release >= Release::R2000 && bit() ? 0.0 : real();
}

Point BitReader::extrusion(Release release)
{
    return release >= Release::R2000 && bit() ? Point{0.0, 0.0, 1.0} : point();
}

std::uint64_t BitReader::longModular(std::uint8_t first)
{
    std::uint64_t value = first & 0x7f;
    for (int shift = 7; shift < 64; shift += 7) {
        const std::uint64_t next = byte();
        value |= (next & 0x7f) << shift;
        if ((next & 0x80) == 0)
            return value;
    }
    fail();
    return 0;
}

std::int64_t BitReader::modularSigned()
{
    std::uint64_t value = 0;
    for (int shift = 0; shift < 64; shift += 7) {
        const std::uint64_t next = byte();
        if ((next & 0x80) == 0) {
            const auto number = static_cast<std::int64_t>(value | (next & 0x3f) << shift);
            return (next & 0x40) != 0 ? -number : number;
        }
        value |= (next & 0x7f) << shift;
    }
    fail();
    return 0;
}

std::uint32_t BitReader::modularShort()
{
    std::uint32_t value = 0;
    for (int shift = 0; shift < 30; shift += 15) {
        const std::uint32_t next = raw16();
        value |= (next & 0x7fff) << shift;
        if ((next & 0x8000) == 0)
            return value;
    }
    fail();
    return 0;
}

HandleReference BitReader::handle()
{
    constexpr int headBits = 8;
    constexpr std::size_t mostInAWord = 6; // bytes
    const std::uint64_t word = ahead();
    const std::size_t size = word >> 56 & 0xf;
    if (size <= mostInAWord && left() >= headBits + 8 * size && !m_hasFailed) {
        moveTo(m_at + headBits + 8 * size);
        return {static_cast<int>(word >> 60), word << headBits >> 1 >> (63 - 8 * size)};
    }
    return longHandle();
}

HandleReference BitReader::longHandle()
{
    constexpr int mostAtOnce = 4; // bytes
    HandleReference reference;
    reference.kind = static_cast<int>(bits(4));
    const int count = static_cast<int>(bits(4));
    if (count > 8) {
        fail();
        return {};
    }
    if (count > mostAtOnce)
        reference.value = std::uint64_t(bits(8 * (count - mostAtOnce))) << 32;
    reference.value |= bits(8 * std::min(count, mostAtOnce));
    return m_hasFailed ? HandleReference() : reference;
}

int BitReader::objectType(Release release)
{
    if (release < Release::R2010)
        return shortInteger();
    switch (pair()) {
    case 0:
        return byte();
    case 1:
        return byte() + 0x1f0;
    default:
        return raw16();
    }
}

std::string BitReader::rawText(std::size_t count)
{
    std::string text = rawBytes(count);
    text.resize(std::min(text.size(), text.find('\0')));
    return text;
}

std::string BitReader::text8()
{
    return rawText(static_cast<std::uint16_t>(shortInteger()));
}

std::string BitReader::text16()
{
    return utf16(static_cast<std::uint16_t>(shortInteger()));
}

void BitReader::takeAscii(std::size_t end, std::string &text)
{
    constexpr std::uint64_t beyondAscii = 0x80ff'80ff'80ff'80ff;
    constexpr std::uint64_t each = 0x0100'0100'0100'0100;
    constexpr std::uint64_t blanks = 0x2000'2000'2000'2000;
    std::array<char, 128> taken;
    std::size_t count = 0;
    for (std::size_t there = wordBits; m_at < end; moveTo(m_at + there)) {
        there = std::min(end - m_at, wordBits);
        // Blanks stand for what is behind the end.
        const std::uint64_t units =
            there == wordBits ? wholeWord() : ahead() >> (wordBits - there) << (wordBits - there) | blanks >> there;
        // Of a unit that is zero the subtraction sets the highest bit.
        if (((units | (units - each)) & beyondAscii) != 0)
            break;
        char *const to = taken.data() + count;
        to[0] = static_cast<char>(units >> 56);
        to[1] = static_cast<char>(units >> 40);
        to[2] = static_cast<char>(units >> 24);
        to[3] = static_cast<char>(units >> 8);
        count += there / 16;
        if (count > taken.size() - 4) {
            text.append(taken.data(), count);
            count = 0;
        }
    }
    text.append(taken.data(), count);
}

std::string BitReader::utf16(std::size_t units)
{
    if (m_hasFailed || units > left() / 16) {
        fail();
        return {};
    }
    std::string text;
    const std::size_t end = m_at + 16 * units;
    std::uint32_t pending = 0;
    for (takeAscii(end, text); m_at < end; takeAscii(pending == 0 ? end : m_at, text)) {
        const std::uint32_t unit = raw16();
        if (pending != 0 && isLowHalf(unit)) {
            appendUtf8(text, 0x10000 + ((pending & 0x3ff) << 10) + (unit & 0x3ff));
            pending = 0;
            continue;
        }
        if (pending != 0)
            appendUtf8(text, 0xfffd);
        pending = isHighHalf(unit) ? unit : 0;
        if (unit == 0)
            moveTo(end);
        else if (pending == 0)
            appendUtf8(text, isLowHalf(unit) ? 0xfffd : unit);
    }
    if (pending != 0)
        appendUtf8(text, 0xfffd);
    return text;
}

} // namespace host::dwg
