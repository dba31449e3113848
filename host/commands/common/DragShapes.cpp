#include "host/commands/common/DragShapes.h"

#include <cmath>

namespace host::kernel {

using drawing::Matrix;
using drawing::RecordId;
using drawing::Vec3;

namespace {

Dragged shapeOf(std::vector<RecordId> entities, DragShape::Map map)
{
    return std::make_shared<const DragShape>(DragShape{.entities = std::move(entities), .map = std::move(map)});
}

} // namespace

Dragged turnedBy(const UserPlane &plane, std::vector<RecordId> entities, const Vec3 &centre, double reference,
                 std::optional<Vec3> from)
{
    const Vec3 start = plane.userFromWorld(from.value_or(centre));
    return shapeOf(std::move(entities), [=](const Vec3 &place) -> std::optional<Matrix> {
        const Vec3 away = plane.userFromWorld(place) - start;
        if (away.x == 0.0 && away.y == 0.0)
            return {};
        return plane.rotation(std::atan2(away.y, away.x) - reference, centre);
    });
}

Dragged scaledBy(const UserPlane &plane, std::vector<RecordId> entities, const Vec3 &centre, double reference,
                 std::optional<Vec3> from)
{
    const Vec3 start = plane.userFromWorld(from.value_or(centre));
    return shapeOf(std::move(entities), [=](const Vec3 &place) -> std::optional<Matrix> {
        const double factor = (plane.userFromWorld(place) - start).length() / reference;
        if (!(factor > 0.0) || !std::isfinite(factor))
            return {};
        return Matrix::scaling({factor, factor, factor}, centre);
    });
}

Dragged mirroredIn(const UserPlane &plane, std::vector<RecordId> entities, const Vec3 &first)
{
    const Vec3 from = plane.userFromWorld(first);
    return shapeOf(std::move(entities), [=](const Vec3 &place) -> std::optional<Matrix> {
        const Vec3 to = plane.userFromWorld(place);
        if ((to - from).xy().length() == 0.0)
            return {};
        return plane.inWorld(Matrix::mirror(from, to));
    });
}

} // namespace host::kernel
