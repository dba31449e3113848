#include "host/view/build/HatchBoundary.h"

#include "host/drawing/math/Angles.h"
#include "host/view/build/DisplayBuilder.h"
#include "host/view/display/AciColor.h"
#include "host/view/display/WideLine.h"

#include <numbers>

namespace host::view {

using drawing::radians;
using drawing::Tag;
using drawing::TagList;

namespace {

constexpr std::size_t mostLoopsForIslands = 400;
constexpr std::size_t mostPatternLines = 500;
constexpr std::size_t mostGradientColours = 64;

/// A place in the tags that moves forward.
class Cursor
{
public:
    explicit Cursor(const TagList &tags) : m_tags(tags) {}

    bool atEnd() const { return m_at >= m_tags.size() || m_tags[m_at].code >= 1000; }
    int code() const { return atEnd() ? -1 : m_tags[m_at].code; }
    void next() { ++m_at; }
    void seek(std::size_t at) { m_at = at; }
    std::size_t position() const { return m_at; }

    double takeReal() { return m_tags[m_at++].real().value_or(0.0); }
    qint64 takeInteger() { return m_tags[m_at++].integer().value_or(0); }
    Vec3 takePoint()
    {
        std::size_t behind = m_at + 1;
        const Vec3 point = m_tags.pointAt(m_at, &behind);
        m_at = std::max(behind, m_at + 1);
        return point;
    }
    /// The value when the next tag has this code, else `otherwise` and nothing is taken.
    double realIf(int wanted, double otherwise = 0.0) { return code() == wanted ? takeReal() : otherwise; }
    qint64 integerIf(int wanted, qint64 otherwise = 0) { return code() == wanted ? takeInteger() : otherwise; }
    Vec3 pointIf(int wanted) { return code() == wanted ? takePoint() : Vec3{}; }

private:
    const TagList &m_tags;
    std::size_t m_at = 0;
};

class BoundaryReader
{
public:
    BoundaryReader(const TagList &tags, drawing::WorkBudget &work) : m_tags(tags), m_work(work), m_cursor(tags) {}

    HatchData read()
    {
        HatchData hatch;
        hatch.extrusion = m_tags.point(210, {0.0, 0.0, 1.0});
        // The first point of the record says the elevation; boundaries follow behind the number of paths.
        while (!m_cursor.atEnd() && m_cursor.code() != 91) {
            if (m_cursor.code() == 10)
                m_elevation = m_cursor.takePoint().z;
            else if (m_cursor.code() == 70)
                hatch.isSolid = m_cursor.takeInteger() == 1;
            else
                m_cursor.next();
        }
        while (!m_cursor.atEnd() && m_cursor.code() != 75) {
            if (m_cursor.code() == 92)
                readLoop(hatch);
            else
                m_cursor.next();
        }
        readStyle(hatch);
        return hatch;
    }

private:
    void readLoop(HatchData &hatch)
    {
        constexpr qint64 isPolyline = 2;
        Curve loop;
        if ((m_cursor.takeInteger() & isPolyline) != 0)
            loop = readPolyline();
        else
            loop = readEdges();
        if (loop.points.size() < 2 || !std::ranges::all_of(loop.points, [](const Vec3 &p) { return isUsable(p); }))
            return;
        if (!(loop.points.front() == loop.points.back()))
            loop.points.push_back(loop.points.front());
        hatch.loops.push_back(std::move(loop));
    }

    Curve readPolyline()
    {
        std::vector<PolylineVertex> vertices;
        m_cursor.integerIf(72);
        m_cursor.integerIf(73, 1);
        m_cursor.integerIf(93);
        while (m_cursor.code() == 10) {
            Vec3 at = m_cursor.takePoint();
            at.z = m_elevation;
            vertices.push_back({.at = at, .bulge = m_cursor.realIf(42)});
        }
        const bool isUsableBulge = std::ranges::all_of(vertices, [](const auto &v) { return isUsable(v.bulge); });
        return isUsableBulge ? polylineCurve(vertices, true, {}) : Curve{};
    }

    Curve readEdges()
    {
        Curve loop;
        m_cursor.integerIf(93);
        while (m_cursor.code() == 72) {
            const qint64 type = m_cursor.takeInteger();
            if (type == 1)
                readLineEdge(loop);
            else if (type == 2)
                readArcEdge(loop);
            else if (type == 3)
                readEllipseEdge(loop);
            else if (type == 4)
                readSplineEdge(loop);
        }
        return loop;
    }

