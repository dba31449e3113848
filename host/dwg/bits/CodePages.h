#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace host::dwg {

// Code pages that texts before R2007 are in. Their bytes are passed on as they are; the text form names the page.

/// The name that $DWGCODEPAGE has for the number of a code page; empty for a number that none has.
std::string_view codePageName(int number);

/// Whether texts have characters of two bytes, of which the second one may be any sign of ASCII from the digits on.
enum class DoubleBytes
{
    None,
    Japanese, ///< between bytes that begin such characters there are small letters of one byte
    Asian     ///< Chinese and Korean: every byte beyond ASCII begins one
};

DoubleBytes doubleBytesOf(int codePage);

/// Whether a character of two bytes begins `text`.
inline bool beginsWithTwoBytes(std::string_view text, DoubleBytes page)
{
    constexpr unsigned firstOfSeconds = 0x30;
    if (page == DoubleBytes::None || text.size() < 2 || static_cast<unsigned char>(text[1]) < firstOfSeconds)
        return false;
    const auto byte = static_cast<unsigned char>(text[0]);
    const bool isSmall = page == DoubleBytes::Japanese && byte >= 0xa0 && byte <= 0xdf;
    return byte > 0x80 && byte < 0xff && !isSmall;
}

/// How many bytes `count` characters at the beginning of `text` have, all of it where it has no more. \U+XXXX and
/// \M+NXXXX are one.
std::size_t firstCharacters(std::string_view text, DoubleBytes page, std::size_t count);

/// How many bytes the characters at the beginning of `text` have, which is UTF-8, that are at most so many units of
/// UTF-16.
std::size_t firstUnits(std::string_view text, std::size_t units);

} // namespace host::dwg
