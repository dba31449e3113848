#pragma once

#include "formats/DefinitionHeaders.h"

namespace ortakit {

/// What a ".shp" file says of a shape in its header: "*number,bytes,name".
struct ShapeHeader
{
    QString number; ///< as it is written: fonts have hexadecimal ones, and words
    QString name;   ///< empty when the header has none

    bool operator==(const ShapeHeader &) const = default;
};

using ShapeListing = DefinitionListing<ShapeHeader>;

ShapeListing listShapes(QByteArrayView text);
ShapeListing readShapeFile(const QString &path);

} // namespace ortakit
