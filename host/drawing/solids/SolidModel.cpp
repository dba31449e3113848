#include "host/drawing/solids/SolidModel.h"

#include "host/drawing/curves/EntityCurve.h"
#include "host/drawing/solids/RegionRecord.h"
#include "host/drawing/solids/SolidText.h"

#include <map>
#include <numbers>

namespace host::drawing {

namespace {

using Words = SolidRecords::Words;

bool isFiniteInModel(const Vec3 &point)
{
    return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
}

bool isFiniteInModel(const CurvePiece &piece)
{
    const Box box = piece.box();
    return isFiniteInModel(box.low) && isFiniteInModel(box.high) && isFiniteInModel(piece.startPoint()) &&
           isFiniteInModel(piece.endPoint());
}

/// The words behind the one that says of which form a spline is: degree, closure, the knots with how often each is
/// there, and the points.
class SplineWords
{
public:
    SplineWords(const Words &words, std::size_t at) : m_words(words), m_at(at) {}

    std::optional<Spline> read(bool isRational)
    {
        constexpr double largestDegree = Spline::highestDegree;
        const double degree = next();
        ++m_at; // open or closed, which the points say too
        const double different = next();
        if (!(degree >= 1.0 && degree <= largestDegree) || !(different >= 2.0 && different < double(m_words.size())))
            return std::nullopt;
        Spline spline;
        spline.degree = static_cast<int>(degree);
        for (int i = 0; i < static_cast<int>(different); ++i) {
            const double knot = next();
            addKnot(spline, knot, next(), i == 0 || i + 1 == static_cast<int>(different));
        }
        const auto points = static_cast<qint64>(spline.knots.size()) - spline.degree - 1;
        for (qint64 i = 0; i < points && m_isSound; ++i) {
            const double x = next();
            const double y = next();
            spline.controlPoints.push_back({x, y, next()});
            if (isRational)
                spline.weights.push_back(next());
        }
        const bool isPositive = std::ranges::all_of(spline.weights, [](double weight) { return weight > 0.0; });
        return m_isSound && spline.isValid() && isPositive ? std::optional(spline) : std::nullopt;
    }

private:
    /// At both ends once more than the text says.
    void addKnot(Spline &spline, double knot, double times, bool isEnd)
    {
        m_isSound = m_isSound && times >= 1.0 && times <= spline.degree + 1.0;
        if (m_isSound)
            spline.knots.insert(spline.knots.end(), static_cast<std::size_t>(times) + (isEnd ? 1 : 0), knot);
    }

    double next()
    {
        const auto value = m_at < m_words.size() ? SolidRecords::number(m_words[m_at]) : std::nullopt;
        ++m_at;
        m_isSound = m_isSound && value;
        return value.value_or(0.0);
    }

    const Words &m_words;
    std::size_t m_at;
    bool m_isSound = true;
};

class SolidReader
{
public:
    explicit SolidReader(const SolidRecords &records) : m_records(records) {}

    SolidModel read()
    {
        m_placement = solidPlacement(m_records);
        for (const Words &record : m_records.all()) {
            const std::string_view kind = SolidRecords::kindOf(record);
            m_model.isWhole &= !kind.ends_with("-surface") || kind == "plane-surface";
            if (kind == "edge")
                addEdge(record);
        }
        for (const Words &record : m_records.all())
            if (SolidRecords::kindOf(record) == "loop")
                addLoop(record);
        return std::move(m_model);
    }

private:
    std::optional<Vec3> pointOf(const Words &vertex) const
    {
        const auto points = m_records.referred(vertex, "point");
        const std::vector<double> n = points.empty() ? std::vector<double>() : SolidRecords::numbersOf(*points.front());
        return n.size() == 3 ? std::optional(Vec3{n[0], n[1], n[2]}) : std::nullopt;
    }

