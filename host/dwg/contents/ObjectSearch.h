#pragma once

#include "host/dwg/objects/ObjectHead.h"

namespace host::dwg {

/// Where an object is.
struct MapEntry
{
    std::uint64_t handle = 0;
    std::uint64_t place = 0;
    ObjectFrame frame; ///< what stands there; empty where nothing is, or it was not looked at
};

/// An object at a place of what the object map counts in.
struct FoundObject
{
    std::uint64_t size = 0; ///< with its length and checksum
    ObjectFrame frame;
};

/// Nothing when no object can be there.
std::optional<FoundObject> objectAt(Bytes objects, std::uint64_t place, Release release);

/// Objects by rising handle as they are found without a map: from each byte on where the checksum of an object fits.
/// Of several with one handle the last one. Costs a few looks at each byte.
std::vector<MapEntry> findObjects(Bytes objects, Release release);

} // namespace host::dwg
