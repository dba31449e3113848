#pragma once

#include <QList>
#include <QRegularExpression>
#include <QStringList>
#include <QTextCharFormat>
#include <QTextLayout>

namespace ortakit::test {

struct HighlightingRule
{
    QRegularExpression pattern;
    QTextCharFormat format;
};

/// What the colouring of Lisp source means: a list of expressions, applied one after another to a line. Slow, and as
/// simple as can be, for LispPainter to be held against.
class RuleByRule
{
public:
    /// `keywords` are expressions; the last one is applied twice.
    explicit RuleByRule(const QStringList &keywords);

    /// The format of each character of the line.
    QList<QTextCharFormat> paint(const QString &line, const QString &search) const;
    /// The same as a text layout holds it: one range as far as a format reaches, none where nothing is painted.
    QList<QTextLayout::FormatRange> ranges(const QString &line, const QString &search) const;

    const QTextCharFormat parenthesisFormat;
    const QTextCharFormat keywordFormat;
    const QTextCharFormat stringFormat;
    const QTextCharFormat digitFormat;
    const QTextCharFormat commentFormat;
    const QTextCharFormat searchFormat;

private:
    QList<HighlightingRule> m_rules;
    QRegularExpression m_comment;
};

} // namespace ortakit::test
