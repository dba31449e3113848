#pragma once

#include <QList>
#include <QString>

class QTableWidget;

namespace ortakit {

// For tables that do not sort by themselves (QTableWidget::isSortingEnabled() is off). What is selected goes with its
// row, and so does the current cell. The window shows what it showed, or the current cell where something is selected.

/// Makes the rows of `table` those that it has as number rows[0], rows[1] and so on, each named at most once; the
/// others go. Takes time in proportion to the cells, where removing many single rows would take the square of it.
void arrangeTableRows(QTableWidget &table, const QList<int> &rows);

/// Takes these rows, in any order, away.
void removeTableRows(QTableWidget &table, const QList<int> &rows);

/// Sorts ascending by the texts of `column`, without regard to case, in the order of the user's language, and shows so
/// in the header. Rows with equal texts keep their order; a missing item counts as empty. `progressText` says what is
/// being done while it takes long; false, and the table is as it was, when the user cancels it.
///
/// QTableWidget's own sorting can neither be waited for nor cancelled, and afterwards each item is searched for in the
/// whole table when it is changed or asked for its row.
bool sortTableRows(QTableWidget &table, int column, const QString &progressText);

} // namespace ortakit
