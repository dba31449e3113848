#pragma once

#include "host/drawing/records/Record.h"
#include "platform/db/OdDbObjectId.h"

namespace host::kernel {

class Document;

/// Records as modules name them, by the number of their Lisp entity name, and back. An id that the drawing never gave
/// out is noRecord; in a list it is left out, as is one that stands there already.
/// @{
OdDbObjectId objectId(drawing::RecordId record);
OdDbObjectIdArray objectIds(const std::vector<drawing::RecordId> &records);
drawing::RecordId recordFrom(const Document &document, const OdDbObjectId &object);
std::vector<drawing::RecordId> recordsFrom(const Document &document, const OdDbObjectIdArray &objects);
/// @}

} // namespace host::kernel
