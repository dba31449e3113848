#include "state/tables/TableRows.h"

#include <QHeaderView>
#include <QItemSelectionModel>
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

void setHeaderForSorting(QTableWidget &table)
{
    const QHeaderView *header = table.horizontalHeader();
    QObject::disconnect(header, &QHeaderView::sectionPressed, &table, nullptr);
    QObject::disconnect(header, &QHeaderView::sectionEntered, &table, nullptr);
    table.horizontalHeader()->setSelectionModel(new QItemSelectionModel(table.model(), &table));
    table.horizontalHeader()->setSortIndicatorShown(true);
}

void setTableRows(QTableWidget &table, const QList<QStringList> &rows)
{
    setTableRows(table, int(rows.size()),
                 [&rows](int row, int column) { return new QTableWidgetItem(rows[row].value(column)); });
}

void setTableRows(QTableWidget &table, int rowCount, const std::function<QTableWidgetItem *(int, int)> &makeItem)
{
    table.clearSelection();
    const bool isSorting = table.isSortingEnabled();
    const bool isUpdating = table.updatesEnabled();
    table.setUpdatesEnabled(false);
    // A sorting table would move each item as it comes in. Switching it off where it is off would make the header
    // select columns again.
    if (isSorting)
        table.setSortingEnabled(false);
    {
        const QSignalBlocker noSignals(table);
        table.setRowCount(0);
        table.setRowCount(rowCount);
        // Nor does the view look at each item as it comes in: it draws itself anew below.
        const QSignalBlocker noModelSignals(table.model());
        for (int row = 0; row < rowCount; ++row) {
            for (int column = 0; column < table.columnCount(); ++column)
                table.setItem(row, column, makeItem(row, column));
        }
    }
    if (isSorting)
        table.setSortingEnabled(true);
    table.setUpdatesEnabled(isUpdating);
    table.viewport()->update();
}

} // namespace ortakit
