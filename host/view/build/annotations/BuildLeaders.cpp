#include "host/drawing/annotation/Arrowheads.h"
#include "host/drawing/annotation/DimensionStyle.h"
#include "host/view/build/annotations/AnnotationParts.h"
#include "host/view/build/annotations/LeaderLines.h"

#include <optional>

namespace host::view {

using drawing::TagList;

namespace {

/// The part of a segment that a gap covers, as fractions of its length; nothing for a gap that is not on it.
std::optional<std::pair<double, double>> gapOnSegment(const Vec3 &from, const Vec3 &to, const LeaderGap &gap)
{
    const Vec3 along = to - from;
    const double length = along.length();
    if (!(length > 0.0))
        return std::nullopt;
    const auto place = [&](const Vec3 &point) -> std::optional<double> {
        const double part = dot(point - from, along) / (length * length);
        const bool isOn = (from + along * part - point).length() < 1e-6 * length && part > -1e-6 && part < 1.0 + 1e-6;
        return isOn ? std::optional(part) : std::nullopt;
    };
    const auto first = place(gap.from);
    const auto second = place(gap.to);
    if (!first || !second)
        return std::nullopt;
    return std::minmax(*first, *second);
}

/// The pieces of a segment between its gaps, in order.
std::vector<std::pair<double, double>> piecesBetween(std::vector<std::pair<double, double>> gaps)
{
    std::ranges::sort(gaps);
    std::vector<std::pair<double, double>> pieces;
    double from = 0.0;
    for (const auto &[begin, end] : gaps) {
        if (begin > from)
            pieces.emplace_back(from, begin);
        from = std::max(from, end);
    }
    if (from < 1.0)
        pieces.emplace_back(from, 1.0);
    return pieces;
}

} // namespace

void cutLastStroke(BuildContext &context, const std::vector<LeaderGap> &gaps)
{
    if (gaps.empty() || context.display.items.empty())
        return;
    const auto *stroke = std::get_if<Stroke>(&context.display.items.back().shape);
    // Segments times gaps.
    if (!stroke || !context.work.take(static_cast<std::int64_t>(stroke->curve.points.size() * gaps.size())))
        return;
    const Path points = stroke->curve.points;
    const Style style = context.display.items.back().style;
    context.display.items.pop_back();
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        std::vector<std::pair<double, double>> parts;
        for (const LeaderGap &gap : gaps) {
            if (const auto part = gapOnSegment(points[i], points[i + 1], gap))
                parts.push_back(*part);
        }
        const Vec3 along = points[i + 1] - points[i];
        for (const auto &[from, to] : piecesBetween(std::move(parts)))
            addPath(context, {points[i] + along * from, points[i] + along * to}, style);
    }
}

void addLeaderLine(BuildContext &context, const Path &points, bool isSpline, const LeaderArrow &arrow,
                   const Style &style, const std::vector<LeaderGap> &gaps, const Vec3 &normal)
{
    if (points.size() < 2 || !areUsable(points))
        return;
    Path line = points;
    if (isSpline && points.size() > 2) {
        drawing::Spline spline;
        spline.fitPoints = points;
        line = drawing::splinePath(spline, context.flatness({.maximumAngle = 0.035}, points.size()));
        context.charge(line.size(), points.size());
        if (line.size() < 2 || !areUsable(line))
            return;
    }
    const bool hasRoom = arrow.size > 0.0 && (points[1] - points[0]).length() > 2.0 * arrow.size;
    if (hasRoom) {
        const Path rest = cutAtBegin(line, arrow.size);
        addArrowhead(context, arrow.name, planeFrame(line[0], line[0] - rest[0], normal), arrow.size, style);
        line = cutAtBegin(std::move(line), arrow.size * drawing::arrowheadNamed(arrow.name).length);
    }
    addPath(context, std::move(line), style);
    cutLastStroke(context, gaps);
}

/// A text that stands above its line has that line below it.
static Path withTextLine(Path points, const TagList &tags, const drawing::DimensionStyle &style)
{
    const bool isText = tags.integer(73, 3) == 0;
    const double width = tags.real(41);
    const Vec3 last = points.back();
    const Vec3 level = drawing::normalized(tags.point(211, {1.0, 0.0, 0.0}));
    if (!isText || style.textPlace == 0 || !(width > 0.0) || !isUsable(width) || !isUsable(level))
        return points;
    const double side = dot(last - points[points.size() - 2], level) < 0.0 ? -1.0 : 1.0;
    points.push_back(last + level * (side * (width + std::abs(style.gap) * style.scale)));
    return points;
}

bool buildLeader(BuildContext &context, const TagList &tags)
{
    const std::vector<Vec3> points = tags.points(10);
    if (points.size() < 2 || !areUsable(points))
        return false;
    const drawing::DimensionStyle dimension = readDimensionStyle(context.drawing, tags);
    Style style = styleWithColour(context.style, colourFromIndex(dimension.lineColour));
    style = styleWithWeight(style, dimension.lineWeight);
    style = styleWithLinetype(context, style, dimension.lineLinetype);
    LeaderArrow arrow;
    if (tags.integer(71, 1) != 0)
        arrow = {.name = dimension.leaderArrow, .size = dimension.arrowSize * dimension.scale};
    addLeaderLine(context, withTextLine(points, tags, dimension), tags.integer(72) == 1, arrow, style, {},
                  tags.point(210, {0.0, 0.0, 1.0}));
    return !context.display.items.empty();
}

} // namespace host::view
