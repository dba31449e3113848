#include "host/drawing/records/Symbols.h"

#include "host/drawing/records/Tables.h"

namespace host::drawing {

namespace {

enum StandardFlag
{
    FlagFrozen = 1,
    FlagLocked = 4
};
enum StyleFlag
{
    FlagShapeFile = 1,
    FlagVertical = 4
};
enum GenerationFlag
{
    FlagBackward = 2,
    FlagUpsideDown = 4
};
enum DashFlag
{
    FlagAbsoluteRotation = 1,
    FlagText = 2,
    FlagShape = 4
};

template <typename Symbol>
std::optional<Symbol> findSymbol(const Drawing &drawing, TableKind kind, QStringView name,
                                 Symbol (*read)(const Drawing &, RecordId))
{
    const RecordId entry = drawing.tables().find(kind, name);
    return isValid(entry) ? std::optional<Symbol>(read(drawing, entry)) : std::nullopt;
}

/// Takes over one tag that describes the dash last begun.
void readDashTag(LinetypeDash &dash, qint64 &flags, const Tag &tag, const TagList &tags)
{
    switch (tag.code) {
    case 74:
        flags = tag.integer().value_or(0);
        dash.isRotationAbsolute = (flags & FlagAbsoluteRotation) != 0;
        break;
    case 75:
        dash.shape = (flags & FlagShape) != 0 ? static_cast<int>(tag.integer().value_or(0)) : 0;
        break;
    case 340:
        dash.style = tag.handle().value_or(Handle{});
        break;
    case 46:
        dash.scale = tag.real().value_or(1.0);
        break;
    case 50:
        dash.rotation = tag.real().value_or(0.0);
        break;
    case 44:
        dash.offset.x = tag.real().value_or(0.0);
        break;
    case 45:
        dash.offset.y = tag.real().value_or(0.0);
        break;
    case 9:
        dash.text = (flags & FlagText) != 0 ? tags.decoded(tag) : QString();
        break;
    default:
        break;
    }
}

} // namespace

Layer readLayer(const Drawing &drawing, RecordId entry)
{
    const TagList tags = drawing.tags(entry);
    Layer layer;
    layer.record = entry;
    layer.name = tags.text(2);
    const auto colour = static_cast<int>(std::clamp<qint64>(tags.integer(62, 7), -256, 256));
    layer.isOff = colour < 0;
    layer.colour = std::abs(colour);
    if (const Tag *exact = tags.find(420))
        layer.trueColour = static_cast<quint32>(exact->integer().value_or(0) & 0xFFFFFF);
    layer.linetype = tags.text(6);
    layer.lineweight = static_cast<int>(tags.integer(370, -3));
    const qint64 flags = tags.integer(70);
    layer.isFrozen = (flags & FlagFrozen) != 0;
    layer.isLocked = (flags & FlagLocked) != 0;
    layer.isPlotted = tags.integer(290, 1) != 0;
    return layer;
}

Linetype readLinetype(const Drawing &drawing, RecordId entry)
{
    const TagList tags = drawing.tags(entry);
    Linetype linetype;
    linetype.record = entry;
    linetype.name = tags.text(2);
    linetype.description = tags.text(3);
    linetype.patternLength = tags.real(40);
    qint64 flags = 0;
    for (const Tag &tag : tags) {
        if (tag.code == 49) {
            linetype.dashes.emplace_back().length = tag.real().value_or(0.0);
            flags = 0;
        } else if (!linetype.dashes.empty()) {
            readDashTag(linetype.dashes.back(), flags, tag, tags);
        }
    }
    return linetype;
}

TextStyle readTextStyle(const Drawing &drawing, RecordId entry)
{
    const TagList tags = drawing.tags(entry);
    TextStyle style;
    style.record = entry;
    style.name = tags.text(2);
    style.fontFile = tags.text(3);
    style.bigFontFile = tags.text(4);
    style.fixedHeight = tags.real(40);
    style.widthFactor = tags.real(41, 1.0);
    style.obliqueAngle = tags.real(50);
    const qint64 flags = tags.integer(70);
    style.isShapeFile = (flags & FlagShapeFile) != 0;
    style.isVertical = (flags & FlagVertical) != 0;
    const qint64 generation = tags.integer(71);
    style.isBackward = (generation & FlagBackward) != 0;
    style.isUpsideDown = (generation & FlagUpsideDown) != 0;
    return style;
}

std::optional<Layer> findLayer(const Drawing &drawing, QStringView name)
{
    return findSymbol(drawing, TableKind::Layer, name, readLayer);
}

std::optional<Linetype> findLinetype(const Drawing &drawing, QStringView name)
{
    return findSymbol(drawing, TableKind::Linetype, name, readLinetype);
}

std::optional<TextStyle> findTextStyle(const Drawing &drawing, QStringView name)
{
    return findSymbol(drawing, TableKind::Style, name, readTextStyle);
}

std::vector<Layer> allLayers(const Drawing &drawing)
{
    std::vector<Layer> layers;
    for (const RecordId entry : drawing.tables().entries(TableKind::Layer))
        layers.push_back(readLayer(drawing, entry));
    return layers;
}

} // namespace host::drawing
