#include "host/kernel/input/GridLattice.h"

#include "host/drawing/math/Angles.h"
#include "host/kernel/variables/SystemVariables.h"

#include <cmath>

namespace host::kernel {

using drawing::Vec2;

namespace {

Vec2 polarStep(double angle, double length)
{
    return {std::cos(angle) * length, std::sin(angle) * length};
}

std::optional<GridLattice> latticeOf(const SystemVariables &variables, Vec2 unit)
{
    if (!(unit.x > 0.0) || !(unit.y > 0.0))
        return {};
    const double turn = variables.real(u"SNAPANG");
    GridLattice lattice{variables.point(u"SNAPBASE").xy(), polarStep(turn, unit.x),
                        turnedLeft(polarStep(turn, unit.y))};
    // The axes of the three isometric planes go through the same points.
    if (variables.integer(u"SNAPSTYL") != 0)
        lattice.along = polarStep(turn + 30.0 * drawing::radians, unit.y);
    return lattice;
}

} // namespace

Vec2 GridLattice::cellOf(Vec2 place) const
{
    const Vec2 away = place - origin;
    const double area = drawing::cross(along, across);
    return {drawing::cross(away, across) / area, drawing::cross(along, away) / area};
}

Vec2 GridLattice::nearest(Vec2 place) const
{
    const Vec2 cell = cellOf(place);
    // Beyond this the numbers have no fractions any more.
    constexpr double farthestCell = 1e15;
    if (!(std::abs(cell.x) < farthestCell && std::abs(cell.y) < farthestCell))
        return place;
    const Vec2 low{std::floor(cell.x), std::floor(cell.y)};
    Vec2 best = at(low.x, low.y);
    for (const Vec2 &corner : {at(low.x + 1.0, low.y), at(low.x, low.y + 1.0), at(low.x + 1.0, low.y + 1.0)})
        if ((corner - place).length() < (best - place).length())
            best = corner;
    return best;
}

std::optional<GridLattice> snapLattice(const SystemVariables &variables)
{
    return latticeOf(variables, variables.point(u"SNAPUNIT").xy());
}

std::optional<GridLattice> gridLattice(const SystemVariables &variables)
{
    const Vec2 snap = variables.point(u"SNAPUNIT").xy();
    const Vec2 unit = variables.point(u"GRIDUNIT").xy();
    return latticeOf(variables, {unit.x > 0.0 ? unit.x : snap.x, unit.y > 0.0 ? unit.y : snap.y});
}

} // namespace host::kernel
