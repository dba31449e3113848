#include "host/app/batch/tools/ToolSelection.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSet>

#include <array>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

struct ClauseRow
{
    const char *words;
    int group; ///< of the entity's list
};

constexpr std::array clauseRows{ClauseRow{"on layer", 8}, ClauseRow{"of block", 2}, ClauseRow{"in style", 7},
                                ClauseRow{"in color", 62}};

const ClauseRow *clauseOf(const QString &words)
{
    for (const ClauseRow &row : clauseRows)
        if (words.simplified().compare(QLatin1StringView(row.words), Qt::CaseInsensitive) == 0)
            return &row;
    return nullptr;
}

/// One pair of the filter; empty when the pattern can be none of it.
QString pairOf(const ClauseRow &clause, const QString &pattern)
{
    if (clause.group != 62)
        return u"(%1 . %2)"_s.arg(clause.group).arg(lispText(pattern));
    bool isNumber = false;
    const int color = pattern.toInt(&isNumber);
    return isNumber && color >= 0 && color <= 256 ? u"(62 . %1)"_s.arg(color) : QString();
}

/// Whether parentheses and quotes of a list are closed at its very end.
bool isOneList(const QString &text)
{
    int depth = 0;
    bool isString = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar letter = text[i];
        if (isString && letter == u'\\')
            ++i;
        else if (letter == u'"')
            isString = !isString;
        else if (!isString)
            depth += letter == u'(' ? 1 : letter == u')' ? -1 : 0;
        if (depth == 0 && i + 1 < text.size())
            return false;
    }
    return depth == 0 && !isString;
}

QString notUnderstood(const QString &text)
{
    return QCoreApplication::translate("Uses",
                                       "--select takes all, TYPES [on layer PATTERN] [of block PATTERN] [in style "
                                       "PATTERN] [in color NUMBER], or a filter list, not \"%1\"")
        .arg(text);
}

} // namespace

QString lispText(QString text)
{
    return u'"' + text.replace(u'\\', "\\\\"_L1).replace(u'"', "\\\""_L1) + u'"';
}

SelectionFilter readSelection(const QString &text)
{
    static const QRegularExpression clauses(u"(?:^|\\s)(on\\s+layer|of\\s+block|in\\s+style|in\\s+color)\\s+"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression types(u"^[A-Za-z0-9_*?#@~,\\-]+$"_s);
    const QString whole = text.trimmed();
    if (whole.startsWith(u'('))
        return isOneList(whole) ? SelectionFilter{whole, {}} : SelectionFilter{{}, notUnderstood(text)};
    QList<QRegularExpressionMatch> found;
    for (const QRegularExpressionMatch &match : clauses.globalMatch(whole))
        found.append(match);
    const QString head = (found.isEmpty() ? whole : whole.first(found.first().capturedStart())).trimmed();
    QStringList pairs;
    if (!head.isEmpty() && head.compare("all"_L1, Qt::CaseInsensitive) != 0) {
        if (!types.match(head).hasMatch())
            return {{}, notUnderstood(text)};
        pairs.append(u"(0 . %1)"_s.arg(lispText(head.toUpper())));
    }
    QSet<int> given;
    for (qsizetype i = 0; i < found.size(); ++i) {
        const qsizetype end = i + 1 < found.size() ? found[i + 1].capturedStart() : whole.size();
        const qsizetype begin = found[i].capturedEnd();
        const ClauseRow *clause = clauseOf(found[i].captured(1));
        const QString pattern = whole.mid(begin, end - begin).trimmed();
        const QString pair = pattern.isEmpty() ? QString() : pairOf(*clause, pattern);
        if (pair.isEmpty() || given.contains(clause->group))
            return {{}, notUnderstood(text)};
        given.insert(clause->group);
        pairs.append(pair);
    }
    if (whole.isEmpty())
        return {{}, notUnderstood(text)};
    return {pairs.isEmpty() ? u"nil"_s : u"("_s + pairs.join(u' ') + u')', {}};
}

} // namespace host::app
