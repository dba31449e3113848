#include "host/app/window/entry/PromptText.h"

#include <QUrl>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

const QString linkPrefix = u"option:"_s;

struct Brackets
{
    qsizetype open = -1;
    qsizetype close = -1;

    bool found() const { return open >= 0 && close > open + 1; }
};

Brackets lastBrackets(const QString &prompt)
{
    Brackets brackets;
    brackets.close = prompt.lastIndexOf(u']');
    if (brackets.close > 0)
        brackets.open = prompt.lastIndexOf(u'[', brackets.close);
    return brackets;
}

/// What suffices as an answer: of "eXit" the X, of "Select all,SA" the second spelling, of "2" all.
QString shortest(const QString &option)
{
    QString capitals;
    for (const QChar c : option)
        if (c.isUpper() || (c.isDigit() && !capitals.isEmpty()))
            capitals += c;
    return capitals.isEmpty() ? option : capitals;
}

QString lastLine(const QString &prompt)
{
    return prompt.mid(prompt.lastIndexOf(u'\n', -2) + 1).remove(u'\n');
}

} // namespace

QList<PromptOption> promptOptions(const QString &prompt)
{
    const Brackets brackets = lastBrackets(prompt);
    QList<PromptOption> options;
    if (!brackets.found())
        return options;
    for (const QString &part : prompt.sliced(brackets.open + 1, brackets.close - brackets.open - 1).split(u'/'))
        if (const QString option = part.trimmed(); !option.isEmpty())
            options.append({option, shortest(option)});
    return options;
}

QString promptHtml(const QString &prompt)
{
    const QString line = lastLine(prompt);
    const Brackets brackets = lastBrackets(line);
    if (!brackets.found())
        return line.toHtmlEscaped();
    QStringList links;
    for (const PromptOption &option : promptOptions(line))
        links.append("<a href=\"%1%2\">%3</a>"_L1.arg(
            linkPrefix, QString::fromLatin1(QUrl::toPercentEncoding(option.answer)), option.shown.toHtmlEscaped()));
    return line.first(brackets.open + 1).toHtmlEscaped() + links.join(u'/') +
           line.sliced(brackets.close).toHtmlEscaped();
}

QString linkAnswer(const QString &link)
{
    return QUrl::fromPercentEncoding(link.mid(linkPrefix.size()).toLatin1());
}

} // namespace host::app
