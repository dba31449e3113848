#pragma once

#include "host/drawing/tags/Tag.h"

#include <QStringList>

#include <optional>

namespace host::drawing {

/// One family of parallel lines of a hatch pattern, at scale 1 and angle 0.
struct PatternFamily
{
    double angle = 0.0; ///< degrees
    Vec2 base{};
    Vec2 step{};                  ///< to the next line: along the lines, and across them
    std::vector<double> dashes{}; ///< negative: gap; 0: dot; none: a full line
};

struct HatchPattern
{
    QString name;
    QString description;
    std::vector<PatternFamily> families; ///< none: solid
    bool isMillimetres = false;          ///< made for millimetres, as those of ISO; otherwise for inches
};

/// The predefined pattern of that name, in any letter case; nothing for none.
std::optional<HatchPattern> hatchPattern(QStringView name);
/// All names, SOLID among them, in order.
QStringList hatchPatternNames();

/// How the lines of a hatch lie.
struct PatternPlacing
{
    double scale = 1.0;
    double angle = 0.0; ///< degrees, in object coordinates
    Vec2 origin{};      ///< where the pattern's own origin comes to lie
};
/// Groups 78 to 49 of a HATCH.
FieldList patternLines(const std::vector<PatternFamily> &families, const PatternPlacing &placing);

} // namespace host::drawing
