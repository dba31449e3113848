#include "host/kernel/input/Units.h"

#include "host/kernel/SystemVariables.h"
#include "host/lisp/Units.h"

#include <cmath>

namespace host::kernel {

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
    return QString::fromStdString(lisp::formatDistance(value, {lengthMode, lengthPrecision, zeros}));
}

QString UnitFormat::angle(double radians) const
{
    return QString::fromStdString(lisp::formatAngle(radians, {angleMode, anglePrecision, zeros, 0.0, false}));
}

std::optional<double> UnitFormat::parseLength(const QString &text) const
{
    const std::string given = text.trimmed().toStdString();
    // Whatever the drawing shows, people type feet, inches and fractions where they think in them.
    for (int mode : {lengthMode, int(lisp::DistanceFormat::Architectural), int(lisp::DistanceFormat::Fractional)})
        if (const std::optional<double> value = lisp::parseDistance(given, mode))
            return value;
    return {};
}

std::optional<double> UnitFormat::parseAngle(const QString &text) const
{
    return lisp::parseAngle(text.trimmed().toStdString(), {angleMode, anglePrecision, zeros, 0.0, false});
}

std::optional<double> UnitFormat::parseDirection(const QString &text) const
{
    return lisp::parseAngle(text.trimmed().toStdString(), {angleMode, anglePrecision, zeros, angleBase, isClockwise});
}

double normalizedAngle(double radians)
{
    constexpr double turn = 2.0 * M_PI;
    const double rest = std::fmod(radians, turn);
    return rest < 0.0 ? rest + turn : rest;
}

} // namespace host::kernel
