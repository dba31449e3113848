#include "state/tables/RowMover.h"

#include "state/tables/TableOrder.h"
#include "state/tables/TableSelection.h"

#include <QAbstractButton>
#include <QDropEvent>
#include <QKeyEvent>
#include <QTableWidget>

#include <algorithm>
#include <numeric>
#include <utility>

using ortakit::RowMove;

namespace ortakit {

namespace {

QList<int> rowsInOrder(int rowCount)
{
    QList<int> rows(rowCount);
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

QList<bool> marks(int rowCount, const QList<int> &selected)
{
    QList<bool> isSelected(rowCount, false);
    for (const int row : selected)
        isSelected[row] = true;
    return isSelected;
}

/// Each selected row in `order` changes places with the one before it, unless that one is selected too.
void moveForward(QList<int> &order, const QList<bool> &isSelected)
{
    for (qsizetype place = 1; place < order.size(); ++place) {
        if (isSelected[order[place]] && !isSelected[order[place - 1]])
            std::swap(order[place], order[place - 1]);
    }
}

} // namespace

QList<int> movedRows(int rowCount, const QList<int> &selected, RowMove move)
{
    if (move == RowMove::ToTop)
        return rowsMovedTo(rowCount, selected, 0);
    if (move == RowMove::ToBottom)
        return rowsMovedTo(rowCount, selected, rowCount);
    QList<int> order = rowsInOrder(rowCount);
    const bool isDown = move == RowMove::Down;
    if (isDown)
        std::reverse(order.begin(), order.end());
    moveForward(order, marks(rowCount, selected));
    if (isDown)
        std::reverse(order.begin(), order.end());
    return order;
}

QList<int> rowsMovedTo(int rowCount, const QList<int> &selected, int target)
{
    QList<int> order = rowsInOrder(rowCount);
    const QList<bool> isSelected = marks(rowCount, selected);
    const auto border = order.begin() + std::clamp(target, 0, rowCount);
    std::stable_partition(order.begin(), border, [&](int row) { return !isSelected[row]; });
    std::stable_partition(border, order.end(), [&](int row) { return isSelected[row]; });
    return order;
}

} // namespace ortakit

RowMover::RowMover(QTableWidget *table, const Buttons &buttons)
    : QObject(table), m_table(table), m_buttons{buttons.toTop, buttons.up, buttons.down, buttons.toBottom}
{
    table->setDragDropMode(QAbstractItemView::InternalMove);
    table->setDragDropOverwriteMode(false);
    table->installEventFilter(this);
    table->viewport()->installEventFilter(this);
    for (qsizetype button = 0; button < m_buttons.size(); ++button)
        connect(m_buttons[button], &QAbstractButton::clicked, this, [this, button] { move(RowMove(button)); });
    connect(table, &QTableWidget::itemSelectionChanged, this, &RowMover::enableButtons);
    enableButtons();
}

void RowMover::arrange(const QList<int> &rows)
{
    ortakit::arrangeTableRows(*m_table, rows);
    const QList<int> selected = ortakit::rowsWithSelection(*m_table);
    if (!selected.isEmpty()) {
        // The far end first: where both do not fit into the window, the near one counts.
        m_table->scrollTo(m_table->model()->index(selected.last(), 0));
        m_table->scrollTo(m_table->model()->index(selected.first(), 0));
    }
    enableButtons();
    emit arranged();
}

void RowMover::move(RowMove move)
{
    if (canMove(move))
        arrange(ortakit::movedRows(m_table->rowCount(), ortakit::rowsWithSelection(*m_table), move));
}

/// Whether any row would change its place.
bool RowMover::canMove(RowMove move) const
{
    const QList<int> selected = ortakit::rowsWithSelection(*m_table);
    if (selected.isEmpty())
        return false;
    const bool areTogether = selected.last() - selected.first() + 1 == selected.size();
    const bool isUpwards = move == RowMove::ToTop || move == RowMove::Up;
    return !areTogether || (isUpwards ? selected.first() > 0 : selected.last() < m_table->rowCount() - 1);
}

void RowMover::enableButtons()
{
    for (qsizetype button = 0; button < m_buttons.size(); ++button) {
        const bool can = canMove(RowMove(button));
        // A button that goes grey under the keyboard would hand the focus to whatever comes next.
        if (!can && m_buttons[button]->hasFocus())
            m_table->setFocus();
        m_buttons[button]->setEnabled(can);
    }
}

bool RowMover::eventFilter(QObject *watched, QEvent *event)
{
    // The kind comes first: events come from a table that is half destroyed, too.
    if (event->type() == QEvent::KeyPress && watched == m_table && takeKey(*static_cast<QKeyEvent *>(event)))
        return true;
    if (event->type() == QEvent::Drop && watched == m_table->viewport()) {
        drop(*static_cast<QDropEvent *>(event));
        return true;
    }
    return QObject::eventFilter(watched, event);
}

bool RowMover::takeKey(const QKeyEvent &event)
{
    static constexpr std::pair<Qt::Key, RowMove> keys[] = {
        {Qt::Key_Home, RowMove::ToTop},
        {Qt::Key_Up, RowMove::Up},
        {Qt::Key_Down, RowMove::Down},
        {Qt::Key_End, RowMove::ToBottom},
    };
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::AltModifier)
        return false;
    for (const auto &[key, rowMove] : keys) {
        if (event.key() == key) {
            move(rowMove);
            return true;
        }
    }
    return false;
}

/// Qt's own would put the rows where they are not wanted: a table's drop overwrites cells, and rows that are apart come
/// in the order in which they were selected. That the drag began in this table is what InternalMove sees to.
void RowMover::drop(QDropEvent &event)
{
    const int y = event.position().toPoint().y();
    int target = m_table->rowAt(y);
    if (target < 0)
        target = m_table->rowCount();
    else if (y > m_table->rowViewportPosition(target) + m_table->rowHeight(target) / 2)
        ++target;
    arrange(ortakit::rowsMovedTo(m_table->rowCount(), ortakit::rowsWithSelection(*m_table), target));
    // After a move the table would take the dragged rows away, and "copied" is no answer to an internal move.
    event.setDropAction(Qt::IgnoreAction);
    event.accept();
}
