#pragma once

#include "host/drawing/tags/Tag.h"
#include "platform/kernel/OdResBuf.h"

namespace host::kernel {

// The data of extension records as modules see it: a chain of links whose types are group codes.

/// Null for no fields. A value that a file does not have as its group code asks comes as text, binary data as
/// hexadecimal digits.
OdResBufPtr chainFromFields(const drawing::FieldList &fields);

drawing::FieldList fieldsFromChain(const OdResBuf *chain);

} // namespace host::kernel
