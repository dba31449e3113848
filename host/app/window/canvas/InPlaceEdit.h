#pragma once

#include <QLineEdit>

namespace host::app {

/// A line over the drawing in which a text is written anew: Enter and the loss of the keyboard take it, Esc leaves the
/// text as it was. It deletes itself after either.
class InPlaceEdit final : public QLineEdit
{
    Q_OBJECT

public:
    /// `height` is that of the text's capitals in pixels; `place` where the letters stand on the parent, which the line
    /// covers as far as it lies within it. `family` may be empty.
    InPlaceEdit(const QString &text, const QString &family, double height, const QRectF &place, QWidget *parent);

    /// As Enter does: for what goes on with the drawing while the line is there.
    void take();

signals:
    /// Once, when another text is there than at the start.
    void taken(const QString &text);

protected:
    /// Keys mean nothing to the drawing while a text is written.
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void finish(bool isTaken);
    void fitToText();

    const QString m_before;
    bool m_isFinished = false;
};

} // namespace host::app
