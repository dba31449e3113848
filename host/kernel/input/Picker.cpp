#include "host/kernel/input/Picker.h"

#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Symbols.h"
#include "host/drawing/selection/PolygonSelection.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/CurrentView.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/view/build/EntityExtents.h"

#include <QSet>

namespace host::kernel {

namespace {

using drawing::Box;
using drawing::RecordId;
using drawing::Vec2;
using drawing::Vec3;

/// Entities of a list that are not on one of the layers and not made invisible themselves.
std::vector<RecordId> without(const drawing::Drawing &drawing, std::vector<RecordId> entities,
                              const QSet<QString> &layers)
{
    std::erase_if(entities, [&](RecordId id) {
        const drawing::TagList tags = drawing.tags(id);
        return tags.integer(60) != 0 || layers.contains(tags.text(8, QStringLiteral("0")).toUpper());
    });
    return entities;
}

template <typename Test>
QSet<QString> layersThat(const drawing::Drawing &drawing, Test &&test)
{
    QSet<QString> names;
    for (const drawing::Layer &layer : drawing::allLayers(drawing))
        if (test(layer))
            names.insert(layer.name.toUpper());
    return names;
}

Box boxOf(const std::vector<Vec3> &corners)
{
    Box box;
    for (const Vec3 &corner : corners)
        box.add(corner);
    return box;
}

Box boxAround(const Vec3 &point, double reach)
{
    Box box;
    box.add(point + Vec3{reach, reach, reach});
    box.add(point - Vec3{reach, reach, reach});
    return box;
}

/// A rectangle, filled.
drawing::Outline outlineOf(const Box &box)
{
    drawing::Outline outline;
    outline.isApproximate = true;
    if (box.isEmpty())
        return outline;
    const auto [low, high] = std::pair(box.low, box.high);
    outline.pieces.push_back(
        {.points = {low, {high.x, low.y, low.z}, high, {low.x, high.y, low.z}, low}, .isFilled = true});
    return outline;
}

bool isChosen(const drawing::Outline &outline, ShapeKind kind, const std::vector<Vec3> &corners)
{
    switch (kind) {
    case ShapeKind::Window:
        return drawing::liesWithin(outline, boxOf(corners));
    case ShapeKind::Crossing:
        return drawing::crosses(outline, boxOf(corners));
    case ShapeKind::WindowPolygon:
        return drawing::liesWithin(outline, corners);
    case ShapeKind::CrossingPolygon:
        return drawing::crosses(outline, corners);
    case ShapeKind::Fence:
        break;
    }
    return drawing::crossesPath(outline, corners);
}

/// Where an entity is found: a block reference that shows nothing at its insertion point.
Box placeOf(Document &document, RecordId entity)
{
    Box box = document.entityExtents().of(entity);
    if (!box.isEmpty() || !document.drawing().isType(entity, "INSERT"))
        return box;
    const drawing::TagList tags = document.drawing().tags(entity);
    box.add(drawing::Matrix::fromExtrusion(tags.point(210, {0.0, 0.0, 1.0})).point(tags.point(10)));
    return box;
}

} // namespace

std::vector<RecordId> Picker::visible() const
{
    const drawing::Drawing &drawing = m_document.drawing();
    const auto isHidden = [](const drawing::Layer &layer) { return layer.isOff || layer.isFrozen; };
    return without(drawing, currentEntities(drawing), layersThat(drawing, isHidden));
}

std::vector<RecordId> Picker::choosable() const
{
    const drawing::Drawing &drawing = m_document.drawing();
    const auto isOut = [](const drawing::Layer &layer) { return layer.isOff || layer.isFrozen || layer.isLocked; };
    return without(drawing, currentEntities(drawing), layersThat(drawing, isOut));
}

std::vector<RecordId> Picker::thawed() const
{
    const drawing::Drawing &drawing = m_document.drawing();
    const auto isOut = [](const drawing::Layer &layer) { return layer.isFrozen || layer.isLocked; };
    return without(drawing, currentEntities(drawing), layersThat(drawing, isOut));
}

RecordId Picker::entityAt(const Vec3 &point) const
{
    const double reach =
        m_document.variables().integer(u"PICKBOX", 3) * workedLength(m_document, m_document.view().unitsPerPixel());
    const std::vector<RecordId> near = touching(boxAround(point, reach));
    RecordId best = drawing::noRecord;
    double bestDistance = reach;
    drawing::WorkBudget work = drawing::outlineBudget(near.size());
    for (RecordId id : near) {
        const double distance = drawing::flatDistance(outline(id, work), point.xy());
        if (distance <= bestDistance) {
            best = id;
            bestDistance = distance;
        }
    }
    return best;
}

std::vector<RecordId> Picker::inShape(ShapeKind kind, const std::vector<Vec3> &corners) const
{
    std::vector<RecordId> chosen = touching(boxOf(corners));
    drawing::WorkBudget work = drawing::outlineBudget(chosen.size());
    std::erase_if(chosen, [&](RecordId id) { return !isChosen(outline(id, work), kind, corners); });
    return chosen;
}

std::vector<RecordId> Picker::touching(const Box &window) const
{
    const std::vector<RecordId> all = visible();
    const std::vector<RecordId> known = m_document.boxes().touching(all, window);
    std::vector<RecordId> found;
    auto next = known.begin();
    for (const RecordId id : all) {
        if (next != known.end() && *next == id) {
            found.push_back(id);
            ++next;
        } else if (m_document.boxes().box(id).isEmpty() && placeOf(m_document, id).touchesFlat(window)) {
            found.push_back(id);
        }
    }
    return found;
}

drawing::Outline Picker::outline(RecordId entity, drawing::WorkBudget &work) const
{
    drawing::Outline own = drawing::entityOutline(m_document.drawing(), entity, work);
    return own.pieces.empty() ? outlineOf(placeOf(m_document, entity)) : own;
}

NestedPick Picker::nestedAt(RecordId entity, const Vec3 &point) const
{
    const drawing::Drawing &drawing = m_document.drawing();
    if (drawing.isType(entity, "INSERT") || drawing.typeName(entity).endsWith("DIMENSION"))
        return nearestInside(entity, point);
    NestedPick pick;
    pick.entity = drawing.isType(entity, "POLYLINE") ? nearestVertex(entity, point) : entity;
    return pick;
}

NestedPick Picker::nearestInside(RecordId insert, const Vec3 &point) const
{
    const drawing::Drawing &drawing = m_document.drawing();
    NestedPick pick;
    pick.entity = insert;
    double best = std::numeric_limits<double>::infinity();
    drawing::WorkBudget work(drawing::outlineWork);
    drawing::visitInserted(drawing, insert, work, [&](const drawing::VisitedEntity &visited) {
        const drawing::Outline outline = drawing::entityOutline(drawing, visited.entity, {}, visited.transform);
        const double distance = drawing::flatDistance(outline, point.xy());
        if (distance <= best) {
            best = distance;
            pick.entity = visited.entity;
            pick.toWorld = visited.transform;
            pick.inserts.assign(visited.inserts.rbegin(), visited.inserts.rend());
        }
        return true;
    });
    // An attribute stands beside its block, not in it.
    if (drawing.kind(pick.entity) == drawing::RecordKind::Child)
        return {pick.entity, {}, {}};
    return pick;
}

RecordId Picker::nearestVertex(RecordId polyline, const Vec3 &point) const
{
    const drawing::Drawing &drawing = m_document.drawing();
    const std::vector<RecordId> vertices = drawing.children(polyline);
    RecordId best = polyline;
    double bestDistance = std::numeric_limits<double>::infinity();
    for (size_t i = 0; i < vertices.size(); ++i) {
        const RecordId next = vertices[(i + 1) % vertices.size()];
        drawing::Outline segment;
        segment.pieces.push_back({{drawing.tags(vertices[i]).point(10), drawing.tags(next).point(10)}, false});
        const double distance = drawing::flatDistance(segment, point.xy());
        if (distance < bestDistance) {
            bestDistance = distance;
            best = vertices[i];
        }
    }
    return best;
}

} // namespace host::kernel
