#pragma once

#include "host/drawing/records/Drawing.h"

#include <optional>

namespace host::drawing {

// The entries of symbol tables as plain values. Reading one costs a pass over its tags; keep them while drawing.

struct Layer
{
    RecordId record = noRecord;
    QString name;
    int colour = 7;                    ///< colour index 1-255
    std::optional<quint32> trueColour; ///< 0xRRGGBB
    QString linetype;
    int lineweight = -3; ///< hundredths of a millimetre; -3 is the default weight
    bool isOff = false;
    bool isFrozen = false;
    bool isLocked = false;
    bool isPlotted = true;
};

/// One dash of a linetype, with the text or shape set on it, if any.
struct LinetypeDash
{
    double length = 0.0; ///< drawing units; negative is a gap, 0 a dot
    QString text{};      ///< text on the dash; empty when none or when it is a shape
    int shape = 0;       ///< number of the shape in the style's file; 0 when none
    Handle style{};      ///< the text style of text or shape
    double scale = 1.0;
    double rotation = 0.0; ///< degrees
    bool isRotationAbsolute = false;
    Vec2 offset{};
};

struct Linetype
{
    RecordId record = noRecord;
    QString name;
    QString description;
    double patternLength = 0.0;
    std::vector<LinetypeDash> dashes; ///< empty: continuous
};

struct TextStyle
{
    RecordId record = noRecord;
    QString name; ///< empty for a shape file
    QString fontFile;
    QString bigFontFile;
    double fixedHeight = 0.0; ///< 0: the height is the text's own
    double widthFactor = 1.0;
    double obliqueAngle = 0.0; ///< degrees
    bool isShapeFile = false;
    bool isVertical = false;
    bool isBackward = false;
    bool isUpsideDown = false;
};

Layer readLayer(const Drawing &drawing, RecordId entry);
Linetype readLinetype(const Drawing &drawing, RecordId entry);
TextStyle readTextStyle(const Drawing &drawing, RecordId entry);

/// By name, without regard to letter case; nothing when the drawing has no such entry.
std::optional<Layer> findLayer(const Drawing &drawing, QStringView name);
std::optional<Linetype> findLinetype(const Drawing &drawing, QStringView name);
std::optional<TextStyle> findTextStyle(const Drawing &drawing, QStringView name);
std::vector<Layer> allLayers(const Drawing &drawing);

} // namespace host::drawing
