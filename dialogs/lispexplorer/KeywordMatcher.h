#pragma once

#include <QRegularExpression>
#include <QStringList>

#include <string_view>
#include <unordered_set>
#include <vector>

namespace ortakit {

/// "\s" of an expression without Unicode properties: no blank beyond ASCII counts.
constexpr bool isLispBlank(QChar character)
{
    return character == u' ' || (character >= u'\t' && character <= u'\r');
}

/// Whether a keyword may stand behind it.
constexpr bool opensKeyword(QChar character)
{
    return isLispBlank(character) || character == u'(';
}

/// Whether it may stand behind a keyword.
constexpr bool endsKeyword(QChar character)
{
    return opensKeyword(character) || character == u')';
}

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
    bool isPlainWord(QStringView token) const
    {
        const std::u16string_view word(token.utf16(), size_t(token.size()));
        return word.size() <= m_longestWord && m_plainWords.contains(word);
    }

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
    std::unordered_set<std::u16string_view> m_plainWords;
    size_t m_longestWord = 0;
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
