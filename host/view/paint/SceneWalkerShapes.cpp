// What a walk through a scene does with each kind of shape that it meets; references to blocks are SceneWalker.cpp's.

#include "host/view/build/Scene.h"
#include "host/view/display/RasterFiles.h"
#include "host/view/paint/SceneWalker.h"
#include "host/view/text/Fonts.h"

#include <array>

namespace host::view {

namespace {

constexpr double farthestPixel = 1e7; ///< pixels; what lies beyond is cut off before a painter sees it

constexpr std::int64_t unitsOfLetter = 2;
constexpr double mostDots = 100'000.0;           ///< of a picture, a side
constexpr std::int64_t unitsOfImage = 8;         ///< for what a plain area of the same size takes one
constexpr std::int64_t pixelsOfWrittenUnit = 20; ///< of a picture in a file of lines
constexpr std::int64_t freeElements = 32;        ///< of a linetype, on each line

/// How much longer things in a block get on the way to the drawing: linetypes grow with them.
double sizeOf(const Matrix &map)
{
    return map.xAxis.length();
}

/// What makes elements of the linetype into units of the curve, of which each is so many pixels.
double dashScale(const ResolvedStyle &style, double pixelsPerUnit)
{
    return style.linetypeScale < 0.0 ? -style.linetypeScale / pixelsPerUnit : style.linetypeScale;
}

} // namespace

std::int64_t SceneWalker::unitsOf(const Track &track) const
{
    return static_cast<std::int64_t>(track.points.size()) - 1 + m_cost.ofLine(track);
}

void SceneWalker::show(const Stroke &stroke, const ResolvedStyle &style, const Context &context)
{
    CurveTracer(context.map, m_options.view, m_work).trace(stroke.curve, m_track);
    m_pieces += static_cast<std::int64_t>(m_track.points.size());
    if (m_track.points.empty() || (context.isRepeated && !m_work.take(unitsOf(m_track))))
        return;
    if (style.linetype > 0 && m_options.withLinetypes && m_options.view) {
        const LineDasher dasher(m_scene.appearance().pattern(style.linetype), dashScale(style, sizeOf(context.map)),
                                *m_options.view);
        if (dasher.isWorthwhile(m_track) && canDash(dasher, stroke)) {
            emitDashes(m_track, stroke.curve.isOneRun, dasher, style);
            return;
        }
    }
    emitTrack(m_track, style);
}

void SceneWalker::emitTrack(const Track &track, const ResolvedStyle &style)
{
    const std::span<const QPointF> points(track.points);
    if (points.size() == 1) {
        m_sink.dot(points.front(), style);
        return;
    }
    if (!m_options.view) {
        m_sink.line(points, style);
        return;
    }
    std::vector<QPointF> seen;
    const auto flush = [&] {
        if (seen.size() > 1)
            m_sink.line(seen, style);
        seen.clear();
    };
    for (std::size_t i = 1; i < points.size(); ++i) {
        const auto part = visiblePart(points[i - 1], points[i], *m_options.view);
        if (!part)
            continue;
        const QPointF step = points[i] - points[i - 1];
        if (part->first > 0.0 || seen.empty()) {
            flush();
            seen.push_back(points[i - 1] + step * part->first);
        }
        seen.push_back(part->second < 1.0 ? points[i - 1] + step * part->second : points[i]);
        if (part->second < 1.0)
            flush();
    }
    flush();
}

DashOutput SceneWalker::dashOutput(const ResolvedStyle &style)
{
    return {
        .dash = [this, &style](std::span<const QPointF> points) { m_sink.line(points, style); },
        .dot = [this, &style](QPointF point) { m_sink.dot(point, style); },
        .sign =
            [this, &style](const LinePatternElement &element, QPointF start, QPointF along, QPointF left) {
                if (element.isRotationAbsolute) {
                    along = {std::hypot(along.x(), along.y()), 0.0};
                    left = {0.0, -along.x()};
                }
                const double c = std::cos(element.rotation) * element.size;
                const double s = std::sin(element.rotation) * element.size;
                const QPointF x = along * c + left * s;
                const QPointF y = left * c - along * s;
                emitSign(element, {{x.x(), x.y(), 0}, {y.x(), y.y(), 0}, {0, 0, 1}, {start.x(), start.y(), 0}}, style);
            }};
}

void SceneWalker::emitSign(const LinePatternElement &element, const Matrix &toScreen, const ResolvedStyle &style)
{
    std::int64_t units = element.text.size() * unitsOfLetter;
    for (const Curve &curve : element.shape)
        units += static_cast<std::int64_t>(curve.points.size());
    if (!m_work.take(units))
        return;
    if (!element.text.isEmpty()) {
        const double width = m_scene.fonts().width(element.font, element.text);
        m_sink.text({.text = element.text, .font = element.font, .width = width}, toScreen, style);
    }
    for (const Curve &curve : element.shape) {
        Track track;
        CurveTracer(toScreen, m_options.view, m_work).trace(curve, track);
        if (!track.points.empty())
            emitTrack(track, style);
    }
}

/// Takes what the dashes of the line in m_track cost.
bool SceneWalker::canDash(const LineDasher &dasher, const Stroke &stroke)
{
    const auto runs = stroke.curve.isOneRun ? 1 : static_cast<std::int64_t>(m_track.corners.size());
    return m_work.take(std::max<std::int64_t>(dasher.elementCount(m_track) - runs * freeElements, 0));
}

void SceneWalker::emitDashes(const Track &track, bool isOneRun, const LineDasher &dasher, const ResolvedStyle &style)
{
    const DashOutput output = dashOutput(style);
    if (isOneRun) {
        dasher.run(track, 0, track.points.size() - 1, output);
        return;
    }
    for (std::size_t i = 1; i < track.corners.size(); ++i)
        dasher.run(track, track.corners[i - 1], track.corners[i], output);
}

void SceneWalker::show(const Fill &fill, const ResolvedStyle &style, const Context &context)
{
    std::vector<Track> edges;
    auto area = areaOf(fill.contours, context, fill.kind == FillKind::Area ? &edges : nullptr);
    if (!area)
        return;
    area->first.setFillRule(fill.isEvenOdd ? Qt::OddEvenFill : Qt::WindingFill);
    if (!m_work.take(area->second)) {
        if (fill.kind != FillKind::Mask)
            emitOutlines(fill.contours, style, context);
    } else if (fill.gradient) {
        m_sink.shade(area->first, *fill.gradient, context.map * fill.gradient->placement, style);
    } else {
        m_sink.fill(area->first, fill.kind, style);
    }
    for (const Track &edge : edges)
        emitTrack(edge, style);
}

std::optional<std::pair<QPainterPath, std::int64_t>>
SceneWalker::areaOf(const std::vector<Curve> &contours, const Context &context, std::vector<Track> *edges)
{
    QPainterPath area;
    CurveTracer tracer(context.map, m_options.view, m_work);
    FillCost fillCost(m_cost);
    for (const Curve &contour : contours) {
        tracer.trace(contour, m_track);
        if (m_track.points.size() < 2)
            continue;
        if (!mayGoOn(context, static_cast<std::int64_t>(m_track.points.size())))
            return std::nullopt;
        m_pieces += static_cast<std::int64_t>(m_track.points.size());
        fillCost.add(m_track);
        QPolygonF polygon(QList<QPointF>(m_track.points.begin(), m_track.points.end()));
        const QRectF reach = polygon.boundingRect();
        if (m_options.view && !m_options.view->contains(reach))
            polygon = clippedPolygon(polygon, *m_options.view);
        area.addPolygon(polygon);
        area.closeSubpath();
        // An area thinner than a pixel still shows as its edge.
        if (edges && std::min(reach.width(), reach.height()) < 2.0)
            edges->push_back(m_track);
    }
    return std::pair(area, fillCost.units());
}

/// In place of an area that would cost too much.
void SceneWalker::emitOutlines(const std::vector<Curve> &contours, const ResolvedStyle &style, const Context &context)
{
    CurveTracer tracer(context.map, m_options.view, m_work);
    for (const Curve &contour : contours) {
        tracer.trace(contour, m_track);
        if (!m_track.points.empty() && (!context.isRepeated || m_work.take(unitsOf(m_track))))
            emitTrack(m_track, style);
    }
}

/// A picture seen edge-on, or infinitely large, shows nothing.
QSize SceneWalker::dotsOf(const Matrix &toScreen) const
{

    const double area = std::abs(cross(toScreen.xAxis.xy(), toScreen.yAxis.xy()));
    if (!(area > 0.0) || !std::isfinite(area))
        return {};
    const auto dots = [this](const Vec3 &axis) {
        return std::max(1, static_cast<int>(std::min(axis.xy().length() * m_options.dotsPerUnit, mostDots)));
    };
    return {dots(toScreen.xAxis), dots(toScreen.yAxis)};
}

void SceneWalker::show(const std::unique_ptr<Raster> &raster, const ResolvedStyle &style, const Context &context)
{
    const Matrix toScreen = context.map * raster->placement;
    const QSize dots = dotsOf(toScreen);
    const auto area = dots.isEmpty() ? std::nullopt : areaOf(raster->area, context, nullptr);
    if (!area)
        return;
    const QSize size = raster->pixels->levelFor(dots).size();
    const std::int64_t written = m_options.isRaster ? 0 : qint64(size.width()) * size.height() / pixelsOfWrittenUnit;
    if (m_work.take(area->second * unitsOfImage + written))
        m_sink.image(*raster, area->first, toScreen, dots, style);
    else
        emitOutlines(raster->area, style, context);
}

void DisplaySink::shade(const QPainterPath &area, const Gradient &, const Matrix &, const ResolvedStyle &style)
{
    fill(area, FillKind::Area, style);
}

void DisplaySink::image(const Raster &, const QPainterPath &area, const Matrix &, QSize, const ResolvedStyle &style)
{
    fill(area, FillKind::Area, style);
}

void SceneWalker::show(const Segments &segments, const ResolvedStyle &style, const Context &context)
{
    const std::size_t stride = 2 * strideOf(segments, context);
    for (std::size_t i = 0; i + 1 < segments.ends.size(); i += stride) {
        const std::array<QPointF, 2> ends = {flat(context.map, segments.ends[i]),
                                             flat(context.map, segments.ends[i + 1])};
        const auto part = m_options.view ? visiblePart(ends[0], ends[1], *m_options.view) : std::pair(0.0, 1.0);
        if (!part)
            continue;
        const QPointF step = ends[1] - ends[0];
        const std::array<QPointF, 2> seen = {ends[0] + step * part->first, ends[0] + step * part->second};
        m_sink.line(seen, style);
    }
    for (std::size_t i = 0; i < segments.dots.size(); i += stride / 2) {
        const QPointF at = flat(context.map, segments.dots[i]);
        if (!m_options.view || m_options.view->contains(at))
            m_sink.dot(at, style);
    }
}

/// 1 to show all lines of a pattern, 2 for every other and so on. No pattern gets more than half of what is left, so
/// that those behind it get something.
std::size_t SceneWalker::strideOf(const Segments &segments, const Context &context)
{
    double pixels = 0.0;
    for (std::size_t i = 0; m_options.isRaster && i + 1 < segments.ends.size(); i += 2)
        pixels += m_cost.seenLength(flat(context.map, segments.ends[i]), flat(context.map, segments.ends[i + 1]));
    const auto pieces = static_cast<std::int64_t>(segments.ends.size() / 2 + segments.dots.size());
    const std::int64_t units = pieces + m_cost.ofLength(pixels);
    if (units <= m_work.left() / 2 && m_work.take(units))
        return 1;
    const std::int64_t share = std::max<std::int64_t>(m_work.left() / 2, 1);
    const std::int64_t stride = (units + share - 1) / share;
    m_work.refuse();
    m_work.charge(units / stride);
    return static_cast<std::size_t>(stride);
}

void SceneWalker::show(const Endless &line, const ResolvedStyle &style, const Context &context)
{
    const QPointF base = flat(context.map, line.base);
    const Vec3 direction = context.map.direction(line.direction);
    const double pixelsPerUnit = std::hypot(direction.x, direction.y);
    if (!(pixelsPerUnit > 0.0) || !m_options.view)
        return;
    const QPointF unit(direction.x / pixelsPerUnit, direction.y / pixelsPerUnit);
    const QPointF start = base - unit * (line.isBothWays ? farthestPixel : 0.0);
    const QPointF end = base + unit * farthestPixel;
    const auto part = visiblePart(start, end, *m_options.view);
    if (!part)
        return;
    Track seen;
    seen.points = {start + (end - start) * part->first, start + (end - start) * part->second};
    const QPointF fromBase = seen.points[0] - base;
    const double phase = (fromBase.x() * unit.x() + fromBase.y() * unit.y()) / pixelsPerUnit;
    const QPointF length = seen.points[1] - seen.points[0];
    seen.along = {0.0, std::hypot(length.x(), length.y()) / pixelsPerUnit};
    const LineDasher dasher(m_scene.appearance().pattern(style.linetype), dashScale(style, pixelsPerUnit),
                            *m_options.view);
    if (m_options.withLinetypes && dasher.isWorthwhile(seen) && m_work.take(dasher.elementCount(seen)))
        dasher.runEndless(seen, phase, dashOutput(style));
    else
        m_sink.line(seen.points, style);
}

void SceneWalker::show(const PointMark &mark, const ResolvedStyle &style, const Context &context)
{
    const QPointF at = flat(context.map, mark.at);
    const Appearance &appearance = m_scene.appearance();
    const int mode = appearance.pointMode();
    if (!std::isfinite(at.x()) || !std::isfinite(at.y()))
        return;
    if (mode == 0 || mark.isDot) {
        m_sink.dot(at, style);
        return;
    }
    const double screenHeight = m_options.view ? m_options.view->height() : 100.0;
    const double size = appearance.pointSize();
    const double pixels = size > 0.0 ? size * sizeOf(context.map) : screenHeight * (size < 0.0 ? -size / 100.0 : 0.05);
    emitMarkShape(at, std::clamp(pixels, 1.0, 4000.0) / 2.0, mode, style);
}

void SceneWalker::emitMarkShape(QPointF at, double half, int mode, const ResolvedStyle &style)
{
    const auto stroke = [&](std::initializer_list<QPointF> offsets) {
        std::vector<QPointF> points;
        for (const QPointF offset : offsets)
            points.push_back(at + offset * half);
        m_sink.line(points, style);
    };
    // The lower digits say the figure, 32 adds a circle and 64 a square of half its size.
    switch (mode % 32) {
    case 0:
        m_sink.dot(at, style);
        break;
    case 2:
        stroke({{-1, 0}, {1, 0}});
        stroke({{0, -1}, {0, 1}});
        break;
    case 3:
        stroke({{-1, -1}, {1, 1}});
        stroke({{-1, 1}, {1, -1}});
        break;
    case 4:
        stroke({{0, 0}, {0, -1}});
        break;
    default:
        break;
    }
    if ((mode & 64) != 0)
        stroke({{-0.5, -0.5}, {0.5, -0.5}, {0.5, 0.5}, {-0.5, 0.5}, {-0.5, -0.5}});
    if ((mode & 32) != 0) {
        QPainterPath circle;
        circle.addEllipse(at, half / 2.0, half / 2.0);
        const QPolygonF polygon = circle.toFillPolygon();
        m_sink.line(polygon, style);
    }
}

void SceneWalker::show(const std::unique_ptr<TextRun> &run, const ResolvedStyle &style, const Context &context)
{
    m_pieces += run->text.size() * unitsOfLetter;
    if (!mayGoOn(context, run->text.size() * unitsOfLetter))
        return;
    const std::int64_t extra = m_scene.fonts().extraPoints(run->font, run->text);
    if (extra == 0 || m_work.take(extra))
        m_sink.text(*run, context.map * run->placement, style);
}

} // namespace host::view
