#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace host::app {

// What a person does to a widget, done by a session. Each function works as a hand would: signals are sent, validators
// and ranges hold, and a disabled or invisible widget refuses. Each returns why it could not be done, empty when it
// was. A function may return late, when the action opens a dialog that runs until it is closed.

/// Puts `value` in, by the widget's class: a text; a number as the box shows it; yes or no; a combo box's item or,
/// where one can write there, any text; a tab's caption. Items and tabs are also named by number from 0, "#2". In a
/// list, table or tree it selects the row with this text.
QString setValue(QWidget &widget, const QString &value);

/// Types the text key by key at the end of what is there.
QString typeText(QWidget &widget, const QString &text);

/// Presses one key, written as in a menu: "Return", "Ctrl+A", "F1".
QString pressKey(QWidget &widget, const QString &key);

QString setChecked(QWidget &widget, bool checked);
QString giveFocus(QWidget &widget);

/// Presses a button, or the mouse in the middle of anything else.
QString click(QWidget &widget);

} // namespace host::app
