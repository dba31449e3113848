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

/// Whether such a letter stands in the text, from `begin` on.
bool hasWesternLetter(std::string_view text, std::size_t begin)
{
    for (std::size_t i = std::max<std::size_t>(begin, 2); i + 2 < text.size(); ++i) {
        // In pages with characters of two bytes a letter may be the second one.
        const bool isAlone = !isBeyondEarlyAscii(text[i - 2]) && !isBeyondEarlyAscii(text[i + 2]);
        if (isAlone && isDosLetter(text[i - 1], text[i], text[i + 1]))
            return true;
    }
    return false;
}

/// Whether the word is Cyrillic by the numbers of DOS: 1 or, where it cannot be, -1. 0 where other pages have such
/// words: of capitals alone, or without the small letters at the beginning of the alphabet, most vowels among them.
int cyrillicVote(std::string_view word)
{
    bool hasEarly = false;
    bool hasSmall = false;
    bool hasLast = false; // one of the last capitals, which other alphabets have no capitals for
    for (const char c : word) {
        const auto byte = static_cast<unsigned char>(c);
        const bool isEarly = byte >= 0xa0 && byte <= 0xaf;
        const bool isSmall = isEarly || (byte >= 0xe0 && byte <= 0xef);
        if (!isSmall && (byte > 0x9f || hasSmall))
            return -1;
        hasEarly |= isEarly;
        hasSmall |= isSmall;
        hasLast |= byte >= 0x9b && byte <= 0x9f;
    }
    return hasEarly || (hasLast && !hasSmall) ? 1 : 0;
}

/// Whether most words are, of those in `text` that have three letters or more.
bool isMostlyCyrillic(std::string_view text)
{
    constexpr std::ptrdiff_t leastOfAWord = 3;
    int votes = 0;
    for (auto end = text.begin(); end != text.end();) {
        const auto begin = std::find_if(end, text.end(), isBeyondEarlyAscii);
        end = std::find_if_not(begin, text.end(), isBeyondEarlyAscii);
        if (end - begin >= leastOfAWord)
            votes += cyrillicVote({begin, end});
    }
    return votes > 0;
}

} // namespace

EarlyCodePage earlyCodePageOf(std::string_view text)
{
    const auto first = std::find_if(text.begin(), text.end(), isBeyondEarlyAscii);
    if (first == text.end())
        return EarlyCodePage::Any;
    const auto begin = static_cast<std::size_t>(first - text.begin());
    if (isMostlyCyrillic(text.substr(begin)))
        return EarlyCodePage::DosCyrillic;
    return hasWesternLetter(text, begin) ? EarlyCodePage::DosWestern : EarlyCodePage::Unknown;
}

} // namespace host::dwg
