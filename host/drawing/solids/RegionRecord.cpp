#include "host/drawing/solids/RegionRecord.h"

#include "host/drawing/solids/SolidText.h"

#include <charconv>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

std::string modelText(double value)
{
    char digits[32];
    const auto result = std::to_chars(std::begin(digits), std::end(digits), value == 0.0 ? 0.0 : value);
    return {digits, result.ptr};
}

std::string modelText(const Vec3 &point)
{
    return modelText(point.x) + ' ' + modelText(point.y) + ' ' + modelText(point.z);
}

Vec3 edgeBegin(const RegionEdge &edge)
{
    return edge.isReversed ? edge.pieces.back().endPoint() : edge.pieces.front().startPoint();
}

/// The loop in the direction that has the area to its left, or to its right.
RegionLoop turnedLoop(RegionLoop loop, const Vec3 &normal, bool isHole)
{
    Vec3 swept;
    for (const RegionEdge &edge : loop)
        for (const CurvePiece &piece : edge.pieces)
            swept = swept + piece.sweptArea(edgeBegin(loop.front())) * (edge.isReversed ? -1.0 : 1.0);
    if ((dot(swept, normal) < 0.0) == isHole)
        return loop;
    std::ranges::reverse(loop);
    for (RegionEdge &edge : loop)
        edge.isReversed = !edge.isReversed;
    return loop;
}

/// Writes the records of a model; each has its place from the moment that others refer to it.
class RegionWriter
{
public:
    RegionWriter(const Vec3 &normal, Version version) : m_normal(normal), m_isEarly(version < Version::R2000) {}

    std::string write(const std::vector<RegionFace> &faces)
    {
        const std::size_t body = reserve();
        const std::size_t lump = reserve();
        m_shell = reserve();
        set(body, "body $-1 " + to(lump) + " $-1 $-1");
        set(lump, "lump $-1 $-1 " + to(m_shell) + ' ' + to(body));
        std::vector<std::size_t> places;
        for (std::size_t i = 0; i < faces.size(); ++i)
            places.push_back(reserve());
        set(m_shell, "shell $-1 $-1 $-1 " + to(places.front()) + (m_isEarly ? " " : " $-1 ") + to(lump));
        for (std::size_t i = 0; i < faces.size(); ++i)
            addFace(faces[i], places[i], i + 1 < faces.size() ? to(places[i + 1]) : "$-1");
        return head() + records();
    }

private:
    std::size_t reserve()
    {
        m_records.emplace_back();
        return m_records.size() - 1;
    }
    void set(std::size_t place, std::string text) { m_records[place] = std::move(text); }
    std::size_t add(std::string text)
    {
        m_records.push_back(std::move(text));
        return m_records.size() - 1;
    }
    static std::string to(std::size_t place) { return '$' + std::to_string(place); }
    std::string sense(bool isReversed) const
    {
        return m_isEarly ? (isReversed ? "1" : "0") : (isReversed ? "reversed" : "forward");
    }
    /// Where a curve or surface has no ends.
    std::string openEnds(int count) const
    {
        std::string ends;
        for (int i = 0; i < count; ++i)
            ends += m_isEarly ? " 0" : " I";
        return ends;
    }

    std::string head() const
    {
        const std::string count = std::to_string(m_records.size());
        if (m_isEarly)
            return "106 " + count + " 1 0\n";
        return "400 " + count +
               " 1 0\n7 Ortakit 8 ACIS 4.0 24 Thu Jan 01 00:00:00 1970\n1 9.9999999999999995e-007 1e-010\n";
    }
    std::string records() const
    {
        std::string text;
        for (const std::string &record : m_records)
            text += record + " #\n";
        return text + "End-of-ACIS-data";
    }

    void addFace(const RegionFace &face, std::size_t place, const std::string &next)
    {
        std::vector<std::size_t> loops;
        for (std::size_t i = 0; i < face.size(); ++i)
            loops.push_back(reserve());
        const Vec3 along = normalized(Matrix::fromExtrusion(m_normal).xAxis);
        const std::size_t surface =
            add("plane-surface $-1 " + modelText(edgeBegin(face.front().front())) + ' ' + modelText(m_normal) + ' ' +
                modelText(along) + (m_isEarly ? " 0" : " forward_v") + openEnds(4));
        set(place, "face $-1 " + next + ' ' + to(loops.front()) + ' ' + to(m_shell) + " $-1 " + to(surface) +
                       (m_isEarly ? " 0 1 0" : " forward double out"));
        for (std::size_t i = 0; i < face.size(); ++i)
            addLoop(turnedLoop(face[i], m_normal, i > 0), loops[i], i + 1 < face.size() ? to(loops[i + 1]) : "$-1",
                    place);
    }

