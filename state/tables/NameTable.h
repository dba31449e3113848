#pragma once

#include <QStringList>

class QTableWidget;

/// The names of blocks or of files in a table with the one column "Name", kept in the order that clicks on its header
/// ask for.
///
/// A name of digits only is in its cell as a whole number: the block 007 shows as 7, is written to a state file as 7
/// and is found by 7 and by 007. What does not fit into 32 bits stays text and is what it is. So two names can show the
/// same text, which a state file cannot tell apart: indistinctName() says when one of them is chosen.
class NameTable
{
public:
    /// Sets `table` up for names, without any. It is not owned.
    explicit NameTable(QTableWidget *table);

    /// Fills the table. Selects nothing. Numbers stand before texts when the order is ascending, as it is at first.
    void setNames(const QStringList &names);
    /// Fills the table again for a click on the header of `column`: by this column, in the direction opposite to the
    /// one before, with the same names selected and the same one shown.
    void clickHeader(int column);
    /// Selects the names of a state file's value ("7^DOOR^") and nothing else, and scrolls to each; takes time in
    /// proportion to the rows. A text that several names show selects all of them.
    void select(const QString &texts);

    bool hasSelection() const;
    /// From top to bottom.
    QStringList selectedNames() const;
    /// The name to show a preview of: the one that the user came to last while it is selected, otherwise the topmost
    /// selected one; empty when none is.
    QString shownName() const;
    /// A selected name whose text stands for another name in a state file, as 007 does beside 7; empty when there is
    /// none.
    QString indistinctName() const;

    /// The text that `name` shows.
    static QString shownText(const QString &name);

private:
    void fill();
    QString nameAt(int row) const;
    void makeCurrent(int row);

    QTableWidget *m_table;
    QStringList m_names;
    int m_sortColumn = 0;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};
