#pragma once

#include "tests/dialogs/DialogTest.h"

namespace ortakit::test {

/// The texts of the first column in selected rows from top to bottom, with blanks between.
inline QString selectedTexts(const QTableWidget &table)
{
    QStringList texts;
    for (int row = 0; row < table.rowCount(); ++row) {
        if (table.item(row, 0)->isSelected())
            texts.append(table.item(row, 0)->text());
    }
    return texts.join(u' ');
}

/// Selects the rows of these names, with blanks between, and no others, by what they are and not by what they show.
inline void choose(QTableWidget &table, const QString &names)
{
    const QStringList wanted = names.split(u' ');
    for (int row = 0; row < table.rowCount(); ++row)
        table.item(row, 0)->setSelected(wanted.contains(table.item(row, 0)->data(Qt::UserRole).toString()));
}

} // namespace ortakit::test
