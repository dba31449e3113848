#include "host/dcl/Tile.h"

#include <algorithm>
#include <cmath>

namespace host::dcl {

using namespace Qt::StringLiterals;

namespace {

struct KindRow
{
    const char *name;
    TileKind kind;
};

constexpr KindRow kindRows[] = {
    {"boxed_column", TileKind::BoxedColumn},
    {"boxed_radio_column", TileKind::BoxedRadioColumn},
    {"boxed_radio_row", TileKind::BoxedRadioRow},
    {"boxed_row", TileKind::BoxedRow},
    {"button", TileKind::Button},
    {"cluster", TileKind::Column},
    {"column", TileKind::Column},
    {"concatenation", TileKind::Concatenation},
    {"dialog", TileKind::Dialog},
    {"edit_box", TileKind::EditBox},
    {"image", TileKind::Image},
    {"image_button", TileKind::ImageButton},
    {"list_box", TileKind::ListBox},
    {"paragraph", TileKind::Paragraph},
    {"popup_list", TileKind::PopupList},
    {"radio_button", TileKind::RadioButton},
    {"radio_column", TileKind::RadioColumn},
    {"radio_row", TileKind::RadioRow},
    {"row", TileKind::Row},
    {"slider", TileKind::Slider},
    {"spacer", TileKind::Spacer},
    {"text", TileKind::Text},
    {"text_part", TileKind::TextPart},
    {"tile", TileKind::Column},
    {"toggle", TileKind::Toggle},
};

} // namespace

const TileKind *kindNamed(const QString &name)
{
    const auto row = std::find_if(std::begin(kindRows), std::end(kindRows), [&name](const KindRow &candidate) {
        return name == QLatin1StringView(candidate.name);
    });
    return row == std::end(kindRows) ? nullptr : &row->kind;
}

bool isCluster(TileKind kind)
{
    return kind <= TileKind::Paragraph;
}

bool isRow(TileKind kind)
{
    return kind == TileKind::Row || kind == TileKind::BoxedRow || kind == TileKind::RadioRow ||
           kind == TileKind::BoxedRadioRow || kind == TileKind::Concatenation;
}

bool isBoxed(TileKind kind)
{
    return kind == TileKind::BoxedRow || kind == TileKind::BoxedColumn || kind == TileKind::BoxedRadioRow ||
           kind == TileKind::BoxedRadioColumn;
}

bool isRadioCluster(TileKind kind)
{
    return kind == TileKind::RadioRow || kind == TileKind::RadioColumn || kind == TileKind::BoxedRadioRow ||
           kind == TileKind::BoxedRadioColumn;
}

double Tile::number(const QString &name, double otherwise) const
{
    const auto found = attributes.constFind(name);
    if (found == attributes.constEnd())
        return otherwise;
    bool isNumber = found->kind == AttributeValue::Kind::Number;
    if (found->kind == AttributeValue::Kind::Text)
        found->text.toDouble(&isNumber);
    return isNumber && std::isfinite(found->number) ? found->number : otherwise;
}

int Tile::integer(const QString &name, int otherwise, int least, int most) const
{
    if (!has(name))
        return otherwise;
    return int(std::clamp(number(name, otherwise), double(least), double(most)));
}

bool Tile::flag(const QString &name, bool otherwise) const
{
    if (!has(name))
        return otherwise;
    return word(name) == "true"_L1 || number(name) != 0;
}

} // namespace host::dcl
