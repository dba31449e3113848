#include "host/dwg/early/EarlyRecord.h"

#include <bit>

namespace host::dwg {

namespace {

void readEarlyLine(EarlyRecord &r)
{
    r.spacePoint(10);
    r.spacePoint(11);
    r.extrusion(0x01);
}

void readEarlyPoint(EarlyRecord &r)
{
    r.spacePoint(10);
    r.extrusion(0x01);
    r.angle(0x02, 50);
}

void readEarlyCircle(EarlyRecord &r)
{
    r.planePoint(10);
    r.real(40);
    r.extrusion(0x01);
}

void readEarlyArc(EarlyRecord &r)
{
    r.planePoint(10);
    r.real(40);
    r.angle(50);
    r.angle(51);
    r.extrusion(0x01);
}

void readEarlySolid(EarlyRecord &r)
{
    for (const int code : {10, 11, 12, 13})
        r.planePoint(code);
    r.extrusion(0x01);
}

/// A line in space before R10, whose ends have a third number only where it is not 0.
void readEarlySpaceLine(EarlyRecord &r)
{
    unsigned option = 0x01;
    for (const int code : {10, 11}) {
        r.fields().rawFlatPoint(code);
        r.real(option, code + 20);
        option <<= 1;
    }
}

/// The edges that are not drawn stand at the end, in as many bytes as are left.
void noteHiddenEdges(EarlyRecord &r)
{
    if (r.left() == 1)
        r.byte(70);
    else if (r.left() == 2)
        r.number(70);
}

void readEarlyFace(EarlyRecord &r)
{
    unsigned option = 0x01;
    for (const int code : {10, 11, 12, 13}) {
        if (r.isSpatial()) {
            r.spacePoint(code);
        } else {
            r.fields().rawFlatPoint(code);
            r.real(option, code + 20);
        }
        option <<= 1;
    }
    noteHiddenEdges(r);
}

void readEarlyPolyline(EarlyRecord &r)
{
    if (r.isSpatial())
        r.fields().note(10, Point{0.0, 0.0, r.elevation()});
    r.byte(0x01, 70);
    r.real(0x02, 40);
    r.real(0x04, 41);
    r.extrusion(0x08);
    r.number(0x10, 71);
    r.number(0x20, 72);
    r.number(0x40, 73);
    r.number(0x80, 74);
    if (r.has(0x100) && r.left() == 1)
        r.byte(75);
    else
        r.number(0x100, 75);
}

/// How many bytes the options of a vertex take.
std::size_t sizeOfVertexOptions(const EarlyRecord &r)
{
    std::size_t size = 0;
    for (const unsigned real : {0x01u, 0x02u, 0x04u, 0x10u})
        size += r.has(real) ? 8 : 0;
    for (const unsigned number : {0x20u, 0x40u, 0x80u, 0x100u})
        size += r.has(number) ? 2 : 0;
    return size + (r.has(0x08) ? 1 : 0);
}

void readEarlyVertex(EarlyRecord &r)
{
    // Vertices that are faces have no point.
    if (r.left() > sizeOfVertexOptions(r))
        r.planePoint(10);
    else
        r.fields().note(10, Point{});
    r.real(0x01, 40);
    r.real(0x02, 41);
    r.real(0x04, 42);
    r.byte(0x08, 70);
    r.angle(0x10, 50);
    r.number(0x20, 71);
    r.number(0x40, 72);
    r.number(0x80, 73);
    r.number(0x100, 74);
}

} // namespace

std::span<const EarlyType> earlyCurveTypes()
{
    static constexpr EarlyType types[] = {
        {1, "LINE", readEarlyLine, true},    {2, "POINT", readEarlyPoint, true},
        {3, "CIRCLE", readEarlyCircle},      {8, "ARC", readEarlyArc},
        {9, "TRACE", readEarlySolid},        {11, "SOLID", readEarlySolid},
        {19, "POLYLINE", readEarlyPolyline}, {20, "VERTEX", readEarlyVertex},
        {21, "3DLINE", readEarlySpaceLine},  {22, "3DFACE", readEarlyFace, true},
    };
    return types;
}

} // namespace host::dwg
