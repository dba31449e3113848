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

/// The place behind an object that was found in `objects`, and its checksum.
std::uint64_t endOf(const ObjectFrame &frame, Bytes objects);

/// Objects by rising handle as they are found without a map: from each byte on where the checksum of an object fits.
/// Of several with one handle the last one. Costs a few looks at each byte.
std::vector<MapEntry> findObjects(Bytes objects, Release release);

} // namespace host::dwg
