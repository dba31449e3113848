#include "host/app/window/canvas/ParagraphDialog.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextDocument>
#include <QVBoxLayout>

namespace host::app {

ParagraphDialog::ParagraphDialog(const QString &content, QWidget *parent)
    : QDialog(parent), m_content(content), m_text(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("paragraphEditor"));
    setWindowTitle(tr("Edit paragraph"));
    m_text->setObjectName(QStringLiteral("paragraphText"));
    m_text->setAccessibleName(tr("Text of the paragraph"));
    m_text->setTabChangesFocus(true);
    m_text->setPlainText(toLines(content));
    m_before = written();
    auto *hint = new QLabel(tr("Each line is a paragraph. Codes are shown as they are: {\\C1;red}, %%c, %%d."), this);
    hint->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setToolTip(tr("Ctrl+Enter"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_text, 1);
    column->addWidget(hint);
    column->addWidget(buttons);
    resize(520, 320);
}

/// toPlainText() would make plain blanks of those that do not break.
QString ParagraphDialog::written() const
{
    return m_text->document()->toRawText().replace(QChar::ParagraphSeparator, u'\n');
}

QString ParagraphDialog::content() const
{
    const QString now = written();
    return now == m_before ? m_content : fromLines(now);
}

QString ParagraphDialog::toLines(const QString &content)
{
    QString lines;
    for (qsizetype i = 0; i < content.size(); ++i) {
        const bool isCode = content[i] == u'\\' && i + 1 < content.size();
        if (isCode && content[i + 1] == u'P')
            lines += u'\n';
        else if (isCode)
            lines += content.sliced(i, 2);
        else
            lines += content[i];
        i += isCode ? 1 : 0;
    }
    return lines;
}

QString ParagraphDialog::fromLines(const QString &lines)
{
    return QString(lines).replace(u'\n', QStringLiteral("\\P"));
}

void ParagraphDialog::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && event->modifiers().testFlag(Qt::ControlModifier))
        accept();
    else
        QDialog::keyPressEvent(event);
}

} // namespace host::app
