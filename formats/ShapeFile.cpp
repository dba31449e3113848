#include "formats/ShapeFile.h"

namespace ortakit {

namespace {

constexpr int fieldCount = 3;
constexpr int numberField = 0;
constexpr int nameField = 2;

} // namespace

ShapeListing listShapes(QByteArrayView text)
{
    ShapeListing listing;
    DefinitionHeaderReader headers(text, fieldCount, nameField);
    while (headers.next())
        listing.shapes.append({headers.field(numberField), headers.field(nameField)});
    listing.diagnostics = headers.diagnostics();
    return listing;
}

ShapeListing readShapeFile(const QString &path)
{
    const TextReading file = readTextFile(path);
    ShapeListing listing = listShapes(file.text);
    listing.error = file.error;
    return listing;
}

} // namespace ortakit
