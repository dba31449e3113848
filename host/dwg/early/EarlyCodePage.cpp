#include "host/dwg/early/EarlyCodePage.h"

#include <algorithm>

namespace host::dwg {

namespace {

bool isEarlyCapital(char c)
{
    return c >= 'A' && c <= 'Z';
}

bool isEarlySmall(char c)
{
    return c >= 'a' && c <= 'z';
}

bool isBeyondEarlyAscii(char c)
{
    return static_cast<unsigned char>(c) >= 0x80;
}

/// Whether `c` makes a word of what is around it in DOS alone.
bool isDosLetter(char before, char c, char after)
{
    const bool isInCapitals = isEarlyCapital(before) && isEarlyCapital(after);
    const bool isInSmall = isEarlySmall(before) && isEarlySmall(after);
    const bool isInWord = isInCapitals || isInSmall || (isEarlyCapital(before) && isEarlySmall(after));
    switch (static_cast<unsigned char>(c)) {
    case 0x8a: // an e with a grave accent; a capital of Windows
        return isInSmall;
    case 0x9a: // U with two dots; a small letter of Windows
        return isInCapitals;
    case 0x81: // u with two dots
    case 0x82: // an e with an acute accent
    case 0x84: // a with two dots
    case 0x86: // a with a ring
    case 0x87: // c with a cedilla
    case 0x88: // an e with a circumflex
    case 0x89: // an e with two dots
    case 0x90: // E with an acute accent
    case 0x94: // o with two dots
    case 0x99: // O with two dots
        return isInWord;
    default:
        return false;
    }
}

} // namespace

EarlyCodePage earlyCodePageOf(std::string_view text)
{
    const auto first = std::find_if(text.begin(), text.end(), isBeyondEarlyAscii);
    if (first == text.end())
        return EarlyCodePage::Any;
    const auto begin = std::max<std::size_t>(static_cast<std::size_t>(first - text.begin()), 2);
    for (std::size_t i = begin; i + 2 < text.size(); ++i) {
        // In pages with characters of two bytes a letter may be the second one.
        const bool isAlone = !isBeyondEarlyAscii(text[i - 2]) && !isBeyondEarlyAscii(text[i + 2]);
        if (isAlone && isDosLetter(text[i - 1], text[i], text[i + 1]))
            return EarlyCodePage::Dos;
    }
    return EarlyCodePage::Unknown;
}

} // namespace host::dwg
