#include "host/dwg/bits/Checksums.h"

#include "host/dwg/bits/Words.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace host::dwg {

namespace {

/// How many bytes go into a checksum at a time: each has a table that carries it over those behind it.
constexpr std::size_t slices = 16;

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
constexpr auto tables64 = checksumTables<std::uint64_t, 0x95ac9329ac4bc9b5>();

/// The checksum behind `Count` more bytes, which are as many as it has or more.
template <std::size_t Count, typename Number>
Number sumBehind(const std::uint8_t *bytes, Number sum, const ChecksumTables<Number> &tables)
{
    Number next = 0;
    for (std::size_t i = 0; i < Count; ++i) {
        const std::size_t carried = i < sizeof sum ? sum >> 8 * i & 0xff : 0;
        next = static_cast<Number>(next ^ tables[Count - 1 - i][bytes[i] ^ carried]);
    }
    return next;
}

template <typename Number>
Number checksumOf(Bytes bytes, Number sum, const ChecksumTables<Number> &tables)
{
    constexpr std::size_t few = 4;
    for (; bytes.size() >= slices; bytes = bytes.subspan(slices))
        sum = sumBehind<slices>(bytes.data(), sum, tables);
    // Most objects are short, so that what is left matters.
    for (; sizeof sum <= few && bytes.size() >= few; bytes = bytes.subspan(few))
        sum = sumBehind<few>(bytes.data(), sum, tables);
    for (const std::uint8_t byte : bytes)
        sum = static_cast<Number>(sum >> 8 ^ tables[0][(sum ^ byte) & 0xff]);
    return sum;
}

/// In which order eight bytes are summed.
enum class ByteOrder
{
    AsTheyAre,
    PairsBackwards
};

/// The two sums of a page.
class PageSums
{
public:
    explicit PageSums(std::uint32_t seed) : m_first(seed & 0xffff), m_second(seed >> 16) {}

    /// Other orders than the usual one are those of whole eights.
    void add(Bytes bytes, ByteOrder order = ByteOrder::AsTheyAre)
    {
        while (!bytes.empty()) {
            const Bytes part = bytes.first(std::min(run, bytes.size()));
            addRun(part, order == ByteOrder::AsTheyAre ? usualWeights : backwardWeights);
            bytes = bytes.subspan(part.size());
        }
    }
    std::uint32_t value() const { return m_second << 16 | m_first; }

private:
    static constexpr std::uint32_t modulus = 0xfff1;
    /// As many bytes as can be summed before the second sum has to be reduced.
    static constexpr std::size_t run = 0x15b0;
    static constexpr std::size_t eight = sizeof(std::uint64_t);
    /// As many eights as can be summed before a sum of them is longer than 16 bits.
    static constexpr std::size_t eights = 16;

    /// How often the second sum has each of eight bytes: as often as it has those behind it. Four numbers of 16 bits
    /// for every other byte, the first one the lowest.
    struct Weights
    {
        std::uint64_t even;
        std::uint64_t odd;
    };
    static constexpr Weights usualWeights = {0x0002'0004'0006'0008, 0x0001'0003'0005'0007};
    static constexpr Weights backwardWeights = {0x0008'0006'0004'0002, 0x0007'0005'0003'0001};

    void addRun(Bytes bytes, const Weights &weights)
    {
        for (; bytes.size() >= eight; bytes = bytes.subspan(std::min(bytes.size() / eight, eights) * eight))
            addEights(bytes.first(std::min(bytes.size() / eight, eights) * eight), weights);
        for (const std::uint8_t byte : bytes) {
            m_first += byte;
            m_second += m_first;
        }
        m_first %= modulus;
        m_second %= modulus;
    }

