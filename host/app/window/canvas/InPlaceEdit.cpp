#include "host/app/window/canvas/InPlaceEdit.h"

#include <QFontMetrics>
#include <QKeyEvent>

#include <algorithm>

namespace host::app {

namespace {

/// Letters are legible, and the line is no larger than a window.
constexpr double smallestCapitals = 8.0;
constexpr double largestCapitals = 60.0;
constexpr int leastWidth = 120;

} // namespace

InPlaceEdit::InPlaceEdit(const QString &text, const QString &family, double height, const QRectF &place,
                         QWidget *parent)
    : QLineEdit(text, parent), m_before(text)
{
    setObjectName(QStringLiteral("inPlaceEdit"));
    setAccessibleName(tr("Text"));
    QFont letters = font();
    if (!family.isEmpty())
        letters.setFamily(family);
    letters.setPixelSize(100);
    const double capitals = std::max(1, QFontMetrics(letters).capHeight()) / 100.0;
    letters.setPixelSize(int(std::clamp(height, smallestCapitals, largestCapitals) / capitals));
    setFont(letters);
    setCursor(Qt::IBeamCursor);
    const QPoint middle = place.center().toPoint();
    resize(leastWidth, sizeHint().height());
    move(int(place.left()) - (width() - contentsRect().width()) / 2, middle.y() - this->height() / 2);
    fitToText();
    connect(this, &QLineEdit::textChanged, this, &InPlaceEdit::fitToText);
    show();
    selectAll();
    setFocus(Qt::OtherFocusReason);
}

void InPlaceEdit::take()
{
    finish(true);
}

/// As wide as its text, and within the parent: what is longer scrolls.
void InPlaceEdit::fitToText()
{
    const int room = fontMetrics().averageCharWidth() * 3;
    const int wanted = std::max(leastWidth, fontMetrics().horizontalAdvance(text()) + room);
    const QSize all = parentWidget()->size();
    resize(std::min(wanted, all.width()), height());
    move(std::clamp(x(), 0, std::max(0, all.width() - width())),
         std::clamp(y(), 0, std::max(0, all.height() - height())));
}

void InPlaceEdit::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        finish(false);
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        finish(true);
    else
        QLineEdit::keyPressEvent(event);
    event->accept();
}

void InPlaceEdit::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    // A menu over the line, or another program's window, is no decision.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        finish(true);
}

void InPlaceEdit::finish(bool isTaken)
{
    if (std::exchange(m_isFinished, true))
        return;
    hide();
    deleteLater();
    parentWidget()->setFocus();
    if (isTaken && text() != m_before)
        emit taken(text());
}

} // namespace host::app
