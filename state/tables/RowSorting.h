#pragma once

#include <QStringList>

namespace ortakit {

/// Sorts rows whose fields are divided by `separator` by the text of field `column` (from 0): without regard to case,
/// in the order of the user's language. Rows with equal fields keep their order; a missing field counts as empty.
void sortRows(QStringList &rows, QChar separator, int column, Qt::SortOrder order);

/// As above by the whole number in field `column`; what is none counts as 0.
void sortRowsByNumber(QStringList &rows, QChar separator, int column, Qt::SortOrder order);

/// Sorts names without regard to case, in the order of the user's language and with numbers in them by their values:
/// DOOR2 stands before DOOR10.
void sortNaturally(QStringList &names);

} // namespace ortakit
