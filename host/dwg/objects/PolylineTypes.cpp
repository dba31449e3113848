#include "host/dwg/objects/TypeTable.h"

#include <algorithm>

namespace host::dwg {

namespace {

/// What follows a polyline in its block: its vertices and what ends them.
void readVertexList(Fields &f)
{
    Relations &relations = f.relations();
    relations.hasList = true;
    if (f.since(Release::R2004)) {
        const std::size_t count = f.checkedCount(f.int32(), 8, f.references());
        for (std::size_t i = 0; i < count; ++i)
            relations.owned.push_back(f.reference());
    } else {
        relations.firstOwned = f.reference();
        relations.lastOwned = f.reference();
    }
    relations.end = f.reference();
}

void readPolyline2d(Fields &f)
{
    f.subclass("AcDb2dPolyline");
    const std::size_t begin = f.mark();
    f.note(66, 1);
    f.int16(70, {0});
    f.int16(75, {0});
    f.real(40, {0});
    f.real(41, {0});
    f.thickness();
    f.note(10, Point{0.0, 0.0, f.real()});
    f.arrange(begin, {66, 10, 20, 30, 39, 70, 40, 41, 75});
    f.extrusion();
    readVertexList(f);
}

void readPolyline3d(Fields &f)
{
    f.subclass("AcDb3dPolyline");
    f.note(66, 1);
    f.note(10, Point());
    const int curve = f.small();
    const int closed = f.small();
    const bool isCurve = (curve & 3) != 0;
    f.note(70, 8 | (closed & 1) | (isCurve ? 4 : 0));
    if (isCurve)
        f.note(75, (curve & 1) != 0 ? 5 : 6);
    readVertexList(f);
}

void readPolyface(Fields &f)
{
    f.subclass("AcDbPolyFaceMesh");
    f.note(66, 1);
    f.note(10, Point());
    f.note(70, 64);
    f.int16(71, {0});
    f.int16(72, {0});
    readVertexList(f);
}

void readMesh(Fields &f)
{
    f.subclass("AcDbPolygonMesh");
    f.note(66, 1);
    f.note(10, Point());
    f.note(70, 16 | f.int16());
    const int curve = f.int16();
    f.int16(71);
    f.int16(72);
    f.int16(73, {0});
    f.int16(74, {0});
    f.noteUnless(75, curve, {0});
    readVertexList(f);
}

void readVertex2d(Fields &f)
{
    f.subclass("AcDbVertex");
    f.subclass("AcDb2dVertex");
    const std::size_t begin = f.mark();
    f.small(70, {0});
    f.point(10);
    // One negative width stands for both.
    const double width = f.real();
    f.noteUnless(40, width < 0.0 ? -width : width, {0.0});
    f.noteUnless(41, width < 0.0 ? -width : f.real(), {0.0});
    f.real(42, {0.0});
    if (f.since(Release::R2010))
        f.int32(91, {0});
    f.angle(50, {0.0});
    f.arrange(begin, {10, 20, 30, 40, 41, 42, 70, 50});
}

void readVertex(Fields &f, const char *subclass, int flags)
{
    f.subclass("AcDbVertex");
    f.subclass(subclass);
    const int own = f.small();
    f.point(10);
    f.note(70, flags | own);
}

void readVertex3d(Fields &f)
{
    readVertex(f, "AcDb3dPolylineVertex", 32);
}

void readMeshVertex(Fields &f)
{
    readVertex(f, "AcDbPolygonMeshVertex", 64);
}

void readPolyfaceVertex(Fields &f)
{
    readVertex(f, "AcDbPolyFaceMeshVertex", 64 | 128);
}

void readPolyfaceFace(Fields &f)
{
    f.subclass("AcDbFaceRecord");
    f.note(10, Point());
    f.note(70, 128);
    for (int code = 71; code <= 73; ++code)
        f.int16(code);
    f.int16(74, {0});
}

/// What a light polyline has, by the bits of its first number.
struct LightParts
{
    static constexpr int extrusion = 1;
    static constexpr int thickness = 2;
    static constexpr int width = 4;
    static constexpr int height = 8;
    static constexpr int bulges = 16;
    static constexpr int widths = 32;
    static constexpr int generated = 256;
    static constexpr int closed = 512;
    static constexpr int identifiers = 1024;
};

struct LightVertex
{
    Point place;
    double startWidth = 0.0;
    double endWidth = 0.0;
    double bulge = 0.0;
    int identifier = 0;
};

std::vector<LightVertex> readLightVertices(Fields &f, std::size_t count)
{
    std::vector<LightVertex> vertices(count);
    for (std::size_t i = 0; i < count; ++i) {
        Point &place = vertices[i].place;
        if (i == 0 || f.until(Release::R14)) {
            place.x = f.rawReal();
            place.y = f.rawReal();
        } else {
            place.x = f.values().realNear(vertices[i - 1].place.x);
            place.y = f.values().realNear(vertices[i - 1].place.y);
        }
    }
    return vertices;
}

void readLightPolyline(Fields &f)
{
    f.subclass("AcDbPolyline");
    const int parts = f.int16();
    const auto has = [parts](int part) { return (parts & part) != 0; };
    const double width = has(LightParts::width) ? f.real() : 0.0;
    const double height = has(LightParts::height) ? f.real() : 0.0;
    const double thickness = has(LightParts::thickness) ? f.real() : 0.0;
    const Point extrusion = has(LightParts::extrusion) ? f.point() : Point{0.0, 0.0, 1.0};
    const std::size_t count = f.count(4);
    const std::size_t bulges = has(LightParts::bulges) ? f.count(2) : 0;
    const std::size_t identifiers = has(LightParts::identifiers) ? f.count(2) : 0;
    const std::size_t widths = has(LightParts::widths) ? f.count(4) : 0;
    std::vector<LightVertex> vertices = readLightVertices(f, count);
    std::size_t most = std::max({bulges, identifiers, widths});
    if (most > count) {
        f.fail();
        return;
    }
    for (std::size_t i = 0; i < bulges; ++i)
        vertices[i].bulge = f.real();
    for (std::size_t i = 0; i < identifiers; ++i)
        vertices[i].identifier = f.int32();
    for (std::size_t i = 0; i < widths; ++i) {
        vertices[i].startWidth = f.real();
        vertices[i].endWidth = f.real();
    }
    f.note(90, count);
    f.note(70, (has(LightParts::closed) ? 1 : 0) | (has(LightParts::generated) ? 128 : 0));
    if (widths == 0)
        f.note(43, width);
    f.noteUnless(38, height, {0.0});
    f.noteUnless(39, thickness, {0.0});
    for (const LightVertex &vertex : vertices) {
        f.noteFlat(10, vertex.place);
        if (widths != 0) {
            f.note(40, vertex.startWidth);
            f.note(41, vertex.endWidth);
        }
        if (bulges != 0)
            f.noteUnless(42, vertex.bulge, {0.0});
        if (identifiers != 0)
            f.note(91, vertex.identifier);
    }
    if (extrusion != Point{0.0, 0.0, 1.0})
        f.note(210, extrusion);
}

} // namespace

std::span<const ObjectType> polylineTypes()
{
    static constexpr ObjectType rows[] = {
        {0x0a, "VERTEX", readVertex2d, true},     {0x0b, "VERTEX", readVertex3d, true},
        {0x0c, "VERTEX", readMeshVertex, true},   {0x0d, "VERTEX", readPolyfaceVertex, true},
        {0x0e, "VERTEX", readPolyfaceFace, true}, {0x0f, "POLYLINE", readPolyline2d, true},
        {0x10, "POLYLINE", readPolyline3d, true}, {0x1d, "POLYLINE", readPolyface, true},
        {0x1e, "POLYLINE", readMesh, true},       {0x4d, "LWPOLYLINE", readLightPolyline, true},
    };
    return rows;
}

} // namespace host::dwg
