#include "host/dcl/widgets/TabbedItems.h"

#include "host/dcl/widgets/TileMetrics.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace host::dcl {

using namespace Qt::StringLiterals;

namespace {

constexpr int usualTab = 8;
constexpr int textMargin = 3;

} // namespace

TabbedItems::TabbedItems(const Tile &tile, const TileMetrics &metrics, QObject *parent)
    : QStyledItemDelegate(parent), m_usual(std::max(1, metrics.width(usualTab))), m_isCut(tile.flag(u"tab_truncate"_s))
{
    for (const QString &place : tile.text(u"tabs"_s).split(u' ', Qt::SkipEmptyParts))
        m_places.push_back(metrics.width(place.toDouble()));
    std::sort(m_places.begin(), m_places.end());
}

int TabbedItems::nextPlace(int x) const
{
    const auto place = std::upper_bound(m_places.begin(), m_places.end(), x);
    return place != m_places.end() ? *place : (x / m_usual + 1) * m_usual;
}

void TabbedItems::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem item(option);
    initStyleOption(&item, index);
    if (!item.text.contains(u'\t'))
        return QStyledItemDelegate::paint(painter, option, index);
    const QStringList columns = std::exchange(item.text, QString()).split(u'\t');
    const QStyle *style = item.widget ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
    const bool isSelected = item.state & QStyle::State_Selected;
    painter->save();
    painter->setClipRect(item.rect);
    painter->setFont(item.font);
    painter->setPen(item.palette.color(item.widget && !item.widget->isEnabled() ? QPalette::Disabled : QPalette::Active,
                                       isSelected ? QPalette::HighlightedText : QPalette::Text));
    int x = 0;
    for (const QString &column : columns) {
        const int end = std::min(x + item.fontMetrics.horizontalAdvance(column), TileMetrics::widest);
        const int next = nextPlace(m_isCut ? x : end);
        const int room = m_isCut && &column != &columns.constLast() ? next - x : TileMetrics::widest;
        const QRect place(item.rect.left() + textMargin + x, item.rect.top(), room, item.rect.height());
        painter->drawText(place, Qt::AlignVCenter | Qt::TextSingleLine, column);
        x = next;
    }
    painter->restore();
}

} // namespace host::dcl
