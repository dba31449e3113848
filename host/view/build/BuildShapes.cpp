#include "host/drawing/math/Angles.h"
#include "host/view/build/DisplayBuilder.h"
#include "host/view/build/Scene.h"
#include "host/view/display/MapShapes.h"

namespace host::view {

using drawing::radians;
using drawing::TagList;

namespace {

/// From the shape's own coordinates, in which it has size 1; nothing when the numbers make no shape.
std::optional<Matrix> placementOf(const TagList &tags)
{
    const Vec3 at = tags.point(10);
    const Vec3 extrusion = tags.point(210, {0.0, 0.0, 1.0});
    const double size = tags.real(40, 1.0);
    const double width = tags.real(41, 1.0);
    const double rotation = tags.real(50) * radians;
    const double slant = std::tan(std::clamp(tags.real(51) * radians, -1.45, 1.45));
    if (!isUsable(at) || !isUsable(extrusion) || !isUsable(size) || !isUsable(width) || !isUsable(rotation) ||
        size == 0.0)
        return std::nullopt;
    const Matrix form{{size * width, 0.0, 0.0}, {size * slant, size, 0.0}, {0.0, 0.0, 1.0}, {}};
    return Matrix::fromExtrusion(extrusion) * Matrix::translation(at) * Matrix::rotation(rotation) * form;
}

} // namespace

/// Shapes are always of full lines.
bool buildShape(BuildContext &context, const TagList &tags)
{
    const std::optional<Matrix> placement = placementOf(tags);
    auto curves = context.appearance().shapeNamed(tags.text(2), context.scene.shapes());
    if (!placement || !curves)
        return false;
    Style full = context.style;
    full.linetype = 0;
    for (Curve &curve : *curves) {
        mapCurve(curve, *placement);
        context.add(Stroke{std::move(curve)}, full);
    }
    return true;
}

} // namespace host::view
