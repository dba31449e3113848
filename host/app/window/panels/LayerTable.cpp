#include "host/app/window/panels/LayerTable.h"

#include "host/app/window/panels/LayerRows.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace host::app {

namespace {

bool isColumn(const QModelIndex &index, LayerColumn column)
{
    return index.isValid() && index.column() == int(column);
}

/// Its values are chosen, with one click, and not written.
bool isChosenFrom(const QModelIndex &index)
{
    return isColumn(index, LayerColumn::Colour) || isColumn(index, LayerColumn::Linetype) ||
           isColumn(index, LayerColumn::Lineweight);
}

} // namespace

LayerTable::LayerTable(QWidget *parent) : QTableView(parent)
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(EditKeyPressed);
    setSortingEnabled(true);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setSectionsMovable(true);
    horizontalHeader()->setHighlightSections(false);
}

void LayerTable::editName(const QModelIndex &index)
{
    const QModelIndex name = index.siblingAtColumn(int(LayerColumn::Name));
    setCurrentIndex(name);
    scrollTo(name);
    edit(name);
}

bool LayerTable::event(QEvent *event)
{
    // A menu has F2 too.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent *>(event)->key() == Qt::Key_F2)
        event->accept();
    return QTableView::event(event);
}

void LayerTable::keyPressEvent(QKeyEvent *event)
{
    const QModelIndex at = currentIndex();
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Delete)
        emit removalWanted();
    else if (event->key() == Qt::Key_F2 && at.isValid())
        editName(at);
    else if (isEnter && isColumn(at, LayerColumn::Name))
        emit currentWanted(at);
    else if (isEnter && at.isValid() && !at.data(Qt::CheckStateRole).isValid())
        edit(at);
    else
        QTableView::keyPressEvent(event);
}

void LayerTable::mouseReleaseEvent(QMouseEvent *event)
{
    const QModelIndex at = indexAt(event->position().toPoint());
    const bool isPlain = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier;
    const bool isClick = isPlain && at.isValid() && at == currentIndex() && state() != DragSelectingState;
    QTableView::mouseReleaseEvent(event);
    if (isClick && isChosenFrom(at))
        edit(at);
}

void LayerTable::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QModelIndex at = indexAt(event->position().toPoint());
    if (isColumn(at, LayerColumn::Name))
        emit currentWanted(at);
    else if (isColumn(at, LayerColumn::Transparency) || isColumn(at, LayerColumn::Description))
        edit(at);
    else
        mousePressEvent(event);
}

QItemSelectionModel::SelectionFlags LayerTable::selectionCommand(const QModelIndex &index, const QEvent *event) const
{
    const bool isMouse =
        event && (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick ||
                  event->type() == QEvent::MouseButtonRelease);
    if (isMouse && index.isValid() && selectionModel()->isSelected(index)) {
        const auto *mouse = static_cast<const QMouseEvent *>(event);
        const bool isOfValue = !isColumn(index, LayerColumn::Name) || mouse->button() == Qt::RightButton;
        if (isOfValue && mouse->modifiers() == Qt::NoModifier)
            return QItemSelectionModel::NoUpdate;
    }
    return QTableView::selectionCommand(index, event);
}

} // namespace host::app
