#include "dialogs/lispexplorer/LispPainter.h"

#include <algorithm>

namespace ortakit {

LispPainter::LispPainter(const QStringList &keywords) : m_keywords(keywords) {}

const std::vector<LispRun> &LispPainter::paint(const QString &line)
{
    m_runs.clear();
    if (line.isEmpty() || !line.isValidUtf16())
        return m_runs;
    m_styles.assign(size_t(line.size()), LispStyle::Plain);
    paintSymbols(line);
    const auto fillWith = [this](LispStyle style) {
        return [this, style](qsizetype start, qsizetype length) { fill(start, length, style); };
    };
    m_keywords.findExpressions(line, fillWith(LispStyle::Keyword));
    paintLiterals(line);
    m_search.findMatches(line, fillWith(LispStyle::SearchMatch));
    collectRuns();
    return m_runs;
}

// Parentheses, and the keywords that are plain words. What stands behind the last delimiter is never a keyword.
void LispPainter::paintSymbols(QStringView line)
{
    qsizetype start = 0;
    for (qsizetype at = 0; at < line.size(); ++at) {
        const QChar character = line[at];
        if (!endsKeyword(character))
            continue;
        if (at > start && start > 0 && line[start - 1] != u')' &&
            m_keywords.isPlainWord(line.sliced(start, at - start)))
            fill(start, at - start, LispStyle::Keyword);
        if (character == u'(' || character == u')')
            m_styles[size_t(at)] = LispStyle::Parenthesis;
        start = at + 1;
    }
}

// Strings, digits and comments. A string reaches from the first quote of the line to the last; neither it nor a
// comment goes on behind a line feed, should the line hold one.
void LispPainter::paintLiterals(QStringView line)
{
    qsizetype end = 0;
    for (qsizetype start = 0; start <= line.size(); start = end + 1) {
        end = line.indexOf(u'\n', start);
        if (end < 0)
            end = line.size();
        const QStringView part = line.sliced(start, end - start);
        const qsizetype quote = part.indexOf(u'"');
        if (quote >= 0 && part.lastIndexOf(u'"') > quote)
            fill(start + quote, part.lastIndexOf(u'"') - quote + 1, LispStyle::String);
        for (qsizetype at = start; at < end; ++at) {
            if (line[at] >= u'0' && line[at] <= u'9')
                m_styles[size_t(at)] = LispStyle::Digit;
        }
        const qsizetype comment = part.indexOf(u';');
        if (comment >= 0)
            fill(start + comment, part.size() - comment, LispStyle::Comment);
    }
}

// Nothing is covered by an empty match, nor by one of negative length, which ends before it starts ("(?=ab\K)").
void LispPainter::fill(qsizetype start, qsizetype length, LispStyle style)
{
    std::fill_n(m_styles.begin() + start, length, style);
}

void LispPainter::collectRuns()
{
    const int size = int(m_styles.size());
    for (int start = 0, end = 0; start < size; start = end) {
        const LispStyle style = m_styles[size_t(start)];
        end = start + 1;
        while (end < size && m_styles[size_t(end)] == style)
            ++end;
        if (style != LispStyle::Plain)
            m_runs.push_back({start, end - start, style});
    }
}

} // namespace ortakit
