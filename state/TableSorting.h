#pragma once

#include <QString>

class QTableWidget;

namespace ortakit {

/// Sorts the rows of `table` ascending by the texts of `column`: without regard to case, in the order of the user's
/// language. Rows with equal texts keep their order; a cell without an item counts as empty. What is selected stays
/// selected. `progressText` says what is being done while it takes long; when the user cancels it, it is false and the
/// table is as it was.
///
/// QTableWidget's own sorting does not let the user wait or cancel, and afterwards each item is searched for in the
/// whole table when it is changed or asked for its row.
bool sortTable(QTableWidget &table, int column, const QString &progressText);

} // namespace ortakit
