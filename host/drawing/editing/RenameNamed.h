#pragma once

#include "host/drawing/records/Tables.h"

namespace host::drawing {

/// Gives an entry of a symbol table another name, there and wherever the old one stands; blocks with their definition,
/// all viewports that share a name. Another letter case alone is another name too. Costs one pass over all records.
///
/// A sentence says why nothing was done: no such entry, one that every drawing has or that belongs to an external
/// reference, a name that is taken or cannot be one. Empty when it was done.
QString renameEntry(Drawing &drawing, TableKind kind, const QString &from, const QString &to);

/// The same for what a dictionary below the root holds: "ACAD_TABLESTYLE".
QString renameInDictionary(Drawing &drawing, QStringView dictionary, const QString &from, const QString &to);

} // namespace host::drawing
