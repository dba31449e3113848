#pragma once

#include "host/drawing/Drawing.h"

namespace host::kernel {

/// Fields that files may leave out because they have the usual value, while programs expect to find them: a TEXT's
/// rotation, an INSERT's scales, the extrusion direction. Angles are degrees. Empty for types without such.
const drawing::FieldList &impliedFields(QStringView type);

/// `fields` of an entity with what is implied put in: behind the last of the type's own groups, or for the widths and
/// bulge of an LWPOLYLINE behind each vertex.
drawing::FieldList withImpliedFields(const drawing::Drawing &drawing, drawing::RecordId entity,
                                     drawing::FieldList fields);

} // namespace host::kernel
