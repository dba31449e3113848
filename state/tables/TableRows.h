#pragma once

#include <QList>
#include <QStringList>

#include <functional>

class QTableWidget;
class QTableWidgetItem;

namespace ortakit {

/// Gives `table` one column for each part of `headers` between ";", which is a translated text such as
/// "Name;Description", headed by it. The rows go.
void setTableHeaders(QTableWidget &table, const QString &headers);

/// For a table whose rows are sorted by the program: its header shows how, and a click on it is left to
/// QHeaderView::sectionClicked(), where Qt would select the column. The header does not show which columns are
/// selected: Qt finds that out in time that grows with the square of the number of selected rows that are apart.
void setHeaderForSorting(QTableWidget &table);

/// Replaces the rows of `table`; what a row has beyond the table's columns is left out, what it lacks is empty text.
/// The selection goes with the old rows. The table signals only that its selection changed, once, when it had one.
/// Takes time in proportion to the cells.
void setTableRows(QTableWidget &table, const QList<QStringList> &rows);
/// As above with `rowCount` rows of the items that `makeItem` gives for row and column; the table owns them.
void setTableRows(QTableWidget &table, int rowCount, const std::function<QTableWidgetItem *(int, int)> &makeItem);

} // namespace ortakit
