#include "host/dcl/widgets/ClusterControl.h"

#include <QAbstractButton>
#include <QGroupBox>

namespace host::dcl {

using namespace Qt::StringLiterals;

namespace {

QWidget *clusterWidget(const Tile &tile)
{
    return isBoxed(tile.kind) ? new QGroupBox(tile.text(u"label"_s)) : new QWidget;
}

} // namespace

ClusterControl::ClusterControl(const Tile &tile) : ClusterControl(tile, clusterWidget(tile)) {}

ClusterControl::ClusterControl(const Tile &tile, QWidget *widget) : TileControl(tile, widget, widget) {}

QString ClusterControl::value() const
{
    if (!isRadioCluster(tile().kind))
        return TileControl::value();
    const QAbstractButton *on = m_group.checkedButton();
    return on ? on->objectName() : QString();
}

void ClusterControl::setValue(const QString &value)
{
    TileControl::setValue(value);
    for (QAbstractButton *button : m_group.buttons())
        if (button->objectName() == value)
            button->setChecked(true);
}

void ClusterControl::addRadio(TileControl &radio)
{
    m_group.addButton(static_cast<QAbstractButton *>(radio.field()));
}

void ClusterControl::applyInitialValue()
{
    setValue(tile().text(u"value"_s));
}

} // namespace host::dcl
