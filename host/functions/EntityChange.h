#pragma once

#include "host/drawing/records/Drawing.h"
#include "host/lisp/Value.h"

namespace host::kernel {

class Document;

/// What a record becomes when a program hands back its entity list, changed or not. What the list has as it was shown
/// stays as the file has it, in its place and spelling, and what was shown but is not in the file stays out of it; so
/// do groups, and applications of extended data, that the list leaves out. Throws EntityListError.
drawing::FieldList changedFields(const Document &document, drawing::RecordId record, const lisp::Value &list);

} // namespace host::kernel
