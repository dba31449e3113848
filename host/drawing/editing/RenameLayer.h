#pragma once

#include "host/drawing/records/Drawing.h"

#include <QHash>

namespace host::drawing {

/// Gives a layer another name, in its table entry and wherever the old one stands: on entities, in extended data, in
/// the header and in stored layer states. Costs one pass over all records. The reason when it cannot be: no such layer,
/// layer 0 or one of an external reference, a name that is taken or cannot be one; empty when it was done.
QString renameLayer(Drawing &drawing, const QString &from, const QString &to);

/// Puts other names in place of layers' names wherever these stand, but for the table itself. Keys are in folded case.
/// Costs one pass over all records.
void replaceLayerNames(Drawing &drawing, const QHash<QString, QString> &names);

/// Whether a text can be the name of a symbol in a drawing of this version.
bool isSymbolName(const QString &name, Version version);

} // namespace host::drawing
