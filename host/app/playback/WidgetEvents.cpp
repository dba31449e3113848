#include "host/app/playback/WidgetEvents.h"

#include "host/app/playback/PlaybackText.h"
#include "host/app/playback/WidgetFinder.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace host::app {

QString whyUnusable(const QWidget &widget)
{
    if (!widget.isVisible())
        return tr("%1 is not visible").arg(nameOf(widget));
    if (!widget.isEnabled())
        return tr("%1 is disabled").arg(nameOf(widget));
    return {};
}

int numberReference(const QString &value)
{
    bool ok = false;
    const int number = value.startsWith(u'#') ? value.mid(1).toInt(&ok) : -1;
    return ok ? number : -1;
}

void sendKey(QWidget &widget, int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    const QPointer<QWidget> alive = &widget;
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QCoreApplication::sendEvent(&widget, &press);
    if (!alive)
        return;
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    QCoreApplication::sendEvent(&widget, &release);
}

void sendMouse(QWidget &widget, QEvent::Type type, const QPoint &at, Qt::KeyboardModifiers modifiers)
{
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton, held, modifiers);
    QCoreApplication::sendEvent(&widget, &event);
}

void clickAt(QWidget &widget, const QPoint &at, Qt::KeyboardModifiers modifiers)
{
    const QPointer<QWidget> alive = &widget;
    sendMouse(widget, QEvent::MouseButtonPress, at, modifiers);
    if (alive)
        sendMouse(widget, QEvent::MouseButtonRelease, at, modifiers);
}

void leave(QWidget &widget)
{
    QFocusEvent event(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace host::app
