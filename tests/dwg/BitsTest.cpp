// Coded values, bit by bit, and what runs out of bits.

#include "host/dwg/bits/BitReader.h"
#include "host/dwg/bits/Checksums.h"
#include "host/dwg/bits/Utf8.h"
#include "host/dwg/container/PageCompression.h"
#include "host/dwg/container/UnpackedPage.h"
#include "host/dwg/objects/Colours.h"
#include "tests/dwg/making/BitWriter.h"

#include <functional>
#include <gtest/gtest.h>
#include <random>

namespace host::dwg::test {

namespace {

/// Bits as a row of 0 and 1, blanks between them; filled up with zeros to a whole byte.
std::vector<std::uint8_t> bitsOf(std::string_view text)
{
    std::vector<std::uint8_t> bytes;
    std::size_t count = 0;
    for (const char c : text) {
        if (c == ' ')
            continue;
        if (count % 8 == 0)
            bytes.push_back(0);
        bytes.back() = static_cast<std::uint8_t>(bytes.back() | (c - '0') << (7 - count % 8));
        ++count;
    }
    return bytes;
}

struct BitRow
{
    const char *name;
    const char *bits;
    std::function<std::string(BitReader &)> read;
    const char *value; ///< "failed" where the bits do not suffice
};

std::string real(double value)
{
    char text[40];
    std::snprintf(text, sizeof text, "%.17g", value);
    return text;
}

std::string reference(BitReader &reader, std::uint64_t from)
{
    return std::to_string(reader.handle().from(from));
}

const BitRow bitRows[] = {
    {"short raw", "00 11111110 11111111", [](BitReader &r) { return std::to_string(r.shortInteger()); }, "-2"},
    {"short of a byte", "01 11111110", [](BitReader &r) { return std::to_string(r.shortInteger()); }, "254"},
    {"short 0", "10", [](BitReader &r) { return std::to_string(r.shortInteger()); }, "0"},
    {"short 256", "11", [](BitReader &r) { return std::to_string(r.shortInteger()); }, "256"},
    {"long raw", "00 00000001 00000000 00000000 10000000", [](BitReader &r) { return std::to_string(r.longInteger()); },
     "-2147483647"},
    {"long of a byte", "01 00000111", [](BitReader &r) { return std::to_string(r.longInteger()); }, "7"},
    {"long 0", "10", [](BitReader &r) { return std::to_string(r.longInteger()); }, "0"},
    {"long long", "010 00000001 00000010", [](BitReader &r) { return std::to_string(r.longLong()); }, "513"},
    {"long long 0", "000", [](BitReader &r) { return std::to_string(r.longLong()); }, "0"},
    {"triple", "0 10 110 111",
     [](BitReader &r) {
         const int first = r.triple();
         const int second = r.triple();
         const int third = r.triple();
         return std::to_string(first * 1000 + second * 100 + third * 10 + r.triple());
     },
     "267"},
    {"real 1", "01", [](BitReader &r) { return real(r.real()); }, "1"},
    {"real 0", "10", [](BitReader &r) { return real(r.real()); }, "0"},
    {"real raw", "00 00000000 00000000 00000000 00000000 00000000 00000000 11110000 10111111",
     [](BitReader &r) { return real(r.real()); }, "-1"},
    {"real as usual", "00", [](BitReader &r) { return real(r.realNear(2.5)); }, "2.5"},
    {"real with other last bytes", "01 00000000 00000000 00000000 00000000",
     [](BitReader &r) { return real(r.realNear(1.0000000001)); }, "1"},
    {"real with other middle bytes", "10 00001000 00000000 00000000 00000000 00000000 00000000",
     [](BitReader &r) { return real(r.realNear(1.0)); }, "1.0000076293945312"},
    {"thickness 0", "1", [](BitReader &r) { return real(r.thickness(Release::R2000)); }, "0"},
    {"thickness of R14", "01", [](BitReader &r) { return real(r.thickness(Release::R14)); }, "1"},
    {"extrusion", "1", [](BitReader &r) { return real(r.extrusion(Release::R2000).z); }, "1"},
    {"modular number", "10000010 00100100", [](BitReader &r) { return std::to_string(r.modularUnsigned()); }, "4610"},
    {"modular negative", "10000001 01000010", [](BitReader &r) { return std::to_string(r.modularSigned()); }, "-257"},
    {"modular short", "00000001 10000000 00000010 00000000",
     [](BitReader &r) { return std::to_string(r.modularShort()); }, "65537"},
    {"endless modular number",
     "11111111 11111111 11111111 11111111 11111111 11111111 11111111 11111111 11111111 11111111",
     [](BitReader &r) { return std::to_string(r.modularUnsigned()); }, "failed"},
    {"handle", "0101 0010 00000001 00000010", [](BitReader &r) { return reference(r, 9); }, "258"},
    {"handle behind", "0110 0000", [](BitReader &r) { return reference(r, 9); }, "10"},
    {"handle in front", "1000 0000", [](BitReader &r) { return reference(r, 9); }, "8"},
    {"handle ahead", "1010 0001 00000101", [](BitReader &r) { return reference(r, 9); }, "14"},
    {"handle back", "1100 0001 00000101", [](BitReader &r) { return reference(r, 9); }, "4"},
    {"handle of 9 bytes", "0101 1001 00000001", [](BitReader &r) { return reference(r, 9); }, "failed"},
    {"type of R2010", "00 00010011", [](BitReader &r) { return std::to_string(r.objectType(Release::R2010)); }, "19"},
    {"type of a class", "01 00000100", [](BitReader &r) { return std::to_string(r.objectType(Release::R2010)); },
     "500"},
    {"text", "01 00000010 01101111 01101011", [](BitReader &r) { return r.text8(); }, "ok"},
    {"text with a zero", "01 00000010 01101111 00000000", [](BitReader &r) { return r.text8(); }, "o"},
    {"text without its end", "01 00000011 01101111 01101011", [](BitReader &r) { return r.text8(); }, "failed"},
    {"wide text", "01 00000001 11100100 00000000", [](BitReader &r) { return r.text16(); }, "\xc3\xa4"},
    {"pair of halves", "01 00000010 00111101 11011000 00000000 11011110", [](BitReader &r) { return r.text16(); },
     "\xf0\x9f\x98\x80"},
    {"half alone", "01 00000001 00000000 11011100", [](BitReader &r) { return r.text16(); }, "\xef\xbf\xbd"},
    {"nothing left", "", [](BitReader &r) { return real(r.real()); }, "failed"},
};

std::vector<std::uint8_t> anyBytes(std::size_t count, std::mt19937 &random)
{
    std::vector<std::uint8_t> bytes(count);
    for (std::uint8_t &byte : bytes)
        byte = static_cast<std::uint8_t>(random());
    return bytes;
}

/// The same as BitReader::bits(), one bit after the other.
std::uint32_t bitByBit(Bytes bytes, std::size_t at, int count)
{
    std::uint32_t value = 0;
    for (const std::size_t end = at + static_cast<std::size_t>(count); at < end; ++at)
        value = value << 1 | (bytes[at / 8] >> (7 - at % 8) & 1U);
    return value;
}

/// A checksum by its definition.
template <typename Number>
Number checksumBitByBit(Bytes bytes, Number sum, Number polynomial)
{
    for (const std::uint8_t byte : bytes) {
        sum = static_cast<Number>(sum ^ byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = static_cast<Number>((sum & 1) != 0 ? sum >> 1 ^ polynomial : sum >> 1);
    }
    return sum;
}

/// The order of bytes in checksums of R2007: where each byte of a whole stands in it.
std::size_t placeInPairs(std::size_t i, std::size_t size)
{
    const std::size_t eights = size / 8 * 8;
    if (i < eights)
        return i / 8 * 8 + (7 - i % 8) / 2 * 2 + i % 2;
    const bool isOfFour = i < eights + 4 && size - eights >= 4;
    return isOfFour ? eights + ((i - eights) ^ 2) : i;
}

std::vector<std::uint8_t> orderedOf2007(const std::vector<std::uint8_t> &bytes)
{
    std::vector<std::uint8_t> ordered(bytes.size());
    for (std::size_t i = 0; i < bytes.size(); ++i)
        ordered[placeInPairs(i, bytes.size())] = bytes[i];
    return ordered;
}

/// A checksum whose highest bit is first is one whose lowest is, of all bits turned round.
std::uint64_t turned(std::uint64_t value, int bits = 64)
{
    std::uint64_t result = 0;
    for (int i = 0; i < bits; ++i)
        result = result << 1 | (value >> i & 1);
    return result;
}

std::uint64_t highestFirst(std::vector<std::uint8_t> bytes, std::uint64_t sum, std::uint64_t polynomial)
{
    for (std::uint8_t &byte : bytes)
        byte = static_cast<std::uint8_t>(turned(byte, 8));
    return turned(checksumBitByBit<std::uint64_t>(bytes, turned(sum), turned(polynomial)));
}

} // namespace

TEST(DwgBits, AreTheSameAtAnyPlace)
{
    std::mt19937 random(1);
    for (std::size_t size = 0; size < 20; ++size) {
        // Of the size and no more, so that a sanitizer sees what is read behind the end.
        const std::vector<std::uint8_t> bytes = anyBytes(size, random);
        for (std::size_t at = 0; at <= size * 8; ++at) {
            for (int count = 0; count <= 32; ++count) {
                BitReader reader(bytes, at, size * 8);
                const bool isThere = at + static_cast<std::size_t>(count) <= size * 8;
                EXPECT_EQ(reader.bits(count), isThere ? bitByBit(bytes, at, count) : 0) << size << ' ' << at;
                EXPECT_EQ(reader.hasFailed(), !isThere);
                EXPECT_EQ(reader.position(), isThere ? at + static_cast<std::size_t>(count) : at);
            }
        }
    }
}

TEST(DwgBits, BytesAndTextsAreTheSameAtAnyPlace)
{
    const std::string ascii = "The text of twenty one"; // of each length, from each bit
    std::mt19937 random(2);
    for (std::size_t length = 0; length <= ascii.size(); ++length) {
        for (std::size_t shift = 0; shift < 8; ++shift) {
            std::vector<std::uint8_t> plain = {0};
            for (const char c : ascii.substr(0, length))
                plain.insert(plain.end(), {static_cast<std::uint8_t>(c), 0});
            std::vector<std::uint8_t> shifted;
            for (std::size_t i = 0; i < plain.size(); ++i)
                shifted.push_back(static_cast<std::uint8_t>(plain[i] << (8 - shift) |
                                                            (i + 1 < plain.size() ? plain[i + 1] : 0) >> shift));
            BitReader bytes(shifted, shift, shifted.size() * 8);
            BitReader text(shifted, shift, shifted.size() * 8);
            EXPECT_EQ(bytes.rawBytes(2 * length), std::string(plain.begin() + 1, plain.end()))
                << length << ' ' << shift;
            EXPECT_EQ(text.utf16(length), ascii.substr(0, length)) << length << ' ' << shift;
            EXPECT_TRUE(text.utf16(1).empty() && text.hasFailed());
        }
    }
}

TEST(DwgBits, TextsEndAtTheirFirstZero)
{
    struct Row
    {
        std::u16string units;
        std::string text;
    };
    const std::vector<Row> rows = {
        {u"", ""},
        {u"abc", "abc"},
        {std::u16string(u"ab\0cdefgh", 9), "ab"},
        {std::u16string(u"abcd\0efgh", 9), "abcd"},
        {std::u16string(u"\0", 1), ""},
        {u"ab\u00e4cdefg\u20ac", "ab\xc3\xa4"
                                 "cdefg\xe2\x82\xac"},
        {u"\U0001f600abcd\U0001f600", "\xf0\x9f\x98\x80"
                                      "abcd\xf0\x9f\x98\x80"},
        {{u'a', 0xd83d, u'b', 0xde00, 0xd83d},
         "a\xef\xbf\xbd"
         "b\xef\xbf\xbd\xef\xbf\xbd"},
        {{0xd83d, 0, u'x'}, "\xef\xbf\xbd"},
        {std::u16string(300, u'x') + u'\u0416' + std::u16string(300, u'y'),
         std::string(300, 'x') + "\xd0\x96" + std::string(300, 'y')},
    };
    for (const Row &row : rows) {
        for (int shift = 0; shift < 8; ++shift) {
            test::BitWriter writer;
            writer.bits(0, shift);
            for (const char16_t unit : row.units)
                writer.raw16(unit);
            writer.byte(0x5a);
            const std::vector<std::uint8_t> bytes = writer.bytes();
            BitReader reader(bytes);
            reader.skip(static_cast<std::size_t>(shift));
            EXPECT_EQ(reader.utf16(row.units.size()), row.text) << shift;
            EXPECT_EQ(reader.byte(), 0x5a) << row.text << ' ' << shift;
        }
    }
}

TEST(DwgBits, RunsAreTheSameBits)
{
    std::mt19937 random(4);
    const std::vector<std::uint8_t> bytes = anyBytes(24, random);
    for (std::size_t begin = 0; begin < 70; ++begin) {
        for (std::size_t end = begin + 1; end < begin + 70; ++end) {
            BitReader reader(bytes);
            reader.seek(end);
            const BitRun run = reader.runFrom(begin);
            ASSERT_EQ(run.count, std::min(end - begin, BitRun::most));
            for (const std::size_t other : {begin, begin + 1}) {
                BitReader again(bytes, other, end);
                bool isSame = end - other >= run.count;
                for (std::size_t i = 0; isSame && i < run.count; ++i)
                    isSame = bitByBit(bytes, begin + i, 1) == bitByBit(bytes, other + i, 1);
                EXPECT_EQ(again.isNext(run), isSame) << begin << ' ' << end << ' ' << other;
            }
        }
    }
}

TEST(DwgChecksums, OfPagesAreTheSumsOfTheirBytes)
{
    std::mt19937 random(5);
    for (const std::size_t size : {1, 7, 8, 127, 128, 129, 5551, 5552, 5553, 0x7400}) {
        for (const bool isHighest : {false, true}) {
            const std::vector<std::uint8_t> bytes =
                isHighest ? std::vector<std::uint8_t>(size, 0xff) : anyBytes(size, random);
            std::uint32_t first = 0xfff0;
            std::uint32_t second = 0xffef;
            for (const std::uint8_t byte : bytes) {
                first = (first + byte) % 0xfff1;
                second = (second + first) % 0xfff1;
            }
            EXPECT_EQ(pageChecksum(bytes, 0xffef'fff0), second << 16 | first) << size;
        }
    }
}

TEST(DwgChecksums, AreThoseOfTheirDefinitions)
{
    std::mt19937 random(3);
    for (std::size_t size = 0; size < 40; ++size) {
        const std::vector<std::uint8_t> bytes = anyBytes(size, random);
        EXPECT_EQ(checksum16(bytes, 0xc0c1), checksumBitByBit<std::uint16_t>(bytes, 0xc0c1, 0xa001)) << size;
        EXPECT_EQ(checksum32(bytes, 7), ~checksumBitByBit<std::uint32_t>(bytes, ~7U, 0xedb88320)) << size;
        const std::vector<std::uint8_t> ordered = orderedOf2007(bytes);
        const std::uint64_t first = size * 214013 + 2531011;
        const std::uint64_t second = first * 214013 + 2531011;
        const std::uint64_t ofPage = (second & 0xffffffff) << 32 | first;
        EXPECT_EQ(pageChecksum2007(bytes), pageChecksum(ordered, static_cast<std::uint32_t>(first))) << size;
        EXPECT_EQ(packedChecksum2007(bytes), checksumBitByBit<std::uint64_t>(ordered, ~ofPage, 0x95ac9329ac4bc9b5))
            << size;
        EXPECT_EQ(headerChecksum2007(bytes),
                  ~highestFirst(ordered, ~((first << 32) + second + size), 0x42f0e1eba9ea3693))
            << size;
    }
}

TEST(UnpackedPages, HaveWhatByteByByteWouldGive)
{
    std::mt19937 random(4);
    for (int run = 0; run < 300; ++run) {
        const std::size_t size = random() % 200;
        const std::vector<std::uint8_t> packed = anyBytes(random() % 50, random);
        std::vector<std::uint8_t> bytes(size, 0xee);
        UnpackedPage page(bytes);
        std::vector<std::uint8_t> expected;
        for (int step = 0; step < 40; ++step) {
            const std::size_t length = random() % 40;
            const std::size_t back = random() % 40;
            const bool hasRoom = length <= size - expected.size();
            if (random() % 2 == 0) {
                const bool isThere = hasRoom && length <= packed.size();
                EXPECT_EQ(page.add(packed, length), isThere);
                expected.insert(expected.end(), packed.begin(),
                                packed.begin() + static_cast<std::ptrdiff_t>(isThere ? length : 0));
            } else {
                const bool isThere = hasRoom && back > 0 && back <= expected.size();
                EXPECT_EQ(page.repeat(length, back), isThere);
                for (std::size_t i = 0; isThere && i < length; ++i)
                    expected.push_back(expected[expected.size() - back]);
            }
            ASSERT_EQ(page.room(), size - expected.size());
        }
        expected.resize(size, 0xee);
        EXPECT_EQ(bytes, expected) << "and what was not added is as it was";
    }
}

TEST(DwgBits, AreReadByTheirCodes)
{
    for (const BitRow &row : bitRows) {
        const std::vector<std::uint8_t> bytes = bitsOf(row.bits);
        BitReader reader(bytes);
        const std::string value = row.read(reader);
        EXPECT_EQ(reader.hasFailed() ? "failed" : value, row.value) << row.name;
        if (!reader.hasFailed()) {
            EXPECT_LT(reader.left(), 8u) << row.name;
        }
    }
}

TEST(DwgBits, FailureStays)
{
    const std::vector<std::uint8_t> bytes = {0xff};
    BitReader reader(bytes);
    reader.raw32();
    EXPECT_TRUE(reader.hasFailed());
    EXPECT_EQ(reader.byte(), 0);
    EXPECT_EQ(reader.position(), 0u);
}

TEST(DwgBits, ChecksumsAreThoseOfKnownBytes)
{
    const std::string_view digits = "123456789";
    const Bytes bytes(reinterpret_cast<const std::uint8_t *>(digits.data()), digits.size());
    EXPECT_EQ(checksum16(bytes, 0), 0xbb3d);
    EXPECT_EQ(checksum32(bytes, 0), 0xcbf43926);
    EXPECT_EQ(pageChecksum(bytes, 0), 0x091501ddu);
}

TEST(DwgBits, PagesUnpackAsFarAsTheyAreWhole)
{
    const auto unpacked = [](const std::vector<std::uint8_t> &packed, std::size_t size, bool isWhole) {
        std::string page(size, '.');
        const std::span<std::uint8_t> bytes(reinterpret_cast<std::uint8_t *>(page.data()), page.size());
        EXPECT_EQ(unpackPage(packed, bytes), isWhole) << packed.size();
        return page;
    };
    // Four bytes as they are, then the last one twelve times, then the end.
    const std::vector<std::uint8_t> packed = {0x01, 'a', 'b', 'c', 'd', 0xd0, 0x00, 0x11};
    EXPECT_EQ(unpacked(packed, 16, true), "abcddddddddddddd");
    EXPECT_EQ(unpacked(packed, 20, true), "abcddddddddddddd....");
    EXPECT_EQ(unpacked(packed, 10, false), "abcd......") << "a run goes beyond the page";
    EXPECT_EQ(unpacked(packed, 3, false), "...");
    EXPECT_EQ(unpacked({0x01, 'a', 'b', 'c', 'd', 0x40, 0xff, 0x11}, 8, false), "abcd....")
        << "from in front of the page";
    for (std::size_t length = 0; length + 1 < packed.size(); ++length)
        unpacked({packed.begin(), packed.begin() + static_cast<std::ptrdiff_t>(length)}, 16, false);
}

TEST(DwgBits, BytesThatAreNoCharactersAreReplaced)
{
    // In the second text ? stands for U+FFFD.
    const std::pair<std::string, std::string> rows[] = {
        {"", ""},
        {"eight by|\xc3\xa9|\xe2\x82\xac|\xf0\x9f\x98\x80|\xf4\x8f\xbf\xbf|",
         "eight by|\xc3\xa9|\xe2\x82\xac|\xf0\x9f\x98\x80|\xf4\x8f\xbf\xbf|"},
        {"eight bytes, then one \xff of none", "eight bytes, then one ? of none"},
        {"\x80\xc0\xaf\xc1\xbf", "?????"},                        // no beginning; longer than needed
        {"\xe0\x9f\xbf|\xf0\x8f\xbf\xbf", "???|????"},            // the same in three and four bytes
        {"\xed\xa0\x80|\xf4\x90\x80\x80|\xf5", "???|????|?"},     // half a pair; beyond the last one
        {"\xe2\x82|\xc3\xc3\xa9\xf0\x9f\x98", "??|?\xc3\xa9???"}, // ends too early
    };
    for (const auto &[bytes, expected] : rows) {
        std::string text = bytes;
        EXPECT_EQ(replaceNoUtf8(text), std::size_t(std::ranges::count(expected, '?')));
        for (std::size_t at = text.find("\xef\xbf\xbd"); at != std::string::npos; at = text.find("\xef\xbf\xbd"))
            text.replace(at, 3, "?");
        EXPECT_EQ(text, expected);
    }
    // At any place of a text that is looked at in larger pieces, behind none or one that is a character.
    for (std::size_t at = 0; at < 300; ++at) {
        for (const std::string front : {"", "\xc3\xa9"}) {
            std::string text = front + std::string(at, 'x') + '\xff' + std::string(299 - at, 'y');
            EXPECT_EQ(replaceNoUtf8(text), 1u);
            EXPECT_EQ(text, front + std::string(at, 'x') + "\xef\xbf\xbd" + std::string(299 - at, 'y')) << at;
        }
    }
}

TEST(DwgBits, ColoursHaveTheIndexThatIsNearest)
{
    EXPECT_EQ(colourIndex(colourByLayer), 256);
    EXPECT_EQ(colourIndex(colourByBlock), 0);
    EXPECT_EQ(colourIndex(indexedColour | 30), 30);
    EXPECT_EQ(colourIndex(trueColour | 0xff0000), 1);
    EXPECT_EQ(colourIndex(trueColour | 0xff7f00), 30);
}

} // namespace host::dwg::test
