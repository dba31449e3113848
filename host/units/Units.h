#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace host::units {

// Numbers as the drawing shows them. Without state and locale: the decimal sign is a point everywhere. Callers take
// what a program leaves out from the system variables.

/// How a distance is written; the numbers are those of the dialect (and of LUNITS, LUPREC, DIMZIN).
struct DistanceFormat
{
    enum Mode : int
    {
        Scientific = 1, ///< 1.7500E+01
        Decimal,        ///< 17.5000
        Engineering,    ///< 1'-5.50"
        Architectural,  ///< 1'-5 1/2"
        Fractional      ///< 17 1/2
    };

    int mode = Decimal;
    /// Decimal places; for architectural and fractional the power of two of the smallest fraction.
    int precision = 4;
    /// Bits 1 and 2 (0 to 3): which zero feet and inches are left out. 4: no zero before a decimal point, 8: none at
    /// the end.
    int zeros = 0;
};

/// A distance in drawing units as text. One unit is one inch where there are inches; what rounds to a full foot or inch
/// is carried over.
std::string formatDistance(double distance, const DistanceFormat &format);
/// The distance in drawing units that a text in the form of `mode` means; nothing when it is none. Nothing may stand
/// behind the number.
std::optional<double> parseDistance(std::string_view text, int mode);

/// How an angle is written; the numbers are those of the dialect (and of AUNITS, AUPREC, ANGBASE, ANGDIR, DIMZIN).
struct AngleFormat
{
    enum Mode : int
    {
        Degrees = 0,           ///< 45.00
        DegreesMinutesSeconds, ///< 45d0'0"
        Grads,                 ///< 50.0g, of which a full turn has 400
        Radians,               ///< 0.79r
        Surveyor               ///< N 45d E; counts from north or south, whatever `base` is
    };

    int mode = Degrees;
    int precision = 0;        ///< decimal places, 0 to 8; how far down minutes, seconds and their decimals are told
    int zeros = 0;            ///< as for distances, bits 4 and 8
    double base = 0;          ///< direction of angle 0, in radians
    bool isClockwise = false; ///< which way angles grow
};

/// An angle in radians like `45.00`, `45d0'0"`, `50.0g`, `0.79r`, `N 45d E`; always at least 0 and less than a full
/// turn.
std::string formatAngle(double radians, const AngleFormat &format);
/// The angle in radians, from 0 up to a full turn, that a text means. A text with signs of its own (d ' " g r N S E W)
/// is understood in every mode; a bare number by `format.mode`. Nothing when it is no angle.
std::optional<double> parseAngle(std::string_view text, const AngleFormat &format);

/// The factor from one unit of measure to another of the same kind ("inch" to "mm", "sq ft" to "m^2"); nothing when one
/// is unknown or they do not fit.
std::optional<double> unitFactor(std::string_view from, std::string_view to);

/// The number that a text begins with, after blanks; 0 when it begins with none. `length` says how much was read.
double leadingNumber(std::string_view text, std::size_t *length = nullptr);

} // namespace host::units
