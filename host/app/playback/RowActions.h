#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace host::app {

// What a person does to the rows of a list, table or tree, as in WidgetActions.h. A row is named by its text or, from
// 0, by its number: "#2".

/// On the row; without a text in the middle of the widget, which may be any.
QString doubleClick(QWidget &widget, const QString &row);

/// Selects these rows and no others.
QString selectRows(QWidget &widget, const QStringList &rows);
QString checkRow(QWidget &widget, const QString &row, bool checked);
/// Writes into a cell of a table that can be written to; numbers from 0.
QString setCell(QWidget &widget, int row, int column, const QString &text);

} // namespace host::app
