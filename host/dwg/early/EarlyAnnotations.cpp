#include "host/dwg/early/EarlyRecord.h"

namespace host::dwg {

namespace {

/// What texts and attributes have at their end; attributes have one option more in front.
void readEarlyTextOptions(EarlyRecord &r, unsigned first, int verticalCode)
{
    r.angle(first, 50);
    r.real(first << 1, 41);
    r.angle(first << 2, 51);
    r.style(first << 3, 7);
    r.byte(first << 4, 71);
    r.byte(first << 5, 72);
    r.planePoint(first << 6, 11);
    r.extrusion(first << 7);
    r.byte(first << 8, verticalCode);
}

void readEarlyText(EarlyRecord &r)
{
    r.planePoint(10);
    r.real(40);
    r.text(1);
    readEarlyTextOptions(r, 0x01, 73);
}

void readEarlyAttribute(EarlyRecord &r)
{
    r.planePoint(10);
    r.real(40);
    r.text(1);
    r.text(2);
    r.byte(70);
    r.byte(0x01, 73);
    readEarlyTextOptions(r, 0x02, 74);
}

void readEarlyDefinition(EarlyRecord &r)
{
    r.planePoint(10);
    r.real(40);
    r.text(1);
    r.text(3);
    r.text(2);
    r.byte(70);
    r.byte(0x01, 73);
    readEarlyTextOptions(r, 0x02, 74);
}

void readEarlyShape(EarlyRecord &r)
{
    r.planePoint(10);
    r.real(40);
    r.byte(2); // its number in the shape file, which alone knows the name
    r.angle(0x01, 50);
    if (r.has(0x02))
        r.takeByte(); // the style that has the file
    r.real(0x04, 41);
    r.angle(0x08, 51);
    r.extrusion(0x10);
}

void noteMeasuredPoint(EarlyRecord &r, int code)
{
    r.fields().rawFlatPoint(code);
    if (r.form().hasSpaceDimensions)
        r.real(code + 20);
    else if (r.isSpatial())
        r.fields().note(code + 20, r.elevation());
}

/// Angles of which two kinds are told apart in text form, and no known file tells which one is which option.
void skipDoubtfulAngle(EarlyRecord &r, unsigned option)
{
    if (r.has(option) && r.fields().rawReal() != 0.0)
        r.setDoubt("The turn of its text or of its extension lines is left out.");
}

void readEarlyDimension(EarlyRecord &r)
{
    const std::string_view block = r.takeName(EarlyTableKind::Blocks);
    if (block.empty())
        r.setDoubt("The block with its lines is lost."); // programs draw them anew
    else
        r.fields().note(2, block);
    noteMeasuredPoint(r, 10);
    r.planePoint(11);
    r.planePoint(0x01, 12);
    r.byte(0x02, 70);
    r.text(0x04, 1);
    unsigned option = 0x08;
    for (const int code : {13, 14, 15}) {
        if (r.has(option))
            noteMeasuredPoint(r, code);
        option <<= 1;
    }
    r.planePoint(0x40, 16);
    r.real(0x80, 40);
    r.angle(0x100, 50);
    r.angle(0x200, 51);
    r.extrusion(0x400);
    skipDoubtfulAngle(r, 0x800);
    skipDoubtfulAngle(r, 0x1000);
    const std::string_view style = r.left() == 2 ? r.takeName(EarlyTableKind::DimensionStyles) : "";
    if (!style.empty())
        r.fields().note(3, style);
}

} // namespace

std::span<const EarlyType> earlyAnnotationTypes()
{
    static constexpr EarlyType types[] = {
        {4, "SHAPE", readEarlyShape},          {7, "TEXT", readEarlyText},
        {15, "ATTDEF", readEarlyDefinition},   {16, "ATTRIB", readEarlyAttribute},
        {23, "DIMENSION", readEarlyDimension},
    };
    return types;
}

} // namespace host::dwg
