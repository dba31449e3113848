#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

void readPicture(Fields &f, const char *subclass)
{
    f.subclass(subclass);
    const std::size_t begin = f.mark();
    f.int32(90);
    for (int code = 10; code <= 12; ++code)
        f.point(code);
    f.rawFlatPoint(13);
    f.int16(70);
    f.flag(280);
    f.small(281);
    f.small(282);
    f.small(283);
    if (f.since(Release::R2010))
        f.flag(290);
    const int boundary = f.int16(71);
    const std::size_t count = boundary == 1 ? 2 : f.count(128);
    const std::size_t countMark = f.mark();
    Point first;
    Point last;
    for (std::size_t i = 0; i < count; ++i) {
        last = f.rawFlatPoint(14);
        first = i == 0 ? last : first;
    }
    // The text form closes polygons.
    const bool isClosed = boundary == 1 || count == 0 || first == last;
    if (!isClosed)
        f.noteFlat(14, first);
    const std::size_t countEnd = f.mark();
    f.note(91, count + (isClosed ? 0 : 1));
    f.moveForward(countEnd, countMark);
    const std::size_t references = f.mark();
    f.reference(340);
    f.reference(360);
    f.moveForward(references, begin);
    f.arrange(begin, {90, 10, 20, 30, 11, 21, 31, 12, 22, 32, 13, 23, 340, 70, 280, 281, 282, 283, 290, 360, 71, 91});
}

void readImage(Fields &f)
{
    readPicture(f, "AcDbRasterImage");
}

void readWipeout(Fields &f)
{
    readPicture(f, "AcDbWipeout");
}

void readImageDefinition(Fields &f)
{
    f.subclass("AcDbRasterImageDef");
    const std::size_t begin = f.mark();
    f.int32(90);
    f.rawFlatPoint(10);
    f.text(1);
    f.flag(280);
    f.small(281);
    f.rawFlatPoint(11);
    f.arrange(begin, {90, 1, 10, 20, 11, 21, 280, 281});
}

void readImageReactor(Fields &f)
{
    f.subclass("AcDbRasterImageDefReactor");
    f.int32(90);
    f.noteHandle(330, f.relations().owner);
}

void readRasterVariables(Fields &f)
{
    f.subclass("AcDbRasterVariables");
    f.int32(90);
    f.int16(70);
    f.int16(71);
    f.int16(72);
}

void readWipeoutVariables(Fields &f)
{
    f.subclass("AcDbWipeoutVariables");
    f.int16(70);
}

} // namespace

std::span<const ObjectType> imageTypes()
{
    static constexpr ObjectType rows[] = {
        {0, "IMAGE", readImage, true},
        {0, "WIPEOUT", readWipeout, true},
        {0, "IMAGEDEF", readImageDefinition},
        {0, "IMAGEDEF_REACTOR", readImageReactor},
        {0, "RASTERVARIABLES", readRasterVariables},
        {0, "WIPEOUTVARIABLES", readWipeoutVariables},
    };
    return rows;
}

} // namespace host::dwg
