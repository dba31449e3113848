#include "state/TableSorting.h"

#include "state/LongWork.h"
#include "state/TableSelection.h"

#include <QCollator>
#include <QSignalBlocker>
#include <QTableWidget>

#include <algorithm>

namespace ortakit {

namespace {

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

void moveItems(QTableWidget &table, const KeyedRows &rows)
{
    const int columnCount = table.columnCount();
    std::vector<QTableWidgetItem *> items;
    items.reserve(rows.size() * size_t(columnCount));
    // A view that hears of each cell looks for its place each time.
    const QSignalBlocker noSignals(table.model());
    for (const KeyedRow &row : rows) {
        for (int column = 0; column < columnCount; ++column)
            items.push_back(table.takeItem(row.row, column));
    }
    auto item = items.cbegin();
    for (int row = 0; row < table.rowCount(); ++row) {
        for (int column = 0; column < columnCount; ++column)
            table.setItem(row, column, *item++);
    }
}

} // namespace

bool sortTable(QTableWidget &table, int column, const QString &progressText)
{
    const qsizetype rowCount = table.rowCount();
    LongWork work(table.window(), progressText, rowCount + 2 * (rowCount / stepLength + 1));
    KeyedRows rows;
    if (!takeKeys(rows, table, column, work) || !sortInSteps(rows, work))
        return false;
    moveItems(table, rows);
    std::vector<int> newRows(rows.size());
    for (size_t row = 0; row < rows.size(); ++row)
        newRows[size_t(rows[row].row)] = int(row);
    moveSelection(table, newRows);
    table.viewport()->update();
    return true;
}

} // namespace ortakit
