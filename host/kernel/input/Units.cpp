#include "host/kernel/input/Units.h"

#include "host/kernel/variables/SystemVariables.h"
#include "host/units/Units.h"

#include <cmath>

namespace host::kernel {

namespace {

constexpr int mostDigits = 8; // as LUPREC and AUPREC
constexpr double accuracy = 1e-5;

} // namespace

UnitFormat UnitFormat::of(const SystemVariables &variables)
{
    UnitFormat format;
    format.lengthMode = variables.integer(u"LUNITS", format.lengthMode);
    format.lengthPrecision = variables.integer(u"LUPREC", format.lengthPrecision);
    format.angleMode = variables.integer(u"AUNITS");
    format.anglePrecision = variables.integer(u"AUPREC");
    format.zeros = variables.integer(u"DIMZIN");
    format.angleBase = variables.real(u"ANGBASE");
    format.isClockwise = variables.integer(u"ANGDIR") != 0;
    return format;
}

QString UnitFormat::length(double value) const
{
    return QString::fromStdString(units::formatDistance(value, {lengthMode, lengthPrecision, zeros}));
}

QString UnitFormat::angle(double radians) const
{
    return QString::fromStdString(units::formatAngle(radians, {angleMode, anglePrecision, zeros, 0.0, false}));
}

QString UnitFormat::direction(double radians) const
{
    const QString size = angle(normalizedAngle(isClockwise ? angleBase - radians : radians - angleBase));
    return angleMode == 0 ? size + u'\u00b0' : size;
}

QString UnitFormat::exactLength(double value) const
{
    UnitFormat format = *this;
    const auto isRead = [&] {
        const std::optional<double> read = parseLength(format.length(value));
        return read && std::abs(*read - value) <= accuracy * std::abs(value);
    };
    while (format.lengthPrecision < mostDigits && !isRead())
        ++format.lengthPrecision;
    return format.length(value);
}

QString UnitFormat::exactAngle(double radians) const
{
    UnitFormat format = *this;
    const auto isRead = [&] {
        const std::optional<double> read = parseAngle(format.angle(radians));
        return read && std::abs(std::remainder(*read - radians, 2.0 * M_PI)) <= accuracy * std::abs(radians);
    };
    while (format.anglePrecision < mostDigits && !isRead())
        ++format.anglePrecision;
    return format.angle(radians);
}

std::optional<double> UnitFormat::parseLength(const QString &text) const
{
    const std::string given = text.trimmed().toStdString();
    // Whatever the drawing shows, people type feet, inches and fractions where they think in them.
    for (int mode : {lengthMode, int(units::DistanceFormat::Architectural), int(units::DistanceFormat::Fractional)})
        if (const std::optional<double> value = units::parseDistance(given, mode))
            return value;
    return {};
}

std::optional<double> UnitFormat::parseAngle(const QString &text) const
{
    return units::parseAngle(text.trimmed().toStdString(), {angleMode, anglePrecision, zeros, 0.0, false});
}

std::optional<double> UnitFormat::parseDirection(const QString &text) const
{
    return units::parseAngle(text.trimmed().toStdString(), {angleMode, anglePrecision, zeros, angleBase, isClockwise});
}

double normalizedAngle(double radians)
{
    constexpr double turn = 2.0 * M_PI;
    const double rest = std::fmod(radians, turn);
    return rest < 0.0 ? rest + turn : rest;
}

} // namespace host::kernel
