#pragma once

#include "host/dwg/objects/ModelValues.h"

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace host::dwg {

/// The words that a model's text has for the logical values of a record, in their order: which ones depends on the
/// record and the place in it. `values` are all of the record behind its name. Nothing where the record has logical
/// values or enumerations and another form than those that are known here.
std::optional<std::vector<std::string_view>> logicalWords(std::string_view recordName,
                                                          std::span<const ModelValue> values);

} // namespace host::dwg
