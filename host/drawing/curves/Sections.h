#pragma once

#include "host/drawing/curves/EntityCurve.h"
#include "host/drawing/records/Entities.h"

namespace host::drawing {

/// Fields of a new entity, as Entities::create() and createComplex() take them.
struct CurveRecord
{
    FieldList head;
    std::vector<FieldList> children; ///< of a POLYLINE its vertices; empty for all others

    /// As the last of a block or space.
    CreateResult create(Drawing &drawing, Space space) const;
};

/// The part of a curve between two of its parameters, with layer, colour and all else that the entity has: an ARC of a
/// circle, an ELLIPSE with other parameters, a polyline with widths and bulges in proportion, a SPLINE with new knots
/// at its ends, a LINE of a RAY between two finite parameters (a RAY of an XLINE with one infinite one).
///
/// Parameters beyond the curve extend it, where it can go on (see Extension). `from` above `to` takes, of a closed
/// curve, the part across its start; of an open one there is no such part. Of a closed curve from a point to the same
/// point is the whole of it, opened there. A fitted polyline becomes a plain one. Nothing for what is no curve, for a
/// part without length and for leaders, which are not cut.
std::optional<CurveRecord> curveSection(const Drawing &drawing, RecordId entity, double from, double to);

/// Makes an entity another curve: `record` in its place, with its handle where the type is the same and no vertices are
/// separate records. Gives the entity that is there then; noRecord when the drawing refused it.
RecordId replaceCurve(Drawing &drawing, RecordId entity, const CurveRecord &record);
/// A further entity where `like` is: in its space or block.
RecordId addCurve(Drawing &drawing, RecordId like, const CurveRecord &record);

/// The fields that say where a spline runs, in place of those that `fields` have: degree, flags, knots, control points
/// and weights. Its fit points are left out.
FieldList withSpline(const FieldList &fields, const Spline &spline);

} // namespace host::drawing
