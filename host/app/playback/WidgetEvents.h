#pragma once

#include <QEvent>
#include <QPoint>
#include <QString>

class QWidget;

namespace host::app {

/// Why a person could not use the widget now; empty when one could.
QString whyUnusable(const QWidget &widget);

/// The number after "#", or -1.
int numberReference(const QString &value);

// What the keyboard and the mouse send, in the widget's own coordinates. The widget may be gone afterwards.

void sendKey(QWidget &widget, int key, Qt::KeyboardModifiers modifiers, const QString &text);
void sendMouse(QWidget &widget, QEvent::Type type, const QPoint &at, Qt::KeyboardModifiers modifiers);
/// Press and release of the left button.
void clickAt(QWidget &widget, const QPoint &at, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// As moving on with Tab: what is written counts from now on.
void leave(QWidget &widget);

} // namespace host::app
