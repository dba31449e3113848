#pragma once

#include "host/dcl/widgets/TileControl.h"

#include <QButtonGroup>

namespace host::dcl {

/// A row or column. The value of a radio cluster is the key of the button that is on.
class ClusterControl final : public TileControl
{
public:
    explicit ClusterControl(const Tile &tile);
    QString value() const override;
    void setValue(const QString &value) override;
    /// A radio button within becomes one of the group, of which at most one is on.
    void addRadio(TileControl &radio);
    /// After all are there: the button that the cluster's value names is on.
    void applyInitialValue();

private:
    ClusterControl(const Tile &tile, QWidget *widget);

    QButtonGroup m_group;
};

} // namespace host::dcl
