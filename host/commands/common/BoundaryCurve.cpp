#include "host/commands/common/BoundaryCurve.h"

namespace host::kernel {

using drawing::EntityCurve;
using drawing::Matrix;
using drawing::RecordId;
using drawing::Vec3;

namespace {

/// Corners of a face as straight pieces, in the order in which a SOLID or a 3DFACE has its edges.
std::vector<Vec3> faceCorners(const drawing::Drawing &drawing, RecordId entity)
{
    const drawing::TagList tags = drawing.tags(entity);
    const bool isFlat = !drawing.isType(entity, "3DFACE");
    const Matrix plane = isFlat ? Matrix::fromExtrusion(tags.point(210, {0.0, 0.0, 1.0})) : Matrix{};
    std::vector<Vec3> corners;
    for (const int code : {10, 11, isFlat ? 13 : 12, isFlat ? 12 : 13})
        corners.push_back(plane.point(tags.point(code)));
    return corners;
}

} // namespace

std::optional<EntityCurve> boundaryCurve(const drawing::Drawing &drawing, RecordId entity)
{
    const QByteArrayView type = drawing.typeName(entity);
    if (type == "SOLID" || type == "TRACE" || type == "3DFACE")
        return EntityCurve::through(faceCorners(drawing, entity), true);
    return type == "LEADER" ? std::nullopt : EntityCurve::ofEntity(drawing, entity);
}

} // namespace host::kernel
