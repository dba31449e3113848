#include "formats/ShapeFile.h"

namespace ortakit {

namespace {

constexpr int fieldCount = 3;
constexpr int numberField = 0;
constexpr int nameField = 2;

} // namespace

ShapeListing listShapes(QByteArrayView text)
{
    return listDefinitions<ShapeHeader>({text, fieldCount, nameField}, [](const DefinitionHeaderReader &header) {
        return ShapeHeader{header.field(numberField), header.field(nameField)};
    });
}

ShapeListing readShapeFile(const QString &path)
{
    return readDefinitions(path, listShapes);
}

} // namespace ortakit
