#include "state/TableRows.h"

#include <QSignalBlocker>
#include <QTableWidget>

namespace ortakit {

void setTableHeaders(QTableWidget &table, const QString &headers)
{
    const QStringList texts = headers.split(u';');
    table.setRowCount(0);
    table.setColumnCount(int(texts.size()));
    table.setHorizontalHeaderLabels(texts);
}

void setTableRows(QTableWidget &table, const QList<QStringList> &rows)
{
    table.clearSelection();
    const bool isSorting = table.isSortingEnabled();
    const bool isUpdating = table.updatesEnabled();
    table.setUpdatesEnabled(false);
    // A sorting table would move each item as it comes in.
    table.setSortingEnabled(false);
    {
        const QSignalBlocker noSignals(table);
        table.setRowCount(0);
        table.setRowCount(int(rows.size()));
        for (int row = 0; row < int(rows.size()); ++row) {
            for (int column = 0; column < table.columnCount(); ++column)
                table.setItem(row, column, new QTableWidgetItem(rows[row].value(column)));
        }
    }
    table.setSortingEnabled(isSorting);
    table.setUpdatesEnabled(isUpdating);
}

} // namespace ortakit
