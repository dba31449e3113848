#pragma once

#include "host/dcl/Tile.h"

#include <QStyledItemDelegate>

#include <vector>

namespace host::dcl {

class TileMetrics;

/// Draws items of lists in columns: a tab in an item goes to the next place of the tile's "tabs". With "tab_truncate"
/// what reaches into the next column is cut.
class TabbedItems final : public QStyledItemDelegate
{
public:
    TabbedItems(const Tile &tile, const TileMetrics &metrics, QObject *parent);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    /// Where the column begins: the first place behind `x`.
    int nextPlace(int x) const;

    std::vector<int> m_places; ///< in pixels from the left, ascending
    int m_usual;               ///< the distance of places behind those
    bool m_isCut;
};

} // namespace host::dcl
