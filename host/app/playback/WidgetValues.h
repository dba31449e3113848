#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace host::app {

/// What the widget shows: text, number, "yes" or "no", the current item, the captions of selected rows joined with "^".
/// Captions have no mnemonics. Of a widget of any other class the property "value", which may be empty.
QString shownValue(const QWidget &widget);

/// Whether the widget shows `expected`. Numbers are compared as numbers; of a text shown shortened, the full text in
/// the property "value" counts as well.
bool showsValue(const QWidget &widget, const QString &expected);

/// The items of a combo box, tab bar, list, table or tree; of a table a row is its cells joined with ";".
QStringList shownItems(const QWidget &widget);

} // namespace host::app
