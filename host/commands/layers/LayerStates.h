#pragma once

#include "host/kernel/documents/CommandMemory.h"

#include <QStringList>

#include <vector>

namespace host::drawing {
struct Layer;
}

namespace host::kernel {

class CommandContext;

// What commands do to the states of layers, and what they remember of them.

constexpr qint64 frozenLayer = 1; ///< bits of a layer's group 70
constexpr qint64 lockedLayer = 4;

QString currentLayer(CommandContext &context);
bool isCurrent(CommandContext &context, const drawing::Layer &layer);
/// Sets or clears a bit of group 70.
void changeLayerFlag(CommandContext &context, const drawing::Layer &layer, qint64 bit, bool isOn);
/// On or off: a negative colour number says that the layer is off.
void switchLayer(CommandContext &context, const drawing::Layer &layer, bool isOn);

/// All layers as they are now, and which is current.
LayerStates layerStates(CommandContext &context);
/// Keeps what was before a command for LAYERP, where the layers have changed since.
void rememberLayers(CommandContext &context, const LayerStates &before);
/// Gives the layers that are still there what they had then.
void restoreLayers(CommandContext &context, const LayerStates &states);

} // namespace host::kernel
