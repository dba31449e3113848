#include "UserInput.h"

#include <QtMath>

#include <cmath>
#include <cstdio>
#include <iostream>
#include <string>
#include <unistd.h>
#include <utility>

namespace sample {

namespace {

enum OptionBit
{
    NotEmpty = 1,
    NotZero = 2,
    NotNegative = 4,
    AnyKeyword = 128
};

/// What is typed and what is given back of "shown,keyword"; a keyword alone is both.
QString keywordItself(const QString &keyword)
{
    return keyword.section(u',', -1);
}

/// Whether `typed` is the keyword, its beginning that has the capitals in it, or these alone: "X", "EX" for "eXit".
bool spells(const QString &typed, const QString &keyword)
{
    QString capitals = keyword;
    capitals.removeIf([](QChar letter) { return letter.isLower(); });
    const qsizetype shortest = capitals.isEmpty() ? keyword.size() : keyword.lastIndexOf(capitals.back()) + 1;
    return typed.compare(capitals, Qt::CaseInsensitive) == 0 ||
           (typed.size() >= shortest && keyword.startsWith(typed, Qt::CaseInsensitive));
}

/// "1,2" or "1,2,3".
std::optional<OdGePoint3d> pointOf(const QString &text)
{
    const QStringList parts = text.split(u',');
    double coordinates[3] = {};
    bool isGood = parts.size() == 2 || parts.size() == 3;
    for (qsizetype i = 0; isGood && i < parts.size(); ++i)
        coordinates[i] = parts[i].toDouble(&isGood);
    return isGood ? std::optional(OdGePoint3d{coordinates[0], coordinates[1], coordinates[2]}) : std::nullopt;
}

} // namespace

OdString UserInput::formatPrompt(const OdString &prompt, const OdString &defaultText) const
{
    QStringList shown;
    for (const QString &keyword : m_next.keywords)
        shown.append(keyword.section(u',', 0, 0));
    OdString text = prompt;
    if (!shown.isEmpty())
        text += QStringLiteral(" [%1]").arg(shown.join(u'/'));
    if (!defaultText.isEmpty())
        text += QStringLiteral(" <%1>").arg(defaultText);
    return text + QStringLiteral(": ");
}

OdString UserInput::angleText(double angle) const
{
    return OdString::number(qRadiansToDegrees(angle), 'g', 15);
}

std::optional<QString> UserInput::answer(const QString &prompt)
{
    std::fputs(prompt.toUtf8().constData(), stdout);
    std::fflush(stdout);
    std::string line;
    const bool isQueued = !m_queue.isEmpty();
    const bool isThere = isQueued || std::getline(std::cin, line);
    if (isQueued || !isatty(STDIN_FILENO)) // who types ends the line on the screen as well
        std::fputc('\n', stdout);
    if (!isThere)
        return std::nullopt;
    return isQueued ? m_queue.takeFirst() : QString::fromStdString(line);
}

// [asking]
int UserInput::ask(const QString &prompt, bool hasDefault, const Take &take)
{
    m_current = std::exchange(m_next, {}); // options are those of one request
    m_keyword.clear();
    while (const std::optional<QString> typed = answer(prompt)) {
        if (typed->isEmpty() && (hasDefault || !(m_current.bits & NotEmpty)))
            return hasDefault ? kRtNormal : kRtNone;
        for (const QString &keyword : std::as_const(m_current.keywords)) {
            if (spells(*typed, keywordItself(keyword)))
                m_keyword = keywordItself(keyword);
        }
        if (!m_keyword.isEmpty())
            return kRtKeyword;
        if (!typed->isEmpty() && take(*typed))
            return kRtNormal;
        if (!typed->isEmpty() && (m_current.bits & AnyKeyword)) {
            m_keyword = *typed;
            return kRtKeyword;
        }
    }
    return kRtCancel;
}
// [/asking]

std::optional<double> UserInput::numberIn(const QString &typed) const
{
    bool isNumber = false;
    const double number = typed.toDouble(&isNumber);
    const bool isExcluded =
        ((m_current.bits & NotZero) && number == 0) || ((m_current.bits & NotNegative) && number < 0);
    return isNumber && qIsFinite(number) && !isExcluded ? std::optional(number) : std::nullopt;
}

int UserInput::getInteger(const OdString &prompt, bool hasDefault, qint32 &value)
{
    return ask(prompt, hasDefault, [&](const QString &typed) {
        const std::optional<double> number = numberIn(typed);
        const bool isInteger = number && qAbs(*number) <= 2147483647 && *number == std::trunc(*number);
        value = isInteger ? qint32(*number) : value;
        return isInteger;
    });
}

int UserInput::getReal(const OdString &prompt, bool hasDefault, double &value)
{
    return ask(prompt, hasDefault, [&](const QString &typed) {
        const std::optional<double> number = numberIn(typed);
        value = number.value_or(value);
        return number.has_value();
    });
}

int UserInput::getAngle(const OdString &prompt, const std::optional<OdGePoint3d> &, bool hasDefault, double &value)
{
    double degrees = qRadiansToDegrees(value);
    const int code = getReal(prompt, hasDefault, degrees);
    if (code == kRtNormal)
        value = qDegreesToRadians(degrees);
    return code;
}

int UserInput::getPoint(const OdString &prompt, const std::optional<OdGePoint3d> &, OdGePoint3d &value)
{
    return ask(prompt, false, [&](const QString &typed) {
        const std::optional<OdGePoint3d> point = pointOf(typed);
        value = point.value_or(value);
        return point.has_value();
    });
}

int UserInput::getString(const OdString &prompt, bool allowSpaces, OdString &value)
{
    const int code = ask(prompt, true, [&](const QString &typed) {
        value = allowSpaces ? typed : typed.section(u' ', 0, 0);
        return true;
    });
    if (code == kRtKeyword)
        value.clear();
    return code;
}

int UserInput::getKeyword(const OdString &prompt, OdString &value)
{
    const int code = ask(prompt, !value.isEmpty(), [](const QString &) { return false; });
    if (code != kRtKeyword)
        return code;
    value = m_keyword;
    return kRtNormal;
}

} // namespace sample
