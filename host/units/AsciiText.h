#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace host::units {

// Signs and names of units are plain ASCII; other characters stay as they are.

inline std::string lowered(std::string_view text)
{
    std::string result(text);
    std::ranges::transform(result, result.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return result;
}

/// Blank, tab, line feed, carriage return, form feed or vertical tab.
constexpr bool isBlank(char c) noexcept
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

} // namespace host::units
