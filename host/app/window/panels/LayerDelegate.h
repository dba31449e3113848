#pragma once

#include "host/app/window/panels/BoxDelegate.h"
#include "host/app/window/panels/StateIcons.h"

#include <functional>

namespace host::app {

enum class LayerColumn;

/// The picture of a state that a column of layers has.
StateMark markOf(LayerColumn column, bool state);

/// Paints states as pictures that a click or Space turns over, and edits what has values of its own with the lists that
/// go with them. Which linetypes there are is asked when one is to be chosen.
class LayerDelegate final : public BoxDelegate
{
    Q_OBJECT

public:
    LayerDelegate(std::function<QStringList()> linetypes, QObject *parent);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

signals:
    /// A colour is to be chosen for the layer, in a window of its own.
    void colourWanted(const QModelIndex &index);

private:
    std::function<QStringList()> m_linetypes;
};

} // namespace host::app
