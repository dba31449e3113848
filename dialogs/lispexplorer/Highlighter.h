#pragma once

#include "dialogs/lispexplorer/LispPainter.h"

#include <QLineEdit>
#include <QPointer>
#include <QSyntaxHighlighter>
#include <QTextCharFormat>
#include <QTextDocument>

#include <array>

/// Colours Lisp source in a text document and marks what matches the text of a search field.
///
/// Parentheses are dark blue and keywords dark red, strings dark green, digits dark cyan, all bold; comments are grey;
/// matches of the search text, a regular expression, are white on dark blue. Lines stand for themselves: a string or
/// a comment never continues on the next one. The colours are made for a light ground, which a view needs in a dark
/// style as well (giveLightGround). The search field is read at each line that is coloured: who wants marks to follow
/// the typing calls showSource() or rehighlight() when its text changes.
class Highlighter final : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    /// Attaches to `document`, which becomes the parent. `searchField` may be null and may go away first.
    Highlighter(QLineEdit *searchField, QTextDocument *document);
    ~Highlighter() override;

protected:
    /// Called by Qt for each line that changed; costs by its length, and by what the search expression takes.
    void highlightBlock(const QString &text) override;

private:
    QPointer<QLineEdit> m_searchField; ///< null when there is none any more: nothing is marked then
    ortakit::LispPainter m_painter;
    std::array<QTextCharFormat, 7> m_formats; // by LispStyle
};
