#include "host/drawing/annotation/DimensionData.h"

#include "host/drawing/math/Angles.h"

#include <algorithm>
#include <array>
#include <numbers>

namespace host::drawing {

namespace {

constexpr double turn = 2.0 * std::numbers::pi;

double directionOf(Vec2 v)
{
    return std::atan2(v.y, v.x);
}

/// From 0 up to a full turn.
double turned(double angle)
{
    const double rest = std::fmod(angle, turn);
    return rest < 0.0 ? rest + turn : rest;
}

std::optional<DimensionKind> kindOf(QByteArrayView type, qint64 flags)
{
    if (type == "ARC_DIMENSION")
        return DimensionKind::Arc;
    if (type == "LARGE_RADIAL_DIMENSION")
        return DimensionKind::LargeRadius;
    const qint64 kind = flags & 15;
    if (kind > static_cast<qint64>(DimensionKind::Ordinate))
        return std::nullopt;
    return static_cast<DimensionKind>(kind);
}

/// Where two lines cross; nothing for parallel ones.
std::optional<Vec2> crossing(Vec2 a, Vec2 alongA, Vec2 b, Vec2 alongB)
{
    const double area = cross(alongA, alongB);
    if (std::abs(area) <= 1e-12 * alongA.length() * alongB.length())
        return std::nullopt;
    return a + alongA * (cross(b - a, alongB) / area);
}

void readPoints(DimensionData &data, const TagList &tags)
{
    const Matrix toPlane = data.plane.inverted();
    const auto world = [&](int code) { return toPlane.point(tags.point(code)).xy(); };
    data.definition = world(10);
    data.first = world(13);
    data.second = world(14);
    data.third = world(15);
    data.fourth = tags.point(16).xy();
    const Tag *text = tags.find(11);
    const Vec2 at = tags.point(11).xy();
    // The oldest files say the origin where the text was not moved.
    if (text && !(at == Vec2{}))
        data.textAt = at;
}

/// The groups of an arc's own part have codes that stand before it in another sense.
void readArcLeader(DimensionData &data, const TagList &tags)
{
    const Tag *flag = tags.find(71, "AcDbArcDimension");
    if (!flag || flag->integer().value_or(0) == 0 || !tags.find(16) || !tags.find(17))
        return;
    const Matrix toPlane = data.plane.inverted();
    data.leaderTo = toPlane.point(tags.point(16)).xy();
    data.leaderFrom = toPlane.point(tags.point(17)).xy();
}

bool isSound(const DimensionData &data)
{
    constexpr double farthest = 1e16;
    const auto isNear = [](Vec2 p) { return std::abs(p.x) <= farthest && std::abs(p.y) <= farthest; };
    return isNear(data.definition) && isNear(data.first) && isNear(data.second) && isNear(data.third) &&
           isNear(data.fourth) && isNear(data.leaderTo) && isNear(data.leaderFrom.value_or(Vec2{})) &&
           isNear(data.textAt.value_or(Vec2{})) && std::isfinite(data.angle) && std::isfinite(data.oblique) &&
           std::isfinite(data.textRotation) && std::isfinite(data.horizontal);
}

/// Extended data of the application ACAD hold it below the number 50 of a style.
double jogAngleOf(const TagList &tags)
{
    bool isNext = false;
    for (const Tag &tag : tags) {
        if (isNext && tag.code == 1040)
            return tag.real().value_or(0.0);
        isNext = tag.code == 1070 && tag.integer() == 50;
    }
    return std::numbers::pi / 4.0;
}

double ordinate(const DimensionData &data)
{
    const Vec2 along{std::cos(data.horizontal), std::sin(data.horizontal)};
    const Vec2 from = data.first - data.definition;
    return std::abs(data.isOrdinateX ? dot(from, along) : cross(along, from));
}

double linearLength(const DimensionData &data)
{
    const Vec2 along{std::cos(data.angle), std::sin(data.angle)};
    if (data.oblique == 0.0)
        return std::abs(dot(data.second - data.first, along));
    const Vec2 aside{std::cos(data.angle + data.oblique), std::sin(data.angle + data.oblique)};
    const double slope = cross(along, aside);
    return std::abs(slope) > 1e-9 ? std::abs(cross(data.second - data.first, aside) / slope) : 0.0;
}

} // namespace

double DimensionData::measured() const
{
    switch (kind) {
    case DimensionKind::Linear:
        return linearLength(*this);
    case DimensionKind::Aligned:
        return (second - first).length();
    case DimensionKind::AngularOfLines:
        return angleOfLines(*this).sweep;
    case DimensionKind::AngularOfPoints:
        return angleOfPoints(*this).sweep;
    case DimensionKind::Diameter:
    case DimensionKind::Radius:
    case DimensionKind::LargeRadius:
        return (third - definition).length();
    case DimensionKind::Ordinate:
        return ordinate(*this);
    case DimensionKind::Arc:
        return angleOfPoints(*this).sweep * (first - third).length();
    }
    return 0.0;
}

std::optional<DimensionData> readDimension(const Drawing &drawing, RecordId entity, const TagList &tags)
{
    constexpr qint64 ordinateXFlag = 64;
    const qint64 flags = tags.integer(70);
    const std::optional<DimensionKind> kind = kindOf(drawing.typeName(entity), flags);
    if (!kind || !tags.find(10) || !(tags.find(13) || tags.find(15)))
        return std::nullopt;
    DimensionData data{.kind = *kind};
    data.plane = Matrix::fromExtrusion(tags.point(210, {0.0, 0.0, 1.0}));
    data.plane.origin = data.plane.direction({0.0, 0.0, data.plane.inverted().point(tags.point(10)).z});
    readPoints(data, tags);
    data.isOrdinateX = (flags & ordinateXFlag) != 0;
    data.angle = tags.real(50) * radians;
    data.oblique = tags.real(52) * radians;
    data.horizontal = -tags.real(51) * radians;
    data.textRotation = tags.real(53) * radians;
    data.text = tags.text(1);
    if (data.kind == DimensionKind::LargeRadius)
        data.jogAngle = jogAngleOf(tags);
    if (data.kind == DimensionKind::Arc)
        readArcLeader(data, tags);
    if (data.kind == DimensionKind::Aligned && !(data.second == data.first))
        data.angle = directionOf(data.second - data.first);
    return isSound(data) ? std::optional(data) : std::nullopt;
}

AngleSpan angleOfLines(const DimensionData &data)
{
    const Vec2 along = data.second - data.first;
    const Vec2 other = data.definition - data.third;
    const Vec2 center = crossing(data.first, along, data.third, other).value_or(data.third);
    std::array<double, 4> rays{};
    for (std::size_t i = 0; i < 2; ++i) {
        const double side = i == 0 ? 0.0 : std::numbers::pi;
        rays[2 * i] = turned(directionOf(along) + side);
        rays[2 * i + 1] = turned(directionOf(other) + side);
    }
    std::ranges::sort(rays);
    const double at = turned(directionOf(data.fourth - center));
    // The last ray that is not behind the point.
    std::size_t ray = 3;
    for (std::size_t i = 0; i < 4; ++i)
        ray = rays[i] <= at ? i : ray;
    return {center, rays[ray], turned(rays[(ray + 1) % 4] - rays[ray])};
}

AngleSpan angleOfPoints(const DimensionData &data)
{
    const double first = directionOf(data.first - data.third);
    const double second = directionOf(data.second - data.third);
    const double at = directionOf(data.definition - data.third);
    const double sweep = turned(second - first);
    if (turned(at - first) <= sweep)
        return {data.third, first, sweep};
    return {data.third, second, turned(first - second)};
}

} // namespace host::drawing
