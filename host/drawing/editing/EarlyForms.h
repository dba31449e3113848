#pragma once

#include "host/drawing/records/Drawing.h"

#include <vector>

namespace host::drawing {

/// An entity, with its vertices when it has some, as Entities::createComplex() takes them.
struct EarlyForm
{
    FieldList head;
    std::vector<FieldList> children;
};

/// What says in an early drawing what an entity of a later type draws: for an LWPOLYLINE the POLYLINE that it is, for
/// an ELLIPSE, SPLINE or LEADER a POLYLINE along it, for an MTEXT a TEXT for each of its lines, without formatting and
/// not wrapped, and for a 3DLINE the LINE that it became. `fields` are the entity's as the target has them. Empty for
/// types that `version` has itself, and for those that no earlier type can stand for.
std::vector<EarlyForm> earlyForms(const Drawing &drawing, RecordId entity, const FieldList &fields, Version version);

} // namespace host::drawing