    void addLoop(const RegionLoop &loop, std::size_t place, const std::string &next, std::size_t face)
    {
        const std::size_t count = loop.size();
        std::vector<std::size_t> sides;
        std::vector<std::size_t> edges;
        std::vector<std::size_t> vertices;
        for (std::size_t i = 0; i < count; ++i) {
            sides.push_back(reserve());
            edges.push_back(reserve());
            vertices.push_back(reserve());
        }
        set(place, "loop $-1 " + next + ' ' + to(sides.front()) + ' ' + to(face));
        for (std::size_t i = 0; i < count; ++i) {
            const RegionEdge &edge = loop[i];
            const std::size_t behind = (i + 1) % count;
            set(sides[i], "coedge $-1 " + to(sides[behind]) + ' ' + to(sides[(i + count - 1) % count]) + " $-1 " +
                              to(edges[i]) + ' ' + sense(edge.isReversed) + ' ' + to(place) + " $-1");
            const std::size_t curve = add(curveText(edge));
            const std::size_t from = vertices[edge.isReversed ? behind : i];
            const std::size_t end = vertices[edge.isReversed ? i : behind];
            set(edges[i],
                "edge $-1 " + to(from) + ' ' + to(end) + ' ' + to(sides[i]) + ' ' + to(curve) + ' ' + sense(false));
            const std::size_t point = add("point $-1 " + modelText(edgeBegin(edge)));
            set(vertices[i], "vertex $-1 " + to(edges[i]) + ' ' + to(point));
        }
    }

    std::string curveText(const RegionEdge &edge) const
    {
        const CurvePiece &piece = edge.pieces.front();
        switch (piece.shape()) {
        case CurvePiece::Shape::Straight:
            return "straight-curve $-1 " + modelText(piece.startPoint()) + ' ' +
                   modelText(normalized(piece.endPoint() - piece.startPoint())) + openEnds(2);
        case CurvePiece::Shape::Round: {
            const EllipseAxes axes = ellipseAxes(piece);
            return "ellipse-curve $-1 " + modelText(piece.center()) + ' ' +
                   modelText(normalized(cross(axes.major, axes.minor))) + ' ' + modelText(axes.major) + ' ' +
                   modelText(axes.minor.length() / axes.major.length()) + openEnds(2);
        }
        case CurvePiece::Shape::Polynomial:
            break;
        }
        return splineText(splineOfPieces(edge.pieces));
    }

    /// Knots come once with their number, at both ends once less than splines have them.
    std::string splineText(const Spline &spline) const
    {
        std::string knots;
        std::size_t different = 0;
        for (std::size_t i = 0; i < spline.knots.size();) {
            std::size_t behind = i;
            while (behind < spline.knots.size() && spline.knots[behind] == spline.knots[i])
                ++behind;
            const bool isEnd = i == 0 || behind == spline.knots.size();
            knots += ' ' + modelText(spline.knots[i]) + ' ' + std::to_string(behind - i - (isEnd ? 1 : 0));
            ++different;
            i = behind;
        }
        std::string text = "intcurve-curve $-1 " + sense(false) + " { exactcur " +
                           (spline.weights.empty() ? "nubs " : "nurbs ") + std::to_string(spline.degree) +
                           (m_isEarly ? " 0 " : " open ") + std::to_string(different) + knots;
        for (std::size_t i = 0; i < spline.controlPoints.size(); ++i) {
            text += ' ' + modelText(spline.controlPoints[i]);
            if (!spline.weights.empty())
                text += ' ' + modelText(spline.weights[i]);
        }
        text += " 0 null_surface null_surface nullbs nullbs";
        return text + (m_isEarly ? "" : " I I 0") + " }" + openEnds(2);
    }

    Vec3 m_normal;
    bool m_isEarly;
    std::size_t m_shell = 0;
    std::vector<std::string> m_records;
};

} // namespace

FieldList regionRecord(const std::vector<RegionFace> &faces, const Vec3 &normal, Version version)
{
    FieldList fields = {{0, u"REGION"_s}, {70, qint64(1)}};
    const FieldList text = solidTextFields(RegionWriter(normal, version).write(faces));
    fields.insert(fields.end(), text.begin(), text.end());
    return fields;
}

Spline splineOfPieces(const std::vector<CurvePiece> &pieces)
{
    std::vector<BezierSpan> spans;
    for (const CurvePiece &piece : pieces)
        spans.push_back(piece.span());
    return splineOfSpans(spans);
}

EllipseAxes ellipseAxes(const CurvePiece &round)
{
    const Vec3 x = round.xAxis();
    const Vec3 y = round.yAxis();
    const double turn = round.isCircular() ? 0.0 : 0.5 * std::atan2(2.0 * dot(x, y), dot(x, x) - dot(y, y));
    EllipseAxes axes{x * std::cos(turn) + y * std::sin(turn), y * std::cos(turn) - x * std::sin(turn)};
    axes.start = round.angleAt(round.start()) - turn;
    axes.sweep = round.angleAt(round.end()) - round.angleAt(round.start());
    if (axes.sweep < 0.0) {
        axes.minor = axes.minor * -1.0;
        axes.start = -axes.start;
        axes.sweep = -axes.sweep;
    }
    return axes;
}

} // namespace host::drawing
