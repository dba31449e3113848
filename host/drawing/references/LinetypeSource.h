#pragma once

#include "host/drawing/records/Drawing.h"
#include "host/drawing/references/ShapeFiles.h"

#include <optional>
#include <vector>

namespace host::drawing {

/// An element of a linetype as a ".lin" source has it: "12.5" and what follows in brackets, such as
/// ["GAS",STANDARD,S=2.5,R=0,X=-2.5,Y=-1.25] or, for a shape of a shape file, [CIRCLE,my.shx,S=2.5].
struct DefinedDash
{
    double length = 0.0; ///< drawing units; negative is a gap, 0 a dot
    QString text{};      ///< stands where the element ends; empty when there is none
    QString shape{};     ///< name or number of the shape that stands there instead; empty when there is none
    QString style{};     ///< name of the text's style, or of the shape's file
    double scale = 1.0;
    double rotation = 0.0; ///< degrees
    bool isRotationAbsolute = false;
    Vec2 offset{};
};

/// A linetype of a ".lin" source.
struct LinetypeDefinition
{
    QString name{};
    QString description{};
    std::vector<DefinedDash> dashes{};
    QString error{}; ///< why the pattern cannot be used; empty when it can
};

/// All linetypes of a source text (UTF-8) in their order. A definition is a line "*NAME,description" and the pattern
/// "A,dash,gap,..." in the lines up to the next one, those that are blank or begin with ";" left out.
std::vector<LinetypeDefinition> readLinetypeSource(QByteArrayView text);

/// Adds the linetype to the drawing, or gives the one of that name this pattern. `shapes` tell the numbers of shapes by
/// their names; styles that stand for shape files are made. Empty when all went well, else the reason: the definition's
/// own, a text style that the drawing does not have, or a shape or its file that is not found.
QString loadLinetype(Drawing &drawing, const LinetypeDefinition &definition, ShapeFiles &shapes);

} // namespace host::drawing
