#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

/// Names of objects in other drawings, which lead through them to the one that is meant.
void readPath(Fields &f, int code)
{
    const std::size_t count = f.textCount();
    for (std::size_t i = 0; i < count && !f.hasFailed(); ++i)
        f.text(code);
}

/// What a point is on: the objects that lead to it through blocks, and a part of the last one.
void readSnappedObject(Fields &f, int objectCode, int partCode, int markerCode, int pathCode)
{
    const std::size_t count = f.checkedCount(f.int32(), 8, f.references());
    for (std::size_t i = 0; i < count; ++i)
        f.reference(objectCode);
    f.int16(partCode);
    f.int32(markerCode);
    readPath(f, pathCode);
}

void readSnappedPoint(Fields &f)
{
    constexpr int intersection = 6;
    constexpr int apparentIntersection = 11;
    f.text(1);
    const int snap = f.small(72);
    readSnappedObject(f, 331, 73, 91, 301);
    f.real(40);
    f.point(10);
    if (snap == intersection || snap == apparentIntersection)
        readSnappedObject(f, 332, 74, 92, 302);
    f.flag(75);
}

/// The points that a dimension follows, one for each bit of the first number.
void readDimensionLink(Fields &f)
{
    f.subclass("AcDbDimAssoc");
    const int points = f.int32();
    f.reference(330);
    f.note(90, points);
    f.flag(70);
    f.small(71);
    for (int point = 1; point <= 8; point <<= 1) {
        if ((points & point) != 0)
            readSnappedPoint(f);
    }
}

} // namespace

std::span<const ObjectType> dimensionLinkTypes()
{
    static constexpr ObjectType rows[] = {{0, "DIMASSOC", readDimensionLink}};
    return rows;
}

} // namespace host::dwg
