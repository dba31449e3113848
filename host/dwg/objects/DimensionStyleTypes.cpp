#include "host/dwg/objects/TableTypes.h"
#include "host/dwg/objects/TypeTable.h"

#include <algorithm>

namespace host::dwg {

namespace {

/// How a variable of dimensions is coded.
enum class Coded
{
    Flag,
    Byte,
    Int16,
    Real,
    Angle,
    Text,
    Colour
};

/// A variable of dimension styles: its group code, and from R2000 on, when it is not written because it has this value.
struct StyleRow
{
    Coded coded;
    int code; ///< 0 for what has none
    Release first;
    Release last;
    double usual = 0.0;
};

constexpr Release firstRelease = Release::R13;
constexpr Release lastRelease = Release::R2018;
constexpr double everywhere = -1e300;

/// In the order of files.
constexpr StyleRow styleRows[] = {
    // R13 and R14: small values first.
    {Coded::Flag, 71, firstRelease, Release::R14},
    {Coded::Flag, 72, firstRelease, Release::R14},
    {Coded::Flag, 73, firstRelease, Release::R14},
    {Coded::Flag, 74, firstRelease, Release::R14},
    {Coded::Flag, 75, firstRelease, Release::R14},
    {Coded::Flag, 76, firstRelease, Release::R14},
    {Coded::Flag, 170, firstRelease, Release::R14},
    {Coded::Flag, 172, firstRelease, Release::R14},
    {Coded::Flag, 173, firstRelease, Release::R14},
    {Coded::Flag, 174, firstRelease, Release::R14},
    {Coded::Flag, 175, firstRelease, Release::R14},
    {Coded::Byte, 171, firstRelease, Release::R14},
    {Coded::Byte, 78, firstRelease, Release::R14},
    {Coded::Flag, 281, firstRelease, Release::R14},
    {Coded::Flag, 282, firstRelease, Release::R14},
    {Coded::Byte, 283, firstRelease, Release::R14},
    {Coded::Byte, 280, firstRelease, Release::R14},
    {Coded::Byte, 287, firstRelease, Release::R14},
    {Coded::Flag, 288, firstRelease, Release::R14},
    {Coded::Byte, 284, firstRelease, Release::R14},
    {Coded::Byte, 285, firstRelease, Release::R14},
    {Coded::Byte, 286, firstRelease, Release::R14},
    {Coded::Byte, 77, firstRelease, Release::R14},
    {Coded::Int16, 270, firstRelease, Release::R14},
    {Coded::Int16, 275, firstRelease, Release::R14},
    {Coded::Int16, 271, firstRelease, Release::R14},
    {Coded::Int16, 272, firstRelease, Release::R14},
    {Coded::Int16, 273, firstRelease, Release::R14},
    {Coded::Int16, 274, firstRelease, Release::R14},
    // All.
    {Coded::Text, 3, Release::R2000, lastRelease},
    {Coded::Text, 4, Release::R2000, lastRelease},
    {Coded::Real, 40, firstRelease, lastRelease, 1.0},
    {Coded::Real, 41, firstRelease, lastRelease, 0.18},
    {Coded::Real, 42, firstRelease, lastRelease, 0.0625},
    {Coded::Real, 43, firstRelease, lastRelease, 0.38},
    {Coded::Real, 44, firstRelease, lastRelease, 0.18},
    {Coded::Real, 45, firstRelease, lastRelease},
    {Coded::Real, 46, firstRelease, lastRelease},
    {Coded::Real, 47, firstRelease, lastRelease},
    {Coded::Real, 48, firstRelease, lastRelease},
    {Coded::Real, 49, Release::R2007, lastRelease, 1.0},
    {Coded::Angle, 50, Release::R2007, lastRelease, 0.78539816339744828},
    {Coded::Int16, 69, Release::R2007, lastRelease},
    {Coded::Colour, 70, Release::R2007, lastRelease},
    {Coded::Flag, 71, Release::R2000, lastRelease},
    {Coded::Flag, 72, Release::R2000, lastRelease},
    {Coded::Flag, 73, Release::R2000, lastRelease, 1.0},
    {Coded::Flag, 74, Release::R2000, lastRelease, 1.0},
    {Coded::Flag, 75, Release::R2000, lastRelease},
    {Coded::Flag, 76, Release::R2000, lastRelease},
    {Coded::Int16, 77, Release::R2000, lastRelease},
    {Coded::Int16, 78, Release::R2000, lastRelease},
    {Coded::Int16, 79, Release::R2000, lastRelease},
    {Coded::Int16, 90, Release::R2007, lastRelease},
    {Coded::Real, 140, firstRelease, lastRelease, 0.18},
    {Coded::Real, 141, firstRelease, lastRelease, 0.09},
    {Coded::Real, 142, firstRelease, lastRelease},
    {Coded::Real, 143, firstRelease, lastRelease, 25.4},
    {Coded::Real, 144, firstRelease, lastRelease, 1.0},
    {Coded::Real, 145, firstRelease, lastRelease},
    {Coded::Real, 146, firstRelease, lastRelease, 1.0},
    {Coded::Real, 147, firstRelease, lastRelease, 0.09},
    {Coded::Text, 3, firstRelease, Release::R14},
    {Coded::Text, 4, firstRelease, Release::R14},
    {Coded::Text, 5, firstRelease, Release::R14},
    {Coded::Text, 6, firstRelease, Release::R14},
    {Coded::Text, 7, firstRelease, Release::R14},
    {Coded::Real, 148, Release::R2000, lastRelease},
    {Coded::Flag, 170, Release::R2000, lastRelease},
    {Coded::Int16, 171, Release::R2000, lastRelease, 2.0},
    {Coded::Flag, 172, Release::R2000, lastRelease},
    {Coded::Flag, 173, Release::R2000, lastRelease},
    {Coded::Flag, 174, Release::R2000, lastRelease},
    {Coded::Flag, 175, Release::R2000, lastRelease},
    {Coded::Colour, 176, firstRelease, lastRelease},
    {Coded::Colour, 177, firstRelease, lastRelease},
    {Coded::Colour, 178, firstRelease, lastRelease},
    {Coded::Int16, 179, Release::R2000, lastRelease},
    {Coded::Int16, 271, Release::R2000, lastRelease, 4.0},
    {Coded::Int16, 272, Release::R2000, lastRelease, 4.0},
    {Coded::Int16, 273, Release::R2000, lastRelease, 2.0},
    {Coded::Int16, 274, Release::R2000, lastRelease, 2.0},
    {Coded::Int16, 275, Release::R2000, lastRelease},
    {Coded::Int16, 276, Release::R2000, lastRelease},
    {Coded::Int16, 277, Release::R2000, lastRelease, 2.0},
    {Coded::Int16, 278, Release::R2000, lastRelease, 46.0},
    {Coded::Int16, 279, Release::R2000, lastRelease},
    {Coded::Int16, 280, Release::R2000, lastRelease},
    {Coded::Flag, 281, Release::R2000, lastRelease},
    {Coded::Flag, 282, Release::R2000, lastRelease},
    {Coded::Int16, 283, Release::R2000, lastRelease, 1.0},
    {Coded::Int16, 284, Release::R2000, lastRelease},
    {Coded::Int16, 285, Release::R2000, lastRelease},
    {Coded::Int16, 286, Release::R2000, lastRelease},
    {Coded::Flag, 288, Release::R2000, lastRelease},
    {Coded::Int16, 289, Release::R2000, lastRelease, 3.0},
    {Coded::Flag, 290, Release::R2007, lastRelease},
    {Coded::Flag, 294, Release::R2010, lastRelease},
    {Coded::Real, 0, Release::R2010, lastRelease},
    {Coded::Text, 0, Release::R2010, lastRelease},
    {Coded::Real, 0, Release::R2010, lastRelease},
    {Coded::Text, 0, Release::R2010, lastRelease},
    {Coded::Int16, 371, Release::R2000, lastRelease, -2.0},
    {Coded::Int16, 372, Release::R2000, lastRelease, -2.0},
};

void readStyleRow(Fields &f, const StyleRow &row)
{
    const std::size_t mark = f.mark();
    // Before R2000 all of them are written.
    const Fields::Unless unless{f.since(Release::R2000) ? row.usual : everywhere};
    switch (row.coded) {
    case Coded::Flag:
        f.flag(row.code, unless);
        break;
    case Coded::Byte:
        f.small(row.code, unless);
        break;
    case Coded::Int16:
        f.int16(row.code, unless);
        break;
    case Coded::Real:
        f.real(row.code, unless);
        break;
    case Coded::Angle:
        f.angle(row.code, unless);
        break;
    case Coded::Text:
        if (f.since(Release::R2000))
            f.textUnlessEmpty(row.code);
        else
            f.text(row.code);
        break;
    case Coded::Colour:
        if (f.since(Release::R2000))
            f.colour(row.code, 0);
        else
            f.colour(row.code);
        break;
    }
    if (row.code == 0)
        f.drop(mark);
}

void readDimensionStyle(Fields &f)
{
    EntryHead entry = readEntryHead(f);
    const std::size_t mark = f.mark();
    for (const StyleRow &row : styleRows) {
        if (f.release() >= row.first && f.release() <= row.last)
            readStyleRow(f, row);
    }
    f.flag();
    f.reference();
    f.reference(340);
    if (f.since(Release::R2000)) {
        for (int code = 341; code <= 344; ++code)
            f.referenceUnlessNull(code);
    }
    if (f.since(Release::R2007)) {
        for (int code = 345; code <= 347; ++code)
            f.referenceUnlessNull(code);
    }
    if (f.until(Release::R14)) {
        f.arrange(mark, {3,   4,   5,   6,   7,   40,  41,  42,  43,  44,  45,  46,  47,  48,  140, 141, 142, 143, 144,
                         145, 146, 147, 71,  72,  73,  74,  75,  76,  77,  78,  170, 171, 172, 173, 174, 175, 176, 177,
                         178, 270, 271, 272, 273, 274, 340, 275, 280, 281, 282, 283, 284, 285, 286, 287, 288});
    } else {
        f.arrange(mark, {3,   4,   40,  41,  42,  43,  44,  45,  46,  47,  48,  49,  50,  71,  72,  73,  74,  75,  76,
                         77,  78,  79,  140, 141, 142, 143, 144, 145, 146, 147, 148, 170, 171, 172, 173, 174, 175, 176,
                         177, 178, 179, 271, 272, 273, 274, 275, 276, 277, 278, 279, 280, 281, 282, 283, 284, 285, 286,
                         288, 289, 69,  70,  90,  290, 294, 340, 341, 342, 343, 344, 345, 346, 347, 371, 372});
    }
    const std::size_t head = f.mark();
    f.subclass("AcDbSymbolTableRecord");
    f.subclass("AcDbDimStyleTableRecord");
    f.note(2, entry.name);
    f.note(70, entry.flags);
    f.moveForward(head, mark);
}

} // namespace

std::span<const ObjectType> dimensionStyleTypes()
{
    static constexpr ObjectType rows[] = {{dimensionStyleType, "DIMSTYLE", readDimensionStyle}};
    return rows;
}

} // namespace host::dwg
