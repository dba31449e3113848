#pragma once

#include "host/drawing/math/Curves.h"

#include <QString>

namespace host::drawing {

/// An arrow head at size 1: its tip at the origin, pointing along x, so that its line comes from the left.
struct Arrowhead
{
    struct Ring
    {
        Vec3 center{};
        double radius = 0.0;
        bool isFilled = false;
    };
    std::vector<Path> lines{};
    std::vector<Path> areas{}; ///< filled, each closed from its last point to its first
    std::vector<Ring> rings{};
    double length = 1.0; ///< how far behind the tip the line ends; 0 for what stands across it
};

/// A built-in arrow head by its name (the names of their blocks, as "DotSmall"), in any letter case and with or without
/// an underscore in front. The usual filled arrow for an empty name and for one that is none of them. The reference
/// stays.
const Arrowhead &arrowheadNamed(QStringView name);
/// Whether the name is one of a built-in arrow head, the usual one's left out.
bool isArrowheadName(QStringView name);

/// The short stroke across the line that DIMTSZ puts in place of arrows.
const Arrowhead &tickMark();

} // namespace host::drawing
