#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>

namespace host::dwg {

using Bytes = std::span<const std::uint8_t>;

/// The releases of the format by the number that their files begin with ("AC1015"), so that later ones are greater.
enum class Release : int
{
    None = 0,
    R25 = 1002, ///< 2.5; those up to R12 have plain records (early/)
    R26 = 1003, ///< 2.6
    R9 = 1004,
    R10 = 1006,
    R12 = 1009, ///< and R11
    R13 = 1012,
    R14 = 1014,
    R2000 = 1015,
    R2004 = 1018,
    R2007 = 1021,
    R2010 = 1024,
    R2013 = 1027,
    R2018 = 1032
};

/// A reference as it stands in a file: its kind and what it refers to, given as it is or counted from the object that
/// has it.
struct HandleReference
{
    enum Kind
    {
        SoftOwner = 2,
        HardOwner = 3,
        SoftPointer = 4,
        HardPointer = 5,
        Next = 6,     ///< the handle behind that of the object
        Previous = 8, ///< the handle in front of it
        Ahead = 10,   ///< as many behind as the value says
        Behind = 12   ///< as many in front
    };

    int kind = 0;
    std::uint64_t value = 0;

    /// Whether what it goes to belongs to the object that has it.
    bool isOwner() const { return kind == SoftOwner || kind == HardOwner; }
    /// The handle that is meant in an object with the handle `from`; 0 names nothing.
    std::uint64_t from(std::uint64_t from) const;
};

/// A few bits, the first one the highest; those behind them are 0.
struct BitRun
{
    static constexpr std::size_t most = 57; ///< that can be looked at at a time, wherever they begin

    std::uint64_t bits = 0;
    std::size_t count = 0; ///< 1 to `most`
};

struct Point
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    bool operator==(const Point &) const = default;
};

/// Reads the coded values of a run of bits: numbers that need fewer bits where they are small or as usual. The first
/// bit of a byte is its highest one; what has several bytes begins with the lowest of them.
///
/// Not trusted: what reaches beyond the end, or is longer than what is left, is 0 or empty and marks the reader as
/// failed for good; it stays at its place then. Each call costs what it reads.
class BitReader
{
public:
    BitReader() = default;
    /// All bits of `bytes`, which must outlive the reader.
    explicit BitReader(Bytes bytes) : BitReader(bytes, 0, bytes.size() * 8) {}
    /// The bits from `first` to before `end`; both are cut to what is there.
    BitReader(Bytes bytes, std::size_t first, std::size_t end)
        : m_bytes(bytes.data()), m_size(bytes.size()), m_at(std::min(first, bytes.size() * 8)),
          m_end(std::clamp(end, m_at, bytes.size() * 8)), m_seen(m_at)
    {
    }

    bool hasFailed() const { return m_hasFailed; }
    std::size_t position() const { return m_at; }
    std::size_t end() const { return m_end; }
    std::size_t left() const { return m_end - m_at; }
    /// Goes to the bit, counted from the first of all bytes; fails when it is behind the end.
    void seek(std::size_t position);
    void skip(std::size_t bits)
    {
        if (isThere(bits))
            moveTo(m_at + bits);
    }
    /// To the next whole byte.
    void align() { moveTo(std::min((m_at + 7) / 8 * 8, m_end)); }
    /// Ends earlier, at a bit counted from the first of all bytes; fails when that is behind.
    void endAt(std::size_t position);
    void fail()
    {
        m_hasFailed = true;
        m_seen = m_at;
    }

    /// Whether these bits come next.
    bool isNext(const BitRun &run) const
    {
        return left() >= run.count && !m_hasFailed && (ahead() ^ run.bits) >> (wordBits - run.count) == 0;
    }
    /// The bits from `begin` up to here, as far as a run has room for them.
    BitRun runFrom(std::size_t begin) const;

    // Raw values: the bits as they are.
    bool bit() { return bits(1) != 0; }
    /// Up to 32 bits, the first one the highest.
    std::uint32_t bits(int count)
    {
        const auto wanted = static_cast<std::size_t>(count);
        if (wanted > m_seen - m_at && !lookAhead(wanted))
            return 0;
        // In two steps, as no bit at all would have to be shifted by all 64.
        const auto value = static_cast<std::uint32_t>(m_ahead >> 1 >> (63 - count));
        m_ahead <<= count;
        m_at += wanted;
        return value;
    }
    std::uint8_t byte() { return static_cast<std::uint8_t>(bits(8)); }
    std::uint16_t raw16()
    {
        const std::uint32_t value = bits(16);
        return static_cast<std::uint16_t>(value >> 8 | value << 8);
    }
    std::uint32_t raw32() { return lowestFirst(bits(32)); }
    std::uint64_t raw64();
    double rawReal() { return std::bit_cast<double>(raw64()); }
    /// `count` bytes, whole or none.
    std::string rawBytes(std::size_t count);
    /// The same, put behind what is in `bytes`.
    void appendRawBytes(std::size_t count, std::string &bytes);
    /// `count` bytes that are a text: a zero ends it.
    std::string rawText(std::size_t count);

