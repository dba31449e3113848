#include "host/view/build/annotations/AnnotationParts.h"

#include "host/drawing/annotation/Arrowheads.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Tables.h"
#include "host/view/build/Scene.h"
#include "host/view/display/DisplayBoxes.h"
#include "host/view/display/MapShapes.h"

#include <numbers>

namespace host::view {

using drawing::Tag;
using drawing::TagList;

namespace {

bool isUsableFrame(const Matrix &frame)
{
    return isUsable(frame.origin) && isUsable(frame.xAxis) && isUsable(frame.yAxis) && isUsable(frame.zAxis);
}

/// The name under which the drawing has the block of an arrow head; empty for one that it does not have.
QString arrowBlock(const BuildContext &context, const QString &name)
{
    if (name.isEmpty())
        return {};
    for (const QString &block : {name, u'_' + name}) {
        if (isValid(context.drawing.blocks().find(block)))
            return block;
    }
    return {};
}

Curve ring(const drawing::Arrowhead::Ring &ring, const Matrix &frame)
{
    const ArcSpan arc{.center = frame.point(ring.center),
                      .xAxis = frame.direction({ring.radius, 0.0, 0.0}),
                      .yAxis = frame.direction({0.0, ring.radius, 0.0}),
                      .sweep = 2.0 * std::numbers::pi};
    return {.points = {arc.point(0.0), arc.point(0.0)}, .arcs = {arc}};
}

void addArea(BuildContext &context, Curve outline, const Style &style)
{
    Fill fill;
    fill.contours.push_back(std::move(outline));
    context.add(std::move(fill), style);
}

void addBuiltInArrow(BuildContext &context, const drawing::Arrowhead &head, const Matrix &frame, const Style &style)
{
    for (Path line : head.lines) {
        mapPath(line, frame);
        context.add(Stroke{{.points = std::move(line)}}, style);
    }
    for (Path area : head.areas) {
        mapPath(area, frame);
        area.push_back(area.front());
        addArea(context, {.points = std::move(area)}, style);
    }
    for (const drawing::Arrowhead::Ring &circle : head.rings) {
        if (circle.isFilled)
            addArea(context, ring(circle, frame), style);
        else
            context.add(Stroke{ring(circle, frame)}, style);
    }
}

} // namespace

Matrix planeFrame(const Vec3 &origin, const Vec3 &x, const Vec3 &normal)
{
    Vec3 up = drawing::normalized(normal);
    if (!isUsable(up) || up == Vec3{})
        up = {0.0, 0.0, 1.0};
    const Vec3 across = drawing::normalized(cross(up, x));
    if (!isUsable(across) || across == Vec3{}) {
        Matrix plane = Matrix::fromExtrusion(up);
        plane.origin = origin;
        return plane;
    }
    return {drawing::normalized(cross(across, up)), across, up, origin};
}

void addPath(BuildContext &context, Path points, const Style &style)
{
    if (points.size() > 1 && areUsable(points))
        context.add(Stroke{{.points = std::move(points)}}, style);
}

bool addBlock(BuildContext &context, const QString &name, const Matrix &placement, const Style &style)
{
    const auto block = context.drawing.blocks().get(name);
    if (!block || name.isEmpty())
        return false;
    auto reference = std::make_unique<Reference>();
    reference->block = context.scene.block(name);
    reference->placement = placement * Matrix::translation(block->basePoint * -1.0);
    if (!isUsableFrame(reference->placement))
        return false;
    context.add(std::move(reference), style);
    return true;
}

void addArrowhead(BuildContext &context, const QString &name, const Matrix &frame, double size, const Style &style)
{
    const Matrix placement = frame * Matrix::scaling({size, size, size});
    if (!(size > 0.0) || !isUsableFrame(placement))
        return;
    Style full = style;
    full.linetype = 0;
    if (!addBlock(context, arrowBlock(context, name), placement, full))
        addBuiltInArrow(context, drawing::arrowheadNamed(name), placement, full);
}

Path cutAtBegin(Path path, double length)
{
    std::size_t from = 0;
    while (from + 2 < path.size() && (path[from + 1] - path[from]).length() <= length) {
        length -= (path[from + 1] - path[from]).length();
        ++from;
    }
    const double piece = (path[from + 1] - path[from]).length();
    if (piece > 0.0)
        path[from] = path[from] + (path[from + 1] - path[from]) * std::clamp(length / piece, 0.0, 1.0);
    path.erase(path.begin(), path.begin() + static_cast<std::ptrdiff_t>(from));
    return path;
}

QString nameOf(const BuildContext &context, const Tag *handle)
{
    const RecordId record =
        context.drawing.find(handle ? handle->handle().value_or(drawing::Handle{}) : drawing::Handle{});
    return context.drawing.isAlive(record) ? context.drawing.tables().name(record) : QString();
}

Colour packedColour(qint64 value)
{
    constexpr qint64 byLayer = 0xc0;
    constexpr qint64 byBlock = 0xc1;
    constexpr qint64 trueColour = 0xc2;
    constexpr qint64 foreground = 7;
    const auto number = static_cast<std::uint32_t>(value & 0xffffff);
    switch (value >> 24 & 0xff) {
    case byLayer:
        return {};
    case byBlock:
        return {.kind = Colour::Kind::ByBlock};
    case trueColour:
        return {.kind = Colour::Kind::True, .value = number};
    case 0xc3:
        return colourFromIndex(number & 0xffff);
    default:
        return colourFromIndex(foreground);
    }
}

Style styleWithColour(const Style &style, const Colour &colour)
{
    Style own = style;
    if (colour.kind != Colour::Kind::ByBlock)
        own.colour = colour;
    return own;
}

Style styleWithWeight(const Style &style, qint64 lineweight)
{
    Style own = style;
    if (lineweight != Style::byBlock)
        own.lineweight = static_cast<int>(std::clamp<qint64>(lineweight, Style::defaultWeight, 211));
    return own;
}

Style styleWithLinetype(BuildContext &context, const Style &style, const QString &linetype)
{
    Style own = style;
    const int number = linetype.isEmpty() ? Style::byBlock : context.appearance().linetype(linetype.trimmed());
    if (number != Style::byBlock)
        own.linetype = number;
    return own;
}

BuildContext contextWithStyle(BuildContext &context, const Style &style)
{
    return {context.drawing, context.scene, context.work, context.display, style, context.isInBlock};
}

Box boxSince(BuildContext &context, std::size_t first, const Matrix &frame)
{
    const Matrix toFrame = frame.inverted();
    Box box;
    for (std::size_t i = first; i < context.display.items.size(); ++i)
        addItemBox(context.display.items[i], toFrame, context.fonts(), box);
    return box;
}

void addAttribute(BuildContext &context, RecordId definition, const Tag &value, const Matrix &placement,
                  const Style &style)
{
    constexpr qint64 invisibleFlag = 1;
    const TagList tags = context.drawing.tags(definition);
    const RecordId block = context.drawing.parent(definition);
    const bool isInBlock = isValid(block) && context.drawing.kind(block) == drawing::RecordKind::Block;
    if ((tags.integer(70) & invisibleFlag) != 0 || !isUsableFrame(placement) || !isInBlock)
        return;
    std::vector<Tag> own;
    for (const Tag &tag : tags.own()) {
        own.push_back(tag);
        if (tag.code == 0)
            own.back().value = "ATTRIB";
        else if (tag.code == 1)
            own.back().value = value.value;
    }
    Style shown = readStyle(tags, context.appearance());
    if (shown.colour.kind == Colour::Kind::ByBlock)
        shown.colour = style.colour;
    if (shown.layer == 0)
        shown.layer = style.layer;
    BuildContext part = contextWithStyle(context, shown);
    const std::size_t first = context.display.items.size();
    buildText(part, TagList(std::move(own), context.drawing.codec()));
    const Vec3 base = context.drawing.blocks().read(block).basePoint;
    for (std::size_t i = first; i < context.display.items.size(); ++i)
        mapItem(context.display.items[i], placement * Matrix::translation(base * -1.0));
}

} // namespace host::view
