#pragma once

#include "host/drawing/records/Record.h"
#include "host/drawing/tags/Tag.h"
#include "host/kernel/running/Dialogue.h"

#include <QString>

#include <functional>
#include <vector>

namespace host::kernel {

class CommandContext;

/// A change of what all entities say of their look, or of thickness or elevation.
struct PropertyChange
{
    std::function<void(drawing::FieldList &entity)> apply; ///< null: there is none, which was told
};

/// The options of CHPROP as its prompt lists them.
QString propertyOptions();

/// Asks for the value of one of the properties: Color, LAyer, LType, ltScale, LWeight, Thickness, TRansparency, Elev.
/// What the entities have is the default where all have the same, "varies" otherwise, which an empty answer keeps.
Dialogue<PropertyChange> askPropertyChange(CommandContext &context, const std::vector<drawing::RecordId> &entities,
                                           QString option);

/// Applies it to each, with the parts of those that have some.
void changeProperties(CommandContext &context, const std::vector<drawing::RecordId> &entities,
                      const PropertyChange &change);

/// Sets a group that all entities may have where records have it: behind the layer.
void setCommonField(drawing::FieldList &fields, int code, const drawing::FieldValue &value);

} // namespace host::kernel
