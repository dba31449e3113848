#pragma once

#include "platform/kernel/OdResBuf.h"

#include <QString>

namespace ortakit {

class EntityData;

/// The field of a name ("layer", "height", ...; any case) as a link of a Lisp value. Which group it is depends on the
/// type. Where an entity leaves a field out, its usual value is given: colour 256, linetype "ByLayer", scale 1.0, ...
/// Null for a name that the type does not have and for a field that is left out and has no usual value.
OdResBufPtr namedField(const EntityData &data, const QString &name);

/// The value of the first group of a code; null when there is none.
OdResBufPtr codedField(const EntityData &data, int code);

} // namespace ortakit
