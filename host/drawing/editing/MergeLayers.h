#pragma once

#include "host/drawing/records/Drawing.h"

#include <QStringList>

namespace host::drawing {

// What takes layers out of a drawing. Each is one step of the journal and costs one pass over all records.

/// Why a layer cannot be taken out: layer 0, the current one, one of an external reference, none of that name; empty
/// when it can.
QString obstacleToRemovingLayer(const Drawing &drawing, const QString &name);

/// Puts all that is on these layers on another one, in spaces and blocks, and takes the layers out.
void mergeLayers(Drawing &drawing, const QStringList &names, const QString &into);
/// Erases the entities on these layers, in spaces and blocks, and takes the layers out. How many entities there were.
int eraseLayers(Drawing &drawing, const QStringList &names);

} // namespace host::drawing
