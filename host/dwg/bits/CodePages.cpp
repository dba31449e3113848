#include "host/dwg/bits/CodePages.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace host::dwg {

namespace {

bool isHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
}

/// Of the character that `text` begins with, in bytes.
std::size_t characterSize(std::string_view text, DoubleBytes page)
{
    constexpr std::size_t markSize = 3;
    const std::size_t size = text.starts_with("\\U+") ? 7 : text.starts_with("\\M+") ? 8 : 0;
    if (size != 0 && size <= text.size() && std::ranges::all_of(text.substr(markSize, size - markSize), isHexDigit))
        return size;
    return beginsWithTwoBytes(text, page) ? 2 : 1;
}

} // namespace

std::string_view codePageName(int number)
{
    constexpr std::pair<int, std::string_view> names[] = {
        {1, "ASCII"},      {2, "ISO8859-1"},  {3, "ISO8859-2"},  {4, "ISO8859-3"},  {5, "ISO8859-4"},
        {6, "ISO8859-5"},  {7, "ISO8859-6"},  {8, "ISO8859-7"},  {9, "ISO8859-8"},  {10, "ISO8859-9"},
        {11, "DOS437"},    {12, "DOS850"},    {13, "DOS852"},    {14, "DOS855"},    {15, "DOS857"},
        {16, "DOS860"},    {17, "DOS861"},    {18, "DOS863"},    {19, "DOS864"},    {20, "DOS865"},
        {21, "DOS869"},    {22, "DOS932"},    {23, "MAC-ROMAN"}, {24, "BIG5"},      {25, "KSC5601"},
        {26, "JOHAB"},     {27, "DOS866"},    {28, "ANSI_1250"}, {29, "ANSI_1251"}, {30, "ANSI_1252"},
        {31, "GB2312"},    {32, "ANSI_1253"}, {33, "ANSI_1254"}, {34, "ANSI_1255"}, {35, "ANSI_1256"},
        {36, "ANSI_1257"}, {37, "ANSI_874"},  {38, "ANSI_932"},  {39, "ANSI_936"},  {40, "ANSI_949"},
        {41, "ANSI_950"},  {42, "ANSI_1361"}, {43, "ANSI_1200"}, {44, "ANSI_1258"},
    };
    const auto found = std::ranges::find(names, number, &std::pair<int, std::string_view>::first);
    return found != std::end(names) ? found->second : std::string_view();
}

DoubleBytes doubleBytesOf(int codePage)
{
    switch (codePage) {
    case 22: // DOS932
    case 38: // ANSI_932
        return DoubleBytes::Japanese;
    case 24: // BIG5
    case 25: // KSC5601
    case 26: // JOHAB
    case 31: // GB2312
    case 39: // ANSI_936
    case 40: // ANSI_949
    case 41: // ANSI_950
    case 42: // ANSI_1361
        return DoubleBytes::Asian;
    default:
        return DoubleBytes::None;
    }
}

std::size_t firstCharacters(std::string_view text, DoubleBytes page, std::size_t count)
{
    std::size_t end = 0;
    for (; count > 0 && end < text.size(); --count)
        end += characterSize(text.substr(end), page);
    return end;
}

std::size_t firstUnits(std::string_view text, std::size_t units)
{
    std::size_t left = units;
    std::size_t end = 0;
    for (; end < text.size(); ++end) {
        const auto byte = static_cast<unsigned char>(text[end]);
        const bool isInside = (byte & 0xc0) == 0x80;
        const std::size_t size = isInside ? 0 : byte >= 0xf0 ? 2 : 1;
        if (size > left)
            break;
        left -= size;
    }
    return end;
}

} // namespace host::dwg
