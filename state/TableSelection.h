#pragma once

#include <QString>

class QTableWidget;

namespace ortakit {

/// The text of column 0 of every row with a selected cell, from top to bottom, each followed by "^".
QString selectedRowTexts(const QTableWidget &table);

/// Selects the items whose text is, in any case, one of the parts of `texts` between "^", and nothing else, and
/// scrolls to each, in the order of the parts. An empty part, such as the one behind a closing "^", stands for the
/// items without text. A table that selects by rows selects the items' rows.
void selectByTexts(QTableWidget &table, const QString &texts);

} // namespace ortakit
