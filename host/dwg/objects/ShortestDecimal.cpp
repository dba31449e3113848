#include "host/dwg/objects/ShortestDecimal.h"

#include <array>
#include <bit>

namespace host::dwg {

namespace {

// The shortest digits come from products of the number, and of the ends of the range that rounds to it, with a power of
// ten: of 128 bits, which are enough to tell on which side of each whole number a product is (R. Giulietti, "The
// Schubfach way to render doubles").

__extension__ using Product = unsigned __int128;

struct Wide
{
    std::uint64_t high = 0;
    std::uint64_t low = 0;
};

/// A whole number of many bits, which powers are made of when this is compiled.
class LongNumber
{
public:
    static constexpr std::size_t wordCount = 36; // 10^324 has 1077 bits

    constexpr explicit LongNumber(std::size_t bit) { m_words[bit / 32] = 1U << bit % 32; }

    constexpr void multiply(std::uint32_t factor)
    {
        std::uint64_t carry = 0;
        for (std::uint32_t &word : m_words) {
            carry += std::uint64_t(word) * factor;
            word = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
    }
    /// Rounded down: several divisions give what one by all of them would.
    constexpr void divide(std::uint32_t divisor)
    {
        std::uint64_t rest = 0;
        for (std::size_t i = wordCount; i-- > 0;) {
            rest = rest << 32 | m_words[i];
            m_words[i] = static_cast<std::uint32_t>(rest / divisor);
            rest %= divisor;
        }
    }
    /// The highest 128 bits, of which the first one is set.
    constexpr Wide highest() const
    {
        std::size_t top = wordCount - 1;
        while (m_words[top] == 0)
            --top;
        const int shift = std::countl_zero(m_words[top]);
        const auto word = [&](std::size_t back) {
            const auto at = [&](std::size_t i) { return i <= top ? std::uint64_t(m_words[top - i]) : 0; };
            return (at(back) << 32 | at(back + 1)) << shift >> 32;
        };
        return {word(0) << 32 | word(1), word(2) << 32 | word(3)};
    }

private:
    std::array<std::uint32_t, wordCount> m_words{};
};

constexpr int smallestPower = -292;
constexpr int largestPower = 324;

/// Powers of ten, brought to 128 bits and rounded up.
constexpr auto powersOfTen = [] {
    constexpr int lastExactPower = 55;
    std::array<Wide, largestPower - smallestPower + 1> powers{};
    const auto put = [&powers](int exponent, Wide power) {
        if (exponent < 0 || exponent > lastExactPower) {
            ++power.low;
            power.high += power.low == 0 ? 1 : 0;
        }
        powers[static_cast<std::size_t>(exponent - smallestPower)] = power;
    };
    LongNumber number(0);
    for (int exponent = 0; exponent <= largestPower; ++exponent, number.multiply(10))
        put(exponent, number.highest());
    LongNumber part(32 * LongNumber::wordCount - 1);
    for (int exponent = -1; exponent >= smallestPower; --exponent) {
        part.divide(10);
        put(exponent, part.highest());
    }
    return powers;
}();

/// Logarithms of powers, rounded down.
constexpr int log2OfTenTo(int exponent)
{
    return exponent * 1'741'647 >> 19;
}
constexpr int log10OfTwoTo(int exponent)
{
    return exponent * 1'262'611 >> 22;
}
/// That of three quarters of the power of two.
constexpr int log10OfLessThanTwoTo(int exponent)
{
    return (exponent * 1'262'611 - 524'031) >> 22;
}

/// The product without its lowest 128 bits. Where these are not 0 the last bit is set, so that it is never taken for
/// a whole number.
std::uint64_t highProduct(const Wide &power, std::uint64_t number)
{
    const auto low = static_cast<std::uint64_t>(Product(power.low) * number >> 64);
    const Product product = Product(power.high) * number + low;
    const bool isCut = static_cast<std::uint64_t>(product) > 1;
    return static_cast<std::uint64_t>(product >> 64) | (isCut ? 1 : 0);
}

constexpr int mantissaBits = 52;

} // namespace

Decimal shortestDecimal(double value)
{
    const auto bits = std::bit_cast<std::uint64_t>(value);
    const std::uint64_t stored = bits & ((std::uint64_t(1) << mantissaBits) - 1);
    const int storedExponent = static_cast<int>(bits >> mantissaBits);
    const bool isNormal = storedExponent != 0;
    const std::uint64_t mantissa = isNormal ? stored | std::uint64_t(1) << mantissaBits : stored;
    const int exponent = (isNormal ? storedExponent : 1) - 1075;
    // Below a power of two doubles are closer to each other. In quarters of their distance:
    const bool isLowerNear = stored == 0 && storedExponent > 1;
    const int decimalExponent = isLowerNear ? log10OfLessThanTwoTo(exponent) : log10OfTwoTo(exponent);
    const int shift = exponent + log2OfTenTo(-decimalExponent) + 1;
    const Wide &power = powersOfTen[static_cast<std::size_t>(-decimalExponent - smallestPower)];
    const std::uint64_t lowerEnd = highProduct(power, (4 * mantissa - 2 + (isLowerNear ? 1 : 0)) << shift);
    const std::uint64_t middle = highProduct(power, 4 * mantissa << shift);
    const std::uint64_t upperEnd = highProduct(power, (4 * mantissa + 2) << shift);
    // The ends themselves are rounded to the even one of two doubles.
    const std::uint64_t odd = mantissa & 1;
    const auto isInside = [&](std::uint64_t number) { return lowerEnd + odd <= number && number + odd <= upperEnd; };
    // Of numbers with a digit less at most one is inside. Both cases are worked out, as which it is cannot be foreseen.
    const std::uint64_t below = middle / 4;
    const std::uint64_t tens = below / 10;
    const bool isTenBelow = isInside(40 * tens);
    const bool isTen = below >= 10 && isTenBelow != isInside(40 * tens + 40);
    const bool isBelow = isInside(4 * below);
    const std::uint64_t rest = middle % 4;
    const bool isNearerAbove = (rest > 2) | ((rest == 2) & (below % 2 != 0));
    const bool isAbove = isBelow != isInside(4 * below + 4) ? !isBelow : isNearerAbove;
    const Decimal ten{tens + (isTenBelow ? 0 : 1), decimalExponent + 1};
    const Decimal one{below + (isAbove ? 1 : 0), decimalExponent};
    return {isTen ? ten.digits : one.digits, isTen ? ten.exponent : one.exponent};
}

} // namespace host::dwg
