#pragma once

#include "host/drawing/math/Vec.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <optional>
#include <vector>

namespace host::drawing {

/// What a font says of all its letters, in the units of its codes.
struct ShapeFontHead
{
    int above = 0;            ///< from the base line to the top of capitals; positive
    int below = 0;            ///< to the ends of tails
    int width = 0;            ///< of a cell, in big fonts whose letters are put together of parts; 0 in others
    bool hasVertical = false; ///< has codes for texts that run downwards
    bool isUnicode = false;   ///< numbers are those of Unicode; otherwise of the code page that it was made for
};

/// The shapes of a shape file, each by its number: the codes that move the pen, with the 0 at their end. A code that
/// has a sign in the source keeps it. In a font the letters are the shapes.
struct ShapeFile
{
    QHash<int, std::vector<int>> codes{};
    QHash<QString, int> numbers{}; ///< by names in capitals; of a name that is there twice the first one
    std::optional<ShapeFontHead> font{};
    /// Of a big font: which bytes are the first of two that a letter has in its code page, as first and last ones. Its
    /// numbers have that byte in the higher place.
    std::vector<std::pair<int, int>> leadBytes{};
    /// The number of a shape within another takes two codes, the higher byte first.
    bool hasLongNumbers = false;
    QString error{}; ///< why nothing could be read; empty when all went well

    /// The number of a shape by its name, in any case.
    std::optional<int> numberOf(const QString &name) const;
    bool isBigFont() const { return !leadBytes.empty(); }
};

/// Reads a source (".shp": "*NUMBER,BYTES,NAME" and the codes in the lines behind it, decimal or, with a 0 in front,
/// hexadecimal) or a compiled file (".shx") of shapes, a font, a Unicode font or a big font; which of them it is is
/// seen by its content. Shapes whose codes are no numbers are left out.
ShapeFile readShapeFile(QByteArrayView bytes);

/// A line of a shape. The bulge of a vertex, the tangent of a quarter of an arc's angle, belongs to the piece that
/// starts there.
struct ShapeVertex
{
    Vec2 at{};
    double bulge = 0.0;
};
using ShapeLine = std::vector<ShapeVertex>;

/// The point a part (0 to 1) of the way along the piece that starts at `from`.
Vec2 pointOnBulge(const ShapeVertex &from, Vec2 to, double part);

/// Which way a text runs. Letters have codes that count in the one or the other only.
enum class ShapeDirection
{
    Across,
    Down
};

/// What a shape draws at size 1, from its insertion point, and where the pen is then: the place of the next letter.
struct ShapeTrace
{
    std::vector<ShapeLine> lines{};
    Vec2 end{};
};

/// Nothing for a number that the file does not have, and for codes that make no sense: a step without end, shapes in
/// shapes in shapes beyond measure.
std::optional<ShapeTrace> traceShape(const ShapeFile &file, int number,
                                     ShapeDirection direction = ShapeDirection::Across);
/// The lines of it alone.
std::optional<std::vector<ShapeLine>> shapeLines(const ShapeFile &file, int number);

} // namespace host::drawing
