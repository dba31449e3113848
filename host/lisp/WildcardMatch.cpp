#include "host/lisp/WildcardMatch.h"

#include "host/lisp/Text.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace host::lisp {

namespace {

/// One place of a pattern.
struct Element
{
    enum class Kind : std::uint8_t
    {
        Character,
        Any,
        AnyRun,
        Digit,
        Letter,
        Other,
        OneOf,
        NoneOf
    };

    Kind kind = Kind::Character;
    char32_t character = 0;
    std::vector<std::pair<char32_t, char32_t>> ranges; ///< for OneOf and NoneOf

    bool matches(char32_t c) const;
};

struct Pattern
{
    std::vector<Element> elements;
    bool isNegated = false;
};

bool isDigit(char32_t c)
{
    return c >= U'0' && c <= U'9';
}

bool isLetter(char32_t c)
{
    const char32_t lower = lowerCharacter(c);
    return (lower >= U'a' && lower <= U'z') || (c >= 0xC0 && c != 0xD7 && c != 0xF7);
}

bool Element::matches(char32_t c) const
{
    const auto holds = [c](const auto &range) { return c >= range.first && c <= range.second; };
    switch (kind) {
    case Kind::Character:
        return c == character;
    case Kind::Digit:
        return isDigit(c);
    case Kind::Letter:
        return isLetter(c);
    case Kind::Other:
        return !isDigit(c) && !isLetter(c);
    case Kind::OneOf:
        return std::any_of(ranges.begin(), ranges.end(), holds);
    case Kind::NoneOf:
        return std::none_of(ranges.begin(), ranges.end(), holds);
    default:
        return true;
    }
}

class PatternParser
{
public:
    explicit PatternParser(std::string_view patterns) : m_text(toCharacters(patterns)) {}

    bool atEnd() const { return m_ended; }

    Pattern next()
    {
        Pattern pattern;
        if (m_position < m_text.size() && m_text[m_position] == U'~') {
            pattern.isNegated = true;
            ++m_position;
        }
        while (m_position < m_text.size() && m_text[m_position] != U',')
            pattern.elements.push_back(element());
        m_ended = m_position >= m_text.size();
        ++m_position;
        return pattern;
    }

private:
    Element element()
    {
        const char32_t c = m_text[m_position++];
        switch (c) {
        case U'#':
            return {Element::Kind::Digit, 0, {}};
        case U'@':
            return {Element::Kind::Letter, 0, {}};
        case U'.':
            return {Element::Kind::Other, 0, {}};
        case U'?':
            return {Element::Kind::Any, 0, {}};
        case U'*':
            return {Element::Kind::AnyRun, 0, {}};
        case U'`':
            return {Element::Kind::Character, m_position < m_text.size() ? m_text[m_position++] : U'`', {}};
        case U'[':
            return bracket();
        default:
            return {Element::Kind::Character, c, {}};
        }
    }

    Element bracket()
    {
        if (m_noMoreBrackets)
            return {Element::Kind::Character, U'[', {}};
        const std::size_t begin = m_position;
        Element set{Element::Kind::OneOf, 0, {}};
        if (m_position < m_text.size() && m_text[m_position] == U'~') {
            set.kind = Element::Kind::NoneOf;
            ++m_position;
        }
        while (m_position < m_text.size() && m_text[m_position] != U']')
            set.ranges.push_back(range());
        if (m_position >= m_text.size()) {
            m_position = begin;
            m_noMoreBrackets = true;
            return {Element::Kind::Character, U'[', {}};
        }
        ++m_position;
        return set;
    }

    std::pair<char32_t, char32_t> range()
    {
        const char32_t first = bracketCharacter();
        const bool isRange =
            m_position + 1 < m_text.size() && m_text[m_position] == U'-' && m_text[m_position + 1] != U']';
        if (!isRange)
            return {first, first};
        ++m_position;
        return {first, bracketCharacter()};
    }

    char32_t bracketCharacter()
    {
        const char32_t c = m_text[m_position++];
        return c == U'`' && m_position < m_text.size() ? m_text[m_position++] : c;
    }

    std::vector<char32_t> m_text;
    std::size_t m_position = 0;
    bool m_ended = false;
    bool m_noMoreBrackets = false; ///< no `]` follows: searching it again each time would cost the square
};

bool matchesElements(const std::vector<char32_t> &text, const std::vector<Element> &elements)
{
    std::size_t at = 0;
    std::size_t element = 0;
    // Where to go on when the last * has to take one character more.
    std::size_t retryAt = 0;
    std::size_t retryElement = elements.size() + 1;
    while (at < text.size()) {
        if (element < elements.size() && elements[element].kind == Element::Kind::AnyRun) {
            retryElement = ++element;
            retryAt = at;
        } else if (element < elements.size() && elements[element].matches(text[at])) {
            ++element;
            ++at;
        } else if (retryElement <= elements.size()) {
            element = retryElement;
            at = ++retryAt;
        } else {
            return false;
        }
    }
    return std::all_of(elements.begin() + static_cast<std::ptrdiff_t>(element), elements.end(),
                       [](const Element &rest) { return rest.kind == Element::Kind::AnyRun; });
}

} // namespace

bool wildcardMatch(std::string_view text, std::string_view patterns)
{
    const std::vector<char32_t> characters = toCharacters(text);
    PatternParser parser(patterns);
    while (!parser.atEnd()) {
        const Pattern pattern = parser.next();
        if (matchesElements(characters, pattern.elements) != pattern.isNegated)
            return true;
    }
    return false;
}

} // namespace host::lisp
