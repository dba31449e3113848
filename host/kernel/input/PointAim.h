#pragma once

#include "host/drawing/math/Vec.h"

#include <optional>

namespace host::kernel {

/// Where points are being shown: what a distance alone counts towards.
struct PointAim
{
    /// Where the pointer was last over the drawing, world coordinates; nothing where nobody has moved one.
    std::optional<drawing::Vec3> pointer;
    /// The direction in which the last point with a base lay from it, user coordinates, of length 1.
    drawing::Vec3 direction{1.0, 0.0, 0.0};

    // What was typed beside the pointer for the next point with a base, until that is there or the prompt ends.
    std::optional<double> lockedLength{};
    std::optional<double> lockedAngle{}; ///< radians from the user's x axis

    bool isLocked() const { return lockedLength || lockedAngle; }
    void unlock()
    {
        lockedLength.reset();
        lockedAngle.reset();
    }

    /// The direction from a base (user coordinates) to a pointer (likewise), which falls back to `direction`.
    drawing::Vec3 from(const drawing::Vec3 &base, const std::optional<drawing::Vec3> &userPointer) const
    {
        const drawing::Vec3 away = userPointer ? *userPointer - base : drawing::Vec3{};
        return away.length() > 0.0 ? normalized(away) : direction;
    }
};

} // namespace host::kernel
