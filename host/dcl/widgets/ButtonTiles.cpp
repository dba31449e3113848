#include "host/dcl/widgets/ButtonTiles.h"

#include "host/dcl/widgets/TileCaption.h"
#include "host/dcl/widgets/TileMetrics.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

namespace host::dcl {

using namespace Qt::StringLiterals;

namespace {

QPushButton *makeButton(const Tile &tile)
{
    auto *button = new QPushButton(captionOf(tile));
    // The dialog sees to Enter itself: what it would press by habit is no button that the file says.
    button->setAutoDefault(false);
    return button;
}

QAbstractButton *makeCheck(const Tile &tile)
{
    if (tile.kind == TileKind::RadioButton)
        return new QRadioButton(captionOf(tile));
    return new QCheckBox(captionOf(tile));
}

} // namespace

ButtonControl::ButtonControl(const Tile &tile, const TileMetrics &metrics)
    : ButtonControl(tile, metrics, makeButton(tile))
{
}

ButtonControl::ButtonControl(const Tile &tile, const TileMetrics &metrics, QPushButton *button)
    : TileControl(tile, button, button)
{
    askSize(*button, tile, metrics);
    button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    connect(button, &QPushButton::clicked, this, [this] { report(Reason::Chosen); });
}

void ButtonControl::setValue(const QString &value)
{
    static_cast<QPushButton *>(field())->setText(value);
}

CheckControl::CheckControl(const Tile &tile, const TileMetrics &metrics) : CheckControl(tile, metrics, makeCheck(tile))
{
}

CheckControl::CheckControl(const Tile &tile, const TileMetrics &metrics, QAbstractButton *button)
    : TileControl(tile, button, button)
{
    askSize(*button, tile, metrics);
    button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    button->setChecked(tile.text(u"value"_s) == "1"_L1);
    connect(button, &QAbstractButton::clicked, this, [this] { report(Reason::Chosen); });
}

QAbstractButton *CheckControl::button() const
{
    return static_cast<QAbstractButton *>(field());
}

QString CheckControl::value() const
{
    return button()->isChecked() ? u"1"_s : u"0"_s;
}

void CheckControl::setValue(const QString &value)
{
    const bool isOn = value.toInt() != 0;
    QButtonGroup *group = button()->group();
    // Of a group, the button that is on goes out only when the group lets it.
    if (group)
        group->setExclusive(isOn);
    button()->setChecked(isOn);
    if (group)
        group->setExclusive(true);
}

} // namespace host::dcl
