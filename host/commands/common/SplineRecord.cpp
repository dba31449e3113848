#include "host/commands/common/SplineRecord.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::FieldList;
using drawing::Spline;
using drawing::Vec3;

namespace {

/// Bits of group 70 of a SPLINE.
enum SplineFlag : qint64
{
    SplineClosed = 1,
    SplinePeriodic = 2,
    SplinePlanar = 8
};

/// The normal of the plane that all points lie in; nothing when there is none, or more than one.
std::optional<Vec3> commonNormal(const std::vector<Vec3> &points)
{
    double size = 0.0;
    Vec3 normal;
    for (const Vec3 &point : points)
        size = std::max(size, (point - points.front()).length());
    for (std::size_t i = 2; i < points.size() && normal == Vec3{}; ++i) {
        const Vec3 across = cross(points[i - 1] - points.front(), points[i] - points.front());
        if (across.length() > 1e-9 * size * size)
            normal = drawing::normalized(across);
    }
    const auto isOn = [&](const Vec3 &p) { return std::abs(dot(p - points.front(), normal)) <= 1e-9 * size; };
    if (normal == Vec3{} || !std::ranges::all_of(points, isOn))
        return {};
    return normal.z < 0.0 ? normal * -1.0 : normal;
}

} // namespace

FieldList splineRecord(const Spline &spline)
{
    const std::optional<Vec3> normal = commonNormal(spline.controlPoints);
    qint64 flags = normal ? qint64(SplinePlanar) : 0;
    flags |= spline.isClosed ? qint64(SplineClosed) : 0;
    flags |= spline.isClosed && spline.fitPoints.empty() ? qint64(SplinePeriodic) : 0;
    FieldList fields = {{0, u"SPLINE"_s}};
    if (normal)
        fields.push_back({210, *normal});
    fields.insert(fields.end(), {{70, flags},
                                 {71, qint64(spline.degree)},
                                 {72, qint64(spline.knots.size())},
                                 {73, qint64(spline.controlPoints.size())},
                                 {74, qint64(spline.fitPoints.size())},
                                 {42, 1e-7},
                                 {43, 1e-7}});
    for (const double knot : spline.knots)
        fields.push_back({40, knot});
    for (const Vec3 &point : spline.controlPoints)
        fields.push_back({10, point});
    for (const Vec3 &point : spline.fitPoints)
        fields.push_back({11, point});
    return fields;
}

} // namespace host::kernel
