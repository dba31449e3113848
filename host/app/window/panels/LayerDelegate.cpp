#include "host/app/window/panels/LayerDelegate.h"

#include "host/app/window/panels/LayerRows.h"
#include "host/commands/common/PropertyValues.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QPainter>

namespace host::app {

namespace {

LayerColumn columnOfCell(const QModelIndex &index)
{
    return LayerColumn(index.column());
}

QStringList weightChoices()
{
    QStringList texts = {weightText(-3)};
    for (const int weight : kernel::lineweights())
        texts.append(weightText(weight));
    return texts;
}

bool isTurnedOverBy(const QEvent &event)
{
    if (event.type() == QEvent::MouseButtonRelease)
        return static_cast<const QMouseEvent &>(event).button() == Qt::LeftButton;
    if (event.type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent &>(event).key();
    return key == Qt::Key_Space || key == Qt::Key_Select;
}

} // namespace

StateMark markOf(LayerColumn column, bool state)
{
    switch (column) {
    case LayerColumn::Freeze:
        return state ? StateMark::Thawed : StateMark::Frozen;
    case LayerColumn::Lock:
        return state ? StateMark::Unlocked : StateMark::Locked;
    case LayerColumn::Plot:
        return state ? StateMark::Plots : StateMark::NoPlot;
    case LayerColumn::Viewport:
        return state ? StateMark::ThawedInViewport : StateMark::FrozenInViewport;
    default:
        return state ? StateMark::On : StateMark::Off;
    }
}

LayerDelegate::LayerDelegate(std::function<QStringList()> linetypes, QObject *parent)
    : BoxDelegate(parent), m_linetypes(std::move(linetypes))
{
}

void LayerDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QVariant state = index.data(Qt::CheckStateRole);
    if (!state.isValid())
        return BoxDelegate::paint(painter, option, index);
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    cell.text.clear();
    cell.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    const double side = std::min(option.rect.height(), option.rect.width()) - 4;
    QRectF square(0, 0, side, side);
    square.moveCenter(QRectF(option.rect).center());
    const bool isSelected = (option.state & QStyle::State_Selected) != 0;
    paintState(*painter, square, markOf(columnOfCell(index), state.toInt() == int(Qt::Checked)),
               option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
}

QSize LayerDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const int height = option.fontMetrics.height() + 6;
    if (index.data(Qt::CheckStateRole).isValid())
        return {height + 4, height};
    return {BoxDelegate::sizeHint(option, index).width(), height};
}

QWidget *LayerDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const
{
    const LayerColumn column = columnOfCell(index);
    if (layerColumn(column).isState)
        return nullptr;
    if (column == LayerColumn::Colour) {
        emit const_cast<LayerDelegate *>(this)->colourWanted(index);
        return nullptr;
    }
    if (column != LayerColumn::Linetype && column != LayerColumn::Lineweight)
        return BoxDelegate::createEditor(parent, option, index);
    auto *box = new QComboBox(parent);
    box->addItems(column == LayerColumn::Linetype ? m_linetypes() : weightChoices());
    box->setAccessibleName(layersText(layerColumn(column).title));
    return asEditor(box);
}

bool LayerDelegate::editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                                const QModelIndex &index)
{
    const QVariant state = index.data(Qt::CheckStateRole);
    if (!state.isValid() || !(index.flags() & Qt::ItemIsUserCheckable))
        return BoxDelegate::editorEvent(event, model, option, index);
    if (!isTurnedOverBy(*event))
        return false;
    const bool isOn = state.toInt() == int(Qt::Checked);
    return model->setData(index, isOn ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

} // namespace host::app
