#include "state/tables/TableSelection.h"

#include <QHash>
#include <QItemSelectionModel>
#include <QTableWidget>

#include <algorithm>
#include <memory>

namespace ortakit {

namespace {

using ItemsByText = QHash<QString, QList<QTableWidgetItem *>>;

// Column by column, as the table's own search goes.
ItemsByText itemsByFoldedText(const QTableWidget &table)
{
    ItemsByText items;
    for (int column = 0; column < table.columnCount(); ++column) {
        for (int row = 0; row < table.rowCount(); ++row) {
            if (QTableWidgetItem *item = table.item(row, column))
                items[item->text().toCaseFolded()].append(item);
        }
    }
    return items;
}

QList<QTableWidgetItem *> itemsWithTexts(const QTableWidget &table, const QString &texts)
{
    ItemsByText items = itemsByFoldedText(table);
    QList<QTableWidgetItem *> found;
    // Taken, not looked up: a text that comes twice selects no more than once.
    for (const QString &part : texts.split(u'^'))
        found.append(items.take(part.toCaseFolded()));
    return found;
}

QItemSelection selectionOf(const QTableWidget &table, const QList<QTableWidgetItem *> &items)
{
    QItemSelection selection;
    const bool wholeRows = table.selectionBehavior() == QAbstractItemView::SelectRows;
    QHash<int, QList<int>> rowsByColumn;
    for (const QTableWidgetItem *item : items)
        rowsByColumn[wholeRows ? 0 : item->column()].append(item->row());
    for (auto column = rowsByColumn.cbegin(); column != rowsByColumn.cend(); ++column) {
        const int last = wholeRows ? table.columnCount() - 1 : column.key();
        selection.append(rangesOfRows(table, column.key(), last, column.value()));
    }
    return selection;
}

/// Takes an old selection of many ranges away before it makes the new one; a listener hears of both.
class QuickSelectionModel final : public QItemSelectionModel
{
public:
    using QItemSelectionModel::QItemSelectionModel;
    using QItemSelectionModel::select;

    void select(const QItemSelection &selection, SelectionFlags command) override
    {
        // Whichever of the two has many ranges, Qt would cut the other one into as many pieces.
        if (command.testFlag(Clear) && std::max(this->selection().size(), selection.size()) > fewRanges)
            QItemSelectionModel::select(QItemSelection(), Clear);
        QItemSelectionModel::select(selection, command);
    }

private:
    static constexpr qsizetype fewRanges = 100;
};

int itemCount(const QTableWidget &table, int row, int firstColumn, int lastColumn)
{
    int count = 0;
    for (int column = firstColumn; column <= lastColumn; ++column)
        count += table.item(row, column) ? 1 : 0;
    return count;
}

} // namespace

QItemSelection rangesOfRows(const QTableWidget &table, int firstColumn, int lastColumn, QList<int> rows)
{
    const QAbstractItemModel *model = table.model();
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    QItemSelection selection;
    for (qsizetype begin = 0; begin < rows.size();) {
        qsizetype end = begin + 1;
        while (end < rows.size() && rows[end] == rows[end - 1] + 1)
            ++end;
        selection.append(
            QItemSelectionRange(model->index(rows[begin], firstColumn), model->index(rows[end - 1], lastColumn)));
        begin = end;
    }
    return selection;
}

void makeNewSelectionsQuick(QTableWidget &table)
{
    const std::unique_ptr<QItemSelectionModel> old(table.selectionModel());
    auto *model = new QuickSelectionModel(table.model(), &table);
    table.setSelectionModel(model);
    QObject::connect(model, &QItemSelectionModel::selectionChanged, &table, &QTableWidget::itemSelectionChanged);
}

QList<int> rowsWithSelection(const QTableWidget &table)
{
    QList<int> rows;
    for (const QItemSelectionRange &range : table.selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(row);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

QList<int> wholeSelectedRows(const QTableWidget &table)
{
    const QItemSelection selection = table.selectionModel()->selection();
    std::vector<int> selectedItems(std::size_t(table.rowCount()), 0);
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            selectedItems[std::size_t(row)] += itemCount(table, row, range.left(), range.right());
    }
    QList<int> rows;
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            int &found = selectedItems[std::size_t(row)];
            if (found > 0 && found == itemCount(table, row, 0, table.columnCount() - 1))
                rows.append(row);
            found = 0; // a row of several ranges is reported once
        }
    }
    return rows;
}

qsizetype selectedCellCount(const QTableWidget &table)
{
    qsizetype count = 0;
    for (const QItemSelectionRange &range : table.selectionModel()->selection())
        count += qsizetype(range.width()) * range.height();
    return count;
}

QString selectedRowTexts(const QTableWidget &table)
{
    QString texts;
    for (const int row : rowsWithSelection(table))
        texts += table.model()->index(row, 0).data(Qt::DisplayRole).toString() + u'^';
    return texts;
}

void selectByTexts(QTableWidget &table, const QString &texts)
{
    const QList<QTableWidgetItem *> items = itemsWithTexts(table, texts);
    table.selectionModel()->select(selectionOf(table, items), QItemSelectionModel::ClearAndSelect);
    for (const QTableWidgetItem *item : items)
        table.scrollToItem(item);
}

void selectRows(QTableWidget &table, const QList<int> &rows)
{
    const QItemSelection selection = rangesOfRows(table, 0, table.columnCount() - 1, rows);
    table.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

qsizetype selectedItemCount(const QTableWidget &table)
{
    qsizetype count = 0;
    for (const QItemSelectionRange &range : table.selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            count += itemCount(table, row, range.left(), range.right());
    }
    return count;
}

} // namespace ortakit
