#include "host/commands/common/ControlSpline.h"

#include <algorithm>

namespace host::kernel {

using drawing::Spline;
using drawing::Vec3;

Spline splineOver(std::vector<Vec3> controlPoints, int degree, bool isClosed)
{
    Spline spline;
    spline.degree = std::clamp(degree, 1, static_cast<int>(std::min<std::size_t>(controlPoints.size() - 1, 25)));
    spline.isClosed = isClosed;
    const auto order = static_cast<std::size_t>(spline.degree) + 1;
    const std::size_t wrapped = isClosed ? order - 1 : 0;
    for (std::size_t i = 0; i < wrapped; ++i)
        controlPoints.push_back(controlPoints[i]);
    spline.controlPoints = std::move(controlPoints);
    const std::size_t count = spline.controlPoints.size() + order;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t inner = std::clamp(i, order - 1, count - order) - (order - 1);
        spline.knots.push_back(isClosed ? static_cast<double>(i) - static_cast<double>(order - 1)
                                        : static_cast<double>(inner));
    }
    return spline;
}

} // namespace host::kernel
