#include "tests/support/RuleByRule.h"

using namespace Qt::StringLiterals;

namespace ortakit::test {

namespace {

QTextCharFormat coloured(Qt::GlobalColor foreground)
{
    QTextCharFormat format;
    format.setForeground(foreground);
    return format;
}

QTextCharFormat bold(Qt::GlobalColor foreground)
{
    QTextCharFormat format = coloured(foreground);
    format.setFontWeight(700);
    return format;
}

QTextCharFormat onDarkBlue(Qt::GlobalColor foreground)
{
    QTextCharFormat format = coloured(foreground);
    format.setBackground(Qt::darkBlue);
    return format;
}

void apply(const HighlightingRule &rule, const QString &line, QList<QTextCharFormat> &formats)
{
    if (!rule.pattern.isValid())
        return;
    for (auto matches = rule.pattern.globalMatch(line); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        for (qsizetype at = match.capturedStart(); at < match.capturedEnd(); ++at)
            formats[at] = rule.format;
    }
}

} // namespace

RuleByRule::RuleByRule(const QStringList &keywords)
    : parenthesisFormat(bold(Qt::darkBlue)), keywordFormat(bold(Qt::darkRed)), stringFormat(bold(Qt::darkGreen)),
      digitFormat(bold(Qt::darkCyan)), commentFormat(coloured(Qt::gray)), searchFormat(onDarkBlue(Qt::white)),
      m_comment(u";[^\n]*"_s)
{
    m_rules.append({QRegularExpression(u"[\\(\\)]"_s), parenthesisFormat});
    for (const QString &keyword : keywords)
        m_rules.append({QRegularExpression(u"(?<=[\\s(])"_s + keyword + u"(?=[\\s()\\n])"_s), keywordFormat});
    m_rules.append({m_rules.last().pattern, keywordFormat});
    m_rules.append({QRegularExpression(u"\".*\""_s), stringFormat});
    m_rules.append({QRegularExpression(u"[0-9]"_s), digitFormat});
}

QList<QTextCharFormat> RuleByRule::paint(const QString &line, const QString &search) const
{
    QList<QTextCharFormat> formats(line.size());
    for (const HighlightingRule &rule : m_rules)
        apply(rule, line, formats);
    apply({m_comment, commentFormat}, line, formats);
    if (!search.isEmpty())
        apply({QRegularExpression(search, QRegularExpression::CaseInsensitiveOption), searchFormat}, line, formats);
    return formats;
}

QList<QTextLayout::FormatRange> RuleByRule::ranges(const QString &line, const QString &search) const
{
    const QList<QTextCharFormat> formats = paint(line, search);
    QList<QTextLayout::FormatRange> ranges;
    for (int at = 0; at < formats.size(); ++at) {
        const bool goesOn = at > 0 && formats[at] == formats[at - 1];
        if (formats[at].isEmpty())
            continue;
        if (goesOn)
            ++ranges.last().length;
        else
            ranges += {at, 1, formats[at]};
    }
    return ranges;
}

} // namespace ortakit::test
