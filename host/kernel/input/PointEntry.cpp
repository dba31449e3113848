#include "host/kernel/input/PointEntry.h"

#include <QStringList>

#include <cmath>

namespace host::kernel {

namespace {

using drawing::Vec3;

/// A coordinate in the drawing's units, finite.
std::optional<double> coordinate(const QString &text, const UnitFormat &units)
{
    const std::optional<double> value = units.parseLength(text.trimmed());
    return value && std::isfinite(*value) ? value : std::nullopt;
}

std::optional<Vec3> parseCartesian(const QString &text, const UnitFormat &units, double elevation)
{
    const QStringList parts = text.split(u',');
    if (parts.size() != 2 && parts.size() != 3)
        return {};
    const auto x = coordinate(parts[0], units);
    const auto y = coordinate(parts[1], units);
    const auto z = parts.size() == 3 ? coordinate(parts[2], units) : std::optional(elevation);
    if (!x || !y || !z)
        return {};
    return Vec3{*x, *y, *z};
}

/// `distance<angle`, `distance<angle,z` or `distance<angle<angle from the plane`.
std::optional<Vec3> parsePolar(const QString &text, const UnitFormat &units, double elevation)
{
    const QStringList parts = text.split(u'<');
    if (parts.size() != 2 && parts.size() != 3)
        return {};
    const QString height = parts.size() == 2 ? parts[1].section(u',', 1) : QString();
    const auto distance = coordinate(parts[0], units);
    const auto angle = units.parseDirection(parts.size() == 2 ? parts[1].section(u',', 0, 0) : parts[1]);
    const auto z = height.isEmpty() ? std::optional(elevation) : coordinate(height, units);
    if (!distance || !angle || !z)
        return {};
    if (parts.size() == 2)
        return Vec3{*distance * std::cos(*angle), *distance * std::sin(*angle), *z};
    const auto rise = units.parseAngle(parts[2]);
    if (!rise)
        return {};
    const double flat = *distance * std::cos(*rise);
    return Vec3{flat * std::cos(*angle), flat * std::sin(*angle), *distance * std::sin(*rise)};
}

} // namespace

std::optional<TypedPoint> parsePoint(const QString &text, const PointContext &context)
{
    QString rest = text.trimmed();
    TypedPoint typed;
    if (rest.startsWith(u'#'))
        rest.remove(0, 1);
    typed.isWorld = rest.startsWith(u'*');
    if (typed.isWorld)
        rest.remove(0, 1);
    const bool isRelative = rest.startsWith(u'@');
    if (isRelative)
        rest.remove(0, 1);
    if (isRelative && rest.isEmpty()) {
        typed.point = context.last;
        return typed;
    }
    const double z = isRelative ? 0.0 : context.elevation;
    const std::optional<Vec3> point =
        rest.contains(u'<') ? parsePolar(rest, context.units, z) : parseCartesian(rest, context.units, z);
    if (!point)
        return {};
    typed.point = isRelative ? context.last + *point : *point;
    return typed;
}

} // namespace host::kernel
