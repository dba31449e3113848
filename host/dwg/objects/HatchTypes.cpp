#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

/// Bits of a boundary's kind.
constexpr int polylineBoundary = 2;
constexpr int derivedBoundary = 4;

enum class Edge
{
    Line = 1,
    Arc = 2,
    Ellipse = 3,
    Spline = 4
};

void readGradient(Fields &f)
{
    f.int32(450);
    f.int32(451);
    f.real(460);
    f.real(461);
    f.int32(452);
    f.real(462);
    const std::size_t count = f.count(4);
    f.note(453, count);
    for (std::size_t i = 0; i < count; ++i) {
        f.real(463);
        f.colour(63);
    }
    f.text(470);
}

void readArcAngles(Fields &f)
{
    f.angle(50);
    f.angle(51);
    f.flag(73);
}

void readSplineEdge(Fields &f)
{
    f.int32(94);
    const bool isRational = f.flag(73);
    f.flag(74);
    const std::size_t knots = f.count(2);
    f.note(95, knots);
    const std::size_t points = f.count(128);
    f.note(96, points);
    for (std::size_t i = 0; i < knots; ++i)
        f.real(40);
    for (std::size_t i = 0; i < points; ++i) {
        f.rawFlatPoint(10);
        if (isRational)
            f.real(42);
    }
    if (!f.since(Release::R2010))
        return;
    const std::size_t fits = f.count(128);
    f.note(97, fits);
    if (fits == 0)
        return;
    for (std::size_t i = 0; i < fits; ++i)
        f.rawFlatPoint(11);
    f.rawFlatPoint(12);
    f.rawFlatPoint(13);
}

void readEdge(Fields &f)
{
    switch (static_cast<Edge>(f.small(72))) {
    case Edge::Line:
        f.rawFlatPoint(10);
        f.rawFlatPoint(11);
        return;
    case Edge::Arc:
        f.rawFlatPoint(10);
        f.real(40);
        return readArcAngles(f);
    case Edge::Ellipse:
        f.rawFlatPoint(10);
        f.rawFlatPoint(11);
        f.real(40);
        return readArcAngles(f);
    case Edge::Spline:
        return readSplineEdge(f);
    }
    f.fail();
}

void readPolylineBoundary(Fields &f)
{
    const bool hasBulges = f.flag(72);
    f.flag(73);
    const std::size_t count = f.count(128);
    f.note(93, count);
    for (std::size_t i = 0; i < count; ++i) {
        f.rawFlatPoint(10);
        if (hasBulges)
            f.real(42);
    }
}

/// One boundary; whether the hatch tells the size of a pixel because of it.
bool readBoundary(Fields &f)
{
    const int kind = f.int32(92);
    if ((kind & polylineBoundary) != 0) {
        readPolylineBoundary(f);
    } else {
        const std::size_t edges = f.count(8);
        f.note(93, edges);
        for (std::size_t i = 0; i < edges && !f.hasFailed(); ++i)
            readEdge(f);
    }
    const std::size_t sources = f.checkedCount(f.int32(), 8, f.references());
    f.note(97, sources);
    for (std::size_t i = 0; i < sources; ++i)
        f.reference(330);
    return (kind & derivedBoundary) != 0;
}

void readPatternLines(Fields &f)
{
    const std::size_t lines = f.smallCount(8);
    f.note(78, lines);
    for (std::size_t i = 0; i < lines && !f.hasFailed(); ++i) {
        f.angle(53);
        for (int code = 43; code <= 46; ++code)
            f.real(code);
        const std::size_t dashes = f.smallCount(2);
        f.note(79, dashes);
        for (std::size_t dash = 0; dash < dashes; ++dash)
            f.real(49);
    }
}

void readHatch(Fields &f)
{
    f.subclass("AcDbHatch");
    const std::size_t begin = f.mark();
    if (f.since(Release::R2004))
        readGradient(f);
    const std::size_t gradientEnd = f.mark();
    f.note(10, Point{0.0, 0.0, f.real()});
    f.point(210);
    f.text(2);
    const bool isSolid = f.flag(70);
    f.flag(71);
    const std::size_t boundaries = f.count(6);
    f.note(91, boundaries);
    bool hasPixelSize = false;
    for (std::size_t i = 0; i < boundaries && !f.hasFailed(); ++i)
        hasPixelSize |= readBoundary(f);
    f.int16(75);
    f.int16(76);
    if (!isSolid) {
        f.angle(52);
        f.real(41);
        f.flag(77);
        readPatternLines(f);
    }
    if (hasPixelSize)
        f.real(47);
    const std::size_t seeds = f.count(128);
    f.note(98, seeds);
    for (std::size_t i = 0; i < seeds; ++i)
        f.rawFlatPoint(10);
    // The gradient stands first in the file and last in the text form, which has it for solid hatches alone.
    const std::size_t gradient = gradientEnd - begin;
    f.moveForward(gradientEnd, begin);
    if (!isSolid)
        f.drop(f.mark() - gradient);
}

} // namespace

std::span<const ObjectType> hatchTypes()
{
    static constexpr ObjectType rows[] = {{0x4e, "HATCH", readHatch, true}};
    return rows;
}

} // namespace host::dwg
