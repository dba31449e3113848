#include "host/view/build/BuildMText.h"

#include "host/drawing/math/Angles.h"
#include "host/drawing/text/ParagraphColumns.h"
#include "host/drawing/text/ParagraphText.h"
#include "host/view/build/TextLook.h"

#include <numbers>

namespace host::view {

using drawing::radians;
using drawing::Tag;
using drawing::TagList;

namespace {

Style runStyle(const BuildContext &context, const MTextFormat &format)
{
    Style style = context.style;
    style.linetype = 0;
    if (format.trueColour) {
        style.colour = {.kind = Colour::Kind::True, .value = *format.trueColour};
    } else if (format.colourIndex) {
        style.colour = colourFromIndex(*format.colourIndex);
    }
    return style;
}

Matrix runMatrix(const MTextRun &run)
{
    const double slant = std::tan(run.format.oblique * radians);
    const double height = run.format.height;
    return {{height * run.format.widthFactor, 0.0, 0.0},
            {height * slant, height, 0.0},
            {0.0, 0.0, 1.0},
            {run.x, run.y, 0.0}};
}

constexpr qint64 mostColumns = 1000; ///< what a record says, which may be damage

double saneLength(double value)
{
    return isUsable(value) && value > 0.0 ? value : 0.0;
}

/// Characters of a text that are shown. Each word takes some hundred times its own memory.
constexpr qsizetype mostShown = 200'000;

/// Columns that other entities hold are drawn with these.
bool hasLinkedColumns(const BuildContext &context, const drawing::ParagraphColumns &columns)
{
    return std::ranges::any_of(columns.linked, [&](drawing::Handle handle) {
        const RecordId record = context.drawing.find(handle);
        return isValid(record) && context.drawing.isType(record, "MTEXT");
    });
}

MTextColumns columnsOf(const drawing::ParagraphColumns &read)
{
    MTextColumns columns;
    columns.count = static_cast<std::size_t>(std::clamp<qint64>(read.count, 1, mostColumns));
    columns.isCountFixed = !read.isDynamic;
    columns.gutter = saneLength(read.gutter);
    columns.isReversed = read.isReversed;
    columns.furtherHeight = saneLength(read.definedHeight);
    if (read.isDynamic && !read.isAutoHeight)
        std::ranges::transform(read.heights, std::back_inserter(columns.heights), saneLength);
    return columns;
}

MTextBox readBox(const BuildContext &context, const TagList &tags)
{
    MTextBox box;
    box.width = saneLength(tags.real(41));
    const double spacing = tags.real(44, 1.0);
    box.lineSpacing = spacing >= 0.1 && spacing <= 10.0 ? spacing : 1.0;
    box.isSpacingExact = tags.integer(73, 1) == 2;
    const auto columns = drawing::paragraphColumns(tags);
    if (columns && isUsable(columns->width) && !hasLinkedColumns(context, *columns)) {
        box.width = columns->width;
        box.columns = columnsOf(*columns);
    }
    return box;
}

double coverMargin(const TagList &tags)
{
    const double scale = tags.real(45, 1.5);
    return scale >= 1.0 && scale <= 5.0 ? scale - 1.0 : 0.5;
}

/// A frame that is an entity by itself is drawn with that.
std::optional<double> readFrame(const BuildContext &context, const TagList &tags)
{
    const drawing::ParagraphFrame frame = drawing::paragraphFrame(tags);
    const bool isLost = !frame.polyline.isNull() && !isValid(context.drawing.find(frame.polyline));
    return frame.isShown || isLost ? std::optional(coverMargin(tags)) : std::nullopt;
}

/// Background: a colour of its own, or that of what the drawing lies on.
std::optional<MTextPlace::Cover> readCover(const TagList &tags)
{
    constexpr qint64 hasColour = 1;
    constexpr qint64 hasGround = 2;
    const qint64 flags = tags.integer(90);
    if ((flags & (hasColour | hasGround)) == 0)
        return std::nullopt;
    MTextPlace::Cover cover;
    cover.margin = coverMargin(tags);
    if ((flags & hasGround) != 0)
        return cover;
    cover.kind = FillKind::Area;
    if (const Tag *trueColour = tags.find(421))
        cover.colour = {Colour::Kind::True, static_cast<std::uint32_t>(trueColour->integer().value_or(0) & 0xffffff)};
    else
        cover.colour = colourFromIndex(tags.integer(63, 256));
    return cover;
}

/// Around the text with the tails of its last line.
Curve frameAround(const MTextLayout &layout, const Matrix &placement, double margin, double textHeight)
{
    constexpr double tails = 0.33;
    margin *= textHeight;
    const double bottom = -layout.height - margin - tails * textHeight;
    Curve frame;
    for (const Vec3 &corner : {Vec3{-margin, margin, 0.0}, Vec3{layout.width + margin, margin, 0.0},
                               Vec3{layout.width + margin, bottom, 0.0}, Vec3{-margin, bottom, 0.0}}) {
        frame.points.push_back(placement.point(corner));
    }
    frame.points.push_back(frame.points.front());
    return frame;
}

void addSurroundings(BuildContext &context, const MTextPlace &place, const MTextLayout &layout, const Matrix &placement)
{
    Style style = context.style;
    style.linetype = 0;
    if (place.cover) {
        Style area = style;
        area.colour = place.cover->colour;
        Curve edge = frameAround(layout, placement, place.cover->margin, place.height);
        context.add(Fill{.contours = {std::move(edge)}, .kind = place.cover->kind}, area);
    }
    if (place.frameMargin)
        context.add(Stroke{frameAround(layout, placement, *place.frameMargin, place.height)}, style);
}

} // namespace

void addMText(BuildContext &context, const MTextPlace &place, const QString &content, MTextBox box)
{
    const TextLook look = readTextLook(context, place.styleName);
    const int column = place.attachment % 3;
    const int row = place.attachment / 3;
    box.styleFont = look.request;
    box.alignment = column == 1 ? MTextAlignment::Center : column == 2 ? MTextAlignment::Right : MTextAlignment::Left;
    const MTextFormat start{.height = place.height, .widthFactor = look.widthFactor, .oblique = look.oblique / radians};
    if (content.size() > mostShown)
        context.work.refuse();
    const MTextLayout layout =
        layOutMText(MTextParser(content.left(mostShown), start).parse(), box, place.height, context.fonts());
    const Vec3 corner{-layout.width * column / 2.0, layout.height * row / 2.0, 0.0};
    const Matrix placement = place.frame * Matrix::translation(corner);
    addSurroundings(context, place, layout, placement);
    for (const MTextRun &run : layout.runs) {
        if (run.text.trimmed().isEmpty())
            continue;
        auto text = std::make_unique<TextRun>(TextRun{.text = run.text, .font = run.font});
        text->width = run.width / (run.format.height * run.format.widthFactor);
        text->placement = placement * runMatrix(run);
        context.add(std::move(text), runStyle(context, run.format));
    }
    for (const MTextRule &rule : layout.rules) {
        const Path ends = {placement.point({rule.x1, rule.y1, 0.0}), placement.point({rule.x2, rule.y2, 0.0})};
        context.add(Stroke{{.points = ends}}, runStyle(context, rule.format));
    }
}

bool buildMText(BuildContext &context, const TagList &tags)
{
    const Vec3 extrusion = tags.point(210, {0.0, 0.0, 1.0});
    const Matrix ocs = Matrix::fromExtrusion(extrusion);
    const Vec3 at = tags.point(10);
    const double height = std::abs(tags.real(40, 1.0));
    const double rotation = drawing::angleInPlane(drawing::paragraphDirection(tags), extrusion);
    if (!isUsable(at) || !isUsable(height) || !isUsable(rotation) || !(height > 0.0))
        return false;
    const MTextPlace place{.frame = Matrix::translation(at) * ocs * Matrix::rotation(rotation),
                           .height = height,
                           .attachment = static_cast<int>(std::clamp<qint64>(tags.integer(71, 1), 1, 9)) - 1,
                           .styleName = tags.text(7),
                           .cover = readCover(tags),
                           .frameMargin = readFrame(context, tags)};
    // An empty text shows nothing, which is what it says.
    addMText(context, place, drawing::paragraphContent(tags), readBox(context, tags));
    return true;
}

} // namespace host::view
