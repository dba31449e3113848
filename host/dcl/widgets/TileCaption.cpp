#include "host/dcl/widgets/TileCaption.h"

#include "host/dcl/widgets/TileMetrics.h"

#include <QBoxLayout>
#include <QFontDatabase>
#include <QLabel>

namespace host::dcl {

using namespace Qt::StringLiterals;

QString captionOf(const Tile &tile)
{
    QString caption = tile.text(u"label"_s);
    const QString mnemonic = tile.text(u"mnemonic"_s);
    if (mnemonic.isEmpty() || caption.contains(u'&'))
        return caption;
    const qsizetype at = caption.indexOf(mnemonic.front(), 0, Qt::CaseInsensitive);
    return at < 0 ? caption : caption.insert(at, u'&');
}

void addLabel(QBoxLayout &layout, const Tile &tile, QWidget &field)
{
    const QString caption = captionOf(tile);
    if (caption.isEmpty())
        return;
    auto *label = new QLabel(caption);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(&field);
    layout.addWidget(label);
}

QFont fontOf(const Tile &tile, const QFont &usual)
{
    QFont font = usual;
    if (tile.flag(u"fixed_width_font"_s))
        font.setFamily(QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    if (tile.flag(u"is_bold"_s))
        font.setBold(true);
    return font;
}

void askSize(QWidget &widget, const Tile &tile, const TileMetrics &metrics)
{
    const QSize asked = metrics.asked(tile);
    if (asked.width() > 0)
        widget.setMinimumWidth(asked.width());
    if (asked.height() > 0)
        widget.setMinimumHeight(asked.height());
}

} // namespace host::dcl
