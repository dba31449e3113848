#include "host/drawing/selection/Wildcard.h"

#include <QString>

#include <optional>

namespace host::drawing {

namespace {

/// One element of a pattern other than *.
struct Element
{
    enum class Kind
    {
        Exactly,
        Any,
        Digit,
        Letter,
        Other,
        OneOf,
        NoneOf
    };
    Kind kind = Kind::Exactly;
    QStringView set; ///< the character itself, or what stands in the brackets
};

constexpr QChar star = u'*';
/// What stands for anything else than itself.
constexpr QStringView specialCharacters = u"#@.*?~[],`";

/// The end of a bracketed set that starts at `position`; nothing when it does not close.
std::optional<qsizetype> setEnd(QStringView pattern, qsizetype position)
{
    // A bracket as the first of a set stands for itself.
    qsizetype from = position + 1;
    if (from < pattern.size() && pattern[from] == u'~')
        ++from;
    const qsizetype end = pattern.indexOf(u']', from + 1);
    return end < 0 ? std::nullopt : std::optional(end);
}

Element readElement(QStringView pattern, qsizetype &position)
{
    using enum Element::Kind;
    const QChar c = pattern[position];
    if (c == u'`' && position + 1 < pattern.size()) {
        position += 2;
        return {Exactly, pattern.mid(position - 1, 1)};
    }
    if (c == u'[') {
        if (const std::optional<qsizetype> end = setEnd(pattern, position)) {
            const QStringView set = pattern.mid(position + 1, *end - position - 1);
            position = *end + 1;
            return set.startsWith(u'~') && set.size() > 1 ? Element{NoneOf, set.mid(1)} : Element{OneOf, set};
        }
    }
    ++position;
    switch (c.unicode()) {
    case u'#':
        return {Digit, {}};
    case u'@':
        return {Letter, {}};
    case u'.':
        return {Other, {}};
    case u'?':
        return {Any, {}};
    default:
        return {Exactly, pattern.mid(position - 1, 1)};
    }
}

bool isInSet(QChar c, QStringView set, Qt::CaseSensitivity sensitivity)
{
    const auto same = [sensitivity](QChar a) { return sensitivity == Qt::CaseInsensitive ? a.toCaseFolded() : a; };
    for (qsizetype i = 0; i < set.size(); ++i) {
        const bool isRange = i + 2 < set.size() && set[i + 1] == u'-';
        if (!isRange && same(set[i]) == same(c))
            return true;
        if (isRange && same(set[i]) <= same(c) && same(c) <= same(set[i + 2]))
            return true;
        i += isRange ? 2 : 0;
    }
    return false;
}

bool isSameLetter(QChar a, QChar b, Qt::CaseSensitivity sensitivity)
{
    if (a == b || sensitivity == Qt::CaseSensitive)
        return a == b;
    // Letters that differ in case alone differ by one bit; few others do.
    const bool isPlain = (a.unicode() | b.unicode()) < 0x80;
    if (isPlain && ((a.unicode() ^ b.unicode()) != 0x20 || !a.isLetter()))
        return false;
    return a.toCaseFolded() == b.toCaseFolded();
}

bool matchesElement(QChar c, const Element &element, Qt::CaseSensitivity sensitivity)
{
    switch (element.kind) {
    case Element::Kind::Exactly:
        return isSameLetter(c, element.set.front(), sensitivity);
    case Element::Kind::Any:
        return true;
    case Element::Kind::Digit:
        return c.isDigit();
    case Element::Kind::Letter:
        return c.isLetter();
    case Element::Kind::Other:
        return !c.isLetterOrNumber();
    case Element::Kind::OneOf:
        return isInSet(c, element.set, sensitivity);
    case Element::Kind::NoneOf:
        return !isInSet(c, element.set, sensitivity);
    }
    return false;
}

/// One pattern without commas. On a mismatch only the last star is tried further: that is enough, as earlier stars
/// have found their shortest run.
template <typename Text>
bool matchesOne(Text text, QStringView pattern, Qt::CaseSensitivity sensitivity)
{
    qsizetype at = 0;
    qsizetype position = 0;
    qsizetype starPosition = -1;
    qsizetype starText = 0;
    while (at < text.size()) {
        qsizetype next = position;
        if (position < pattern.size() && pattern[position] == star) {
            starPosition = ++position;
            starText = at;
            continue;
        }
        if (position < pattern.size() && matchesElement(QChar(text[at]), readElement(pattern, next), sensitivity)) {
            position = next;
            ++at;
        } else if (starPosition >= 0) {
            position = starPosition;
            at = ++starText;
        } else {
            return false;
        }
    }
    while (position < pattern.size() && pattern[position] == star)
        ++position;
    return position == pattern.size();
}

/// Length of the pattern up to the next comma outside brackets and not behind a backquote. `lastClose` is where the
/// last closing bracket is: one that opens behind it is not looked for again and again.
qsizetype patternLength(QStringView patterns, qsizetype lastClose)
{
    for (qsizetype i = 0; i < patterns.size();) {
        if (patterns[i] == u',')
            return i;
        const bool staysOpen = patterns[i] == u'[' && i > lastClose;
        if (patterns[i] == star || staysOpen)
            ++i;
        else
            readElement(patterns, i);
    }
    return patterns.size();
}

template <typename Text>
bool matchesAny(Text text, QStringView pattern, Qt::CaseSensitivity sensitivity)
{
    qsizetype lastClose = pattern.lastIndexOf(u']');
    while (true) {
        const qsizetype length = patternLength(pattern, lastClose);
        const QStringView one = pattern.left(length);
        const bool isOpposite = one.startsWith(u'~');
        if (matchesOne(text, one.mid(isOpposite ? 1 : 0), sensitivity) != isOpposite)
            return true;
        if (length == pattern.size())
            return false;
        pattern = pattern.mid(length + 1);
        lastClose -= length + 1;
    }
}

} // namespace

bool matchesWildcard(QStringView text, QStringView pattern, Qt::CaseSensitivity sensitivity)
{
    return matchesAny(text, pattern, sensitivity);
}

bool matchesWildcard(QLatin1StringView text, QStringView pattern, Qt::CaseSensitivity sensitivity)
{
    return matchesAny(text, pattern, sensitivity);
}

QString literalPattern(QStringView text)
{
    QString pattern;
    for (const QChar c : text) {
        // Lists of names lose the blanks at their ends.
        if (specialCharacters.contains(c) || (c == u' ' && pattern.isEmpty()))
            pattern += u'`';
        pattern += c;
    }
    return pattern;
}

std::optional<QStringList> literalTexts(QStringView pattern)
{
    QStringList texts = {QString()};
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern[i];
        if (c == u',')
            texts.append(QString());
        else if (c == u'`' && i + 1 < pattern.size())
            texts.last() += pattern[++i];
        else if (specialCharacters.contains(c))
            return std::nullopt;
        else
            texts.last() += c;
    }
    return texts;
}

} // namespace host::drawing
