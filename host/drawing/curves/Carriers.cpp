#include "host/drawing/curves/Carriers.h"

#include "host/drawing/math/Angles.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace host::drawing {

namespace {

bool isRoundCarrier(const EntityCurve &curve)
{
    using enum EntityCurve::Kind;
    return curve.kind() == Arc || curve.kind() == Circle || curve.kind() == Ellipse;
}

/// One of the two directions, the same for both.
Vec3 withoutSense(const Vec3 &direction)
{
    constexpr double none = 1e-6;
    const double first = std::abs(direction.x) > none   ? direction.x
                         : std::abs(direction.y) > none ? direction.y
                                                        : direction.z;
    return first < 0.0 ? direction * -1.0 : direction;
}

Vec3 lineDirection(const EntityCurve &line)
{
    return withoutSense(normalized(line.endPoint() - line.startPoint()));
}

/// One number for the size of a round carrier, whichever way its axes are named.
double sizeOf(const CurvePiece &round)
{
    return std::hypot(round.xAxis().length(), round.yAxis().length());
}

/// A cell in which curves of one carrier, or of neighbouring cells, are found again.
using CarrierCell = std::pair<qint64, qint64>;

CarrierCell cellOf(const EntityCurve &curve)
{
    // Any direction does that drawings do not happen to use.
    constexpr Vec3 askew{0.5772156649, 0.7071067812, 0.4142135624};
    constexpr double width = 1e-3;
    const auto cell = [](double value) { return static_cast<qint64>(std::floor(std::clamp(value, -1e15, 1e15))); };
    if (isRoundCarrier(curve)) {
        const CurvePiece &piece = curve.pieces().front();
        return {cell(dot(piece.center(), askew) / width), cell(sizeOf(piece) / width)};
    }
    const Vec3 along = lineDirection(curve);
    const Vec3 start = curve.startPoint();
    const Vec3 foot = start - along * dot(start, along);
    return {cell(dot(foot, askew) / width), cell(dot(along, askew) / width)};
}

bool areNear(const Vec3 &a, const Vec3 &b, double tolerance)
{
    return (a - b).length() <= tolerance;
}

bool areOnOneLine(const EntityCurve &line, const EntityCurve &other, double tolerance)
{
    const Vec3 along = lineDirection(line);
    const auto isOn = [&](const Vec3 &point) { return cross(point - line.startPoint(), along).length() <= tolerance; };
    return isOn(other.startPoint()) && isOn(other.endPoint());
}

bool areOnOneRound(const EntityCurve &curve, const EntityCurve &other, double tolerance)
{
    const CurvePiece &a = curve.pieces().front();
    const CurvePiece &b = other.pieces().front();
    if (!areNear(a.center(), b.center(), tolerance))
        return false;
    // Parameters of ellipses count from their axes, which must be the same ones therefore.
    if (curve.kind() == EntityCurve::Kind::Ellipse || other.kind() == EntityCurve::Kind::Ellipse)
        return curve.kind() == other.kind() && areNear(a.xAxis(), b.xAxis(), tolerance) &&
               areNear(a.yAxis(), b.yAxis(), tolerance);
    const double radius = a.xAxis().length();
    const Vec3 normal = normalized(cross(a.xAxis(), a.yAxis()));
    return std::abs(radius - b.xAxis().length()) <= tolerance && std::abs(dot(normal, b.xAxis())) <= tolerance &&
           std::abs(dot(normal, b.yAxis())) <= tolerance;
}

bool shareCarrier(const EntityCurve &curve, const EntityCurve &other, double tolerance)
{
    if (isRoundCarrier(curve) != isRoundCarrier(other))
        return false;
    return isRoundCarrier(curve) ? areOnOneRound(curve, other, tolerance) : areOnOneLine(curve, other, tolerance);
}

/// From 0 up to, but not including, a whole turn; what is short of one by no more than `slack` counts as 0.
double withinTurn(double angle, double slack)
{
    double within = std::fmod(angle, wholeTurn);
    within += within < 0.0 ? wholeTurn : 0.0;
    return within >= wholeTurn - slack ? 0.0 : within;
}

} // namespace

std::vector<std::vector<size_t>> groupsByCarrier(const std::vector<EntityCurve> &curves, double tolerance)
{
    std::vector<std::vector<size_t>> groups;
    std::map<CarrierCell, std::vector<size_t>> groupsOfCell;
    const auto groupOf = [&](size_t number, const CarrierCell &cell) -> std::optional<size_t> {
        for (const qint64 x : {0, -1, 1})
            for (const qint64 y : {0, -1, 1}) {
                const auto there = groupsOfCell.find({cell.first + x, cell.second + y});
                if (there == groupsOfCell.end())
                    continue;
                for (const size_t group : there->second)
                    if (shareCarrier(curves[groups[group].front()], curves[number], tolerance))
                        return group;
            }
        return {};
    };
    for (size_t i = 0; i < curves.size(); ++i) {
        if (!isRoundCarrier(curves[i]) && curves[i].kind() != EntityCurve::Kind::Line)
            continue;
        const CarrierCell cell = cellOf(curves[i]);
        if (const std::optional<size_t> group = groupOf(i, cell)) {
            groups[*group].push_back(i);
        } else {
            groupsOfCell[cell].push_back(groups.size());
            groups.push_back({i});
        }
    }
    return groups;
}

CarrierRange rangeAlong(const EntityCurve &curve, const EntityCurve &other, double tolerance)
{
    if (!isRoundCarrier(curve)) {
        const Vec3 along = normalized(curve.endPoint() - curve.startPoint());
        const auto [low, high] = std::minmax(
            {dot(other.startPoint() - curve.startPoint(), along), dot(other.endPoint() - curve.startPoint(), along)});
        return {low, high};
    }
    const CurvePiece &piece = curve.pieces().front();
    const CurvePiece &otherPiece = other.pieces().front();
    const bool isSame = dot(cross(piece.xAxis(), piece.yAxis()), cross(otherPiece.xAxis(), otherPiece.yAxis())) > 0.0;
    const double sweep = other.endParameter() - other.startParameter();
    const double slack = tolerance / std::max(piece.xAxis().length(), tolerance);
    const Vec3 begin = (isSame ? other.startPoint() : other.endPoint()) - piece.center();
    const double angle = std::atan2(dot(begin, piece.yAxis()) / dot(piece.yAxis(), piece.yAxis()),
                                    dot(begin, piece.xAxis()) / dot(piece.xAxis(), piece.xAxis()));
    const double start = curve.startParameter();
    const double behind = withinTurn(start - angle, slack);
    const double from = behind <= sweep + slack ? start - behind : start + withinTurn(angle - start, slack);
    return {from, from + sweep};
}

} // namespace host::drawing
