#pragma once

#include <QList>
#include <QObject>

class QAbstractButton;
class QDropEvent;
class QKeyEvent;
class QTableWidget;

namespace ortakit {

/// Where selected rows go.
enum class RowMove
{
    ToTop,
    Up, ///< each by one place; those that are at the top already stay there
    Down,
    ToBottom,
};

/// The rows 0 to `rowCount` - 1 in the order that moving those of `selected` (in any order) makes of them. Neither the
/// moved rows nor the others change their order among themselves, but where a moved one passes another one.
QList<int> movedRows(int rowCount, const QList<int> &selected, RowMove move);

/// The same where the rows of `selected` come together in front of the row `target`; `rowCount` for behind the last
/// one.
QList<int> rowsMovedTo(int rowCount, const QList<int> &selected, int target);

} // namespace ortakit

/// Lets the user order the rows of a table: by buttons, by Alt with the Up, Down, Home and End keys, and by dragging
/// the selected rows to another place in the table. Rows that were moved stay selected and in view.
///
/// The table does not sort by itself; it selects by rows. An item must not have the flag Qt::ItemIsDropEnabled, or a
/// drag could seem to end in it.
class RowMover : public QObject
{
    Q_OBJECT

public:
    /// All four must be there, and must outlive the table or go with it.
    struct Buttons
    {
        QAbstractButton *toTop;
        QAbstractButton *up;
        QAbstractButton *down;
        QAbstractButton *toBottom;
    };

    /// Belongs to `table`. Enables the buttons as the selection allows.
    RowMover(QTableWidget *table, const Buttons &buttons);

    /// Makes the rows those that were number rows[0], rows[1] and so on; the others go, and with them their items. No
    /// number comes twice. What is selected is scrolled to.
    void arrange(const QList<int> &rows);

    /// Keys and drops of the table. A drop never takes cells over, as the table's own would.
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// The rows have another order now, or fewer of them are left: by the user, or by arrange(), whether or not
    /// anything changed.
    void arranged();

private:
    void move(ortakit::RowMove move);
    bool canMove(ortakit::RowMove move) const;
    void enableButtons();
    bool takeKey(const QKeyEvent &event);
    void drop(QDropEvent &event);

    QTableWidget *m_table;
    /// In the order of RowMove.
    QList<QAbstractButton *> m_buttons;
};
