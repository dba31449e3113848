#pragma once

#include "platform/db/OdDbDatabase.h"

namespace ortakit {

/// Leaves of `entities` one of each that are equal in everything but their handles, parts and extended data included:
/// the one that comes first. Costs reading all of them once.
void leaveOutDuplicates(const OdDbDatabase &database, OdDbObjectIdArray &entities);

} // namespace ortakit
