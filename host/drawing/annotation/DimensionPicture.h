#pragma once

#include "host/drawing/annotation/DimensionData.h"
#include "host/drawing/annotation/DimensionStyle.h"

#include <functional>

namespace host::drawing {

/// What a dimension consists of, flat in the coordinates of its plane. Drawing it needs fonts and blocks and is left to
/// others.
struct DimensionPicture
{
    /// What a line belongs to, for its colour, weight and linetype.
    enum class Part
    {
        Line,
        FirstExtension,
        SecondExtension
    };
    struct Line
    {
        Vec2 from{};
        Vec2 to{};
        Part part = Part::Line;
    };
    struct Arc
    {
        Vec2 center{};
        double radius = 0.0;
        double start = 0.0; ///< radians
        double sweep = 0.0;
    };
    struct Arrow
    {
        Vec2 tip{};
        Vec2 direction{1.0, 0.0}; ///< where it points, of length 1
        double size = 0.0;
        bool isSecond = false;
        bool isTick = false; ///< a stroke across the line, whatever arrow the style names
    };
    struct Text
    {
        QString content{}; ///< multi-line text with its codes; empty: there is none
        Vec2 at{};         ///< its middle
        double rotation = 0.0;
        double height = 0.0;
        bool hasFrame = false;
        Vec2 halfFrame{}; ///< of the frame, and of what lines keep out of
    };

    std::vector<Line> lines{};
    std::vector<Arc> arcs{};
    std::vector<Arrow> arrows{};
    std::vector<Arc> signs{}; ///< the sign of an arc's length, drawn as the text is
    Text text{};
};

/// Width and height of a text of that letter height, as a font has it.
using TextSize = std::function<Vec2(const QString &content, double height)>;

/// Lays a dimension out by its style. Points that coincide leave out what has no direction then. Constant cost, but for
/// the text's own length.
DimensionPicture dimensionPicture(const DimensionData &data, const DimensionStyle &style, const TextSize &textSize);

} // namespace host::drawing
