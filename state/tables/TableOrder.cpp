#include "state/tables/TableOrder.h"

#include "state/tables/TableSelection.h"
#include "state/widgets/LongWork.h"

#include <QCollator>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QMap>
#include <QSignalBlocker>
#include <QTableWidget>

#include <algorithm>

namespace ortakit {

namespace {

/// Selected rows by the first and last of the columns that are selected in them.
using SelectedRows = QMap<std::pair<int, int>, QList<int>>;

/// What is selected, as it will be when row number r has become number newRows[r]; negative numbers are gone.
SelectedRows selectionThen(const QTableWidget &table, const QList<int> &newRows)
{
    SelectedRows selected;
    for (const QItemSelectionRange &range : table.selectionModel()->selection()) {
        QList<int> &rows = selected[{range.left(), range.right()}];
        for (int row = range.top(); row <= range.bottom(); ++row) {
            if (newRows[row] >= 0)
                rows.append(newRows[row]);
        }
    }
    return selected;
}

void select(QTableWidget &table, const SelectedRows &selected)
{
    QItemSelection selection;
    for (auto columns = selected.cbegin(); columns != selected.cend(); ++columns)
        selection.append(rangesOfRows(table, columns.key().first, columns.key().second, columns.value()));
    if (!selection.isEmpty())
        table.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

/// The items of `rows`, row by row, which are the caller's then.
std::vector<QTableWidgetItem *> takeItems(QTableWidget &table, const QList<int> &rows)
{
    std::vector<QTableWidgetItem *> items;
    items.reserve(std::size_t(rows.size()) * std::size_t(table.columnCount()));
    for (const int row : rows) {
        for (int column = 0; column < table.columnCount(); ++column)
            items.push_back(table.takeItem(row, column));
    }
    return items;
}

void moveItems(QTableWidget &table, const QList<int> &rows)
{
    // The view would look at its layout for each item.
    const QSignalBlocker noSignals(table.model());
    const std::vector<QTableWidgetItem *> items = takeItems(table, rows);
    auto item = items.cbegin();
    for (int row = 0; row < int(rows.size()); ++row) {
        for (int column = 0; column < table.columnCount(); ++column)
            table.setItem(row, column, *item++);
    }
}

struct KeyedRow
{
    QCollatorSortKey key;
    int row;

    bool operator<(const KeyedRow &other) const { return key < other.key; }
};
using KeyedRows = std::vector<KeyedRow>;

/// As many rows are sorted in one step of the work.
constexpr qsizetype stepLength = 256;

/// False when the work was cancelled, as everywhere here.
bool takeKeys(KeyedRows &rows, const QTableWidget &table, int column, LongWork &work)
{
    const QCollator collator;
    rows.reserve(size_t(table.rowCount()));
    for (int row = 0; row < table.rowCount(); ++row) {
        if (!work.goesOn())
            return false;
        const QTableWidgetItem *item = table.item(row, column);
        rows.push_back({collator.sortKey(item ? item->text().toCaseFolded() : QString()), row});
    }
    return true;
}

/// Sorts short pieces, and merges neighbours until there is one, so that the work can be left in between.
bool sortInSteps(KeyedRows &rows, LongWork &work)
{
    const auto at = [&rows](qsizetype index) { return rows.begin() + std::min(index, qsizetype(rows.size())); };
    const auto count = qsizetype(rows.size());
    for (qsizetype begin = 0; begin < count; begin += stepLength) {
        if (!work.goesOn())
            return false;
        std::stable_sort(at(begin), at(begin + stepLength));
    }
    for (qsizetype length = stepLength; length < count; length *= 2) {
        for (qsizetype begin = 0; begin + length < count; begin += 2 * length) {
            if (!work.goesOn())
                return false;
            std::inplace_merge(at(begin), at(begin + length), at(begin + 2 * length));
        }
    }
    return true;
}

} // namespace

void arrangeTableRows(QTableWidget &table, const QList<int> &rows)
{
    QList<int> newRows(table.rowCount(), -1);
    for (int row = 0; row < int(rows.size()); ++row)
        newRows[rows[row]] = row;
    const SelectedRows selected = selectionThen(table, newRows);
    const QModelIndex current = table.currentIndex();
    const int currentRow = current.isValid() ? newRows[current.row()] : -1;

    table.clearSelection();
    moveItems(table, rows);
    table.setRowCount(int(rows.size()));
    table.viewport()->update();

    // Which would scroll to a cell that nobody looks for.
    const bool isScrolling = table.hasAutoScroll();
    table.setAutoScroll(isScrolling && !selected.isEmpty());
    if (current.isValid())
        table.selectionModel()->setCurrentIndex(currentRow < 0 ? QModelIndex()
                                                               : table.model()->index(currentRow, current.column()),
                                                QItemSelectionModel::NoUpdate);
    table.setAutoScroll(isScrolling);
    select(table, selected);
}

void removeTableRows(QTableWidget &table, const QList<int> &rows)
{
    QList<int> gone = rows;
    std::sort(gone.begin(), gone.end());
    QList<int> kept;
    for (int row = 0; row < table.rowCount(); ++row) {
        if (!std::binary_search(gone.cbegin(), gone.cend(), row))
            kept.append(row);
    }
    arrangeTableRows(table, kept);
}

bool sortTableRows(QTableWidget &table, int column, const QString &progressText)
{
    const qsizetype rowCount = table.rowCount();
    LongWork work(table.window(), progressText, rowCount + 2 * (rowCount / stepLength + 1));
    KeyedRows keyed;
    const bool isSorted = takeKeys(keyed, table, column, work) && sortInSteps(keyed, work);
    if (isSorted) {
        QList<int> rows;
        rows.reserve(rowCount);
        for (const KeyedRow &row : keyed)
            rows.append(row.row);
        arrangeTableRows(table, rows);
        table.horizontalHeader()->setSortIndicatorShown(true);
        table.horizontalHeader()->setSortIndicator(column, Qt::AscendingOrder);
    }
    return isSorted;
}

} // namespace ortakit
