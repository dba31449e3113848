#include "host/kernel/platform/Services.h"
#include "platform/rx/OdAlloc.h"

#include <cstdlib>
#include <limits>
#include <utility>

namespace {

OdAllocationFailureHandler failureHandler = nullptr;
std::size_t limit = std::numeric_limits<std::size_t>::max();

} // namespace

void *odrxAlloc(std::size_t size)
{
    return size > limit ? nullptr : std::malloc(size);
}

void odrxFree(void *memory)
{
    std::free(memory);
}

OdAllocationFailureHandler odrxAllocationFailureHandler()
{
    return failureHandler;
}

namespace host::kernel {

OdAllocationFailureHandler setAllocationFailureHandler(OdAllocationFailureHandler handler)
{
    return std::exchange(failureHandler, handler);
}

std::size_t setAllocationLimit(std::size_t bytes)
{
    return std::exchange(limit, bytes);
}

} // namespace host::kernel