    // Coded values.
    int pair() { return static_cast<int>(bits(2)); }
    /// Three bits that are cut short where one of them is 0: 0 to 7.
    int triple();
    std::int16_t shortInteger()
    {
        switch (pair()) {
        case 0:
            return static_cast<std::int16_t>(raw16());
        case 1:
            return byte();
        case 2:
            return 0;
        default:
            return 256;
        }
    }
    std::int32_t longInteger()
    {
        switch (pair()) {
        case 0:
            return static_cast<std::int32_t>(raw32());
        case 1:
            return byte();
        default:
            return 0;
        }
    }
    /// A number of three bits says how many bytes follow.
    std::uint64_t longLong();
    double real()
    {
        switch (pair()) {
        case 0:
            return rawReal();
        case 1:
            return 1.0;
        default:
            return 0.0;
        }
    }
    /// A number that is likely to be `usual` or near it.
    double realNear(double usual);
    /// From R2000 on 0 is one bit.
    double thickness(Release release);
    /// From R2000 on the z axis is one bit.
    Point extrusion(Release release);
    Point point() { return {real(), real(), real()}; }
    /// Bytes of seven bits, the lowest first, as long as the highest bit says that another one follows.
    std::uint64_t modularUnsigned()
    {
        const std::uint8_t first = byte();
        return (first & 0x80) == 0 ? first : longModular(first);
    }
    std::int64_t modularSigned();
    /// The same in units of 15 bits.
    std::uint32_t modularShort();
    HandleReference handle();
    /// A type of an object: a short integer before R2010.
    int objectType(Release release);
    // Texts, which a zero ends wherever it stands: it ends them in programs that write drawings.
    /// With its length in front, in the file's code page.
    std::string text8();
    /// Of UTF-16, as UTF-8. Halves of pairs that stand alone become U+FFFD.
    std::string text16();
    /// `units` units of UTF-16 without a length.
    std::string utf16(std::size_t units);

private:
    static constexpr std::size_t wordBits = 64;

    /// Whether as many bits are left; fails otherwise.
    bool isThere(std::size_t count)
    {
        if (m_hasFailed || count > m_end - m_at)
            fail();
        return !m_hasFailed;
    }
    /// Takes as many bits into m_ahead as it has room for. Fails where they are less than `count`.
    bool lookAhead(std::size_t count);
    void moveTo(std::size_t position)
    {
        m_at = position;
        m_seen = position;
    }

    /// The bits from here on in the highest places: to the end of the eighth byte, as far as there are bytes.
    std::uint64_t ahead() const
    {
        constexpr std::size_t wordSize = sizeof(std::uint64_t);
        if (m_size < wordSize)
            return aheadInFewBytes();
        // The last word is read from where it is whole, so that nothing behind the bytes is touched.
        const std::size_t begin = std::min(m_at / 8, m_size - wordSize);
        return loadWord(m_bytes + begin) << ((m_at - begin * 8) & 63);
    }
    std::uint64_t aheadInFewBytes() const;
    /// A number of which the first byte was read.
    std::uint64_t longModular(std::uint8_t first);
    /// One of more bytes than are looked at at a time, or one that is cut off.
    HandleReference longHandle();
    /// The next 64 bits, which are there.
    std::uint64_t wholeWord() const
    {
        // The last bits stand in a ninth byte, unless the first one begins a byte.
        const std::uint64_t last = m_bytes[(m_at + wordBits - 1) / 8] >> (8 - m_at % 8);
        return ahead() | last;
    }
    /// Takes units of UTF-16 up to the bit `end`, as long as those that are looked at together are ASCII and no zeros.
    void takeAscii(std::size_t end, std::string &text);

    /// Eight bytes as a word, the first one the highest.
    static std::uint64_t loadWord(const std::uint8_t *bytes)
    {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes, sizeof word);
        return std::endian::native == std::endian::little ? turnedAround(word) : word;
    }
    static void storeWord(std::uint64_t word, char *to)
    {
        word = std::endian::native == std::endian::little ? turnedAround(word) : word;
        std::memcpy(to, &word, sizeof word);
    }

    /// The bytes of a word in the other order: one instruction. A loop over the bytes would not become one
    /// with GCC 12.
    static std::uint64_t turnedAround(std::uint64_t word)
    {
        return static_cast<std::uint64_t>(lowestFirst(static_cast<std::uint32_t>(word))) << 32 |
               lowestFirst(static_cast<std::uint32_t>(word >> 32));
    }

    static std::uint32_t lowestFirst(std::uint32_t value)
    {
        return value >> 24 | (value >> 8 & 0xff00) | (value << 8 & 0xff0000) | value << 24;
    }

    const std::uint8_t *m_bytes = nullptr;
    std::size_t m_size = 0; ///< in bytes
    std::size_t m_at = 0;
    std::size_t m_end = 0;
    // The bits from here to before m_seen, in the highest places, so that most calls look at nothing else.
    std::uint64_t m_ahead = 0;
    std::size_t m_seen = 0;
    bool m_hasFailed = false;
};

} // namespace host::dwg
