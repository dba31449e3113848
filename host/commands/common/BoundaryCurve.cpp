#include "host/commands/common/BoundaryCurve.h"

#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/records/Symbols.h"
#include "host/drawing/solids/SolidModel.h"

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

QSet<QString> hiddenLayerNames(const drawing::Drawing &drawing)
{
    QSet<QString> names;
    for (const drawing::Layer &layer : drawing::allLayers(drawing))
        if (layer.isOff || layer.isFrozen)
            names.insert(layer.name.toUpper());
    return names;
}

std::vector<EntityCurve> shownCurves(const drawing::Drawing &drawing, RecordId entity,
                                     const QSet<QString> &hiddenLayers, drawing::WorkBudget &work)
{
    std::vector<EntityCurve> curves;
    const QByteArrayView type = drawing.typeName(entity);
    const auto add = [&](RecordId shown, const Matrix &map) {
        if (const auto curve = EntityCurve::ofEntity(drawing, shown))
            curves.push_back(map == Matrix() ? *curve : curve->transformed(map));
        else if (drawing.isType(shown, "REGION"))
            for (const drawing::SolidEdge &edge : drawing::readSolidModel(drawing.tags(shown)).edges)
                curves.push_back(EntityCurve(EntityCurve::Kind::Polyline3d, edge, false).transformed(map));
    };
    if (type != "INSERT" && !type.endsWith("DIMENSION")) {
        add(entity, {});
        return curves;
    }
    visitInserted(drawing, entity, work, [&](const drawing::VisitedEntity &visited) {
        const drawing::TagList tags = drawing.tags(visited.entity);
        const QString layer = tags.text(8, QStringLiteral("0")).toUpper();
        if (tags.integer(60) == 0 && !hiddenLayers.contains(layer))
            add(visited.entity, visited.transform);
        return true;
    });
    return curves;
}

} // namespace host::kernel
