#pragma once

#include "host/dwg/objects/Fields.h"

namespace host::dwg {

/// Notes an object whose class is not known here as a proxy: its class, its bits and what it refers to. Takes all that
/// is left of the object.
void noteProxy(Fields &fields, int classNumber, bool isEntity);

/// The type number of objects that were proxies when the file was written.
constexpr int proxyEntityType = 0x1f2;
constexpr int proxyObjectType = 0x1f3;

/// Reads one of these, which tells its class itself.
void readProxy(Fields &fields, bool isEntity);

} // namespace host::dwg
