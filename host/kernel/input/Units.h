#pragma once

#include <QString>

#include <optional>

namespace host::kernel {

class SystemVariables;

/// How a drawing writes lengths and angles.
struct UnitFormat
{
    int lengthMode = 2;       ///< LUNITS: 1 scientific, 2 decimal, 3 engineering, 4 architectural, 5 fractional
    int lengthPrecision = 4;  ///< LUPREC
    int angleMode = 0;        ///< AUNITS: 0 degrees, 1 degrees/minutes/seconds, 2 grads, 3 radians, 4 surveyor's units
    int anglePrecision = 0;   ///< AUPREC
    int zeros = 0;            ///< DIMZIN
    double angleBase = 0.0;   ///< ANGBASE, radians
    bool isClockwise = false; ///< ANGDIR

    static UnitFormat of(const SystemVariables &variables);

    QString length(double value) const;
    /// The size of an angle; neither base nor direction play a part. Radians.
    QString angle(double radians) const;
    /// An angle from the x axis as a direction, the way parseDirection() reads it; with the degree sign in degrees.
    QString direction(double radians) const;
    /// As length(), with no fewer digits than it takes to read back one part in 100,000.
    QString exactLength(double value) const;
    QString exactAngle(double radians) const;
    /// A length in any of the notations, fractions and feet included; nothing for other text.
    std::optional<double> parseLength(const QString &text) const;
    /// The size of an angle in any of the notations, in radians, below one turn. Plain numbers count in the format's
    /// own unit.
    std::optional<double> parseAngle(const QString &text) const;
    /// The same as a direction, which counts from the base the way ANGDIR says: its angle from the x axis.
    std::optional<double> parseDirection(const QString &text) const;
};

/// The angle from 0 up to, but not including, one turn.
double normalizedAngle(double radians);

} // namespace host::kernel
