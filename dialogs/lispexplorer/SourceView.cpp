#include "dialogs/lispexplorer/SourceView.h"

#include "dialogs/lispexplorer/Highlighter.h"

#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextDocument>

namespace {

/// How many characters at the start of `text` make a text document begin its next block.
qsizetype separatorSize(QStringView text)
{
    if (text.startsWith(u"\r\n"))
        return 2;
    // The last two are what text documents use inside for the borders of frames.
    static const QString separators = QStringLiteral("\n\r\u2029\uFDD0\uFDD1");
    return !text.isEmpty() && separators.contains(text.front()) ? 1 : 0;
}

/// Compares with what the document holds, not with its text as plain text, which has other blanks and line ends.
bool holdsText(const QTextDocument &document, QStringView text)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QString line = block.text();
        if (!text.startsWith(line))
            return false;
        text = text.sliced(line.size());
        const qsizetype separator = separatorSize(text);
        if (separator == 0)
            return text.isEmpty() && !block.next().isValid();
        text = text.sliced(separator);
    }
    return false;
}

} // namespace

void showSource(QPlainTextEdit &view, Highlighter &highlighter, const QString &text)
{
    if (holdsText(*view.document(), text))
        highlighter.rehighlight();
    else
        view.setPlainText(text);
}

void giveLightGround(QPlainTextEdit &view)
{
    QPalette palette; // what is not set comes from the style, now and after it changes
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    view.setPalette(palette);
}