    void appendPoint(Curve &loop, const Vec3 &point)
    {
        if (loop.points.empty() || !(loop.points.back() == point))
            loop.points.push_back(point);
    }

    void readLineEdge(Curve &loop)
    {
        appendPoint(loop, raised(m_cursor.pointIf(10)));
        appendPoint(loop, raised(m_cursor.pointIf(11)));
    }

    void appendArc(Curve &loop, ArcSpan arc)
    {
        if (!isUsable(arc.center) || !isUsable(arc.xAxis) || !isUsable(arc.yAxis) || !isUsable(arc.start) ||
            !isUsable(arc.sweep)) {
            return;
        }
        appendPoint(loop, arc.point(arc.start));
        arc.segment = loop.points.size() - 1;
        loop.arcs.push_back(arc);
        loop.points.push_back(arc.point(arc.start + arc.sweep));
    }

    /// Angles of a clockwise arc are counted clockwise as well. They are directions, of ellipses too: `ratio` makes
    /// them parameters.
    void readSweep(ArcSpan &arc, double ratio = 1.0)
    {
        const double start = drawing::ellipseParameter(m_cursor.realIf(50) * radians, ratio);
        double sweep = drawing::ellipseParameter(m_cursor.realIf(51) * radians, ratio) - start;
        const bool isCounterClockwise = m_cursor.integerIf(73, 1) != 0;
        constexpr double turn = 2.0 * std::numbers::pi;
        if (!(std::abs(sweep) <= turn + 1e-9))
            sweep = std::fmod(sweep, turn);
        if (sweep <= 0.0)
            sweep += turn;
        arc.start = isCounterClockwise ? start : -start;
        arc.sweep = isCounterClockwise ? sweep : -sweep;
    }

    void readArcEdge(Curve &loop)
    {
        ArcSpan arc{.center = raised(m_cursor.pointIf(10))};
        const double radius = std::abs(m_cursor.realIf(40));
        arc.xAxis = {radius, 0.0, 0.0};
        arc.yAxis = {0.0, radius, 0.0};
        readSweep(arc);
        appendArc(loop, arc);
    }

    void readEllipseEdge(Curve &loop)
    {
        ArcSpan arc{.center = raised(m_cursor.pointIf(10)), .xAxis = m_cursor.pointIf(11)};
        const double ratio = m_cursor.realIf(40, 1.0);
        arc.xAxis.z = 0.0;
        arc.yAxis = Vec3{-arc.xAxis.y, arc.xAxis.x, 0.0} * ratio;
        readSweep(arc, ratio);
        appendArc(loop, arc);
    }

    void readSplineEdge(Curve &loop)
    {
        drawing::Spline spline;
        spline.degree = static_cast<int>(std::clamp<qint64>(m_cursor.integerIf(94, 3), 1, 25));
        while (!m_cursor.atEnd() && m_cursor.code() != 72 && m_cursor.code() != 97) {
            if (m_cursor.code() == 40)
                spline.knots.push_back(m_cursor.takeReal());
            else if (m_cursor.code() == 10)
                spline.controlPoints.push_back(raised(m_cursor.takePoint()));
            else if (m_cursor.code() == 42)
                spline.weights.push_back(m_cursor.takeReal());
            else
                m_cursor.next();
        }
        skipFitData(spline);
        const auto own = static_cast<std::int64_t>(spline.controlPoints.size() + spline.fitPoints.size());
        const auto pieces = static_cast<int>(std::clamp<std::int64_t>(m_work.left() + own, 1, 1000));
        const Path path = drawing::splinePath(spline, {.maximumAngle = 0.05, .maximumPieces = pieces});
        m_work.charge(static_cast<std::int64_t>(path.size()) - own);
        std::ranges::for_each(path, [&](const Vec3 &point) { appendPoint(loop, point); });
    }

    /// The code that counts fit points also counts the boundary's source objects: only points behind it tell which.
    void skipFitData(drawing::Spline &spline)
    {
        const std::size_t mark = m_cursor.position();
        if (m_cursor.code() != 97)
            return;
        m_cursor.next();
        if (m_cursor.code() == 330 || m_cursor.code() == 92 || m_cursor.code() == 75) {
            m_cursor.seek(mark);
            return;
        }
        while (m_cursor.code() >= 11 && m_cursor.code() <= 13) {
            const bool isFitPoint = m_cursor.code() == 11;
            const Vec3 point = raised(m_cursor.takePoint());
            if (isFitPoint)
                spline.fitPoints.push_back(point);
        }
    }

