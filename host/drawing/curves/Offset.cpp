#include "host/drawing/curves/Offset.h"

#include "host/drawing/curves/PolylineRecord.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

using CurveRecords = std::vector<CurveRecord>;

/// The direction to the right of a curve at a parameter.
Vec3 rightOf(const EntityCurve &curve, double parameter, const Vec3 &up)
{
    return normalized(cross(curve.firstDerivative(parameter), up));
}

CurveRecords offsetStraight(FieldList fields, const EntityCurve &curve, double distance, const Vec3 &up)
{
    const Vec3 by = rightOf(curve, 0.0, up) * distance;
    const bool isLine = curve.kind() == EntityCurve::Kind::Line;
    for (Field &field : fields) {
        if (field.code == 10 || (field.code == 11 && isLine))
            field.value = field.point() + by;
    }
    return {{std::move(fields), {}}};
}

CurveRecords offsetCircular(FieldList fields, double distance)
{
    const double radius = realOf(fields, 40) + distance;
    if (!(radius > 0.0))
        return {};
    setField(fields, 40, radius);
    return {{std::move(fields), {}}};
}

CurveRecords offsetPolylineEntity(const Drawing &drawing, RecordId entity, double distance, OffsetGap gap)
{
    const std::optional<CurveVertices> polyline = polylineVertices(drawing, entity);
    CurveRecords records;
    if (!polyline)
        return records;
    for (const CurveVertices &made : offsetPolyline(*polyline, distance, gap))
        records.push_back(polylineRecord(drawing, entity, made));
    return records;
}

/// Splines through points at a distance from a curve, taken the closer the more the curve between them would be off.
class FittedOffset
{
public:
    FittedOffset(const EntityCurve &curve, double distance, const Vec3 &up)
        : m_curve(curve), m_distance(distance), m_up(up)
    {
    }

    std::vector<Spline> make() const
    {
        constexpr int mostPoints = 4096;
        for (int count = 16;; count *= 2) {
            std::vector<Spline> fitted = through(count);
            const bool isGood = std::ranges::all_of(fitted, [&](const Spline &spline) { return isExact(spline); });
            if (isGood || count >= mostPoints)
                return fitted;
        }
    }

private:
    double shareAt(int i, int count) const
    {
        const double start = m_curve.startParameter();
        return start + (m_curve.endParameter() - start) * i / count;
    }
    Vec3 moved(double parameter) const
    {
        return m_curve.point(parameter) + rightOf(m_curve, parameter, m_up) * m_distance;
    }
    double distanceOf(const Vec3 &point) const { return (m_curve.point(m_curve.closest(point)) - point).length(); }

    std::vector<Spline> through(int count) const
    {
        std::vector<std::vector<double>> runs(1);
        for (int i = 0; i <= count; ++i) {
            const double parameter = shareAt(i, count);
            if (distanceOf(moved(parameter)) >= std::abs(m_distance) * (1.0 - 1e-6))
                runs.back().push_back(parameter);
            else if (!runs.back().empty())
                runs.emplace_back();
        }
        const bool isWhole = runs.size() == 1 && static_cast<int>(runs.front().size()) == count + 1;
        std::vector<Spline> fitted;
        for (const std::vector<double> &run : runs) {
            Path points;
            for (const double parameter : run)
                points.push_back(moved(parameter));
            if (isWhole && m_curve.isPeriodic())
                points.back() = points.front();
            if (points.size() < 3)
                continue;
            const auto direction = [&](double parameter) { return normalized(m_curve.firstDerivative(parameter)); };
            fitted.push_back(isWhole && m_curve.isPeriodic()
                                 ? fittedSpline(points, true)
                                 : fittedSpline(points, false, direction(run.front()), direction(run.back())));
        }
        return fitted;
    }

    bool isExact(const Spline &spline) const
    {
        for (size_t i = 3; i + 1 < spline.controlPoints.size() + 1; ++i) {
            const Vec3 point = spline.point((spline.knots[i] + spline.knots[i + 1]) / 2.0);
            if (std::abs(distanceOf(point) - std::abs(m_distance)) > 1e-5 * std::abs(m_distance))
                return false;
        }
        return true;
    }

    const EntityCurve &m_curve;
    const double m_distance;
    const Vec3 m_up;
};

CurveRecords offsetFitted(const FieldList &fields, const EntityCurve &curve, double distance)
{
    const std::optional<Vec3> up = curve.normal();
    CurveRecords records;
    if (!up)
        return records;
    FieldList base = fields;
    if (curve.kind() == EntityCurve::Kind::Ellipse)
        std::erase_if(base, [](const Field &field) { return field.code == 42; });
    for (const Spline &spline : FittedOffset(curve, distance, *up).make())
        records.push_back({withSpline(base, spline), {}});
    return records;
}

} // namespace

std::vector<CurveRecord> offsetCurve(const Drawing &drawing, RecordId entity, double distance, const Vec3 &up,
                                     OffsetGap gap)
{
    const std::optional<EntityCurve> curve = EntityCurve::ofEntity(drawing, entity);
    if (!curve || distance == 0.0 || !std::isfinite(distance) || drawing.isType(entity, "LEADER"))
        return {};
    using enum EntityCurve::Kind;
    switch (curve->kind()) {
    case Line:
    case Ray:
    case ConstructionLine:
        return offsetStraight(drawing.fields(entity), *curve, distance, up);
    case Arc:
    case Circle:
        return offsetCircular(drawing.fields(entity), distance);
    case LightPolyline:
    case Polyline:
        return offsetPolylineEntity(drawing, entity, distance, gap);
    case Ellipse:
    case Spline:
        return offsetFitted(drawing.fields(entity), *curve, distance);
    case Polyline3d:
    case Leader:
        break;
    }
    return {};
}

double offsetDistance(const EntityCurve &curve, const Vec3 &point, const Vec3 &up)
{
    const Vec3 normal = curve.normal().value_or(up);
    const EntityCurve flat = curve.flattened(normal);
    const Vec3 place = flattening(normal).point(point);
    const bool isStraight = curve.normal() == std::nullopt;
    const double at = flat.closest(place, isStraight ? Extension::Both : Extension::None);
    const Vec3 nearest = flat.point(at);
    const Vec3 away = place - nearest;
    const double same = flat.tolerance();
    // At a corner both pieces may think the point on different sides: the one that runs more across the way decides.
    Vec3 right = rightOf(flat, at, normal);
    for (const CurvePiece &piece : flat.pieces()) {
        for (const double end : {piece.start(), piece.end()}) {
            if (std::isfinite(end) && (piece.point(end) - nearest).length() <= same) {
                const Vec3 other = normalized(cross(piece.firstDerivative(end), normal));
                right = std::abs(dot(other, away)) > std::abs(dot(right, away)) ? other : right;
            }
        }
    }
    return dot(right, away) < 0.0 ? -away.length() : away.length();
}

} // namespace host::drawing
