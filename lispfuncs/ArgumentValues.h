#pragma once

#include "platform/db/OdDbObjectId.h"
#include "platform/kernel/OdResBuf.h"

#include <optional>

namespace ortakit {

// The arguments of a call are a chain of links in which a list takes several. These look at one value by its first
// link, which may be null.

/// The first link of the value behind this one: for a list what stands behind its end. Null at the end of the chain.
const OdResBuf *behindValue(const OdResBuf *value);

/// nil, or nothing there.
bool isNil(const OdResBuf *value);
bool isTrue(const OdResBuf *value);
bool isString(const OdResBuf *value);
/// 16 or 32 bits.
bool isInteger(const OdResBuf *value);
bool isList(const OdResBuf *value);

/// A point, or a list of two or three numbers, as which points with nothing but integers arrive.
std::optional<OdGePoint3d> pointIn(const OdResBuf *value);
/// The prompt in a string, without line breaks in front of it; empty for nil. Throws ArgumentError for anything else.
QString promptIn(const OdResBuf *value);
/// An entity name, or the first item of a list that begins with one, as picking functions give it.
std::optional<OdDbObjectId> entityIn(const OdResBuf *value);

} // namespace ortakit
