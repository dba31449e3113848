#pragma once

#include "host/dcl/Tile.h"

class QBoxLayout;
class QWidget;

namespace host::dcl {

class ClusterControl;
class DialogWindow;
class TileControl;
class TileMetrics;

/// Makes the widgets of a dialog from its tiles.
class DialogBuilder
{
public:
    DialogBuilder(DialogWindow &window, const TileMetrics &metrics) : m_window(window), m_metrics(metrics) {}

    /// Fills the widget with the children of the dialog.
    void fill(QWidget &contents, const Tile &dialog);

private:
    void fillCluster(QBoxLayout &layout, const Tile &cluster);
    void addChild(QBoxLayout &layout, const Tile &cluster, const Tile &child);
    TileControl *control(const Tile &tile, const Tile &cluster);
    TileControl *clusterControl(const Tile &tile);
    QWidget *spacer(const Tile &tile, const Tile &cluster) const;

    DialogWindow &m_window;
    const TileMetrics &m_metrics;
    ClusterControl *m_radioCluster = nullptr; ///< innermost of those being filled
};

} // namespace host::dcl
