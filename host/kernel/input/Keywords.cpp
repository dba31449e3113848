#include "host/kernel/input/Keywords.h"

#include <QRegularExpression>

#include <algorithm>

namespace host::kernel {

namespace {

/// The first run of upper-case letters and digits, with where it starts.
struct Abbreviation
{
    qsizetype start = 0;
    QString text;
};

bool isAbbreviating(QChar c)
{
    return c.isUpper() || c.isDigit();
}

Abbreviation abbreviationOf(const QString &keyword)
{
    qsizetype start = 0;
    while (start < keyword.size() && !isAbbreviating(keyword[start]))
        ++start;
    qsizetype end = start;
    while (end < keyword.size() && isAbbreviating(keyword[end]))
        ++end;
    return {start, keyword.mid(start, end - start)};
}

bool isShortFor(const QString &typed, const QString &keyword)
{
    const qsizetype comma = keyword.indexOf(u',');
    if (comma >= 0) {
        const QString shortest = keyword.mid(comma + 1);
        return typed.startsWith(shortest, Qt::CaseInsensitive) &&
               (typed.size() == shortest.size() || keyword.left(comma).startsWith(typed, Qt::CaseInsensitive));
    }
    const Abbreviation shortest = abbreviationOf(keyword);
    if (shortest.text.isEmpty() || typed.size() < shortest.text.size())
        return false;
    // Typing may begin at the abbreviation ("xi" for "eXit") or at the word ("exi").
    const bool fromAbbreviation = keyword.mid(shortest.start).startsWith(typed, Qt::CaseInsensitive);
    const bool fromStart =
        typed.size() >= shortest.start + shortest.text.size() && keyword.startsWith(typed, Qt::CaseInsensitive);
    return fromAbbreviation || fromStart;
}

/// Where the keyword is that `word` means; -1 when it means none.
qsizetype findKeyword(const QString &word, const QStringList &keywords)
{
    if (word.isEmpty())
        return -1;
    const auto find = [&](const auto &isMeant) {
        const auto found = std::ranges::find_if(keywords, isMeant);
        return found == keywords.end() ? -1 : found - keywords.begin();
    };
    const qsizetype whole =
        find([&](const QString &keyword) { return keywordName(keyword).compare(word, Qt::CaseInsensitive) == 0; });
    return whole >= 0 ? whole : find([&](const QString &keyword) { return isShortFor(word, keyword); });
}

} // namespace

QStringList optionsIn(const QString &prompt)
{
    const qsizetype start = prompt.lastIndexOf(u'[');
    const qsizetype end = prompt.indexOf(u']', start);
    QStringList options;
    if (start < 0 || end < 0)
        return options;
    for (const QString &option : prompt.mid(start + 1, end - start - 1).split(u'/', Qt::SkipEmptyParts))
        options.append(option.section(u' ', 0, 0));
    return options;
}

QString keywordName(const QString &keyword)
{
    return keyword.section(u',', 0, 0);
}

QString keywordAnswer(const QString &keyword)
{
    const QString name = keywordName(keyword);
    const QString typed = keyword.mid(name.size() + 1);
    return name.contains(u' ') && !typed.isEmpty() && name.startsWith(typed) ? typed : name;
}

std::optional<QString> matchKeyword(const QString &typed, const QStringList &keywords)
{
    const QString word = typed.startsWith(u'_') ? typed.mid(1) : typed;
    const qsizetype place = findKeyword(word, keywords);
    return place < 0 ? std::nullopt : std::optional(keywordAnswer(keywords[place]));
}

std::optional<QString> matchKeyword(const QString &typed, const QStringList &keywords, const QStringList &answers)
{
    if (answers.isEmpty() || typed.startsWith(u'_'))
        return matchKeyword(typed, answers.isEmpty() ? keywords : answers);
    const qsizetype place = findKeyword(typed, keywords);
    return place < 0 ? std::nullopt : std::optional(keywordAnswer(answers.value(place, keywords[place])));
}

std::optional<QString> keywordFor(const PromptRequest &request, const QString &typed)
{
    const std::optional<QString> keyword = matchKeyword(typed, request.keywords, request.answers);
    return keyword || !request.forCommand ? keyword : matchKeyword(typed, request.answers);
}

QString formatPrompt(const QString &prompt, const QStringList &keywords, const QString &defaultText)
{
    QString shown = prompt;
    while (!shown.isEmpty() && (shown.back().isSpace() || shown.back() == u':'))
        shown.chop(1);
    if (!keywords.isEmpty() && !shown.contains(u'[')) {
        QStringList names;
        for (const QString &keyword : keywords)
            names.append(keywordName(keyword));
        shown += QStringLiteral(" [%1]").arg(names.join(u'/'));
    }
    static const QRegularExpression shownDefault(QStringLiteral("<[^<>]*>$"));
    if (!defaultText.isEmpty() && !shown.contains(shownDefault))
        shown += QStringLiteral(" <%1>").arg(defaultText);
    return shown + QStringLiteral(": ");
}

} // namespace host::kernel
