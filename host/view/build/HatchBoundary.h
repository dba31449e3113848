#pragma once

#include "host/drawing/math/WorkBudget.h"
#include "host/drawing/tags/TagList.h"
#include "host/view/display/Display.h"

#include <vector>

namespace host::view {

/// One line family of a hatch pattern, in the hatch's object coordinates; scale and angle of the hatch are in it.
struct PatternLine
{
    double angle = 0.0; ///< radians
    Vec2 base{};
    Vec2 offset{};                ///< from one line to the next
    std::vector<double> dashes{}; ///< negative: gap; empty: a full line
};

/// The gradient of a HATCH as its record has it.
struct HatchGradientData
{
    bool isOn = false; ///< plain hatches carry one that is switched off
    QString name{};
    double angle = 0.0;                    ///< radians
    double shift = 0.0;                    ///< 0 for a gradient that is centred, up to 1
    double tint = 1.0;                     ///< of a gradient of one colour
    std::vector<Gradient::Stop> colours{}; ///< as they stand there
};

/// A HATCH as its record has it.
struct HatchData
{
    enum class Islands
    {
        Normal, ///< every second area inwards is filled
        Outer,  ///< the outermost area alone
        Ignore  ///< all within the outermost boundary
    };

    std::vector<Curve> loops{}; ///< closed, flat, in object coordinates with the elevation as z
    Islands islands = Islands::Normal;
    bool isSolid = false;
    std::vector<PatternLine> lines{};
    Vec3 extrusion{0.0, 0.0, 1.0};
    HatchGradientData gradient{};
};

/// Reads the record from front to back: its group codes mean different things in different places. What is cut off or
/// makes no shape is left out; counts are taken from what is there, not from what the record promises. What splines
/// have beyond their own points is charged to `work`; when it is used up they are coarser.
HatchData readHatch(const drawing::TagList &tags, drawing::WorkBudget &work);

/// Takes out the loops that the way of treating islands makes meaningless, by how deep they lie in one another.
void applyIslands(HatchData &hatch);

} // namespace host::view
