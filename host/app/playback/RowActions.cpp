#include "host/app/playback/RowActions.h"

#include "host/app/playback/PlaybackText.h"
#include "host/app/playback/WidgetEvents.h"
#include "host/app/playback/WidgetFinder.h"

#include <QAbstractItemView>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QModelIndex findRow(const QAbstractItemModel &model, const QString &text, const QModelIndex &parent)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex first = model.index(row, 0, parent);
        if (first.data().toString() == text)
            return first;
        if (const QModelIndex below = findRow(model, text, first); below.isValid())
            return below;
    }
    return {};
}

/// The row with this text in the first column, then in any other; or by number from 0, "#2".
QModelIndex findRow(const QAbstractItemView &view, const QString &text)
{
    const QAbstractItemModel *model = view.model();
    if (!model)
        return {};
    if (const int number = numberReference(text); number >= 0 && number < model->rowCount(view.rootIndex()))
        return model->index(number, 0, view.rootIndex());
    if (const QModelIndex index = findRow(*model, text, view.rootIndex()); index.isValid())
        return index;
    for (int column = 1; column < model->columnCount(view.rootIndex()); ++column)
        for (int row = 0; row < model->rowCount(view.rootIndex()); ++row)
            if (model->index(row, column, view.rootIndex()).data().toString() == text)
                return model->index(row, column, view.rootIndex());
    return {};
}

/// `cell`, or the first cell of its row behind it that a person could point at: a table may carry a column that it
/// gives no width.
QModelIndex pointableCell(const QAbstractItemView &view, const QModelIndex &cell)
{
    for (QModelIndex index = cell; index.isValid(); index = index.siblingAtColumn(index.column() + 1)) {
        if (!view.visualRect(index).isEmpty())
            return index;
    }
    return cell;
}

QString noRow(const QWidget &widget, const QString &row)
{
    return tr("%1 has no row \"%2\"").arg(nameOf(widget), row);
}

QString noList(const QWidget &widget)
{
    return tr("%1 is no list, table or tree").arg(nameOf(widget));
}

} // namespace

QString doubleClick(QWidget &widget, const QString &row)
{
    if (const QString reason = whyUnusable(widget); !reason.isEmpty())
        return reason;
    QWidget *target = &widget;
    QPoint at = widget.rect().center();
    if (!row.isEmpty()) {
        auto *view = qobject_cast<QAbstractItemView *>(&widget);
        const QModelIndex index = view ? findRow(*view, row) : QModelIndex();
        if (!index.isValid())
            return view ? noRow(widget, row) : noList(widget);
        view->scrollTo(index);
        target = view->viewport();
        at = view->visualRect(pointableCell(*view, index)).center();
    }
    const QPointer<QWidget> alive = target;
    clickAt(*target, at);
    if (alive)
        sendMouse(*target, QEvent::MouseButtonDblClick, at, Qt::NoModifier);
    if (alive)
        sendMouse(*target, QEvent::MouseButtonRelease, at, Qt::NoModifier);
    return {};
}

QString selectRows(QWidget &widget, const QStringList &rows)
{
    if (const QString reason = whyUnusable(widget); !reason.isEmpty())
        return reason;
    auto *view = qobject_cast<QAbstractItemView *>(&widget);
    if (!view)
        return noList(widget);
    const QPointer<QAbstractItemView> alive = view;
    view->setFocus();
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    for (const QString &row : rows) {
        if (!alive)
            return tr("the list went away while rows were selected");
        const QModelIndex index = findRow(*view, row);
        if (!index.isValid())
            return noRow(widget, row);
        view->scrollTo(index);
        // Left of the middle: the middle of a wide row may lie outside what is visible.
        const QRect seen = view->visualRect(pointableCell(*view, index)) & view->viewport()->rect();
        if (seen.isEmpty())
            return tr("row \"%1\" of %2 is not visible").arg(row, nameOf(widget));
        clickAt(*view->viewport(), seen.center(), modifiers);
        modifiers = Qt::ControlModifier;
    }
    return {};
}

QString checkRow(QWidget &widget, const QString &row, bool checked)
{
    if (const QString reason = whyUnusable(widget); !reason.isEmpty())
        return reason;
    auto *view = qobject_cast<QAbstractItemView *>(&widget);
    if (!view)
        return noList(widget);
    const QModelIndex index = findRow(*view, row);
    if (!index.isValid())
        return noRow(widget, row);
    constexpr Qt::ItemFlags needed = Qt::ItemIsUserCheckable | Qt::ItemIsEnabled;
    if ((index.flags() & needed) != needed)
        return tr("row \"%1\" of %2 cannot be checked").arg(row, nameOf(widget));
    view->model()->setData(index, checked ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
    return {};
}

QString setCell(QWidget &widget, int row, int column, const QString &text)
{
    if (const QString reason = whyUnusable(widget); !reason.isEmpty())
        return reason;
    auto *view = qobject_cast<QAbstractItemView *>(&widget);
    if (!view || !view->model())
        return noList(widget);
    const QModelIndex index = view->model()->index(row, column, view->rootIndex());
    if (!index.isValid())
        return tr("%1 has no cell %2, %3").arg(nameOf(widget)).arg(row).arg(column);
    if (!(index.flags() & Qt::ItemIsEditable) || view->editTriggers() == QAbstractItemView::NoEditTriggers)
        return tr("cell %1, %2 of %3 cannot be written to").arg(row).arg(column).arg(nameOf(widget));
    if (!view->model()->setData(index, text, Qt::EditRole))
        return tr("cell %1, %2 of %3 does not take \"%4\"").arg(row).arg(column).arg(nameOf(widget), text);
    return {};
}

} // namespace host::app
