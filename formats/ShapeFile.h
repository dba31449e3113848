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

struct ShapeListing
{
    QList<ShapeHeader> shapes; ///< in the order of the file
    QList<HeaderDiagnostic> diagnostics;
    QString error; ///< why the file could not be read; empty when it was
};

ShapeListing listShapes(QByteArrayView text);

/// Lists the file at `path`; see readTextFile() for what cannot be read.
ShapeListing readShapeFile(const QString &path);

} // namespace ortakit
