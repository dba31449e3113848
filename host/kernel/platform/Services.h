#pragma once

#include "platform/Export.h"
#include "platform/rx/OdAlloc.h"

class CKvCustBlockUtils;
class CKvDocument;
class CKvHelp;
class CKvSystemServices;
class OdEdCommandStack;
class OdEditor;

namespace host::kernel {

/// What the platform's global functions answer with. Nothing is owned; a null member makes its function answer null.
struct Services
{
    CKvSystemServices *system = nullptr;
    CKvHelp *help = nullptr;
    OdEditor *editor = nullptr;
    CKvCustBlockUtils *customBlocks = nullptr;
    OdEdCommandStack *commands = nullptr;
};

/// From now on GetKvSystemServices(), GetKvHelp(), odedEditor(), CKvCustBlockUtils::Get() and odedRegCmds() give these;
/// returns the ones before, which whoever installs for a while puts back. A running host installs its own when its
/// document manager is made.
KV_EXPORT Services installServices(const Services &services);

/// From now on ACTIVE_DOCUMENT() gives `document`, which may be null; returns the one before.
KV_EXPORT CKvDocument *setActiveDocument(CKvDocument *document);

/// The handler that odrxAllocationFailureHandler() gives; null removes it. Returns the one before.
KV_EXPORT OdAllocationFailureHandler setAllocationFailureHandler(OdAllocationFailureHandler handler);

/// odrxAlloc() refuses blocks above `bytes` from now on; the default is no limit. Returns the limit before.
KV_EXPORT std::size_t setAllocationLimit(std::size_t bytes);

} // namespace host::kernel
