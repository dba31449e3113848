#include "host/view/build/HatchLines.h"

#include "host/view/display/CurveTrace.h"

namespace host::view {

namespace {

/// The loops as straight edges.
struct Edge
{
    Vec2 from{};
    Vec2 to{};
};

struct Crossing
{
    std::int64_t line = 0; ///< number of the pattern line
    double along = 0.0;    ///< where on it
    bool operator<(const Crossing &other) const { return line != other.line ? line < other.line : along < other.along; }
};

/// Arcs of hatch boundaries are divided as if the whole hatch were this many pixels wide.
constexpr double boundarySize = 2000.0;
constexpr std::int64_t mostLineNumber = std::int64_t{1} << 52;
constexpr std::int64_t unitsOfPiece = 4;
constexpr std::int64_t edgesOfUnit = 32;

std::vector<Edge> boundaryEdges(const std::vector<Curve> &loops, drawing::WorkBudget &work)
{
    Box box;
    for (const Curve &loop : loops)
        std::ranges::for_each(loop.points, [&](const Vec3 &p) { box.add(p); });
    const double size = std::max({box.high.x - box.low.x, box.high.y - box.low.y, 1e-9});
    const Matrix enlarged = Matrix::scaling({boundarySize / size, boundarySize / size, 1.0}, box.low);
    const Matrix back = enlarged.inverted();
    const std::optional<QRectF> wholePlane;
    CurveTracer tracer(enlarged, wholePlane, work);
    std::vector<Edge> edges;
    Track track;
    for (const Curve &loop : loops) {
        tracer.trace(loop, track);
        for (std::size_t i = 1; i < track.points.size(); ++i) {
            const Vec3 from = back.point({track.points[i - 1].x(), track.points[i - 1].y(), 0.0});
            const Vec3 to = back.point({track.points[i].x(), track.points[i].y(), 0.0});
            edges.push_back({from.xy(), to.xy()});
        }
    }
    return edges;
}

/// One line family: where its lines cross the boundary, and the dashes between.
class LineFamily
{
public:
    LineFamily(const PatternLine &line, double elevation)
        : m_line(line), m_along{std::cos(line.angle), std::sin(line.angle)}, m_across{-m_along.y, m_along.x},
          m_spacing(dot(line.offset, m_across)), m_shift(dot(line.offset, m_along)), m_elevation(elevation)
    {
        for (const double dash : line.dashes)
            m_period += std::abs(dash);
    }

    /// False when there would be more than `left` pieces.
    bool run(const std::vector<Edge> &edges, std::int64_t &left, Segments &pieces)
    {
        if (!std::isfinite(m_spacing) || !std::isfinite(m_period) || !(std::abs(m_spacing) > 0.0))
            return true; // all lines on one another: nothing that could be seen as a pattern
        if (!isBelow(2 * left, edges))
            return false;
        std::vector<Crossing> crossings;
        for (const Edge &edge : edges)
            cross(edge, crossings);
        std::sort(crossings.begin(), crossings.end());
        for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
            // Crossings come in pairs on each line; a lone one is a touch within rounding.
            if (crossings[i].line != crossings[i + 1].line) {
                --i;
                continue;
            }
            if (!fill(crossings[i].line, crossings[i].along, crossings[i + 1].along, left, pieces))
                return false;
        }
        return true;
    }

private:
    /// Where an edge lies among the lines, in their numbers.
    struct Span
    {
        double from = 0.0;
        double to = 0.0;
        // Half-open, so that a corner counts for one of its two edges.
        double first() const { return std::ceil(std::min(from, to)); }
        double last() const { return std::ceil(std::max(from, to)); }
    };

    Span spanOf(const Edge &edge) const
    {
        return {dot(edge.from - m_line.base, m_across) / m_spacing, dot(edge.to - m_line.base, m_across) / m_spacing};
    }

    /// Whether the lines cross the edges no more often than `most` times.
    bool isBelow(std::int64_t most, const std::vector<Edge> &edges) const
    {
        double crossings = 0.0;
        for (const Edge &edge : edges) {
            const Span span = spanOf(edge);
            if (!(std::abs(span.first()) < static_cast<double>(mostLineNumber)))
                return false;
            crossings += span.last() - span.first();
        }
        return crossings <= static_cast<double>(most);
    }

    void cross(const Edge &edge, std::vector<Crossing> &crossings) const
    {
        const Span span = spanOf(edge);
        for (double number = span.first(); number < span.last(); number += 1.0) {
            const Vec2 at = edge.from + (edge.to - edge.from) * ((number - span.from) / (span.to - span.from));
            crossings.push_back({static_cast<std::int64_t>(number), dot(at - m_line.base, m_along) - m_shift * number});
        }
    }

    bool fill(std::int64_t number, double from, double to, std::int64_t &left, Segments &pieces) const
    {
        if (!(m_period > 0.0)) {
            addPiece(number, from, to, pieces);
            return --left > 0;
        }
        const double cycles = (to - from) / m_period * static_cast<double>(m_line.dashes.size());
        if (!(cycles < static_cast<double>(left)))
            return false;
        for (double start = std::floor(from / m_period) * m_period; start < to; start += m_period) {
            double at = start;
            for (const double dash : m_line.dashes) {
                const double end = at + std::abs(dash);
                if (dash > 0.0 && end > from && at < to)
                    addPiece(number, std::max(at, from), std::min(end, to), pieces);
                else if (dash == 0.0 && at >= from && at <= to)
                    pieces.dots.push_back(place(number, at));
                at = end;
                --left;
            }
            if (left <= 0 || start + m_period <= start)
                return false;
        }
        return true;
    }

    Vec3 place(std::int64_t number, double along) const
    {
        const double n = static_cast<double>(number);
        const Vec2 at = m_line.base + m_line.offset * n + m_along * along;
        return {at.x, at.y, m_elevation};
    }

    void addPiece(std::int64_t number, double from, double to, Segments &pieces) const
    {
        pieces.ends.push_back(place(number, from));
        pieces.ends.push_back(place(number, to));
    }

    const PatternLine &m_line;
    Vec2 m_along;
    Vec2 m_across;
    double m_spacing;
    double m_shift;
    double m_elevation;
    double m_period = 0.0;
};

} // namespace

HatchLines hatchLines(const HatchData &hatch, std::int64_t mostPieces, drawing::WorkBudget &work)
{
    HatchLines made;
    if (hatch.loops.empty())
        return made;
    const std::vector<Edge> edges = boundaryEdges(hatch.loops, work);
    const auto looks = static_cast<std::int64_t>(edges.size() * hatch.lines.size()) / edgesOfUnit;
    std::int64_t left = work.take(looks) ? std::min(mostPieces, work.left() / unitsOfPiece) : 0;
    const std::int64_t allowed = left;
    for (const PatternLine &line : hatch.lines) {
        LineFamily family(line, hatch.loops.front().points.front().z);
        made.isTooDense = left <= 0 || !family.run(edges, left, made.pieces);
        if (made.isTooDense) {
            made.pieces = {};
            break;
        }
    }
    work.charge((allowed - std::max<std::int64_t>(left, 0)) * unitsOfPiece);
    return made;
}

} // namespace host::view
