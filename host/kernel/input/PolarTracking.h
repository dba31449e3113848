#pragma once

#include "host/drawing/math/Vec.h"

#include <optional>
#include <vector>

namespace host::kernel {

class SystemVariables;

/// The angles from the last point to which polar tracking locks the next one (AUTOSNAP bit 8): the multiples of
/// POLARANG, and with POLARMODE bit 4 those of POLARADDANG, which stand between semicolons in the drawing's own way of
/// writing angles. With POLARMODE bit 1 the multiples count from the direction of the last segment, otherwise from the
/// user's x axis, as POLARADDANG always does. All angles are radians from the user's x axis.
class PolarTracking
{
public:
    /// `last` is the direction of the last segment, user coordinates.
    PolarTracking(const SystemVariables &variables, const drawing::Vec3 &last);

    /// Whether there is an angle to lock to.
    bool isOn() const { return m_isOn; }
    /// The angles next to that one, on each side: those of which it can be close to one.
    std::vector<double> anglesNear(double angle) const;
    /// A distance along one of the angles, in steps of POLARDIST while points snap to these (SNAPMODE, SNAPTYPE 1).
    double stepped(double distance) const;

private:
    bool m_isOn = false;
    double m_start = 0.0; ///< of the multiples
    double m_step = 0.0;  ///< 0: there are none
    std::vector<double> m_further;
    double m_distanceStep = 0.0; ///< 0: any distance
};

} // namespace host::kernel
