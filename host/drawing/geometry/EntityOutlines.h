#pragma once

#include "host/drawing/geometry/EntityGeometry.h"

namespace host::drawing {

/// The outline of one entity that is no block reference, in the coordinates it is written in; world coordinates for
/// `transform` the identity. Appends to `outline`.
void appendOutline(Outline &outline, const Drawing &drawing, RecordId entity, const Matrix &transform,
                   const Flatness &flatness);

// The families of types, each in a file of its own. False when the type is none of the family.
class OutlineSink;
bool outlineOfPolyline(OutlineSink &sink, const Drawing &drawing, RecordId entity, const TagList &tags);
bool outlineOfText(OutlineSink &sink, const Drawing &drawing, QByteArrayView type, const TagList &tags);
bool outlineOfHatch(OutlineSink &sink, const TagList &tags);

/// Takes pieces in entity coordinates and puts them into an outline in world coordinates.
class OutlineSink
{
public:
    OutlineSink(Outline &outline, const Matrix &transform, const Flatness &flatness);

    /// Following pieces are in the object coordinates of this extrusion (group 210).
    void useExtrusion(const Vec3 &extrusion);
    /// Flatness for entity coordinates: the transform may enlarge what is drawn.
    const Flatness &flatness() const { return m_flatness; }

    void add(const Path &path, bool isFilled = false, bool isHole = false);
    void markApproximate() { m_outline.isApproximate = true; }
    void markInfinite() { m_outline.isInfinite = true; }

private:
    Outline &m_outline;
    Matrix m_base;
    Matrix m_transform;
    Flatness m_flatness;
};

} // namespace host::drawing
