#pragma once

#include <QList>
#include <QString>

#include <functional>

class QTableWidget;
class QTableWidgetItem;
class QWidget;

namespace ortakit {

/// The items that `table` has in `column` of `rows`, in their order.
QList<QTableWidgetItem *> itemsInColumn(const QTableWidget &table, const QList<int> &rows, int column);

/// Gives each of `items`, cells of one table, the text that `newText` makes of its text. When that takes over half a
/// second, a progress bar comes up over `dialog`; false, and no text has changed, when it is cancelled. The table
/// signals nothing.
bool replaceTexts(QWidget *dialog, const QList<QTableWidgetItem *> &items,
                  const std::function<QString(const QString &)> &newText);

} // namespace ortakit
