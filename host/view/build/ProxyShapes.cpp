// The shapes of pictures that entities of other programs keep.

#include "host/view/build/ProxyDrawer.h"
#include "host/view/display/WideLine.h"

#include <numbers>
#include <span>

namespace host::view {

namespace {

/// The arc from the first point over the second to the third; nothing when they lie on a line.
std::optional<ArcSpan> proxyArcThrough(const Path &points)
{
    if (points.size() != 3)
        return std::nullopt;
    const Vec3 toSecond = points[1] - points[0];
    const Vec3 toThird = points[2] - points[0];
    const Vec3 normal = cross(toSecond, toThird);
    const double square = dot(normal, normal);
    if (!(square > 0.0))
        return std::nullopt;
    const Vec3 toCenter =
        (cross(normal, toSecond) * dot(toThird, toThird) + cross(toThird, normal) * dot(toSecond, toSecond)) *
        (0.5 / square);
    ArcSpan span{.center = points[0] + toCenter, .xAxis = toCenter * -1.0};
    span.yAxis = cross(normalized(normal), span.xAxis);
    const Vec3 end = points[2] - span.center;
    span.sweep = std::atan2(dot(end, span.yAxis), dot(end, span.xAxis));
    if (span.sweep <= 0.0)
        span.sweep += 2.0 * std::numbers::pi;
    return span;
}

/// How an arc is closed, by the number that its piece ends with.
Path proxyArcClosing(int kind, const ArcSpan &span)
{
    constexpr int sector = 1;
    constexpr int chord = 2;
    if (kind == sector)
        return {span.center, span.point(span.start)};
    return kind == chord ? Path{span.point(span.start)} : Path{};
}

} // namespace

void ProxyDrawer::toWorld(Curve &curve) const
{
    for (Vec3 &point : curve.points)
        point = map().point(point);
    for (ArcSpan &span : curve.arcs) {
        span.center = map().point(span.center);
        span.xAxis = map().direction(span.xAxis);
        span.yAxis = map().direction(span.yAxis);
    }
}

bool ProxyDrawer::addShape(Curve curve, bool isFilled)
{
    toWorld(curve);
    const bool hasArcs = std::ranges::all_of(curve.arcs, [](const ArcSpan &span) {
        return isUsable(span.center) && isUsable(span.xAxis) && isUsable(span.yAxis) && isUsable(span.sweep);
    });
    if (!hasArcs || !areUsable(curve.points))
        return false;
    if (isFilled)
        m_context.add(Fill{.contours = {std::move(curve)}}, m_style);
    else
        m_context.add(Stroke{std::move(curve)}, m_style);
    return true;
}

/// A line without points is none, and no fault.
bool ProxyDrawer::addLine(Curve curve)
{
    return curve.points.empty() || addShape(std::move(curve), false);
}

bool ProxyDrawer::addClosed(Path corners, bool isFilled)
{
    if (corners.size() < 2)
        return addLine({.points = std::move(corners)});
    if (!(corners.front() == corners.back()))
        corners.push_back(corners.front());
    return addShape({.points = std::move(corners)}, isFilled && corners.size() > 3);
}

bool ProxyDrawer::addArc(const ArcSpan &span, const Path &closing, bool isFilled)
{
    Curve curve{.points = {span.point(span.start), span.point(span.start + span.sweep)}, .arcs = {span}};
    curve.points.insert(curve.points.end(), closing.begin(), closing.end());
    return addShape(std::move(curve), isFilled);
}

bool ProxyDrawer::circle(ProxyBytes &bytes)
{
    const Vec3 center = bytes.point();
    const double radius = bytes.real();
    const Matrix ocs = Matrix::fromExtrusion(bytes.point());
    return addArc(
        {.center = center, .xAxis = ocs.xAxis * radius, .yAxis = ocs.yAxis * radius, .sweep = 2.0 * std::numbers::pi},
        {}, m_isFilled);
}

bool ProxyDrawer::circleOfPoints(ProxyBytes &bytes)
{
    auto span = proxyArcThrough(bytes.points(3));
    if (span)
        span->sweep = 2.0 * std::numbers::pi;
    return span && addArc(*span, {}, m_isFilled);
}

bool ProxyDrawer::arc(ProxyBytes &bytes)
{
    ArcSpan span{.center = bytes.point()};
    const double radius = bytes.real();
    const Vec3 normal = normalized(bytes.point());
    const Vec3 start = normalized(bytes.point());
    span.xAxis = start * radius;
    span.yAxis = cross(normal, start) * radius;
    span.sweep = bytes.real();
    const Path closing = proxyArcClosing(bytes.integer(), span);
    return addArc(span, closing, m_isFilled && !closing.empty());
}

bool ProxyDrawer::arcOfPoints(ProxyBytes &bytes)
{
    const auto span = proxyArcThrough(bytes.points(3));
    const Path closing = span ? proxyArcClosing(bytes.integer(), *span) : Path{};
    return span && addArc(*span, closing, m_isFilled && !closing.empty());
}

bool ProxyDrawer::polygon(ProxyBytes &bytes)
{
    return addClosed(bytes.countedPoints(), m_isFilled);
}

/// The lines of a net, along and across.
bool ProxyDrawer::mesh(ProxyBytes &bytes)
{
    const std::int64_t rowCount = bytes.integer();
    const std::int64_t columnCount = bytes.integer();
    const Path points = rowCount > 0 && columnCount > 0 ? bytes.points(rowCount * columnCount) : Path{};
    const auto at = [&](std::int64_t row, std::int64_t column) {
        return points[static_cast<std::size_t>(row * columnCount + column)];
    };
    const auto addRun = [&](std::int64_t count, const auto &pointOf) {
        Path line;
        for (std::int64_t i = 0; i < count; ++i)
            line.push_back(pointOf(i));
        return addLine({.points = std::move(line)});
    };
    bool isDrawn = !points.empty();
    for (std::int64_t row = 0; isDrawn && row < rowCount; ++row)
        isDrawn = addRun(columnCount, [&](std::int64_t i) { return at(row, i); });
    for (std::int64_t column = 0; isDrawn && column < columnCount; ++column)
        isDrawn = addRun(rowCount, [&](std::int64_t i) { return at(i, column); });
    return isDrawn;
}

/// Faces as runs of point numbers, each with its length in front; a negative length is that of a hole.
bool ProxyDrawer::shell(ProxyBytes &bytes)
{
    const Path points = bytes.countedPoints();
    std::int64_t entries = bytes.integer();
    bool isDrawn = bytes.isGood();
    while (isDrawn && entries > 0 && bytes.left() > 0) {
        const std::int64_t length = bytes.integer();
        const std::int64_t count = std::abs(length);
        entries -= count + 1;
        Path face;
        for (std::int64_t i = 0; i < count && bytes.isGood(); ++i) {
            const auto index = static_cast<std::size_t>(bytes.integer());
            if (index < points.size())
                face.push_back(points[index]);
        }
        isDrawn = bytes.isGood() && std::ssize(face) == count && addClosed(std::move(face), m_isFilled && length > 0);
    }
    return isDrawn;
}

bool ProxyDrawer::endless(ProxyBytes &bytes, bool isBothWays)
{
    const Vec3 base = map().point(bytes.point());
    const Vec3 direction = normalized(map().direction(bytes.point()));
    if (!bytes.isGood() || !isUsable(base) || !isUsable(direction) || !(direction.length() > 0.0))
        return false;
    m_context.add(Endless{.base = base, .direction = direction, .isBothWays = isBothWays}, m_style);
    return true;
}

namespace {

/// What a light polyline has is told by a row of switches in front.
enum LightSwitch
{
    LightHasNormal = 1,
    LightHasThickness = 2,
    LightHasWidth = 4,
    LightHasElevation = 8,
    LightHasBulges = 16,
    LightHasWidths = 32,
    LightIsClosed = 512,
    LightHasIdentifiers = 1024
};

struct LightCounts
{
    int points = 0;
    int bulges = 0;
    int identifiers = 0;
    int widths = 0;
};

std::vector<PolylineVertex> lightVertices(ProxyBits &bits, const LightCounts &counts, double elevation, double width)
{
    std::vector<PolylineVertex> vertices(static_cast<std::size_t>(counts.points),
                                         {.startWidth = width, .endWidth = width});
    Vec3 last{0.0, 0.0, elevation};
    bool isFirst = true;
    for (PolylineVertex &vertex : vertices) {
        last.x = isFirst ? bits.plainReal() : bits.realFrom(last.x);
        last.y = isFirst ? bits.plainReal() : bits.realFrom(last.y);
        vertex.at = last;
        isFirst = false;
    }
    const auto upTo = [&](int count) { return std::span(vertices).first(static_cast<std::size_t>(count)); };
    for (PolylineVertex &vertex : upTo(counts.bulges))
        vertex.bulge = bits.real();
    for (int i = 0; i < counts.identifiers; ++i)
        bits.longInteger();
    for (PolylineVertex &vertex : upTo(counts.widths)) {
        vertex.startWidth = bits.real();
        vertex.endWidth = bits.real();
    }
    return vertices;
}

bool areSound(const std::vector<PolylineVertex> &vertices)
{
    return !vertices.empty() && std::ranges::all_of(vertices, [](const PolylineVertex &v) {
        return isUsable(v.at) && isUsable(v.bulge) && isUsable(v.startWidth) && isUsable(v.endWidth);
    });
}

} // namespace

/// As the DWG format packs an LWPOLYLINE.
bool ProxyDrawer::lightPolyline(ProxyBytes &bytes)
{
    ProxyBits bits(bytes.take(bytes.integer()));
    const int flags = bits.shortInteger();
    const auto realIf = [&](LightSwitch flag) { return (flags & flag) != 0 ? bits.real() : 0.0; };
    const double width = realIf(LightHasWidth);
    const double elevation = realIf(LightHasElevation);
    realIf(LightHasThickness);
    const bool hasNormal = (flags & LightHasNormal) != 0;
    const Vec3 normal = hasNormal ? Vec3{bits.real(), bits.real(), bits.real()} : Vec3{0.0, 0.0, 1.0};
    // A point takes four bits at least.
    LightCounts counts{.points = bits.longInteger()};
    if (counts.points < 0 || counts.points > bits.left() / 4)
        return false;
    const auto countIf = [&](LightSwitch flag) {
        return std::clamp((flags & flag) != 0 ? bits.longInteger() : 0, 0, counts.points);
    };
    counts.bulges = countIf(LightHasBulges);
    counts.identifiers = countIf(LightHasIdentifiers);
    counts.widths = countIf(LightHasWidths);
    const std::vector<PolylineVertex> vertices = lightVertices(bits, counts, elevation, width);
    if (!bits.isGood() || !areSound(vertices))
        return false;
    const Matrix ocs = Matrix::fromExtrusion(normal);
    const bool isClosed = (flags & LightIsClosed) != 0;
    if (vertices.size() < 2 || !hasWidth(vertices))
        return addShape(polylineCurve(vertices, isClosed, ocs), false);
    Fill band = polylineBand(vertices, isClosed, map() * ocs, m_context.work);
    if (!std::ranges::all_of(band.contours, [](const Curve &contour) { return areUsable(contour.points); }))
        return false;
    m_context.add(std::move(band), m_style);
    return true;
}

} // namespace host::view
