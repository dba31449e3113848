#pragma once

#include <QList>
#include <QStringList>

class QTableWidget;

namespace ortakit {

/// Gives `table` one column for each part of `headers` between ";", which is a translated text such as
/// "Name;Description", headed by it. The rows go.
void setTableHeaders(QTableWidget &table, const QString &headers);

/// Replaces the rows of `table`; what a row has beyond the table's columns is left out, what it lacks is empty text.
/// The selection goes with the old rows. The table signals only that its selection changed, once, when it had one.
/// Takes time in proportion to the cells.
void setTableRows(QTableWidget &table, const QList<QStringList> &rows);

} // namespace ortakit
