#pragma once

#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/math/Matrix.h"
#include "host/drawing/records/Drawing.h"

#include <vector>

namespace host::kernel {

class Document;

/// How a shape on the drawing chooses entities.
enum class ShapeKind
{
    Window,          ///< two corners; what lies within
    Crossing,        ///< two corners; what lies within or crosses
    WindowPolygon,   ///< three corners or more; what lies within
    CrossingPolygon, ///< what lies within or crosses
    Fence            ///< an open path; what crosses it
};

/// What a pick inside of a block or polyline found.
struct NestedPick
{
    drawing::RecordId entity = drawing::noRecord;
    drawing::Matrix toWorld;                ///< from the block's coordinates
    std::vector<drawing::RecordId> inserts; ///< the references it is in, innermost first; empty for an entity outside
};

/// Finds entities of the current space by where they are. Looks only at what is visible: not at layers that are off or
/// frozen. Points are in world coordinates; shapes are seen from above.
class Picker
{
public:
    explicit Picker(Document &document) : m_document(document) {}

    /// The entity within PICKBOX pixels of the point; the nearest, of equally near ones the one drawn last. noRecord
    /// when there is none.
    drawing::RecordId entityAt(const drawing::Vec3 &point) const;
    /// The part of `entity` that is nearest to the point: what a block reference shows, an attribute, a vertex.
    NestedPick nestedAt(drawing::RecordId entity, const drawing::Vec3 &point) const;
    /// In drawing order.
    std::vector<drawing::RecordId> inShape(ShapeKind kind, const std::vector<drawing::Vec3> &corners) const;
    /// All visible entities of the current space, in drawing order.
    std::vector<drawing::RecordId> visible() const;
    /// As visible(), but of layers that are off as well, and none on locked layers: what "ALL" means.
    std::vector<drawing::RecordId> thawed() const;
    /// Of visible(), those that are on no locked layer: what can be seen and changed.
    std::vector<drawing::RecordId> choosable() const;

private:
    /// Of visible(), those whose box touches the window, and those without end.
    std::vector<drawing::RecordId> touching(const drawing::Box &window) const;
    /// What is picked by: the entity's outline, or the box of what it shows where that alone is known (multileaders,
    /// dimensions without a block).
    drawing::Outline outline(drawing::RecordId entity, drawing::WorkBudget &work) const;
    NestedPick nearestInside(drawing::RecordId insert, const drawing::Vec3 &point) const;
    drawing::RecordId nearestVertex(drawing::RecordId polyline, const drawing::Vec3 &point) const;

    Document &m_document;
};

} // namespace host::kernel
