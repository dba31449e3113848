#include "host/units/AsciiText.h"
#include "host/units/Units.h"

#include <array>
#include <cmath>
#include <numbers>

namespace host::units {

namespace {

enum class Kind : std::uint8_t
{
    Length,
    Angle,
    Mass,
    Time
};

struct Unit
{
    std::string_view names; ///< between blanks
    Kind kind;
    double size; ///< in metres, radians, kilograms or seconds
};

constexpr std::array units = {
    Unit{" millimeter millimeters millimetre mm ", Kind::Length, 0.001},
    Unit{" centimeter centimeters centimetre cm ", Kind::Length, 0.01},
    Unit{" decimeter decimeters decimetre dm ", Kind::Length, 0.1},
    Unit{" meter meters metre metres m ", Kind::Length, 1},
    Unit{" kilometer kilometers kilometre km ", Kind::Length, 1000},
    Unit{" micron microns micrometer um ", Kind::Length, 1e-6},
    Unit{" inch inches in inch(es) ", Kind::Length, 0.0254},
    Unit{" foot feet ft ", Kind::Length, 0.3048},
    Unit{" yard yards yd ", Kind::Length, 0.9144},
    Unit{" mile miles mi ", Kind::Length, 1609.344},
    Unit{" nautical_mile nautical_miles nm ", Kind::Length, 1852},
    Unit{" mil mils ", Kind::Length, 0.0000254},
    Unit{" radian radians rad ", Kind::Angle, 1},
    Unit{" degree degrees deg ", Kind::Angle, std::numbers::pi / 180},
    Unit{" grad grads gon ", Kind::Angle, std::numbers::pi / 200},
    Unit{" circle circles ", Kind::Angle, 2 * std::numbers::pi},
    Unit{" gram grams gm g ", Kind::Mass, 0.001},
    Unit{" kilogram kilograms kg ", Kind::Mass, 1},
    Unit{" tonne tonnes ", Kind::Mass, 1000},
    Unit{" pound pounds lb ", Kind::Mass, 0.45359237},
    Unit{" ounce ounces oz ", Kind::Mass, 0.028349523125},
    Unit{" second seconds sec ", Kind::Time, 1},
    Unit{" minute minutes min ", Kind::Time, 60},
    Unit{" hour hours hr ", Kind::Time, 3600},
    Unit{" day days ", Kind::Time, 86400},
    Unit{" week weeks ", Kind::Time, 604800},
};

struct Measure
{
    Kind kind;
    int power;
    double size;
};

/// Takes "sq ft" and "cubic m" for ft^2 and m^3.
int takePower(std::string &name)
{
    struct Word
    {
        std::string_view text;
        int power;
    };
    for (const Word &word : {Word{"sq ", 2}, Word{"square ", 2}, Word{"cu ", 3}, Word{"cubic ", 3}}) {
        if (name.starts_with(word.text)) {
            name.erase(0, word.text.size());
            return word.power;
        }
    }
    if (name.size() > 2 && name[name.size() - 2] == '^' && name.back() >= '1' && name.back() <= '9') {
        const int power = name.back() - '0';
        name.erase(name.size() - 2);
        return power;
    }
    return 1;
}

std::optional<Measure> findMeasure(std::string_view text)
{
    std::string name = lowered(text);
    const int power = takePower(name);
    if (name.empty() || name.find(' ') != std::string::npos)
        return std::nullopt;
    for (const Unit &unit : units) {
        if (unit.names.find(" " + name + " ") != std::string_view::npos)
            return Measure{unit.kind, power, std::pow(unit.size, power)};
    }
    return std::nullopt;
}

} // namespace

std::optional<double> unitFactor(std::string_view from, std::string_view to)
{
    const std::optional<Measure> source = findMeasure(from);
    const std::optional<Measure> target = findMeasure(to);
    if (!source || !target || source->kind != target->kind || source->power != target->power)
        return std::nullopt;
    return source->size / target->size;
}

} // namespace host::units
