#pragma once

#include "host/drawing/math/Curves.h"
#include "host/drawing/math/Matrix.h"
#include "host/drawing/math/Vec.h"
#include "host/drawing/records/Record.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <variant>
#include <vector>

namespace host::view {

using drawing::Box;
using drawing::Matrix;
using drawing::noRecord;
using drawing::Path;
using drawing::RecordId;
using drawing::Vec2;
using drawing::Vec3;

// What a drawing looks like, taken apart into few kinds of shapes. Shapes are in the coordinates of the space or block
// that they were built for, and stay exact at every magnification: arcs are arcs, blocks are named, text is text.

/// A colour as an entity says it; what it means depends on its layer and on the insert it is seen through.
struct Colour
{
    enum class Kind : std::uint8_t
    {
        ByLayer,
        ByBlock, ///< that of the insert; colour 7 outside of blocks
        Index,
        True
    };
    Kind kind = Kind::ByLayer;
    std::uint32_t value = 0; ///< index 1-255, or 0xRRGGBB; of no meaning for the other kinds

    bool operator==(const Colour &) const = default;
};

/// How a shape is drawn, unresolved. Layers and linetypes are places in the Appearance of the scene.
struct Style
{
    // In place of a linetype or a weight.
    static constexpr int byLayer = -1;
    static constexpr int byBlock = -2;
    static constexpr int defaultWeight = -3;

    Colour colour{};
    int layer = 0;
    int linetype = byLayer;
    int lineweight = byLayer;   ///< hundredths of a millimetre, or one of the constants
    double linetypeScale = 1.0; ///< the entity's own, beside that of the drawing
    int plotStyle = byLayer;    ///< a place among the drawing's plot style names, or one of the constants

    bool operator==(const Style &) const = default;
};

/// An elliptical arc in space, which every affine map takes to such an arc again: center + xAxis cos t + yAxis sin t.
struct ArcSpan
{
    std::size_t segment = 0; ///< which segment of its curve it is
    Vec3 center{};
    Vec3 xAxis{};
    Vec3 yAxis{};
    double start = 0.0; ///< radians
    double sweep = 0.0; ///< signed

    Vec3 point(double t) const { return center + xAxis * std::cos(t) + yAxis * std::sin(t); }
};

/// A line through points, some of its segments arcs. A closed curve ends with its first point.
///
/// Segment i leads from point i to point i + 1; where it is an arc, its span begins and ends at these points.
struct Curve
{
    Path points{};               ///< one alone is a dot
    std::vector<ArcSpan> arcs{}; ///< by rising segment
    bool isOneRun = true;        ///< a linetype runs through; otherwise it begins anew at every vertex
};

/// A curve drawn as a line.
struct Stroke
{
    Curve curve{}; ///< dashed by the linetype of its style
};

/// A straight line that does not end, on one or both sides.
struct Endless
{
    Vec3 base{};
    Vec3 direction{}; ///< of length 1
    bool isBothWays = false;
};

/// Line pieces and dots by themselves, not dashed: the lines of a pattern.
struct Segments
{
    Path ends{}; ///< two points a piece
    Path dots{}; ///< one each
};

enum class FillKind : std::uint8_t
{
    Area,  ///< filled with its colour
    Dense, ///< so many pattern lines that they are drawn as a tint
    Mask   ///< covers with the ground's colour what was drawn before
};

/// Colours that run into one another, along x from 0 to 1 or outwards from a point, in coordinates of its own.
struct Gradient
{
    struct Stop
    {
        double at = 0.0;
        std::uint32_t colour = 0; ///< 0xRRGGBB
    };

    std::vector<Stop> stops{}; ///< at least two, rising from 0 to 1; of a radial one from its center to its radius
    bool isRadial = false;
    Vec2 center{};
    double radius = 1.0;
    Matrix placement{}; ///< from its own coordinates
};

/// An area between closed curves, islands among them.
struct Fill
{
    std::vector<Curve> contours{};
    FillKind kind = FillKind::Area;
    bool isEvenOdd = true;                      ///< otherwise overlapping contours of one direction make one area
    std::shared_ptr<const Gradient> gradient{}; ///< of an area, in place of its colour; null for most
};

struct RasterPixels;

/// A picture made of pixels.
struct Raster
{
    std::shared_ptr<const RasterPixels> pixels{};
    Matrix placement{};         ///< from a square of 0 to 1 both ways, y up, that the picture fills
    std::vector<Curve> area{};  ///< what of it is seen: closed, every second area inwards
    bool isClipped = false;     ///< the area is not just the whole picture
    bool isTransparent = false; ///< where it has no pixels, what lies below is seen
    double opacity = 1.0;       ///< less lets the ground's colour through
};

/// A piece of text in one font, on one line. In its own coordinates it starts at the origin, runs along x, and its
/// capitals are 1 high.
struct TextRun
{
    QString text{};
    int font = 0;       ///< in Fonts
    double width = 0.0; ///< in capital heights
    Matrix placement{}; ///< from its own coordinates
};

/// A POINT; its look and size are settings of the drawing.
struct PointMark
{
    Vec3 at{};
    bool isDot = false; ///< whatever the settings say: points that dimensions are measured from
};

struct Reference;

/// The kinds there are. Texts, pictures and references are large and rare, so a shape only points to them and owns
/// them; that makes displays things to move, not to copy.
using Shape = std::variant<Stroke, Fill, Segments, Endless, PointMark, std::unique_ptr<TextRun>,
                           std::unique_ptr<Raster>, std::unique_ptr<Reference>>;

/// One shape with how it is drawn. The later one of a display covers the earlier.
struct DisplayItem
{
    Style style{};
    Shape shape{};
    bool isMaskFrame = false;  ///< seen as the drawing's setting for the frames of masks says
    bool isImageFrame = false; ///< likewise, of pictures
};

/// A block or space seen through a map, once or as an array.
struct Reference
{
    int block = 0;      ///< in the scene
    Matrix placement{}; ///< of the first cell: from the block's coordinates to those of the reference
    std::int64_t columns = 1;
    std::int64_t rows = 1;
    Vec3 columnStep{}; ///< from cell to cell, in the coordinates of the reference
    Vec3 rowStep{};
    Path clip{};                       ///< polygon, in coordinates of the block; empty: all is shown
    std::vector<int> hiddenLayers{};   ///< layers frozen in this view of the block, rising
    std::vector<DisplayItem> beside{}; ///< shown with every cell: attributes, where those of the first cell are
    Box besideBox{};
    bool isViewport = false; ///< by-block properties and layer 0 do not come from it
};

/// All that one record of a drawing shows, with the VERTEX or ATTRIB records that belong to it.
struct RecordDisplay
{
    RecordId record = noRecord;
    Box box{};                        ///< of what has an end; grows with the blocks it refers to
    std::vector<DisplayItem> items{}; ///< none for what is not to be seen or cannot be drawn
    std::int64_t work = 0;            ///< units of the scene's budget that went into the items
    bool isEndless = false;           ///< has lines without end: the box does not bound it
    bool hasReferences = false;
    bool isSkipped = false;    ///< could not be drawn
    bool isExternal = false;   ///< shows another drawing
    bool isSimplified = false; ///< drawn, but not all that the record says
    bool isCutShort = false;   ///< simplified because there was too much to draw
    bool isHidden = false;     ///< says that it is not to be seen
};

} // namespace host::view
