#include "lispfuncs/PromptText.h"

#include <QRegularExpression>

#include <optional>

namespace ortakit {

using namespace Qt::StringLiterals;

namespace {

struct Brackets
{
    qsizetype open;
    qsizetype close;
};

std::optional<Brackets> findBrackets(const QString &text, QChar open, QChar close)
{
    const qsizetype begin = text.indexOf(open);
    const qsizetype end = begin < 0 ? -1 : text.indexOf(close, begin);
    if (end < 0)
        return std::nullopt;
    return Brackets{begin, end};
}

QString textBetween(const QString &text, QChar open, QChar close)
{
    const std::optional<Brackets> found = findBrackets(text, open, close);
    return found ? text.mid(found->open + 1, found->close - found->open - 1) : QString();
}

/// Takes the brackets out with what is between them and the blanks before.
void cutBrackets(QString &text, QChar open, QChar close)
{
    const std::optional<Brackets> found = findBrackets(text, open, close);
    if (!found)
        return;
    qsizetype begin = found->open;
    while (begin > 0 && text.at(begin - 1) == u' ')
        --begin;
    text.remove(begin, found->close + 1 - begin);
}

void dropColon(QString &text)
{
    qsizetype length = text.size();
    while (length > 0 && (text.at(length - 1) == u' ' || text.at(length - 1) == u':'))
        --length;
    text.truncate(length);
}

} // namespace

PromptText parsePrompt(const QString &prompt)
{
    PromptText parsed;
    parsed.given = prompt;
    parsed.given.remove(u"\\n"_s);
    for (const QString &option : textBetween(parsed.given, u'[', u']').split(u'/'))
        if (!option.trimmed().isEmpty())
            parsed.keywords.append(option.trimmed());
    parsed.defaultText = textBetween(parsed.given, u'<', u'>');
    parsed.cleaned = parsed.given;
    cutBrackets(parsed.cleaned, u'[', u']');
    cutBrackets(parsed.cleaned, u'<', u'>');
    dropColon(parsed.cleaned);
    return parsed;
}

bool isNumericDefault(const QString &text)
{
    static const QRegularExpression number(u"^[+-]?\\d*\\.?\\d+$"_s);
    return number.match(text).hasMatch();
}

} // namespace ortakit