    void addEdge(const Words &edge)
    {
        const auto vertices = m_records.referred(edge, "vertex");
        const auto curves = m_records.referred(edge, "-curve");
        const auto from = vertices.empty() ? std::nullopt : pointOf(*vertices.front());
        const auto to = vertices.empty() ? std::nullopt : pointOf(*vertices.back());
        if (curves.empty() && from && to && *from == *to)
            return; // the tip of a cone is an edge without a curve
        SolidEdge pieces;
        if (!curves.empty() && from && to)
            pieces = piecesOf(edge, *curves.front(), *from, *to);
        for (CurvePiece &piece : pieces)
            piece = piece.transformed(m_placement);
        const bool isSound =
            !pieces.empty() && std::ranges::all_of(pieces, [](const auto &p) { return isFiniteInModel(p); });
        m_model.isWhole &= isSound;
        if (!isSound)
            return;
        m_edges[&edge] = m_model.edges.size();
        m_model.edges.push_back(std::move(pieces));
    }

    static SolidEdge piecesOf(const Words &edge, const Words &curve, const Vec3 &from, const Vec3 &to)
    {
        const std::string_view kind = SolidRecords::kindOf(curve);
        if (kind == "straight-curve")
            return {CurvePiece::straight(from, to, 0.0, 1.0)};
        if (kind == "ellipse-curve")
            return ellipse(edge, SolidRecords::numbersOf(curve), from, to);
        return kind == "intcurve-curve" ? spans(edge, curve, from, to) : SolidEdge();
    }

    /// The last word that says a sense: of an edge it is its own.
    static bool isReversed(const Words &edge)
    {
        const auto last = std::ranges::find_if(
            edge.rbegin(), edge.rend(), [](std::string_view word) { return SolidRecords::sense(word).has_value(); });
        return last != edge.rend() && *SolidRecords::sense(*last);
    }

    /// Center, normal, longer axis and the ratio of the axes; from one point of it to the other, or all round.
    static SolidEdge ellipse(const Words &edge, const std::vector<double> &n, const Vec3 &from, const Vec3 &to)
    {
        if (n.size() < 10)
            return {};
        const Vec3 center{n[0], n[1], n[2]};
        const Vec3 xAxis{n[6], n[7], n[8]};
        const Vec3 normal = normalized(Vec3{n[3], n[4], n[5]}) * (isReversed(edge) ? -1.0 : 1.0);
        const Vec3 yAxis = cross(normal, xAxis) * n[9];
        const auto angleOf = [&](const Vec3 &point) {
            const Vec3 arm = point - center;
            return std::atan2(dot(arm, yAxis) / dot(yAxis, yAxis), dot(arm, xAxis) / dot(xAxis, xAxis));
        };
        const double start = angleOf(from);
        double sweep = angleOf(to) - start;
        if (from == to || sweep <= 0.0)
            sweep += 2.0 * std::numbers::pi;
        return {CurvePiece::round(center, xAxis, yAxis, start, start + sweep, 0.0, 1.0)};
    }

    /// A spline that is said exactly; other curves between bent faces are not known.
    static SolidEdge spans(const Words &edge, const Words &curve, const Vec3 &from, const Vec3 &to)
    {
        const auto form = std::ranges::find_if(curve, [](std::string_view w) { return w == "nubs" || w == "nurbs"; });
        const auto brace = std::ranges::find(curve, "{");
        if (std::ranges::find(curve, "exactcur") == curve.end() || form == curve.end() || brace == curve.begin())
            return {};
        auto spline = SplineWords(curve, static_cast<std::size_t>(form - curve.begin()) + 1).read(*form == "nurbs");
        if (!spline)
            return {};
        const bool isTurned = SolidRecords::sense(*(brace - 1)).value_or(false) != isReversed(edge);
        if (isTurned)
            spline = reversedSpline(*spline);
        const EntityCurve whole = EntityCurve::spline(*spline);
        const double start = whole.closest(from);
        const double end = whole.closest(to);
        if (from != to && start < end)
            spline = splineSection(*spline, start, end);
        SolidEdge pieces;
        for (BezierSpan &span : bezierSpans(*spline))
            pieces.push_back(CurvePiece::polynomial(std::move(span)));
        return pieces;
    }

