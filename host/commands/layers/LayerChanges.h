#pragma once

#include "host/drawing/tags/Tag.h"
#include "host/kernel/running/Dialogue.h"

#include <QString>

#include <functional>

namespace host::kernel {

class CommandContext;

/// A change of a layer's properties that the user has said.
struct LayerChange
{
    QString what;                                         ///< as the prompt for the layers names it: "color 1 (red)"
    std::function<void(drawing::FieldList &layer)> apply; ///< null: there is none, which was told
};

/// Asks for the value that an option of -LAYER gives to layers: Color, Ltype, LWeight, TRansparency, MATerial, Plot,
/// Description.
Dialogue<LayerChange> askLayerChange(CommandContext &context, const QString &option);

} // namespace host::kernel