    void addEights(Bytes bytes, const Weights &weights)
    {
        constexpr std::uint64_t everyOther = 0x00ff'00ff'00ff'00ff;
        std::uint64_t even = 0;
        std::uint64_t odd = 0;
        std::uint64_t before = 0; // what was summed up to each eight, which the second sum has once more for each byte
        for (std::size_t at = 0; at < bytes.size(); at += eight) {
            const std::uint64_t word = loadLowestFirst(&bytes[at]);
            before += even + odd;
            even += word & everyOther;
            odd += word >> 8 & everyOther;
        }
        m_second += static_cast<std::uint32_t>(bytes.size() * m_first + eight * sumOf(before) +
                                               weightedSum(even, weights.even) + weightedSum(odd, weights.odd));
        m_first += static_cast<std::uint32_t>(sumOf(even) + sumOf(odd));
    }

    /// Of four numbers of 16 bits.
    static std::uint64_t sumOf(std::uint64_t numbers) { return weightedSum(numbers, 0x0001'0001'0001'0001); }
    static std::uint64_t weightedSum(std::uint64_t numbers, std::uint64_t weights)
    {
        std::uint64_t sum = 0;
        for (int shift = 0; shift < 64; shift += 16)
            sum += (numbers >> shift & 0xffff) * (weights >> shift & 0xffff);
        return sum;
    }

    std::uint32_t m_first;
    std::uint32_t m_second;
};

/// Turns the order of the four pairs of eight bytes. As a word, which is the same in both orders of bytes: compilers
/// make no word of a loop here.
inline void turnPairs(std::uint8_t *bytes)
{
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    constexpr std::uint64_t every = 0x0000'ffff'0000'ffff;
    word = word << 32 | word >> 32;
    word = (word & every) << 16 | (word >> 16 & every);
    std::memcpy(bytes, &word, sizeof word);
}

/// Gives the bytes, some at a time, in the order that R2007 takes them in: the pairs of eight backwards, then those of
/// four, then the rest.
template <typename Take>
void takeInPairs(Bytes bytes, Take take)
{
    std::array<std::uint8_t, 0x400> ordered{};
    while (!bytes.empty()) {
        const Bytes part = bytes.first(std::min(ordered.size(), bytes.size()));
        std::copy(part.begin(), part.end(), ordered.begin());
        const std::size_t eights = part.size() / 8 * 8;
        for (std::size_t i = 0; i < eights; i += 8)
            turnPairs(ordered.data() + i);
        const std::size_t fours = part.size() / 4 * 4;
        for (std::size_t i = eights; i < fours; ++i)
            ordered[i] = part[i ^ 2];
        take(Bytes(ordered).first(part.size()));
        bytes = bytes.subspan(part.size());
    }
}

/// The next number of the row that the checksums of R2007 begin with, made of the length.
constexpr std::uint64_t nextOfRow(std::uint64_t number)
{
    return number * 0x343fd + 0x269ec3;
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
    sums.add(bytes);
    return sums.value();
}

std::uint32_t pageChecksum2007(Bytes bytes)
{
    PageSums sums(static_cast<std::uint32_t>(nextOfRow(bytes.size())));
    const std::size_t inEights = bytes.size() / 8 * 8;
    sums.add(bytes.first(inEights), ByteOrder::PairsBackwards);
    takeInPairs(bytes.subspan(inEights), [&](Bytes part) { sums.add(part); });
    return sums.value();
}

std::uint64_t packedChecksum2007(Bytes bytes)
{
    const auto first = static_cast<std::uint32_t>(nextOfRow(bytes.size()));
    const auto second = static_cast<std::uint32_t>(nextOfRow(first));
    std::uint64_t sum = ~(std::uint64_t(second) << 32 | first);
    takeInPairs(bytes, [&](Bytes part) { sum = checksumOf(part, sum, tables64); });
    return sum;
}

std::uint64_t headerChecksum2007(Bytes bytes)
{
    const std::uint64_t first = nextOfRow(bytes.size());
    std::uint64_t sum = ~((first << 32) + nextOfRow(first) + bytes.size());
    takeInPairs(bytes, [&](Bytes part) {
        for (const std::uint8_t byte : part) {
            sum ^= std::uint64_t(byte) << 56;
            for (int bit = 0; bit < 8; ++bit)
                sum = sum << 1 ^ ((sum >> 63) != 0 ? 0x42f0e1eba9ea3693 : 0);
        }
    });
    return ~sum;
}

} // namespace host::dwg
