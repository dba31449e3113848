#include "host/dcl/widgets/DialogBuilder.h"

#include "host/dcl/widgets/ButtonTiles.h"
#include "host/dcl/widgets/ClusterControl.h"
#include "host/dcl/widgets/DialogWindow.h"
#include "host/dcl/widgets/FieldTiles.h"
#include "host/dcl/widgets/ImageControl.h"
#include "host/dcl/widgets/ListTiles.h"
#include "host/dcl/widgets/TileCaption.h"
#include "host/dcl/widgets/TileMetrics.h"

#include <QBoxLayout>
#include <QScopedValueRollback>

#include <utility>

namespace host::dcl {

using namespace Qt::StringLiterals;

namespace {

constexpr int roomBetweenTiles = 6;
constexpr int roomInBox = 8;

QBoxLayout *layoutFor(QWidget &widget, TileKind kind)
{
    auto *layout = new QBoxLayout(isRow(kind) ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, &widget);
    const int margin = isBoxed(kind) ? roomInBox : 0;
    layout->setContentsMargins(margin, margin, margin, margin);
    const bool isText = kind == TileKind::Concatenation || kind == TileKind::Paragraph;
    layout->setSpacing(isText ? 0 : roomBetweenTiles);
    return layout;
}

/// Own word, else what the cluster says for its children.
QString alignmentWord(const Tile &tile, const Tile &cluster)
{
    return tile.has(u"alignment"_s) ? tile.word(u"alignment"_s) : cluster.word(u"children_alignment"_s);
}

Qt::Alignment acrossAlignment(const QString &word)
{
    if (word == "right"_L1)
        return Qt::AlignRight;
    return word == "centered"_L1 ? Qt::AlignHCenter : Qt::AlignLeft;
}

Qt::Alignment uprightAlignment(const QString &word)
{
    if (word == "top"_L1)
        return Qt::AlignTop;
    return word == "bottom"_L1 ? Qt::AlignBottom : Qt::AlignVCenter;
}

void fix(QWidget &widget, bool isWidthFixed, bool isHeightFixed)
{
    QSizePolicy policy = widget.sizePolicy();
    if (isWidthFixed)
        policy.setHorizontalPolicy(QSizePolicy::Fixed);
    if (isHeightFixed)
        policy.setVerticalPolicy(QSizePolicy::Fixed);
    widget.setSizePolicy(policy);
}

} // namespace

void DialogBuilder::fill(QWidget &contents, const Tile &dialog)
{
    fillCluster(*layoutFor(contents, dialog.kind), dialog);
}

void DialogBuilder::fillCluster(QBoxLayout &layout, const Tile &cluster)
{
    for (const Tile &child : cluster.children)
        addChild(layout, cluster, child);
    // What is left over in a column goes below its tiles, and in a line of text behind it, unless one of them takes it.
    const Qt::Orientation along = isRow(cluster.kind) ? Qt::Horizontal : Qt::Vertical;
    const bool isPacked = !isRow(cluster.kind) || cluster.kind == TileKind::Concatenation;
    if (isPacked && !(layout.expandingDirections() & along))
        layout.addStretch();
}

void DialogBuilder::addChild(QBoxLayout &layout, const Tile &cluster, const Tile &child)
{
    if (child.kind == TileKind::Spacer) {
        layout.addWidget(spacer(child, cluster));
        return;
    }
    TileControl *const made = control(child, cluster);
    m_window.add(*made, child.kind == TileKind::RadioButton ? m_radioCluster : nullptr);
    if (child.kind == TileKind::RadioButton && m_radioCluster)
        m_radioCluster->addRadio(*made);
    QWidget &widget = *made->widget();
    const bool isWidthFixed = child.flag(u"fixed_width"_s, cluster.flag(u"children_fixed_width"_s));
    const bool isHeightFixed = child.flag(u"fixed_height"_s, cluster.flag(u"children_fixed_height"_s));
    fix(widget, isWidthFixed, isHeightFixed);
    const QString word = alignmentWord(child, cluster);
    // Across the direction of its cluster a tile fills the room that there is, unless its size is fixed; what is but
    // a line high has no use for more height.
    Qt::Alignment alignment;
    if (isRow(cluster.kind) && widget.sizePolicy().verticalPolicy() == QSizePolicy::Fixed)
        alignment = uprightAlignment(word);
    else if (!isRow(cluster.kind) && isWidthFixed)
        alignment = acrossAlignment(word);
    layout.addWidget(&widget, 0, alignment);
}

TileControl *DialogBuilder::control(const Tile &tile, const Tile &cluster)
{
    switch (tile.kind) {
    case TileKind::Button:
        return new ButtonControl(tile, m_metrics);
    case TileKind::Toggle:
    case TileKind::RadioButton:
        return new CheckControl(tile, m_metrics);
    case TileKind::EditBox:
        return new EditControl(tile, m_metrics);
    case TileKind::ListBox:
        return new ListControl(tile, m_metrics);
    case TileKind::PopupList:
        return new PopupControl(tile, m_metrics);
    case TileKind::Slider:
        return new SliderControl(tile, m_metrics);
    case TileKind::Image:
    case TileKind::ImageButton:
        return new ImageControl(tile, m_metrics);
    case TileKind::Text:
    case TileKind::TextPart:
        return new TextControl(tile, m_metrics, acrossAlignment(alignmentWord(tile, cluster)));
    default:
        return clusterControl(tile);
    }
}

TileControl *DialogBuilder::clusterControl(const Tile &tile)
{
    auto *made = new ClusterControl(tile);
    askSize(*made->widget(), tile, m_metrics);
    const QScopedValueRollback inner(m_radioCluster, isRadioCluster(tile.kind) ? made : m_radioCluster);
    fillCluster(*layoutFor(*made->widget(), tile.kind), tile);
    made->applyInitialValue();
    return made;
}

/// Without a size of its own it keeps a unit between its neighbours.
QWidget *DialogBuilder::spacer(const Tile &tile, const Tile &cluster) const
{
    auto *widget = new QWidget;
    const bool isInRow = isRow(cluster.kind);
    const bool isSized = tile.has(u"width"_s) || tile.has(u"height"_s);
    const QSize usual = isInRow ? QSize(m_metrics.width(1), 0) : QSize(0, m_metrics.height(0.5));
    widget->setMinimumSize(isSized ? m_metrics.asked(tile) : usual);
    const bool isWidthFixed = tile.flag(u"fixed_width"_s) || !isInRow;
    const bool isHeightFixed = tile.flag(u"fixed_height"_s) || isInRow;
    widget->setSizePolicy(isWidthFixed ? QSizePolicy::Fixed : QSizePolicy::MinimumExpanding,
                          isHeightFixed ? QSizePolicy::Fixed : QSizePolicy::MinimumExpanding);
    return widget;
}

} // namespace host::dcl
