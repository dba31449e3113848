#pragma once

#include "host/drawing/records/Drawing.h"

namespace host::drawing {

/// An attribute of a block reference, as people are asked about it.
struct BlockAttribute
{
    RecordId record = noRecord; ///< the ATTRIB; noRecord for a constant one, which the block's definition has alone
    QString tag{};
    QString prompt{};      ///< of the definition; empty where there is none
    QString value{};       ///< with all its codes, lines with \P between them
    bool hasLines = false; ///< it is one of several lines

    bool isConstant() const { return !isValid(record); }
};

/// Those of an INSERT: its own in their order, then the constant ones of its block. Of several with the same tag each
/// has the prompt of the definition that stands at the same place among those of the tag.
std::vector<BlockAttribute> blockAttributes(const Drawing &drawing, RecordId insert);

} // namespace host::drawing
