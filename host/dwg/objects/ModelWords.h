#pragma once

#include "host/dwg/objects/ModelValues.h"

#include <optional>
#include <string_view>
#include <vector>

namespace host::dwg {

/// What the values of one record of a model are, and the words that the model's text has for the logical ones among
/// them: which these are depends on the record and the place in it.
class RecordForm
{
public:
    /// Adds a value of the record, in their order.
    void add(const ModelValue &value);
    /// The words of the logical values, in their order. Nothing where the record has logical values or enumerations and
    /// another form than those that are known here.
    std::optional<std::vector<std::string_view>> words(std::string_view recordName) const;

private:
    std::string m_values; ///< a letter each; those behind what any known form has are left out
    bool m_needsWords = false;
};

} // namespace host::dwg
