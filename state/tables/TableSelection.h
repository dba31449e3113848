#pragma once

#include <QItemSelection>
#include <QList>
#include <QString>

class QTableWidget;

namespace ortakit {

/// The text of column 0 of every row with a selected cell, from top to bottom, each followed by "^".
QString selectedRowTexts(const QTableWidget &table);

/// Selects the items whose text is, in any case, one of the parts of `texts` between "^", and nothing else, and
/// scrolls to each, in the order of the parts. An empty part, such as the one behind a closing "^", stands for the
/// items without text. A table that selects by rows selects the items' rows.
void selectByTexts(QTableWidget &table, const QString &texts);

/// Selects these rows, in any order, and nothing else. The current row stays.
void selectRows(QTableWidget &table, const QList<int> &rows);

/// The cells from the first to the last column of these rows, in any order. Neighbouring rows become one range: what
/// the selection model does with ranges grows with the square of their number.
QItemSelection rangesOfRows(const QTableWidget &table, int firstColumn, int lastColumn, QList<int> rows);

/// Lets the user select anew, as with a click, Shift or Ctrl+A, after many separate cells were selected: Qt compares
/// each old range with each new one. To be called before anything is connected to the table's selection model and
/// before setHeaderForSorting(); of the signals that QTableWidget makes from it, only itemSelectionChanged() remains,
/// which then comes for the old selection and for the new one.
void makeNewSelectionsQuick(QTableWidget &table);

// What Qt itself answers about a selection of many separate rows takes time that grows with the square of their number;
// these grow with the number of selected cells.

/// Rows with at least one selected cell, from top to bottom.
QList<int> rowsWithSelection(const QTableWidget &table);

/// Rows that have cells and of which every cell that has an item is selected, in the order in which the selection has
/// them: what was selected first comes first, each range from top to bottom.
QList<int> wholeSelectedRows(const QTableWidget &table);

/// How many cells are selected.
qsizetype selectedCellCount(const QTableWidget &table);

/// How many of them have an item.
qsizetype selectedItemCount(const QTableWidget &table);

} // namespace ortakit
