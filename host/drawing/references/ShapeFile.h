#pragma once

#include "host/drawing/math/Vec.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <optional>
#include <vector>

namespace host::drawing {

/// The shapes of a shape file, each by its number: the codes that move the pen, with the 0 at their end. A code that
/// has a sign in the source keeps it.
struct ShapeFile
{
    QHash<int, std::vector<int>> codes{};
    QHash<QString, int> numbers{}; ///< by names in capitals; of a name that is there twice the first one
    QString error{};               ///< why nothing could be read; empty when all went well

    /// The number of a shape by its name, in any case.
    std::optional<int> numberOf(const QString &name) const;
};

/// Reads a source (".shp": "*NUMBER,BYTES,NAME" and the codes in the lines behind it, decimal or, with a 0 in front,
/// hexadecimal) or a compiled file of shapes (".shx"); which of them it is is seen by its content. Shapes whose codes
/// are no numbers are left out. Compiled fonts are an error, fonts in a source are read like shapes.
ShapeFile readShapeFile(QByteArrayView bytes);

/// A line of a shape. The bulge of a vertex, the tangent of a quarter of an arc's angle, belongs to the piece that
/// starts there.
struct ShapeVertex
{
    Vec2 at{};
    double bulge = 0.0;
};
using ShapeLine = std::vector<ShapeVertex>;

/// What a shape draws at size 1, from its insertion point. Nothing for a number that the file does not have, and for
/// codes that make no sense: a step without end, shapes in shapes in shapes beyond measure.
std::optional<std::vector<ShapeLine>> shapeLines(const ShapeFile &file, int number);

} // namespace host::drawing