    /// From edge to edge until it is round.
    void addLoop(const Words &loop)
    {
        const auto firsts = m_records.referred(loop, "coedge");
        std::vector<SolidModel::Side> sides;
        const Words *side = firsts.empty() ? nullptr : firsts.front();
        for (std::size_t steps = 0; side && steps <= m_records.all().size(); ++steps) {
            const auto number = m_edges.find(edgeOf(*side));
            if (number == m_edges.end())
                return;
            sides.push_back({number->second, isSideReversed(*side)});
            const auto next = m_records.referred(*side, "coedge");
            side = next.empty() || next.front() == firsts.front() ? nullptr : next.front();
        }
        if (!side && !sides.empty())
            m_model.loops.push_back(std::move(sides));
    }

    const Words *edgeOf(const Words &side) const
    {
        const auto edges = m_records.referred(side, "edge");
        return edges.empty() ? nullptr : edges.front();
    }

    /// The sense stands behind the edge that it is of.
    bool isSideReversed(const Words &side) const
    {
        const Words *edge = edgeOf(side);
        for (std::size_t i = 0; i + 1 < side.size(); ++i) {
            const auto at = SolidRecords::place(side[i]);
            if (at && *at < m_records.all().size() && &m_records.all()[*at] == edge)
                return SolidRecords::sense(side[i + 1]).value_or(false);
        }
        return false;
    }

    const SolidRecords &m_records;
    Matrix m_placement;
    std::map<const Words *, std::size_t> m_edges;
    SolidModel m_model;
};

} // namespace

Matrix solidPlacement(const SolidRecords &records)
{
    const Words *body = records.first("body");
    const auto transforms = body ? records.referred(*body, "transform") : std::vector<const Words *>();
    const std::vector<double> n =
        transforms.empty() ? std::vector<double>() : SolidRecords::numbersOf(*transforms.front());
    constexpr std::size_t count = 13;
    if (n.size() < count)
        return {};
    // Later versions have a number of theirs in front, earlier ones three digits behind.
    const std::size_t begin = n.size() == count + 1 ? 1 : 0;
    const auto row = [&n, begin](std::size_t i) { return Vec3{n[begin + i], n[begin + i + 1], n[begin + i + 2]}; };
    const double scale = n[begin + 12];
    return {row(0) * scale, row(3) * scale, row(6) * scale, row(9)};
}

SolidModel readSolidModel(const TagList &tags)
{
    const SolidRecords records(solidText(tags));
    return SolidReader(records).read();
}

Path piecePath(const CurvePiece &piece, const Flatness &flatness)
{
    if (piece.shape() == CurvePiece::Shape::Straight)
        return {piece.startPoint(), piece.endPoint()};
    if (piece.shape() == CurvePiece::Shape::Polynomial)
        return splinePath(splineOfSpans({piece.span()}), flatness);
    const double from = piece.angleAt(piece.start());
    const double to = piece.angleAt(piece.end());
    const double radius = std::max({piece.xAxis().length(), piece.yAxis().length(), 1e-300});
    Path path = arcPath({}, radius, std::min(from, to), std::max(from, to), flatness);
    for (Vec3 &point : path)
        point = piece.center() + piece.xAxis() * (point.x / radius) + piece.yAxis() * (point.y / radius);
    if (from > to)
        std::ranges::reverse(path);
    return path;
}

std::optional<RegionMeasures> measureRegion(const SolidModel &region)
{
    if (!region.isWhole || region.loops.empty())
        return std::nullopt;
    const Vec3 origin = region.edges.front().front().startPoint();
    RegionMeasures measures;
    Vec3 swept;
    for (const auto &loop : region.loops) {
        for (const SolidModel::Side &side : loop) {
            for (const CurvePiece &piece : region.edges[side.edge]) {
                swept = swept + piece.sweptArea(origin) * (side.isReversed ? -1.0 : 1.0);
                measures.perimeter += piece.length();
            }
        }
    }
    measures.area = swept.length() / 2.0;
    return measures;
}

} // namespace host::drawing
