#include "host/dwg/objects/RealText.h"

#include "host/dwg/bits/Words.h"
#include "host/dwg/objects/ShortestDecimal.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

namespace host::dwg {

namespace {

/// The digits of a number below 10^8, each in a byte, the first one in the lowest. The number is cut in two, and so are
/// its parts, all at the same time.
std::uint64_t eightDigits(std::uint64_t number)
{
    const std::uint64_t fours = number / 10'000 | number % 10'000 << 32;
    const std::uint64_t hundreds = fours * 10'486 >> 20 & 0x0000'007f'0000'007f; // fours / 100
    const std::uint64_t pairs = hundreds | (fours - hundreds * 100) << 16;
    const std::uint64_t tens = pairs * 103 >> 10 & 0x000f'000f'000f'000f; // pairs / 10
    return tens | (pairs - tens * 10) << 8;
}

constexpr std::uint64_t eightZeros = 0x3030'3030'3030'3030;
constexpr std::uint64_t eightPlaces = 100'000'000;

constexpr std::array<std::uint64_t, 20> wholePowersOfTen = [] {
    std::array<std::uint64_t, 20> powers{1};
    for (std::size_t i = 1; i < powers.size(); ++i)
        powers[i] = powers[i - 1] * 10;
    return powers;
}();

std::size_t digitCount(std::uint64_t number)
{
    // The logarithm is a fifth of a place too small at most, and never too large.
    const auto least = static_cast<std::size_t>(std::bit_width(number | 1)) * 1233 >> 12;
    return least + ((number | 1) >= wholePowersOfTen[least] ? 1 : 0);
}

/// The numbers below 1000: their three digits, the first one in the lowest byte, and how many they are without zeros in
/// front.
constexpr auto threeDigits = [] {
    std::array<std::uint32_t, 1000> numbers{};
    for (std::uint32_t i = 0; i < numbers.size(); ++i) {
        const std::uint32_t count = i < 10 ? 1 : i < 100 ? 2 : 3;
        numbers[i] = ('0' + i / 100) | ('0' + i / 10 % 10) << 8 | ('0' + i % 10) << 16 | count << 24;
    }
    return numbers;
}();

char *putShort(std::uint64_t number, char *to)
{
    // What is in front of the point is short in most drawings.
    if (number < threeDigits.size()) {
        const std::uint32_t digits = threeDigits[number];
        const std::uint32_t count = digits >> 24;
        storeLowestFirst(digits >> (8 * (3 - count)), to);
        return to + count;
    }
    const std::size_t count = digitCount(number);
    storeLowestFirst((eightDigits(number) | eightZeros) >> (8 * (8 - count)), to);
    return to + count;
}

/// A number below 10^16.
char *putWhole(std::uint64_t number, char *to)
{
    if (number < eightPlaces)
        return putShort(number, to);
    to = putShort(number / eightPlaces, to);
    storeLowestFirst(eightDigits(number % eightPlaces) | eightZeros, to);
    return to + 8;
}

constexpr std::size_t mostDecimals = 16;

/// Sixteen digits without the zeros at their end; the first one stays.
char *putDecimals(std::uint64_t number, char *to)
{
    const std::uint64_t first = eightDigits(number / eightPlaces);
    const std::uint64_t second = eightDigits(number % eightPlaces);
    storeLowestFirst(first | eightZeros, to);
    storeLowestFirst(second | eightZeros, to + 8);
    const int zeros = second != 0 ? std::countl_zero(second) : 64 + std::countl_zero(first | 1);
    return to + mostDecimals - zeros / 8;
}

// Digits go straight to their place, as reading again what was just written piece by piece would take as long as all
// else.

char *putScientific(Decimal decimal, std::size_t size, char *to)
{
    const std::uint64_t unit = wholePowersOfTen[size - 1];
    *to++ = static_cast<char>('0' + decimal.digits / unit);
    if (const std::uint64_t behind = decimal.digits % unit; behind != 0) {
        *to++ = '.';
        to = putDecimals(behind * wholePowersOfTen[mostDecimals + 1 - size], to);
    }
    const int exponent = decimal.exponent + static_cast<int>(size) - 1;
    const auto distance = static_cast<std::uint32_t>(std::abs(exponent));
    *to++ = 'e';
    *to++ = exponent < 0 ? '-' : '+';
    if (distance < 10)
        *to++ = '0';
    return putShort(distance, to);
}

/// A number below 1, with up to three zeros behind the point.
char *putFraction(Decimal decimal, std::size_t size, char *to)
{
    std::memcpy(to, "0.000", 5);
    to -= decimal.exponent + static_cast<int>(size) - 2;
    const std::uint64_t all = decimal.digits * wholePowersOfTen[mostDecimals + 1 - size];
    *to++ = static_cast<char>('0' + all / wholePowersOfTen[mostDecimals]);
    const std::uint64_t behind = all % wholePowersOfTen[mostDecimals];
    return behind != 0 ? putDecimals(behind, to) : to;
}

/// Another number below 10^16.
char *putFixed(Decimal decimal, char *to)
{
    if (decimal.exponent >= 0) {
        to = putWhole(decimal.digits * wholePowersOfTen[static_cast<std::size_t>(decimal.exponent)], to);
        std::memcpy(to, ".0", 2);
        return to + 2;
    }
    const auto decimals = static_cast<std::size_t>(-decimal.exponent);
    const std::uint64_t unit = wholePowersOfTen[decimals];
    to = putWhole(decimal.digits / unit, to);
    *to++ = '.';
    return putDecimals(decimal.digits % unit * wholePowersOfTen[mostDecimals - decimals], to);
}

/// Numbers of up to 15 digits, six of them behind the point. They are the only ones as short that round to the number,
/// so that nothing has to be looked for. Null for other ones.
char *putFewDigits(double value, char *to)
{
    constexpr double most = 1e15;
    constexpr std::uint64_t places = 1'000'000;
    const double scaled = value * static_cast<double>(places);
    if (!(scaled < most))
        return nullptr;
    const auto whole = static_cast<std::uint64_t>(scaled);
    const auto exact = static_cast<double>(whole);
    const bool isFixed = whole >= 100 || whole == 0;
    if (exact != scaled || exact / static_cast<double>(places) != value || !isFixed)
        return nullptr;
    to = putWhole(whole / places, to);
    *to++ = '.';
    const std::uint64_t decimals = eightDigits(whole % places * (eightPlaces / places));
    storeLowestFirst(decimals | eightZeros, to);
    return to + 8 - std::countl_zero(decimals | 1) / 8;
}

} // namespace

char *writeReal(double value, char *to)
{
    const auto bits = std::bit_cast<std::uint64_t>(value);
    if (bits == 0) {
        std::memcpy(to, "0.0", 4);
        return to + 3;
    }
    constexpr std::uint64_t sign = std::uint64_t(1) << 63;
    const double size = std::bit_cast<double>(bits & ~sign);
    if (!(size <= std::numeric_limits<double>::max()))
        return writeReal(0.0, to);
    // Without a condition, as half of the places in drawings are negative in no order.
    *to = '-';
    to += bits >> 63;
    if (char *const end = putFewDigits(size, to))
        return end;
    const Decimal decimal = shortestDecimal(size);
    const std::size_t count = digitCount(decimal.digits);
    constexpr int leastPoint = -3; // 1e-4
    constexpr int mostPoint = 16;
    const int point = decimal.exponent + static_cast<int>(count); // how many digits are in front of it
    if (point < leastPoint || point > mostPoint)
        return putScientific(decimal, count, to);
    return point > 0 ? putFixed(decimal, to) : putFraction(decimal, count, to);
}

} // namespace host::dwg
