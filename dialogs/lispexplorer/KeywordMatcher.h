#pragma once

#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include <vector>

namespace ortakit {

/// May stand before a keyword: a blank in the sense of "\s", or an opening parenthesis.
bool opensKeyword(QChar character);
/// May stand behind a keyword: the same, or a closing parenthesis.
bool endsKeyword(QChar character);

/// Finds in a line what the expressions "(?<=[\s(])ENTRY(?=[\s()\n])" find, for a list of entries.
///
/// An entry without a character that means something in an expression is a plain word. It matches exactly where it is
/// all that stands between two delimiters, so one look into a set answers for all plain words. Every other entry is
/// run as the expression that it is; one that is no valid expression, or matches nothing but empty text, finds nothing.
class KeywordMatcher
{
public:
    explicit KeywordMatcher(const QStringList &entries);

    /// Whether `token`, a run of characters between delimiters, is a plain word.
    bool isPlainWord(QStringView token) const;

    /// Calls `found(start, length)` for each match in `line` of the entries that are no plain words.
    template <class Found>
    void findExpressions(const QString &line, Found found) const;

private:
    struct Expression
    {
        QRegularExpression expression;
        QChar first; ///< what each match begins with; null when that is not known

        bool mayMatch(QStringView line) const;
    };

    void addExpression(const QString &entry);

    const QStringList m_entries; // keeps the characters of the plain words
    QSet<QStringView> m_plainWords;
    qsizetype m_longestWord = 0;
    std::vector<Expression> m_expressions;
};

template <class Found>
void KeywordMatcher::findExpressions(const QString &line, Found found) const
{
    for (const Expression &entry : m_expressions) {
        if (!entry.mayMatch(line))
            continue;
        for (auto matches = entry.expression.globalMatch(line); matches.hasNext();) {
            const QRegularExpressionMatch match = matches.next();
            found(match.capturedStart(), match.capturedLength());
        }
    }
}

} // namespace ortakit
