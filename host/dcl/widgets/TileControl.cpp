#include "host/dcl/widgets/TileControl.h"

#include <QWidget>

namespace host::dcl {

using namespace Qt::StringLiterals;

TileControl::TileControl(const Tile &tile, QWidget *widget, QWidget *field)
    : QObject(widget), m_tile{tile.kind, tile.attributes, {}}, m_widget(widget), m_field(field),
      m_value(tile.text(u"value"_s))
{
    field->setObjectName(tile.key());
    if (!tile.flag(u"is_tab_stop"_s, true) && field->focusPolicy() != Qt::NoFocus)
        field->setFocusPolicy(Qt::ClickFocus);
    if (!tile.flag(u"is_enabled"_s, true))
        widget->setEnabled(false);
}

void TileControl::setEnabled(bool enabled)
{
    m_widget->setEnabled(enabled);
}

void TileControl::giveFocus()
{
    m_field->setFocus(Qt::OtherFocusReason);
}

void TileControl::report(Reason reason, const QPoint &at) const
{
    if (m_listener)
        m_listener(*this, reason, at);
}

} // namespace host::dcl
