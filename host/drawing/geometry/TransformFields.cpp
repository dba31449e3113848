#include "host/drawing/geometry/TransformFields.h"

#include "host/drawing/geometry/MultiLeaderFields.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/text/ParagraphText.h"

#include <numbers>

namespace host::drawing {

namespace {

constexpr double tolerance = 1e-9;
const Vec3 upward{0.0, 0.0, 1.0};

Vec3 pointOf(const FieldList &fields, int code, const Vec3 &otherwise = {})
{
    const Field *field = findField(fields, code);
    return field ? field->point() : otherwise;
}

void scaleField(FieldList &fields, int code, double factor)
{
    if (Field *field = findField(fields, code))
        field->value = field->real() * factor;
}

double inDegrees(double angle)
{
    double degrees = std::fmod(angle / radians, 360.0);
    if (degrees < -tolerance)
        degrees += 360.0;
    return std::abs(degrees) < tolerance ? 0.0 : degrees;
}

/// Maps all points with these codes, each in the number of coordinates it has.
template <typename Map>
void mapPoints(FieldList &fields, std::initializer_list<int> codes, const Map &map)
{
    for (Field &field : fields) {
        if (std::find(codes.begin(), codes.end(), field.code) == codes.end())
            continue;
        if (std::holds_alternative<Vec3>(field.value))
            field.value = map(field.point());
        else if (std::holds_alternative<Vec2>(field.value))
            field.value = map(field.point()).xy();
    }
}

PlaneMap planeOf(FieldList &fields, const Matrix &matrix)
{
    const PlaneMap plane(pointOf(fields, 210, upward), matrix);
    if (findField(fields, 210) || (plane.extrusion() - upward).length() > tolerance)
        setOwnField(fields, 210, plane.extrusion());
    scaleField(fields, 39, plane.map().zAxis.z);
    return plane;
}

bool transformWorldPoints(FieldList &fields, const Matrix &matrix)
{
    mapPoints(fields, {10, 11, 12, 13}, [&](const Vec3 &p) { return matrix.point(p); });
    mapPoints(fields, {210}, [&](const Vec3 &d) { return normalized(matrix.direction(d)); });
    return true;
}

bool transformRay(FieldList &fields, const Matrix &matrix)
{
    mapPoints(fields, {10}, [&](const Vec3 &p) { return matrix.point(p); });
    mapPoints(fields, {11}, [&](const Vec3 &d) { return normalized(matrix.direction(d)); });
    return true;
}

/// What is left out of its direction is the x axis.
bool transformTolerance(FieldList &fields, const Matrix &matrix)
{
    const Vec3 usual{1.0, 0.0, 0.0};
    const Vec3 turned = normalized(matrix.direction(usual));
    if (!findField(fields, 11) && (turned - usual).length() > 1e-12)
        setField(fields, 11, usual);
    return transformRay(fields, matrix);
}

bool transformSpline(FieldList &fields, const Matrix &matrix)
{
    mapPoints(fields, {10, 11}, [&](const Vec3 &p) { return matrix.point(p); });
    mapPoints(fields, {12, 13, 210}, [&](const Vec3 &d) { return normalized(matrix.direction(d)); });
    return true;
}

bool transformLeader(FieldList &fields, const Matrix &matrix)
{
    mapPoints(fields, {10}, [&](const Vec3 &p) { return matrix.point(p); });
    mapPoints(fields, {210, 211, 212, 213}, [&](const Vec3 &d) { return matrix.direction(d); });
    return true;
}

bool transformMultiLine(FieldList &fields, const Matrix &matrix)
{
    if (!isUniform(matrix))
        return false;
    mapPoints(fields, {10, 11}, [&](const Vec3 &p) { return matrix.point(p); });
    mapPoints(fields, {12, 13, 210}, [&](const Vec3 &d) { return normalized(matrix.direction(d)); });
    scaleField(fields, 40, matrix.xAxis.length());
    return true;
}

bool transformImage(FieldList &fields, const Matrix &matrix)
{
    mapPoints(fields, {10}, [&](const Vec3 &p) { return matrix.point(p); });
    mapPoints(fields, {11, 12}, [&](const Vec3 &d) { return matrix.direction(d); });
    return true;
}

bool transformCircle(FieldList &fields, const Matrix &matrix)
{
    const PlaneMap plane = planeOf(fields, matrix);
    if (!plane.isSimilar())
        return false;
    mapPoints(fields, {10}, [&](const Vec3 &p) { return plane.point(p); });
    scaleField(fields, 40, plane.factor());
    return true;
}

bool transformArc(FieldList &fields, const Matrix &matrix)
{
    const PlaneMap plane(pointOf(fields, 210, upward), matrix);
    if (!transformCircle(fields, matrix))
        return false;
    // Arcs run counter-clockwise: in a mirror start and end change places.
    const double start = inDegrees(plane.angle(realOf(fields, 50) * radians));
    const double end = inDegrees(plane.angle(realOf(fields, 51) * radians));
    setOwnField(fields, 50, plane.isMirrored() ? end : start);
    setOwnField(fields, 51, plane.isMirrored() ? start : end);
    return true;
}

bool transformEllipse(FieldList &fields, const Matrix &matrix)
{
    const Vec3 normal = normalized(pointOf(fields, 210, upward));
    const Vec3 oldMajor = pointOf(fields, 11);
    const Vec3 u = matrix.direction(oldMajor);
    const Vec3 v = matrix.direction(cross(normal, oldMajor) * realOf(fields, 40, 1.0));
    // u and v are conjugate: the axes lie where the distance from the center is largest and smallest.
    const double shift = 0.5 * std::atan2(2.0 * dot(u, v), dot(u, u) - dot(v, v));
    const Vec3 major = u * std::cos(shift) + v * std::sin(shift);
    const Vec3 minor = v * std::cos(shift) - u * std::sin(shift);
    if (major.length() <= 0.0 || minor.length() <= 0.0)
        return false;
    mapPoints(fields, {10}, [&](const Vec3 &p) { return matrix.point(p); });
    setOwnField(fields, 11, major);
    setOwnField(fields, 40, minor.length() / major.length());
    setOwnField(fields, 210, normalized(cross(major, minor)));
    const double start = realOf(fields, 41);
    const double end = realOf(fields, 42, 2.0 * std::numbers::pi);
    const bool isWhole = std::abs(end - start) >= 2.0 * std::numbers::pi - tolerance;
    if (!isWhole) {
        setOwnField(fields, 41, start - shift);
        setOwnField(fields, 42, end - shift);
    }
    return true;
}

bool transformCorners(FieldList &fields, const Matrix &matrix)
{
    const PlaneMap plane = planeOf(fields, matrix);
    mapPoints(fields, {10, 11, 12, 13}, [&](const Vec3 &p) { return plane.point(p); });
    return true;
}

enum class Stretch
{
    Allowed, ///< becomes the width factor
    Refused  ///< the type has no such group
};

bool transformTextLine(FieldList &fields, const Matrix &matrix, Stretch whenStretched)
{
    const PlaneMap plane = planeOf(fields, matrix);
    mapPoints(fields, {10, 11}, [&](const Vec3 &p) { return plane.point(p); });
    const double angle = realOf(fields, 50) * radians;
    const Vec3 along = plane.map().direction({std::cos(angle), std::sin(angle), 0.0});
    const Vec3 up = plane.map().direction({-std::sin(angle), std::cos(angle), 0.0});
    if (along.length() <= 0.0 || up.length() <= 0.0)
        return false;
    scaleField(fields, 40, up.length());
    setOwnField(fields, 50, inDegrees(plane.angle(angle)));
    const double stretch = along.length() / up.length();
    if (std::abs(stretch - 1.0) <= tolerance)
        return true;
    if (whenStretched == Stretch::Refused)
        return false;
    setOwnField(fields, 41, realOf(fields, 41, 1.0) * stretch);
    return true;
}

bool transformText(FieldList &fields, const Matrix &matrix)
{
    return transformTextLine(fields, matrix, Stretch::Allowed);
}

bool transformRemoteText(FieldList &fields, const Matrix &matrix)
{
    return transformTextLine(fields, matrix, Stretch::Refused);
}

bool transformParagraph(FieldList &fields, const Matrix &matrix)
{
    const PlaneMap plane(pointOf(fields, 210, upward), matrix);
    if (!plane.isSimilar())
        return false;
    const Vec3 direction = normalized(matrix.direction(paragraphDirection(fields)));
    std::erase_if(fields, [](const Field &field) { return field.code == 50; });
    mapPoints(fields, {10}, [&](const Vec3 &p) { return matrix.point(p); });
    setOwnField(fields, 11, direction);
    if (findField(fields, 210) || (plane.extrusion() - upward).length() > tolerance)
        setOwnField(fields, 210, plane.extrusion());
    for (const int code : {40, 41, 42, 43, 46})
        scaleField(fields, code, plane.factor());
    return true;
}

/// What a paragraph embeds says its direction, its place and its sizes once more.
bool transformColumns(FieldList &fields, const Matrix &matrix)
{
    const double factor = matrix.direction(normalized(pointOf(fields, 10, {1.0, 0.0, 0.0}))).length();
    mapPoints(fields, {10}, [&](const Vec3 &d) { return normalized(matrix.direction(d)); });
    mapPoints(fields, {11}, [&](const Vec3 &p) { return matrix.point(p); });
    for (Field &field : fields)
        if (field.code >= 40 && field.code <= 46)
            field.value = field.real() * factor;
    return true;
}

bool transformInsert(FieldList &fields, const Matrix &matrix)
{
    const PlaneMap plane = planeOf(fields, matrix);
    const double angle = realOf(fields, 50) * radians;
    const Vec3 x = plane.map().direction({std::cos(angle), std::sin(angle), 0.0});
    const Vec3 y = plane.map().direction({-std::sin(angle), std::cos(angle), 0.0});
    const double area = cross(x.xy(), y.xy());
    if (std::abs(dot(x, y)) > tolerance * x.length() * y.length() || area == 0.0)
        return false;
    const double yFactor = std::copysign(y.length(), area);
    mapPoints(fields, {10}, [&](const Vec3 &p) { return plane.point(p); });
    setOwnField(fields, 50, inDegrees(std::atan2(x.y, x.x)));
    setOwnField(fields, 41, realOf(fields, 41, 1.0) * x.length());
    setOwnField(fields, 42, realOf(fields, 42, 1.0) * yFactor);
    setOwnField(fields, 43, realOf(fields, 43, 1.0) * plane.map().zAxis.z);
    scaleField(fields, 44, x.length());
    scaleField(fields, 45, yFactor);
    return true;
}

bool hasBulge(const FieldList &fields)
{
    return std::any_of(fields.begin(), fields.end(),
                       [](const Field &field) { return field.code == 42 && field.real() != 0.0; });
}

bool transformLightPolyline(FieldList &fields, const Matrix &matrix)
{
    const double elevation = realOf(fields, 38);
    const PlaneMap plane = planeOf(fields, matrix);
    if (!plane.isSimilar() && hasBulge(fields))
        return false;
    double newElevation = 0.0;
    for (Field &field : fields) {
        if (field.code == 10) {
            const Vec3 point = field.point();
            const Vec3 mapped = plane.point({point.x, point.y, elevation});
            field.value = mapped.xy();
            newElevation = mapped.z;
        } else if (field.code == 42 && plane.isMirrored()) {
            field.value = -field.real();
        } else if (field.code == 40 || field.code == 41 || field.code == 43) {
            field.value = field.real() * plane.factor();
        }
    }
    if (std::abs(newElevation) > tolerance || findField(fields, 38))
        setOwnField(fields, 38, newElevation);
    return true;
}

bool transformDimension(FieldList &fields, const Matrix &matrix)
{
    if (!isUniform(matrix))
        return false;
    const PlaneMap plane = planeOf(fields, matrix);
    mapPoints(fields, {10, 13, 14, 15}, [&](const Vec3 &p) { return matrix.point(p); });
    mapPoints(fields, {11, 12, 16}, [&](const Vec3 &p) { return plane.point(p); });
    if (findField(fields, 50))
        setOwnField(fields, 50, inDegrees(plane.angle(realOf(fields, 50) * radians)));
    scaleField(fields, 42, plane.factor());
    return true;
}

/// Of an arc length, whose leader's ends are points of the world, and whose ends also stand as directions in radians.
bool transformArcDimension(FieldList &fields, const Matrix &matrix)
{
    if (!isUniform(matrix))
        return false;
    const PlaneMap plane = planeOf(fields, matrix);
    mapPoints(fields, {10, 13, 14, 15, 16, 17}, [&](const Vec3 &p) { return matrix.point(p); });
    mapPoints(fields, {11, 12}, [&](const Vec3 &p) { return plane.point(p); });
    scaleField(fields, 42, plane.factor());
    // What runs counter-clockwise goes on doing so.
    Field *first = findField(fields, 13);
    Field *second = findField(fields, 14);
    if (plane.isMirrored() && first && second)
        std::swap(first->value, second->value);
    const Matrix toPlane = Matrix::fromExtrusion(plane.extrusion()).inverted();
    for (const int end : {0, 1}) {
        const Vec3 out = toPlane.direction(pointOf(fields, 13 + end) - pointOf(fields, 15));
        const double angle = std::atan2(out.y, out.x);
        if (Field *direction = findField(fields, 40 + end))
            direction->value = angle < 0.0 ? angle + wholeTurn : angle;
    }
    return true;
}

bool transformHatchOf(FieldList &fields, const Matrix &matrix)
{
    return transformHatch(fields, planeOf(fields, matrix));
}

/// The frame stays upright and what is seen in it grows with it. The one that stands for the sheet itself stays, and so
/// does one that an entity of the sheet cuts off, which would be left behind.
bool transformViewport(FieldList &fields, const Matrix &matrix)
{
    constexpr qint64 clippedFlag = 0x10000;
    const auto integerOf = [&fields](int code) {
        const Field *field = findField(fields, code);
        return field ? field->integer() : 0;
    };
    const double lean = matrix.zAxis.xy().length();
    if (integerOf(69) == 1 || (integerOf(90) & clippedFlag) != 0 || !isUniform(matrix) ||
        lean > tolerance * matrix.zAxis.length())
        return false;
    if (Field *center = findField(fields, 10))
        center->value = matrix.point(center->point());
    for (const int size : {40, 41}) {
        if (Field *field = findField(fields, size))
            field->value = field->real() * matrix.xAxis.length();
    }
    return true;
}

using FieldsFunction = bool (*)(FieldList &, const Matrix &);

constexpr std::pair<QStringView, FieldsFunction> transformFunctions[] = {
    {u"LINE", transformWorldPoints},
    {u"POINT", transformWorldPoints},
    {u"3DFACE", transformWorldPoints},
    {u"RAY", transformRay},
    {u"XLINE", transformRay},
    {u"TOLERANCE", transformTolerance},
    {u"SPLINE", transformSpline},
    {u"LEADER", transformLeader},
    {u"MLINE", transformMultiLine},
    {u"IMAGE", transformImage},
    {u"WIPEOUT", transformImage},
    {u"CIRCLE", transformCircle},
    {u"ARC", transformArc},
    {u"ELLIPSE", transformEllipse},
    {u"SOLID", transformCorners},
    {u"TRACE", transformCorners},
    {u"TEXT", transformText},
    {u"ATTRIB", transformText},
    {u"ATTDEF", transformText},
    {u"SHAPE", transformText},
    {u"RTEXT", transformRemoteText},
    {u"MTEXT", transformParagraph},
    {u"INSERT", transformInsert},
    {u"LWPOLYLINE", transformLightPolyline},
    {u"DIMENSION", transformDimension},
    {u"ARC_DIMENSION", transformArcDimension},
    {u"LARGE_RADIAL_DIMENSION", transformDimension},
    {u"MULTILEADER", transformMultiLeader},
    {u"HATCH", transformHatchOf},
    {u"VIEWPORT", transformViewport},
    {u"REGION", transformSolid},
    {u"BODY", transformSolid},
    {u"3DSOLID", transformSolid},
};

} // namespace

PlaneMap::PlaneMap(const Vec3 &extrusion, const Matrix &matrix)
{
    const Matrix before = Matrix::fromExtrusion(extrusion);
    const Vec3 normal = normalized(cross(matrix.direction(before.xAxis), matrix.direction(before.yAxis)));
    const Vec3 mapped = matrix.direction(before.zAxis);
    m_extrusion = dot(normal, mapped) < 0.0 ? normal * -1.0 : normal;
    m_map = Matrix::fromExtrusion(m_extrusion).inverted() * matrix * before;
}

bool PlaneMap::isSimilar() const
{
    const double x = m_map.xAxis.length();
    const double y = m_map.yAxis.length();
    return x > 0.0 && std::abs(x - y) <= tolerance * std::max(x, y) &&
           std::abs(dot(m_map.xAxis, m_map.yAxis)) <= tolerance * x * y;
}

bool PlaneMap::isMirrored() const
{
    return cross(m_map.xAxis.xy(), m_map.yAxis.xy()) < 0.0;
}

double PlaneMap::angle(double angle) const
{
    const Vec3 direction = m_map.direction({std::cos(angle), std::sin(angle), 0.0});
    return std::atan2(direction.y, direction.x);
}

bool isUniform(const Matrix &matrix)
{
    const double x = matrix.xAxis.length();
    const double limit = tolerance * std::max(x, 1e-300);
    return x > 0.0 && std::abs(matrix.yAxis.length() - x) <= limit && std::abs(matrix.zAxis.length() - x) <= limit &&
           std::abs(dot(matrix.xAxis, matrix.yAxis)) <= limit * x &&
           std::abs(dot(matrix.xAxis, matrix.zAxis)) <= limit * x &&
           std::abs(dot(matrix.yAxis, matrix.zAxis)) <= limit * x;
}

void setOwnField(FieldList &fields, int code, const FieldValue &value)
{
    if (Field *field = findField(fields, code)) {
        field->value = value;
        return;
    }
    int markers = 0;
    const auto place = std::find_if(fields.begin(), fields.end(), [&markers](const Field &field) {
        markers += field.code == 100 ? 1 : 0;
        return markers > 2 || field.code >= 1000;
    });
    fields.insert(place, {code, value});
}

bool transformFields(FieldList &fields, const Matrix &matrix)
{
    const QString type = fields.empty() ? QString() : fields.front().text();
    const auto *row = std::find_if(std::begin(transformFunctions), std::end(transformFunctions),
                                   [&](const auto &known) { return known.first == type; });
    if (row == std::end(transformFunctions))
        return false;
    FieldList behind(ownEnd(fields), fields.end());
    fields.erase(ownEnd(fields), fields.end());
    if (!row->second(fields, matrix))
        return false;
    if (!behind.empty() && behind.front().code == 101) {
        fields.push_back(behind.front());
        behind.erase(behind.begin());
        // A paragraph that is embedded in an attribute is one like any other.
        if (!(type == u"MTEXT" ? transformColumns : transformParagraph)(behind, matrix))
            return false;
    }
    fields.insert(fields.end(), behind.begin(), behind.end());
    transformXdata(fields, matrix);
    return true;
}

void transformXdata(FieldList &fields, const Matrix &matrix)
{
    mapPoints(fields, {1011}, [&](const Vec3 &p) { return matrix.point(p); });
    mapPoints(fields, {1012}, [&](const Vec3 &d) { return matrix.direction(d); });
    mapPoints(fields, {1013}, [&](const Vec3 &d) { return normalized(matrix.direction(d)); });
    for (Field &field : fields)
        if (field.code == 1041 || field.code == 1042)
            field.value = field.real() * matrix.xAxis.length();
}

} // namespace host::drawing