    void readStyle(HatchData &hatch)
    {
        while (!m_cursor.atEnd()) {
            switch (m_cursor.code()) {
            case 75:
                hatch.islands = static_cast<HatchData::Islands>(std::clamp<qint64>(m_cursor.takeInteger(), 0, 2));
                break;
            case 53:
                readPatternLine(hatch);
                break;
            default:
                readGradient(hatch.gradient);
            }
        }
    }

    void readGradient(HatchGradientData &gradient)
    {
        auto &colours = gradient.colours;
        switch (m_cursor.code()) {
        case 450:
            gradient.isOn = m_cursor.takeInteger() != 0;
            break;
        case 460:
            gradient.angle = m_cursor.takeReal();
            break;
        case 461:
            gradient.shift = m_cursor.takeReal();
            break;
        case 462:
            gradient.tint = m_cursor.takeReal();
            break;
        case 463:
            if (const double at = m_cursor.takeReal(); colours.size() < mostGradientColours)
                colours.push_back({.at = std::clamp(at, 0.0, 1.0)});
            break;
        case 63:
            if (const qint64 index = m_cursor.takeInteger(); !colours.empty())
                colours.back().colour =
                    aciColor(static_cast<int>(std::clamp<qint64>(index, 1, 255)), Ground::Black).rgb();
            break;
        case 421:
            if (const qint64 colour = m_cursor.takeInteger(); !colours.empty())
                colours.back().colour = static_cast<std::uint32_t>(colour & 0xffffff);
            break;
        case 470:
            gradient.name = m_tags.decoded(m_tags[m_cursor.position()]);
            m_cursor.next();
            break;
        default:
            m_cursor.next();
        }
    }

    void readPatternLine(HatchData &hatch)
    {
        PatternLine line{.angle = m_cursor.takeReal() * radians};
        line.base.x = m_cursor.realIf(43);
        line.base.y = m_cursor.realIf(44);
        line.offset.x = m_cursor.realIf(45);
        line.offset.y = m_cursor.realIf(46);
        m_cursor.integerIf(79);
        while (m_cursor.code() == 49)
            line.dashes.push_back(m_cursor.takeReal());
        if (hatch.lines.size() < mostPatternLines)
            hatch.lines.push_back(std::move(line));
    }

    Vec3 raised(Vec3 point) const
    {
        point.z = m_elevation;
        return point;
    }

    const TagList &m_tags;
    drawing::WorkBudget &m_work;
    Cursor m_cursor;
    double m_elevation = 0.0;
};

bool contains(const Path &polygon, const Vec3 &p)
{
    bool isInside = false;
    for (std::size_t i = 0, j = polygon.size() - 1; i < polygon.size(); j = i++) {
        const Vec3 &a = polygon[i];
        const Vec3 &b = polygon[j];
        if ((a.y > p.y) != (b.y > p.y) && p.x < (b.x - a.x) * (p.y - a.y) / (b.y - a.y) + a.x)
            isInside = !isInside;
    }
    return isInside;
}

} // namespace

HatchData readHatch(const TagList &tags, drawing::WorkBudget &work)
{
    return BoundaryReader(tags, work).read();
}

void applyIslands(HatchData &hatch)
{
    if (hatch.islands == HatchData::Islands::Normal || hatch.loops.size() > mostLoopsForIslands)
        return;
    std::vector<int> depth(hatch.loops.size(), 0);
    std::vector<Box> boxes(hatch.loops.size());
    for (std::size_t i = 0; i < hatch.loops.size(); ++i)
        std::ranges::for_each(hatch.loops[i].points, [&](const Vec3 &p) { boxes[i].add(p); });
    for (std::size_t i = 0; i < hatch.loops.size(); ++i) {
        for (std::size_t j = 0; j < hatch.loops.size(); ++j) {
            // Any corner tells, as long as loops do not cross; the middle of the first side is rarely shared.
            const Vec3 probe = (hatch.loops[i].points[0] + hatch.loops[i].points[1]) * 0.5;
            const bool mayLieWithin = i != j && boxes[j].touchesFlat({probe, probe});
            depth[i] += mayLieWithin && contains(hatch.loops[j].points, probe) ? 1 : 0;
        }
    }
    const int deepestKept = hatch.islands == HatchData::Islands::Outer ? 1 : 0;
    std::vector<Curve> kept;
    for (std::size_t i = 0; i < hatch.loops.size(); ++i) {
        if (depth[i] <= deepestKept)
            kept.push_back(std::move(hatch.loops[i]));
    }
    hatch.loops = std::move(kept);
}

} // namespace host::view
