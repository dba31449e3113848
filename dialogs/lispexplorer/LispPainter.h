#pragma once

#include "dialogs/lispexplorer/KeywordMatcher.h"
#include "dialogs/lispexplorer/SearchExpression.h"

#include <QString>

#include <vector>

namespace ortakit {

/// How a character of Lisp source is shown.
enum class LispStyle : quint8
{
    Plain,
    Parenthesis,
    Keyword,
    String,
    Digit,
    Comment,
    SearchMatch
};

/// Neighbouring characters of one style.
struct LispRun
{
    int start = 0;
    int length = 0;
    LispStyle style = LispStyle::Plain;

    bool operator==(const LispRun &) const = default;
};

/// Styles Lisp source line by line; a line says nothing about the next one.
///
/// What is painted is what these expressions would give one after another, a later one winning over an earlier one on
/// the same characters: "[\(\)]"; "(?<=[\s(])KEYWORD(?=[\s()\n])" for each keyword; "\".*\""; "[0-9]"; ";[^\n]*"; the
/// search text, case-insensitive. A line that is no valid UTF-16 (half of a surrogate pair) matches none of them and
/// stays plain. The cost grows with the length of the line, that of the search with what its expression costs.
class LispPainter
{
public:
    /// `keywords` are regular expressions, as lispKeywords() lists them.
    explicit LispPainter(const QStringList &keywords);

    /// The regular expression to mark from now on; an empty or invalid one marks nothing, and one that takes far too
    /// long stops marking (SearchExpression).
    void setSearch(const QString &search) { m_search.set(search); }

    /// The runs of `line` that are not plain, from left to right, neighbours of one style joined. Valid until the next
    /// call.
    const std::vector<LispRun> &paint(const QString &line);

private:
    void paintSymbols(QStringView line);
    void paintLiterals(QStringView line);
    void fill(qsizetype start, qsizetype length, LispStyle style);
    void collectRuns();

    KeywordMatcher m_keywords;
    SearchExpression m_search;
    std::vector<LispStyle> m_styles; // one a character of the line at hand
    std::vector<LispRun> m_runs;
};

} // namespace ortakit
