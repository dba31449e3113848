#include "dialogs/lispexplorer/Highlighter.h"

#include "dialogs/lispexplorer/LispKeywords.h"
#include "state/widgets/FullText.h"

#include <QTextDocument>

using ortakit::LispRun;
using ortakit::LispStyle;

namespace {

QTextCharFormat bold(Qt::GlobalColor foreground)
{
    QTextCharFormat format;
    format.setForeground(foreground);
    format.setFontWeight(QFont::Bold);
    return format;
}

QTextCharFormat formatOf(LispStyle style)
{
    QTextCharFormat format;
    switch (style) {
    case LispStyle::Plain:
        break;
    case LispStyle::Parenthesis:
        return bold(Qt::darkBlue);
    case LispStyle::Keyword:
        return bold(Qt::darkRed);
    case LispStyle::String:
        return bold(Qt::darkGreen);
    case LispStyle::Digit:
        return bold(Qt::darkCyan);
    case LispStyle::Comment:
        format.setForeground(Qt::gray);
        break;
    case LispStyle::SearchMatch:
        format.setForeground(Qt::white);
        format.setBackground(Qt::darkBlue);
        break;
    }
    return format;
}

} // namespace

Highlighter::Highlighter(QLineEdit *searchField, QTextDocument *document)
    : QSyntaxHighlighter(document), m_searchField(searchField), m_painter(ortakit::lispKeywords())
{
    for (size_t style = 0; style < m_formats.size(); ++style)
        m_formats[style] = formatOf(LispStyle(style));
}

Highlighter::~Highlighter() = default;

void Highlighter::highlightBlock(const QString &text)
{
    m_painter.setSearch(m_searchField ? ortakit::wholeText(*m_searchField) : QString());
    for (const LispRun &run : m_painter.paint(text))
        setFormat(run.start, run.length, m_formats[size_t(run.style)]);
}
