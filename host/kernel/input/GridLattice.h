#pragma once

#include "host/drawing/math/Vec.h"

#include <optional>

namespace host::kernel {

class SystemVariables;

/// Points in even rows in the user's plane, user coordinates: what points snap to, and where the grid has its dots. The
/// two steps are not parallel and not 0.
struct GridLattice
{
    drawing::Vec2 origin;
    drawing::Vec2 along;
    drawing::Vec2 across;

    drawing::Vec2 at(double column, double row) const { return origin + along * column + across * row; }
    /// Columns and rows of a place, as x and y; between the points they have fractions.
    drawing::Vec2 cellOf(drawing::Vec2 place) const;
    /// The point of it that is nearest to the place; the place itself where that is too far to count.
    drawing::Vec2 nearest(drawing::Vec2 place) const;
};

/// What SNAPUNIT, SNAPANG, SNAPBASE and SNAPSTYL say; nothing where a step is not above 0. Whether points snap to it is
/// for SNAPMODE to say.
std::optional<GridLattice> snapLattice(const SystemVariables &variables);

/// The same by GRIDUNIT, whose steps of 0 are those of SNAPUNIT.
std::optional<GridLattice> gridLattice(const SystemVariables &variables);

} // namespace host::kernel
