#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

std::span<const ObjectType> multiLeaderTypes()
{
    return {};
}

} // namespace host::dwg
