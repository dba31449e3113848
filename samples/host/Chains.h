#pragma once

#include "Lisp.h"
#include "platform/kernel/OdResBuf.h"

namespace sample {

/// The chain that stands for `arguments`; null for none.
OdResBufPtr chainOf(const Value::List &arguments);

/// The values that the chain stands for, lists among them.
Value::List valuesOf(const OdResBuf *chain);

} // namespace sample
