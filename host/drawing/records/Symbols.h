#pragma once

#include "host/drawing/records/Drawing.h"

#include <optional>

namespace host::drawing {

// The entries of symbol tables as plain values. Reading one costs a pass over its tags; keep them while drawing.
//
// They are copies: later changes of the drawing do not reach them. What the file leaves out has the value given here.

struct Layer
{
    RecordId record = noRecord;
    QString name;
    int colour = 7;                    ///< colour index 1-255, not negative for a layer that is off
    std::optional<quint32> trueColour; ///< 0xRRGGBB, in place of the index
    QString linetype;                  ///< its name; empty where the file names none
    int lineweight = -3;               ///< hundredths of a millimetre; -3 is the default weight
    bool isOff = false;                ///< what lies on it is not drawn
    bool isFrozen = false;             ///< nor what is in blocks that are inserted on it
    bool isLocked = false;             ///< drawn, and not to be changed
    bool isPlotted = true;
};

/// One dash of a linetype, with the text or shape set on it, if any.
struct LinetypeDash
{
    double length = 0.0;             ///< drawing units; negative is a gap, 0 a dot
    QString text{};                  ///< text on the dash; empty when none or when it is a shape
    int shape = 0;                   ///< number of the shape in the style's file; 0 when none
    Handle style{};                  ///< the text style of text or shape
    double scale = 1.0;              ///< of the shape; of a text its height, or a factor on the style's fixed height
    double rotation = 0.0;           ///< degrees
    bool isRotationAbsolute = false; ///< from the x axis; otherwise from the line
    Vec2 offset{};                   ///< from where the dash ends, along the line and to its left
};

struct Linetype
{
    RecordId record = noRecord;
    QString name;
    QString description;
    double patternLength = 0.0;       ///< as the file says, whatever the dashes add up to
    std::vector<LinetypeDash> dashes; ///< one repetition; empty: continuous
};

struct TextStyle
{
    RecordId record = noRecord;
    QString name;             ///< empty for a shape file
    QString fontFile;         ///< name or path as the drawing has it; nobody looked whether it is there
    QString bigFontFile;      ///< for the characters of East Asian scripts; empty when there is none
    double fixedHeight = 0.0; ///< 0: the height is the text's own
    double widthFactor = 1.0;
    double obliqueAngle = 0.0; ///< degrees
    bool isShapeFile = false;
    bool isVertical = false;
    bool isBackward = false;
    bool isUpsideDown = false;
};

// `entry` is a record of the table in question.
Layer readLayer(const Drawing &drawing, RecordId entry);
Linetype readLinetype(const Drawing &drawing, RecordId entry);
TextStyle readTextStyle(const Drawing &drawing, RecordId entry);

/// By name, without regard to letter case; nothing when the drawing has no such entry.
std::optional<Layer> findLayer(const Drawing &drawing, QStringView name);
std::optional<Linetype> findLinetype(const Drawing &drawing, QStringView name);
std::optional<TextStyle> findTextStyle(const Drawing &drawing, QStringView name);
/// In file order.
std::vector<Layer> allLayers(const Drawing &drawing);

} // namespace host::drawing
