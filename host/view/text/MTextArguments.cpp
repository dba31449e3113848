#include "host/view/text/MTextArguments.h"

#include <QLatin1StringView>

#include <algorithm>

namespace host::view {

using namespace Qt::StringLiterals;

namespace {

/// A family name with its flags has no more.
constexpr qsizetype longestFontArgument = 128;

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

QChar characterAt(QStringView text, qsizetype at)
{
    return at < text.size() ? text[at] : QChar();
}

qsizetype digitsEnd(QStringView text, qsizetype at)
{
    while (isDigit(characterAt(text, at)))
        ++at;
    return at;
}

/// Behind "-12.5e3" at `at`; `at` itself when there is none.
qsizetype numberEnd(QStringView text, qsizetype at)
{
    const qsizetype whole = at + (characterAt(text, at) == u'-' || characterAt(text, at) == u'+' ? 1 : 0);
    qsizetype end = digitsEnd(text, whole);
    qsizetype digits = end - whole;
    if (characterAt(text, end) == u'.') {
        const qsizetype fraction = digitsEnd(text, end + 1);
        digits += fraction - end - 1;
        // A stop behind a number without a fraction may end a sentence.
        if (fraction > end + 1 || characterAt(text, fraction) == u';')
            end = fraction;
    }
    if (digits == 0)
        return at;
    if (characterAt(text, end).toLower() == u'e') {
        const bool hasSign = characterAt(text, end + 1) == u'-' || characterAt(text, end + 1) == u'+';
        const qsizetype power = end + (hasSign ? 2 : 1);
        if (digitsEnd(text, power) > power)
            end = digitsEnd(text, power);
    }
    return end;
}

/// What lies between `at` and `end`, and the semicolon there; nothing when that is nothing at all.
std::optional<QStringView> takeUpTo(QStringView text, qsizetype &at, qsizetype end)
{
    const bool hasEnd = characterAt(text, end) == u';';
    if (end == at && !hasEnd)
        return std::nullopt;
    const QStringView argument = text.sliced(at, end - at);
    at = end + (hasEnd ? 1 : 0);
    return argument;
}

/// A code's letter, flags and a number, as paragraphs have them: "xi-3", "qc", "l*", "xsm1.5", "10".
qsizetype paragraphItemEnd(QStringView text, qsizetype at)
{
    qsizetype end = at + (characterAt(text, at) == u'x' ? 1 : 0);
    const QChar kind = characterAt(text, end);
    if (kind == u'q')
        return u"lrcjd*"_s.contains(characterAt(text, end + 1)) && end + 1 < text.size() ? end + 2 : at;
    if (u"ilrtscdb"_s.contains(kind) && end < text.size())
        ++end;
    if (kind == u's' && u"ema"_s.contains(characterAt(text, end)) && end < text.size())
        ++end;
    if (characterAt(text, end) == u'*' || (kind == u't' && characterAt(text, end) == u'z'))
        return end + 1;
    const qsizetype behind = numberEnd(text, end);
    return behind > end ? behind : at;
}

bool isParagraphCharacter(QChar c)
{
    return isDigit(c) || (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || u".,*+-"_s.contains(c);
}

/// Behind "|b1|i0|c0|p34".
qsizetype fontFlagsEnd(QStringView text, qsizetype at)
{
    while (characterAt(text, at) == u'|' && u"bicpBICP"_s.contains(characterAt(text, at + 1)) && at + 1 < text.size())
        at = numberEnd(text, at + 2);
    return at;
}

/// Where a font file's name ends that stands in front of a text.
qsizetype fontFileEnd(QStringView text, qsizetype at)
{
    for (qsizetype i = at; i < text.size() && i < at + longestFontArgument && text[i] != u' '; ++i)
        for (const QLatin1StringView ending : {".shx"_L1, ".ttf"_L1, ".ttc"_L1, ".otf"_L1})
            if (text.sliced(i).startsWith(ending, Qt::CaseInsensitive))
                return i + ending.size();
    return at;
}

bool isStackBar(QChar c)
{
    return c == u'^' || c == u'/' || c == u'#';
}

/// Whether the text that a stack stands in goes on here, with a code, a group or a paragraph of its own.
bool endsStack(QStringView text, qsizetype at)
{
    const QChar c = text[at];
    if (c == u'{' || c == u'}' || c == u'\n')
        return true;
    return c == u'\\' && characterAt(text, at + 1).isLetter();
}

qsizetype openStackEnd(QStringView text, qsizetype at)
{
    bool isLower = false;
    bool hasLower = false;
    for (; at < text.size() && !endsStack(text, at); ++at) {
        if (isStackBar(text[at]) && !isLower)
            isLower = true;
        else if (text[at] == u' ' && hasLower)
            break;
        else if (isLower)
            hasLower |= text[at] != u' ';
    }
    return at;
}

} // namespace

std::optional<QStringView> takeNumberArgument(QStringView text, qsizetype &at, NumberForm form)
{
    qsizetype start = at;
    while (characterAt(text, start) == u' ')
        ++start;
    qsizetype end = form == NumberForm::Whole ? digitsEnd(text, start) : numberEnd(text, start);
    if (end == start && characterAt(text, end) != u';')
        return std::nullopt;
    if (end > start && characterAt(text, end) == u'x' &&
        (form == NumberForm::MayBeFactor || characterAt(text, end + 1) == u';'))
        ++end;
    if (characterAt(text, end) == u' ' && characterAt(text, end + 1) == u';')
        ++end;
    return takeUpTo(text, at, end);
}

std::optional<QStringView> takeDigitArgument(QStringView text, qsizetype &at)
{
    return takeUpTo(text, at, isDigit(characterAt(text, at)) ? at + 1 : at);
}

std::optional<QStringView> takeFontArgument(QStringView text, qsizetype &at)
{
    const QStringView reach = text.sliced(at, std::min(longestFontArgument, text.size() - at));
    const auto stop = std::ranges::find_if(reach, [](QChar c) { return u";\\{}\n"_s.contains(c); });
    const qsizetype end = at + (stop - reach.begin());
    if (characterAt(text, end) == u';')
        return takeUpTo(text, at, end);
    const qsizetype flags = reach.first(end - at).indexOf(u'|');
    return takeUpTo(text, at, flags >= 0 ? fontFlagsEnd(text, at + flags) : fontFileEnd(text, at));
}

std::optional<QStringView> takeParagraphArgument(QStringView text, qsizetype &at)
{
    qsizetype end = at;
    while (end < text.size() && isParagraphCharacter(text[end]))
        ++end;
    if (characterAt(text, end) == u';')
        return takeUpTo(text, at, end);
    end = paragraphItemEnd(text, at);
    while (end > at && characterAt(text, end) == u',') {
        const qsizetype next = paragraphItemEnd(text, end + 1);
        if (next == end + 1)
            break;
        end = next;
    }
    return takeUpTo(text, at, end);
}

std::optional<QStringView> takeStackArgument(QStringView text, qsizetype &at)
{
    qsizetype end = at;
    while (end < text.size() && text[end] != u';' && !endsStack(text, end))
        end += text[end] == u'\\' ? 2 : 1;
    if (characterAt(text, end) == u';')
        return takeUpTo(text, at, end);
    end = openStackEnd(text, at);
    const QStringView open = text.sliced(at, end - at);
    return std::ranges::any_of(open, isStackBar) ? takeUpTo(text, at, end) : std::nullopt;
}

} // namespace host::view
