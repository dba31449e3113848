#pragma once

#include "host/drawing/tags/Tag.h"
#include "host/drawing/tags/TextCodec.h"

namespace host::drawing {

/// A typed field with the bytes it was read from, so that what stays the same keeps its spelling.
struct FieldSpan
{
    Field field;
    QByteArrayView whole;
};

/// All tags as fields, comments included.
std::vector<FieldSpan> readFieldSpans(const std::vector<Tag> &tags, const TextCodec &codec);

} // namespace host::drawing
