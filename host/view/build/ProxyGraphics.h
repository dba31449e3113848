#pragma once

#include "host/view/build/DisplayBuilder.h"

namespace host::view {

/// The picture of itself that an entity of another program keeps in its record; empty when it keeps none.
QByteArray proxyGraphics(const drawing::TagList &tags);

/// Draws what such a picture holds, in its own styles. Pieces of kinds that are not known, that are cut off or hold
/// strange numbers, are left out, which makes the display simplified. Costs by the bytes. Whether anything was drawn.
bool drawProxyGraphics(BuildContext &context, QByteArrayView graphics);

} // namespace host::view
