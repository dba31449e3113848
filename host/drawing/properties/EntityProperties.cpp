#include "host/drawing/properties/EntityProperties.h"

#include "host/drawing/properties/DerivedValues.h"

#include <QtGlobal>

namespace host::drawing {

namespace {

using UsualValue = std::optional<FieldValue>;
using enum PropertySection;

UsualValue zero()
{
    return FieldValue(qint64(0));
}

UsualValue nought()
{
    return FieldValue(0.0);
}

UsualValue one()
{
    return FieldValue(1.0);
}

UsualValue byLayerColour()
{
    return FieldValue(qint64(256));
}

UsualValue byLayerWeight()
{
    return FieldValue(qint64(-1));
}

UsualValue byLayerName()
{
    return FieldValue(QStringLiteral("ByLayer"));
}

UsualValue zeroName()
{
    return FieldValue(QStringLiteral("0"));
}

UsualValue standardName()
{
    return FieldValue(QStringLiteral("Standard"));
}

constexpr EntityProperty properties[] = {
    {"", "Color", 62, byLayerColour, QT_TRANSLATE_NOOP("Properties", "Color"), General, PropertyKind::Colour, false},
    {"", "Layer", 8, zeroName, QT_TRANSLATE_NOOP("Properties", "Layer"), General, PropertyKind::Layer, false},
    {"", "LayerId", 8, zeroName, nullptr, General, PropertyKind::Layer, false},
    {"", "Linetype", 6, byLayerName, QT_TRANSLATE_NOOP("Properties", "Linetype"), General, PropertyKind::Linetype,
     false},
    {"", "LinetypeScale", 48, one, QT_TRANSLATE_NOOP("Properties", "Linetype scale"), General, PropertyKind::Number,
     false},
    {"", "LineWeight", 370, byLayerWeight, QT_TRANSLATE_NOOP("Properties", "Lineweight"), General, PropertyKind::Weight,
     false},
    {"", "Thickness", 39, nought, QT_TRANSLATE_NOOP("Properties", "Thickness"), General, PropertyKind::Length, false},
    {"", "Transparency", 440, zero, QT_TRANSLATE_NOOP("Properties", "Transparency"), General,
     PropertyKind::Transparency, false},
    {"", "PlotStyleName", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Plot style"), General, PropertyKind::Text, true,
     plotStyleName},
    {"", "Normal", 210, nullptr, nullptr, Misc, PropertyKind::Vector, false},
    {"3DFACE", "FirstCorner", 10, nullptr, QT_TRANSLATE_NOOP("Properties", "Corner 1"), Geometry, PropertyKind::Point,
     false},
    {"3DFACE", "SecondCorner", 11, nullptr, QT_TRANSLATE_NOOP("Properties", "Corner 2"), Geometry, PropertyKind::Point,
     false},
    {"3DFACE", "ThirdCorner", 12, nullptr, QT_TRANSLATE_NOOP("Properties", "Corner 3"), Geometry, PropertyKind::Point,
     false},
    {"3DFACE", "FourthCorner", 13, nullptr, QT_TRANSLATE_NOOP("Properties", "Corner 4"), Geometry, PropertyKind::Point,
     false},
    {"ARC", "Center", 10, nullptr, QT_TRANSLATE_NOOP("Properties", "Center"), Geometry, PropertyKind::Point, false},
    {"ARC", "Radius", 40, nullptr, QT_TRANSLATE_NOOP("Properties", "Radius"), Geometry, PropertyKind::Length, false},
    {"ARC", "StartAngle", 50, nullptr, QT_TRANSLATE_NOOP("Properties", "Start angle"), Geometry,
     PropertyKind::Direction, false},
    {"ARC", "EndAngle", 51, nullptr, QT_TRANSLATE_NOOP("Properties", "End angle"), Geometry, PropertyKind::Direction,
     false},
    {"ARC", "StartPoint", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Start"), Geometry, PropertyKind::Point, true,
     curveStart},
    {"ARC", "EndPoint", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "End"), Geometry, PropertyKind::Point, true,
     curveEnd},
    {"ARC", "TotalAngle", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Total angle"), Geometry, PropertyKind::Angle,
     true, arcAngle},
    {"ARC", "Length", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Arc length"), Geometry, PropertyKind::Length, true,
     curveLength},
    {"ARC", "Area", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Area"), Geometry, PropertyKind::Number, true,
     curveArea},
    {"ATTDEF", "Height", 40, nullptr, QT_TRANSLATE_NOOP("Properties", "Height"), Text, PropertyKind::Length, false},
    {"ATTDEF", "Position", 10, nullptr, QT_TRANSLATE_NOOP("Properties", "Position"), Geometry, PropertyKind::Point,
     false},
    {"ATTDEF", "Prompt", 3, nullptr, QT_TRANSLATE_NOOP("Properties", "Prompt"), Text, PropertyKind::Text, false},
    {"ATTDEF", "Rotation", 50, nought, QT_TRANSLATE_NOOP("Properties", "Rotation"), Text, PropertyKind::Direction,
     false},
    {"ATTDEF", "Tag", 2, nullptr, QT_TRANSLATE_NOOP("Properties", "Tag"), Text, PropertyKind::Text, false},
    {"ATTDEF", "TextString", 1, nullptr, QT_TRANSLATE_NOOP("Properties", "Value"), Text, PropertyKind::Text, false},
    {"ATTRIB", "Height", 40, nullptr, QT_TRANSLATE_NOOP("Properties", "Height"), Text, PropertyKind::Length, false},
    {"ATTRIB", "Position", 10, nullptr, QT_TRANSLATE_NOOP("Properties", "Position"), Geometry, PropertyKind::Point,
     false},
    {"ATTRIB", "Rotation", 50, nought, QT_TRANSLATE_NOOP("Properties", "Rotation"), Text, PropertyKind::Direction,
     false},
    {"ATTRIB", "Tag", 2, nullptr, QT_TRANSLATE_NOOP("Properties", "Tag"), Text, PropertyKind::Text, false},
    {"ATTRIB", "TextString", 1, nullptr, QT_TRANSLATE_NOOP("Properties", "Value"), Text, PropertyKind::Text, false},
    {"CIRCLE", "Center", 10, nullptr, QT_TRANSLATE_NOOP("Properties", "Center"), Geometry, PropertyKind::Point, false},
    {"CIRCLE", "Radius", 40, nullptr, QT_TRANSLATE_NOOP("Properties", "Radius"), Geometry, PropertyKind::Length, false},
    {"CIRCLE", "Diameter", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Diameter"), Geometry, PropertyKind::Length,
     true, circleDiameter},
    {"CIRCLE", "Circumference", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Circumference"), Geometry,
     PropertyKind::Length, true, curveLength},
    {"CIRCLE", "Area", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Area"), Geometry, PropertyKind::Number, true,
     curveArea},
    {"DIMENSION", "DimensionStyleName", 3, standardName, QT_TRANSLATE_NOOP("Properties", "Dimension style"), Misc,
     PropertyKind::DimensionStyle, false},
    {"DIMENSION", "DimensionText", 1, nullptr, QT_TRANSLATE_NOOP("Properties", "Text override"), Text,
     PropertyKind::Text, false},
    {"DIMENSION", "Measurement", 42, nullptr, QT_TRANSLATE_NOOP("Properties", "Measurement"), Misc,
     PropertyKind::Length, true},
    {"ELLIPSE", "Center", 10, nullptr, QT_TRANSLATE_NOOP("Properties", "Center"), Geometry, PropertyKind::Point, false},
    {"ELLIPSE", "MajorAxis", 11, nullptr, QT_TRANSLATE_NOOP("Properties", "Major axis"), Geometry, PropertyKind::Vector,
     false},
    {"ELLIPSE", "RadiusRatio", 40, nullptr, QT_TRANSLATE_NOOP("Properties", "Radius ratio"), Geometry,
     PropertyKind::Number, false},
    {"ELLIPSE", "StartParam", 41, nullptr, QT_TRANSLATE_NOOP("Properties", "Start parameter"), Geometry,
     PropertyKind::Number, false},
    {"ELLIPSE", "EndParam", 42, nullptr, QT_TRANSLATE_NOOP("Properties", "End parameter"), Geometry,
     PropertyKind::Number, false},
    {"ELLIPSE", "StartPoint", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Start"), Geometry, PropertyKind::Point, true,
     curveStart},
    {"ELLIPSE", "EndPoint", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "End"), Geometry, PropertyKind::Point, true,
     curveEnd},
    {"ELLIPSE", "Length", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Length"), Geometry, PropertyKind::Length, true,
     curveLength},
    {"ELLIPSE", "Area", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Area"), Geometry, PropertyKind::Number, true,
     curveArea},
    {"HATCH", "Elevation", 10, nullptr, nullptr, Geometry, PropertyKind::Point, false},
    {"HATCH", "PatternAngle", 52, nought, QT_TRANSLATE_NOOP("Properties", "Angle"), Misc, PropertyKind::Angle, false},
    {"HATCH", "PatternName", 2, nullptr, QT_TRANSLATE_NOOP("Properties", "Pattern"), Misc, PropertyKind::Text, true},
    {"HATCH", "PatternScale", 41, one, QT_TRANSLATE_NOOP("Properties", "Scale"), Misc, PropertyKind::Number, false},
    {"INSERT", "BlockName", 2, nullptr, QT_TRANSLATE_NOOP("Properties", "Name"), Misc, PropertyKind::Text, true},
    {"INSERT", "Position", 10, nullptr, QT_TRANSLATE_NOOP("Properties", "Position"), Geometry, PropertyKind::Point,
     false},
    {"INSERT", "ScaleFactorX", 41, one, QT_TRANSLATE_NOOP("Properties", "Scale X"), Geometry, PropertyKind::Number,
     false},
    {"INSERT", "ScaleFactorY", 42, one, QT_TRANSLATE_NOOP("Properties", "Scale Y"), Geometry, PropertyKind::Number,
     false},
    {"INSERT", "ScaleFactorZ", 43, one, QT_TRANSLATE_NOOP("Properties", "Scale Z"), Geometry, PropertyKind::Number,
     false},
    {"INSERT", "Rotation", 50, nought, QT_TRANSLATE_NOOP("Properties", "Rotation"), Misc, PropertyKind::Direction,
     false},
    {"LEADER", "DimensionStyleName", 3, standardName, QT_TRANSLATE_NOOP("Properties", "Dimension style"), Misc,
     PropertyKind::DimensionStyle, false},
    {"LINE", "StartPoint", 10, nullptr, QT_TRANSLATE_NOOP("Properties", "Start"), Geometry, PropertyKind::Point, false},
    {"LINE", "EndPoint", 11, nullptr, QT_TRANSLATE_NOOP("Properties", "End"), Geometry, PropertyKind::Point, false},
    {"LINE", "Delta", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Delta"), Geometry, PropertyKind::Vector, true,
     lineDelta},
    {"LINE", "Angle", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Angle"), Geometry, PropertyKind::Direction, true,
     lineAngle},
    {"LINE", "Length", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Length"), Geometry, PropertyKind::Length, true,
     curveLength},
    {"LWPOLYLINE", "ConstantWidth", 43, nought, QT_TRANSLATE_NOOP("Properties", "Global width"), Geometry,
     PropertyKind::Length, false},
    {"LWPOLYLINE", "Elevation", 38, nought, QT_TRANSLATE_NOOP("Properties", "Elevation"), Geometry,
     PropertyKind::Length, false},
    {"LWPOLYLINE", "VertexCount", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Vertices"), Geometry,
     PropertyKind::Whole, true, vertexCount},
    {"LWPOLYLINE", "Length", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Length"), Geometry, PropertyKind::Length,
     true, curveLength},
    {"LWPOLYLINE", "Area", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Area"), Geometry, PropertyKind::Number, true,
     curveArea},
    {"MTEXT", "Contents", 1, nullptr, nullptr, Text, PropertyKind::Text, false, wholeContent},
    {"MTEXT", "Text", 1, nullptr, QT_TRANSLATE_NOOP("Properties", "Contents"), Text, PropertyKind::Text, false,
     wholeContent},
    {"MTEXT", "TextStyleName", 7, standardName, QT_TRANSLATE_NOOP("Properties", "Style"), Text, PropertyKind::TextStyle,
     false},
    {"MTEXT", "Location", 10, nullptr, QT_TRANSLATE_NOOP("Properties", "Location"), Geometry, PropertyKind::Point,
     false},
    {"MTEXT", "Attachment", 71, nullptr, QT_TRANSLATE_NOOP("Properties", "Attachment"), Text, PropertyKind::Whole,
     false},
    {"MTEXT", "Rotation", 50, nought, QT_TRANSLATE_NOOP("Properties", "Rotation"), Text, PropertyKind::Angle, false},
    {"MTEXT", "TextHeight", 40, nullptr, QT_TRANSLATE_NOOP("Properties", "Height"), Text, PropertyKind::Length, false},
    {"MTEXT", "Width", 41, nought, QT_TRANSLATE_NOOP("Properties", "Width"), Text, PropertyKind::Length, false},
    {"POINT", "Position", 10, nullptr, QT_TRANSLATE_NOOP("Properties", "Position"), Geometry, PropertyKind::Point,
     false},
    {"POLYLINE", "VertexCount", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Vertices"), Geometry, PropertyKind::Whole,
     true, vertexCount},
    {"POLYLINE", "Length", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Length"), Geometry, PropertyKind::Length, true,
     curveLength},
    {"POLYLINE", "Area", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Area"), Geometry, PropertyKind::Number, true,
     curveArea},
    {"RAY", "BasePoint", 10, nullptr, QT_TRANSLATE_NOOP("Properties", "Start"), Geometry, PropertyKind::Point, false},
    {"RAY", "Direction", 11, nullptr, QT_TRANSLATE_NOOP("Properties", "Direction"), Geometry, PropertyKind::Vector,
     false},
    {"SHAPE", "InsertionPoint", 10, nullptr, QT_TRANSLATE_NOOP("Properties", "Position"), Geometry, PropertyKind::Point,
     false},
    {"SHAPE", "Rotation", 50, nought, QT_TRANSLATE_NOOP("Properties", "Rotation"), Misc, PropertyKind::Direction,
     false},
    {"SHAPE", "Size", 40, nullptr, QT_TRANSLATE_NOOP("Properties", "Size"), Misc, PropertyKind::Length, false},
    {"SOLID", "FirstCorner", 10, nullptr, QT_TRANSLATE_NOOP("Properties", "Corner 1"), Geometry, PropertyKind::Point,
     false},
    {"SOLID", "SecondCorner", 11, nullptr, QT_TRANSLATE_NOOP("Properties", "Corner 2"), Geometry, PropertyKind::Point,
     false},
    {"SOLID", "ThirdCorner", 12, nullptr, QT_TRANSLATE_NOOP("Properties", "Corner 3"), Geometry, PropertyKind::Point,
     false},
    {"SOLID", "FourthCorner", 13, nullptr, QT_TRANSLATE_NOOP("Properties", "Corner 4"), Geometry, PropertyKind::Point,
     false},
    {"SPLINE", "Degree", 71, nullptr, QT_TRANSLATE_NOOP("Properties", "Degree"), Misc, PropertyKind::Whole, true},
    {"SPLINE", "StartPoint", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Start"), Geometry, PropertyKind::Point, true,
     curveStart},
    {"SPLINE", "EndPoint", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "End"), Geometry, PropertyKind::Point, true,
     curveEnd},
    {"SPLINE", "Length", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Length"), Geometry, PropertyKind::Length, true,
     curveLength},
    {"SPLINE", "Area", 0, nullptr, QT_TRANSLATE_NOOP("Properties", "Area"), Geometry, PropertyKind::Number, true,
     curveArea},
    {"TEXT", "TextString", 1, nullptr, QT_TRANSLATE_NOOP("Properties", "Contents"), Text, PropertyKind::Text, false},
    {"TEXT", "TextStyleName", 7, standardName, QT_TRANSLATE_NOOP("Properties", "Style"), Text, PropertyKind::TextStyle,
     false},
    {"TEXT", "Position", 10, nullptr, QT_TRANSLATE_NOOP("Properties", "Position"), Geometry, PropertyKind::Point,
     false},
    {"TEXT", "AlignmentPoint", 11, nullptr, QT_TRANSLATE_NOOP("Properties", "Alignment point"), Geometry,
     PropertyKind::Point, false},
    {"TEXT", "Height", 40, nullptr, QT_TRANSLATE_NOOP("Properties", "Height"), Text, PropertyKind::Length, false},
    {"TEXT", "HorizontalMode", 72, zero, QT_TRANSLATE_NOOP("Properties", "Horizontal mode"), Text, PropertyKind::Whole,
     false},
    {"TEXT", "Oblique", 51, nought, QT_TRANSLATE_NOOP("Properties", "Obliquing"), Text, PropertyKind::Angle, false},
    {"TEXT", "Rotation", 50, nought, QT_TRANSLATE_NOOP("Properties", "Rotation"), Text, PropertyKind::Direction, false},
    {"TEXT", "VerticalMode", 73, zero, QT_TRANSLATE_NOOP("Properties", "Vertical mode"), Text, PropertyKind::Whole,
     false},
    {"TEXT", "WidthFactor", 41, one, QT_TRANSLATE_NOOP("Properties", "Width factor"), Text, PropertyKind::Number,
     false},
    {"VIEWPORT", "Center", 10, nullptr, QT_TRANSLATE_NOOP("Properties", "Center"), Geometry, PropertyKind::Point,
     false},
    {"VIEWPORT", "Height", 41, nullptr, QT_TRANSLATE_NOOP("Properties", "Height"), Geometry, PropertyKind::Length,
     true},
    {"VIEWPORT", "Width", 40, nullptr, QT_TRANSLATE_NOOP("Properties", "Width"), Geometry, PropertyKind::Length, true},
    {"XLINE", "BasePoint", 10, nullptr, QT_TRANSLATE_NOOP("Properties", "Base point"), Geometry, PropertyKind::Point,
     false},
    {"XLINE", "Direction", 11, nullptr, QT_TRANSLATE_NOOP("Properties", "Direction"), Geometry, PropertyKind::Vector,
     false},
};

} // namespace

std::span<const EntityProperty> entityProperties()
{
    return properties;
}

bool isInVersion(Version version, const EntityProperty &property)
{
    return property.kind != PropertyKind::Transparency || version >= Version::R2004;
}

bool hasProperty(QByteArrayView type, const EntityProperty &property)
{
    return property.type[0] == '\0' || type == QByteArrayView(property.type);
}

} // namespace host::drawing
