#include "state/tables/TableReplacing.h"

#include "state/widgets/LongWork.h"

#include <QCoreApplication>
#include <QSignalBlocker>
#include <QTableWidget>

namespace ortakit {

QList<QTableWidgetItem *> itemsInColumn(const QTableWidget &table, const QList<int> &rows, int column)
{
    QList<QTableWidgetItem *> items;
    items.reserve(rows.size());
    for (const int row : rows) {
        if (QTableWidgetItem *item = table.item(row, column))
            items.append(item);
    }
    return items;
}

bool replaceTexts(QWidget *dialog, const QList<QTableWidgetItem *> &items,
                  const std::function<QString(const QString &)> &newText)
{
    LongWork work(dialog, QCoreApplication::translate("LispExtension", "Replacing..."), items.size());
    QList<std::pair<QTableWidgetItem *, QString>> changes;
    for (QTableWidgetItem *item : items) {
        if (!work.goesOn())
            return false;
        const QString before = item->text();
        QString after = newText(before);
        if (after != before)
            changes.append({item, std::move(after)});
    }
    if (changes.isEmpty())
        return true;
    QTableWidget *table = changes.first().first->tableWidget();
    // The view is told once, not for each cell.
    const QSignalBlocker noSignals(table->model());
    for (const auto &[item, text] : std::as_const(changes))
        item->setText(text);
    table->viewport()->update();
    return true;
}

} // namespace ortakit
