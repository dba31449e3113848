#pragma once

#include "host/drawing/math/Matrix.h"
#include "host/drawing/tags/Tag.h"

namespace host::drawing {

/// A plane of object coordinates before and after a map. The new plane's extrusion stays on the side of the old one, so
/// that a mirrored drawing keeps its usual (0 0 1); what is mirrored within the plane is told by isMirrored().
class PlaneMap
{
public:
    /// `extrusion` is group 210 as the entity has it; `matrix` maps world coordinates.
    PlaneMap(const Vec3 &extrusion, const Matrix &matrix);

    /// Group 210 of the mapped entity, with length 1.
    const Vec3 &extrusion() const { return m_extrusion; }
    /// From old object coordinates to new ones.
    const Matrix &map() const { return m_map; }
    Vec3 point(const Vec3 &p) const { return m_map.point(p); }
    /// Whether shapes in the plane keep their form; factor() is their scale then.
    bool isSimilar() const;
    double factor() const { return m_map.xAxis.length(); }
    /// Whether what ran counter-clockwise runs clockwise now.
    bool isMirrored() const;
    /// Direction of what pointed to `angle`; radians in the plane's own coordinates.
    double angle(double angle) const;

private:
    Vec3 m_extrusion;
    Matrix m_map;
};

/// Whether a map scales all directions alike and keeps right angles; it may turn and mirror.
bool isUniform(const Matrix &matrix);

/// Sets a group of the type's own part: where it is missing, in front of further parts and extended data, so that
/// readers find it behind the subclass marker that it belongs to.
void setOwnField(FieldList &fields, int code, const FieldValue &value);

/// Changes the fields of one entity record; false when the map cannot be applied to it or the type is not known. They
/// may be half changed then: who keeps the entity drops them.
bool transformFields(FieldList &fields, const Matrix &matrix);
/// The part of transformFields() that changes extended data: places (1011) are mapped, displacements (1012) and
/// directions (1013) turned, distances (1041) and factors (1042) scaled.
void transformXdata(FieldList &fields, const Matrix &matrix);
/// The part of transformFields() that a HATCH takes: its boundary, pattern and seed points in the plane.
bool transformHatch(FieldList &fields, const PlaneMap &plane);
/// The part that models as text take (see SolidText.h): they are placed elsewhere, by a map that scales all directions
/// alike. The picture of the model that a record may keep is dropped.
bool transformSolid(FieldList &fields, const Matrix &matrix);

} // namespace host::drawing
