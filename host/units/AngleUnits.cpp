#include "host/units/AsciiText.h"
#include "host/units/Units.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>

namespace host::units {

static constexpr double fullTurn = 2 * std::numbers::pi;

static double withinTurn(double radians)
{
    const double rest = std::fmod(radians, fullTurn);
    return rest < 0 ? rest + fullTurn : rest;
}

static std::string decimalAngle(double angle, double turn, const AngleFormat &format)
{
    const double scale = std::pow(10.0, format.precision);
    // What rounds up to a full turn is none.
    if (std::round(angle * scale) >= turn * scale)
        angle = 0;
    return formatDistance(angle, {DistanceFormat::Decimal, format.precision, format.zeros});
}

/// Smallest steps of a degree that are shown: 1, 60 (minutes), 3600 (seconds) or parts of seconds.
static double stepsPerDegree(int precision)
{
    if (precision == 0)
        return 1;
    if (precision <= 2)
        return 60;
    return 3600 * std::pow(10.0, std::max(0, precision - 4));
}

/// An angle given in such steps as `45d30'15"`.
static std::string sexagesimal(double steps, int precision)
{
    const double perDegree = stepsPerDegree(precision);
    const double degrees = std::floor(steps / perDegree);
    const double rest = steps - degrees * perDegree;
    std::string text = formatDistance(degrees, {DistanceFormat::Decimal, 0, 0}) + "d";
    if (precision == 0)
        return text;
    const double perMinute = perDegree / 60;
    const double minutes = std::floor(rest / perMinute);
    text += formatDistance(minutes, {DistanceFormat::Decimal, 0, 0}) + "'";
    if (precision <= 2)
        return text;
    const double seconds = (rest - minutes * perMinute) / (perMinute / 60);
    return text + formatDistance(seconds, {DistanceFormat::Decimal, std::max(0, precision - 4), 0}) + "\"";
}

static std::string degreesMinutesSeconds(double degrees, int precision)
{
    const double perDegree = stepsPerDegree(precision);
    const double steps = std::round(degrees * perDegree);
    return sexagesimal(steps >= 360 * perDegree ? 0 : steps, precision);
}

static std::string surveyor(double degrees, int precision)
{
    const bool isNorth = degrees <= 180;
    const bool isEast = degrees <= 90 || degrees > 270;
    const double fromPole = std::fabs((isNorth ? 90 : 270) - degrees);
    const double perDegree = stepsPerDegree(precision);
    const double steps = std::round(fromPole * perDegree);
    if (steps == 0)
        return isNorth ? "N" : "S";
    if (steps >= 90 * perDegree)
        return isEast ? "E" : "W";
    return std::string(isNorth ? "N " : "S ") + sexagesimal(steps, precision) + (isEast ? " E" : " W");
}

std::string formatAngle(double radians, const AngleFormat &wanted)
{
    AngleFormat format = wanted;
    format.precision = std::clamp(format.precision, 0, 8);
    if (!std::isfinite(radians))
        return "nan";
    const double angle = withinTurn(format.isClockwise ? format.base - radians : radians - format.base);
    switch (format.mode) {
    case AngleFormat::DegreesMinutesSeconds:
        return degreesMinutesSeconds(angle * 360 / fullTurn, format.precision);
    case AngleFormat::Grads:
        return decimalAngle(angle * 400 / fullTurn, 400, format) + "g";
    case AngleFormat::Radians:
        return decimalAngle(angle, fullTurn, format) + "r";
    case AngleFormat::Surveyor:
        // Compass directions do not depend on where angles are counted from.
        return surveyor(withinTurn(radians) * 360 / fullTurn, format.precision);
    default:
        return decimalAngle(angle * 360 / fullTurn, 360, format);
    }
}

namespace {

/// Reads an angle from front to back.
class AngleParser
{
public:
    AngleParser(std::string_view text, int mode) : m_text(lowered(text)), m_rest(m_text), m_mode(mode) {}

    /// In radians; whether it is a compass direction goes to `isBearing`.
    std::optional<double> parse(bool &isBearing)
    {
        skipBlanks();
        const char pole = takeOneOf("ns");
        isBearing = pole != 0 || m_rest.starts_with('e') || m_rest.starts_with('w');
        std::optional<double> angle = isBearing ? bearing(pole) : plain();
        skipBlanks();
        return m_rest.empty() ? angle : std::nullopt;
    }

private:
    void skipBlanks()
    {
        while (!m_rest.empty() && isBlank(m_rest.front()))
            m_rest.remove_prefix(1);
    }

    char takeOneOf(std::string_view letters)
    {
        if (m_rest.empty() || letters.find(m_rest.front()) == std::string_view::npos)
            return 0;
        const char taken = m_rest.front();
        m_rest.remove_prefix(1);
        return taken;
    }

    std::optional<double> number()
    {
        // An e here is a direction, not an exponent.
        const std::string_view digits = m_rest.substr(0, m_rest.find('e'));
        std::size_t length = 0;
        const double value = leadingNumber(digits, &length);
        m_rest.remove_prefix(length);
        return length > 0 ? std::optional(value) : std::nullopt;
    }

    std::optional<double> plain()
    {
        const std::optional<double> value = number();
        if (!value)
            return std::nullopt;
        if (takeOneOf("g"))
            return *value * fullTurn / 400;
        if (takeOneOf("r"))
            return value;
        if (takeOneOf("d"))
            return minutesAndSeconds(*value) * fullTurn / 360;
        if (m_mode == AngleFormat::Grads)
            return *value * fullTurn / 400;
        return m_mode == AngleFormat::Radians ? *value : *value * fullTurn / 360;
    }

    double minutesAndSeconds(double degrees)
    {
        const double sign = degrees < 0 ? -1 : 1;
        double unit = 60;
        for (const std::string_view mark : {"'", "\""}) {
            const std::string_view before = m_rest;
            const std::optional<double> part = number();
            if (!part || !takeOneOf(mark)) {
                m_rest = before;
                continue;
            }
            degrees += sign * *part / (mark == "'" ? unit : unit * 60);
        }
        return degrees;
    }

    std::optional<double> bearing(char pole)
    {
        const double quarter = fullTurn / 4;
        skipBlanks();
        if (pole == 0)
            return takeOneOf("ew") == 'e' ? 0.0 : 2 * quarter;
        const double poleAngle = pole == 'n' ? quarter : 3 * quarter;
        if (m_rest.empty())
            return poleAngle;
        const std::optional<double> degrees = number();
        if (!degrees)
            return std::nullopt;
        const double turned = (takeOneOf("d") ? minutesAndSeconds(*degrees) : *degrees) * fullTurn / 360;
        skipBlanks();
        const char side = takeOneOf("ew");
        if (side == 0)
            return std::nullopt;
        const bool addsUp = (pole == 'n') == (side == 'w');
        return addsUp ? poleAngle + turned : poleAngle - turned;
    }

    std::string m_text;
    std::string_view m_rest;
    int m_mode;
};

} // namespace

std::optional<double> parseAngle(std::string_view text, const AngleFormat &format)
{
    bool isBearing = false;
    const std::optional<double> angle = AngleParser(text, format.mode).parse(isBearing);
    if (!angle || !std::isfinite(*angle))
        return std::nullopt;
    if (isBearing)
        return withinTurn(*angle);
    return withinTurn(format.isClockwise ? format.base - *angle : format.base + *angle);
}

} // namespace host::units
