#pragma once

#include "host/drawing/records/Drawing.h"

#include <QStringList>

#include <optional>

namespace host::kernel {

// Named states of all layers. They stand as extension records in the dictionary ACAD_LAYERSTATES below the table of
// layers, and in files as the same groups with the names of linetypes.

/// What a state gives layers back.
enum LayerStatePart : qint64
{
    StateOn = 1,
    StateFrozen = 2,
    StateLock = 4,
    StatePlot = 8,
    StateNewViewports = 16, ///< frozen in viewports made later
    StateColour = 32,
    StateLinetype = 64,
    StateLineweight = 128,
    StatePlotStyle = 256,
    StateTransparency = 1024,
    WholeState = 2047
};

/// Names in the order they were stored.
QStringList layerStateNames(const drawing::Drawing &drawing);

/// Stores how all layers are now, in place of a state of that name. `parts`: LayerStatePart. False in drawings that can
/// store none, of R12.
bool storeLayerState(drawing::Drawing &drawing, const QString &name, qint64 parts);

/// What a stored state gives back; nothing when there is no such state.
std::optional<qint64> layerStateParts(const drawing::Drawing &drawing, const QString &name);
void setLayerStateParts(drawing::Drawing &drawing, const QString &name, qint64 parts);

/// Gives the layers that are still there what they had; others stay. The current layer is not frozen.
void restoreLayerState(drawing::Drawing &drawing, const QString &name);

/// False when there is no such state, or when the new name is taken.
bool renameLayerState(drawing::Drawing &drawing, const QString &name, const QString &newName);
bool removeLayerState(drawing::Drawing &drawing, const QString &name);

/// A state as the text of a file, and back: the name that was stored; empty for what is no such text, or a name that is
/// taken.
QByteArray layerStateText(const drawing::Drawing &drawing, const QString &name);
QString takeLayerStateText(drawing::Drawing &drawing, const QByteArray &text);

} // namespace host::kernel
