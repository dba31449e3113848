#include "formats/ShapeFile.h"

namespace ortakit {

namespace {

constexpr int shapeFieldCount = 3;
constexpr int numberField = 0;
constexpr int shapeNameField = 2;

} // namespace

ShapeListing listShapes(QByteArrayView text)
{
    return listDefinitions<ShapeHeader>({text, shapeFieldCount, shapeNameField},
                                        [](const DefinitionHeaderReader &header) {
                                            return ShapeHeader{header.field(numberField), header.field(shapeNameField)};
                                        });
}

ShapeListing readShapeFile(const QString &path)
{
    return readDefinitions(path, listShapes);
}

} // namespace ortakit
