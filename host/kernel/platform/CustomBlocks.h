#pragma once

#include "platform/kernel/CKvCustBlockUtils.h"

namespace host::kernel {

/// This host edits no block in place, so no document ever is at it.
class CustomBlocks final : public CKvCustBlockUtils
{
public:
    bool IsEditing(const CKvDocument &) const override { return false; }
};

} // namespace host::kernel
