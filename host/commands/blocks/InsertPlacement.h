#pragma once

#include "host/drawing/math/Matrix.h"
#include "host/drawing/tags/Tag.h"
#include "host/kernel/running/Dialogue.h"

#include <QString>

namespace host::kernel {

class CommandContext;

/// Where a block or reference goes, and how.
struct InsertPlacement
{
    drawing::Vec3 point; ///< world coordinates
    drawing::Vec3 scale{1.0, 1.0, 1.0};
    double rotation = 0.0; ///< from the user's x axis, radians
};

enum class InsertScales
{
    OfEachAxis,
    One ///< the same for all axes
};

/// Asks for insertion point, scales and rotation; the options in front of the point say scales and rotation beforehand,
/// which are not asked for then. The contents of `block` hang at the pointer meanwhile; empty: nothing does.
Dialogue<InsertPlacement> askPlacement(CommandContext &context, InsertScales scales = InsertScales::OfEachAxis,
                                       QString block = {});

/// The INSERT in the plane of the user's axes.
drawing::FieldList insertFields(CommandContext &context, const QString &block, const InsertPlacement &placement);
/// From the block's coordinates to the world.
drawing::Matrix placementMatrix(CommandContext &context, const drawing::Vec3 &basePoint,
                                const InsertPlacement &placement);

} // namespace host::kernel
