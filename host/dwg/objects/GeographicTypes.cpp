#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

/// The numbers that bring a system of coordinates on the earth into the drawing.
void readGeographicFrame(Fields &f)
{
    f.int16(70);
    f.point(10);
    f.point(11);
    f.real(40);
    f.int32(91);
    f.real(41);
    f.int32(92);
    f.point(210);
    f.rawFlatPoint(12);
    f.int32(95);
    f.real(141);
    f.flag(294);
    f.real(142);
    f.real(143);
}

/// Points of the drawing with those on the earth, and triangles of them.
void readGeographicMesh(Fields &f)
{
    const std::size_t points = f.count(256);
    f.note(93, points);
    for (std::size_t i = 0; i < points; ++i) {
        f.rawFlatPoint(13);
        f.rawFlatPoint(14);
    }
    const std::size_t faces = f.count(6);
    f.note(96, faces);
    for (std::size_t i = 0; i < faces; ++i) {
        for (int code = 97; code <= 99; ++code)
            f.int32(code);
    }
}

void readGeographicData(Fields &f)
{
    constexpr int firstWithThisForm = 2;
    f.subclass("AcDbGeoData");
    if (f.int32(90) < firstWithThisForm)
        f.fail();
    f.reference(330);
    readGeographicFrame(f);
    const std::string system = f.text();
    f.noteLong(301, 303, system);
    f.text(302);
    for (int code = 305; code <= 307; ++code)
        f.text(code);
    readGeographicMesh(f);
}

} // namespace

std::span<const ObjectType> geographicTypes()
{
    static constexpr ObjectType rows[] = {{0, "GEODATA", readGeographicData}};
    return rows;
}

} // namespace host::dwg
