#pragma once

#include <QDialog>

class QPlainTextEdit;

namespace host::app {

/// The content of an MTEXT with its codes, a line a paragraph: what is not touched stays as it was.
class ParagraphDialog final : public QDialog
{
    Q_OBJECT

public:
    ParagraphDialog(const QString &content, QWidget *parent);

    /// What is written there now; exactly what was there where nothing is written otherwise.
    QString content() const;

    /// A content as lines: each \P that is no part of another code is a line feed, and as content again.
    static QString toLines(const QString &content);
    static QString fromLines(const QString &lines);

protected:
    /// Ctrl+Enter takes it.
    void keyPressEvent(QKeyEvent *event) override;

private:
    QString written() const;

    const QString m_content;
    QPlainTextEdit *m_text;
    QString m_before; ///< as the editor gives it
};

} // namespace host::app
