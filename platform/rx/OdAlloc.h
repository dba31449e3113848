#pragma once

#include "platform/Export.h"

#include <cstddef>

/// Called when the allocator has no memory left; may throw or end the process. Returning means "give up".
using OdAllocationFailureHandler = void (*)(std::size_t size);

/// Memory from the host's allocator, which objects need that the host may end, `size` bytes aligned for any type; null
/// when there is none left.
KV_EXPORT void *odrxAlloc(std::size_t size);

/// Gives back what odrxAlloc() returned, and nothing else: the host's allocator may be another than the module's. Null
/// is allowed.
KV_EXPORT void odrxFree(void *memory);

/// The installed handler, null when the host has none.
KV_EXPORT OdAllocationFailureHandler odrxAllocationFailureHandler();
