// Numbers as text: beside what the standard library writes, which has no text of this form but the same digits.

#include "host/dwg/objects/RealText.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace host::dwg::test {

namespace {

std::string textOf(double value)
{
    std::array<char, mostOfAReal> text{};
    return {text.data(), writeReal(value, text.data())};
}

std::string libraryText(double value)
{
    const double size = std::isfinite(value) ? std::abs(value) : 0.0;
    const bool isFixed = size == 0.0 || (size >= 1e-4 && size < 1e16);
    std::array<char, 64> text{};
    char *const end = std::to_chars(text.data(), text.data() + text.size(), std::isfinite(value) ? value : 0.0,
                                    isFixed ? std::chars_format::fixed : std::chars_format::scientific)
                          .ptr;
    const std::string digits(text.data(), end);
    return digits.find_first_of(".e") == std::string::npos ? digits + ".0" : digits;
}

/// The number, both ways, and its neighbours.
void tryAround(double value)
{
    const auto bits = std::bit_cast<std::uint64_t>(value);
    for (const std::uint64_t near : {bits - 1, bits, bits + 1}) {
        for (const double one : {std::bit_cast<double>(near), -std::bit_cast<double>(near)})
            EXPECT_EQ(textOf(one), libraryText(one)) << near;
    }
}

} // namespace

TEST(RealText, IsThatOfTheLibraryAtPowers)
{
    for (int exponent = -1074; exponent < 1024; ++exponent)
        tryAround(std::ldexp(1.0, exponent));
    for (int exponent = -323; exponent <= 308; ++exponent) {
        for (const int digits : {1, 2, 5, 9, 49, 125, 999, 123456789}) {
            const std::string text = std::to_string(digits) + "e" + std::to_string(exponent);
            tryAround(std::strtod(text.c_str(), nullptr));
        }
    }
}

TEST(RealText, IsThatOfTheLibraryAtRandom)
{
    std::mt19937_64 random(9);
    for (int i = 0; i < 20'000; ++i) {
        const std::uint64_t bits = random();
        tryAround(std::bit_cast<double>(bits & ~(std::uint64_t(1) << 63)));
        const auto whole = static_cast<double>(bits >> bits % 64);
        for (const double places : {1.0, 8.0, 100.0, 1e6, 1e7, 1e16, 1e20})
            EXPECT_EQ(textOf(whole / places), libraryText(whole / places)) << bits;
        for (const double end : {1e-4, 1e-3, 1.0, 1e4, 1e15, 1e16}) {
            const double near = end * (1.0 + static_cast<double>(bits % 2001) * 1e-5 - 0.01);
            EXPECT_EQ(textOf(near), libraryText(near)) << bits;
        }
    }
}

TEST(RealText, HasZeroForWhatIsNoNumber)
{
    for (const double none : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
                              -std::numeric_limits<double>::infinity()})
        EXPECT_EQ(textOf(none), "0.0");
    EXPECT_EQ(textOf(0.0), "0.0");
    EXPECT_EQ(textOf(-0.0), "-0.0");
}

} // namespace host::dwg::test
