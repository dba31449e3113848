#include "host/dwg/objects/TypeTable.h"

#include <algorithm>
#include <cmath>

namespace host::dwg {

namespace {

enum class Measured
{
    Rotated = 0,
    Aligned = 1,
    TwoLines = 2,
    Diameter = 3,
    Radius = 4,
    ThreePoints = 5,
    Ordinate = 6,
    JoggedRadius = 9
};

struct DimensionHead
{
    int version = 0;
    Point extrusion;
    Point middle;
    int flags = 0;
    std::string text;
    double textRotation = 0.0;
    double direction = 0.0;
    double measurement = 0.0;
    int attachment = 0;
    int spacing = 1;
    double spacingFactor = 1.0;
    bool unknown = false;
    bool flipsFirst = false;
    bool flipsSecond = false;
    Point place;
    int kindFlags = 0; ///< what a kind adds to the type
};

DimensionHead readDimensionHead(Fields &f)
{
    DimensionHead head;
    if (f.since(Release::R2010))
        head.version = f.small();
    head.extrusion = f.point();
    head.middle = {f.rawReal(), f.rawReal(), 0.0};
    head.middle.z = f.real();
    head.flags = f.small();
    head.text = f.text();
    head.textRotation = f.real();
    head.direction = f.real();
    f.point(); // how its block is placed: factors and rotation
    f.real();
    if (f.since(Release::R2000)) {
        head.attachment = f.int16();
        head.spacing = f.int16();
        head.spacingFactor = f.real();
        head.measurement = f.real();
    }
    if (f.since(Release::R2007)) {
        head.unknown = f.flag();
        head.flipsFirst = f.flag();
        head.flipsSecond = f.flag();
    }
    head.place = {f.rawReal(), f.rawReal(), head.middle.z};
    return head;
}

/// The type with the flags of group 70, two of which stand in another place in the file.
int dimensionType(Measured measured, int flags)
{
    constexpr int ownBlock = 32;
    constexpr int ownPlace = 128;
    return static_cast<int>(measured) | ((flags & 1) == 0 ? ownPlace : 0) | ((flags & 2) != 0 ? ownBlock : 0);
}

/// Whether the program that wrote the file was one of the first of R2000: those have a group for a text that is empty.
bool writesEmptyText(const Fields &f)
{
    constexpr int lastOfFirst = 6;
    return f.release() == Release::R2000 && f.maintenance() <= lastOfFirst;
}

void noteDimensionHead(Fields &f, const DimensionHead &head, int type, Point definition)
{
    const std::uint64_t style = f.reference();
    const std::uint64_t block = f.reference();
    if (f.since(Release::R2010))
        f.note(280, head.version);
    f.nameUnlessLost(2, block);
    if (block != 0 && f.nameOf(block).empty())
        f.doubt("The block with its lines is lost."); // programs draw them anew
    f.note(10, definition);
    f.note(11, head.middle);
    if (head.place.x != 0.0 || head.place.y != 0.0)
        f.note(12, head.place);
    f.note(70, type);
    if (!head.text.empty() || writesEmptyText(f))
        f.note(1, head.text);
    if (f.since(Release::R2000)) {
        f.note(71, head.attachment);
        f.noteUnless(72, head.spacing, {1});
        f.noteUnless(41, head.spacingFactor, {1.0});
        f.note(42, head.measurement);
    }
    if (f.since(Release::R2007)) {
        f.note(73, head.unknown);
        f.note(74, head.flipsFirst);
        f.note(75, head.flipsSecond);
    }
    f.nameUnlessLost(3, style);
    if (head.textRotation != 0.0)
        f.noteAngle(53, head.textRotation);
    if (head.direction != 0.0)
        f.noteAngle(51, head.direction);
    if (head.extrusion != Point{0.0, 0.0, 1.0})
        f.note(210, head.extrusion);
}

/// What stands in front of a kind's own fields in the file and, but for the definition point, in the text form.
/// `readOwn` notes the kind's fields and returns that point; it may look at the head and
/// adds its flags there.
template <typename ReadOwn>
void readDimension(Fields &f, Measured measured, ReadOwn readOwn)
{
    f.subclass("AcDbDimension");
    const std::size_t begin = f.mark();
    DimensionHead head = readDimensionHead(f);
    const Point definition = readOwn(head);
    const std::size_t end = f.mark();
    noteDimensionHead(f, head, dimensionType(measured, head.flags) | head.kindFlags, definition);
    f.moveForward(end, begin);
}

Point readDistance(Fields &f, Measured measured)
{
    f.subclass("AcDbAlignedDimension");
    f.point(13);
    f.point(14);
    const Point definition = f.point();
    const double oblique = f.real();
    if (measured == Measured::Rotated) {
        f.angle(50, {0.0});
    }
    if (oblique != 0.0)
        f.noteAngle(52, oblique);
    if (measured == Measured::Rotated)
        f.subclass("AcDbRotatedDimension");
    return definition;
}

void readRotated(Fields &f)
{
    readDimension(f, Measured::Rotated, [&f](DimensionHead &) { return readDistance(f, Measured::Rotated); });
}

void readAligned(Fields &f)
{
    readDimension(f, Measured::Aligned, [&f](DimensionHead &) { return readDistance(f, Measured::Aligned); });
}

void readOrdinate(Fields &f)
{
    readDimension(f, Measured::Ordinate, [&f](DimensionHead &head) {
        f.subclass("AcDbOrdinateDimension");
        const Point definition = f.point();
        f.point(13);
        f.point(14);
        head.kindFlags = (f.small() & 1) != 0 ? 64 : 0;
        return definition;
    });
}

void readThreePoints(Fields &f)
{
    readDimension(f, Measured::ThreePoints, [&f](DimensionHead &) {
        f.subclass("AcDb3PointAngularDimension");
        const Point definition = f.point();
        f.point(13);
        f.point(14);
        f.point(15);
        return definition;
    });
}

void readTwoLines(Fields &f)
{
    readDimension(f, Measured::TwoLines, [&f](DimensionHead &) {
        f.subclass("AcDb2LineAngularDimension");
        const Point arc{f.rawReal(), f.rawReal(), 0.0};
        f.point(13);
        f.point(14);
        f.point(15);
        const Point definition = f.point();
        f.note(16, arc);
        return definition;
    });
}

void readRadius(Fields &f)
{
    readDimension(f, Measured::Radius, [&f](DimensionHead &) {
        f.subclass("AcDbRadialDimension");
        const Point definition = f.point();
        f.point(15);
        f.real(40);
        return definition;
    });
}

void readDiameter(Fields &f)
{
    readDimension(f, Measured::Diameter, [&f](DimensionHead &) {
        f.subclass("AcDbDiametricDimension");
        f.point(15);
        const Point definition = f.point();
        f.real(40);
        return definition;
    });
}

/// The length of an arc, which has the number of angles.
void readArcLength(Fields &f)
{
    readDimension(f, Measured::ThreePoints, [&f](DimensionHead &) {
        f.subclass("AcDbArcDimension");
        const Point definition = f.point();
        f.point(13);
        f.point(14);
        f.point(15);
        f.flag(70);
        f.real(40);
        f.real(41);
        f.flag(71);
        f.point(16);
        f.point(17);
        return definition;
    });
}

bool isDistance(Point a, Point b, double distance)
{
    return std::abs(std::hypot(a.x - b.x, a.y - b.y, a.z - b.z) - distance) <= 1e-6 * std::max(1.0, distance);
}

/// A radius whose line is bent towards another centre than the real one.
void readJoggedRadius(Fields &f)
{
    readDimension(f, Measured::JoggedRadius, [&f](DimensionHead &head) {
        f.subclass("AcDbRadialDimensionLarge");
        const std::size_t begin = f.mark();
        const Point centre = f.point();
        const Point chord = f.point(15);
        f.real(40);
        f.point(13);
        f.point(14);
        f.arrange(begin, {13, 23, 33, 14, 24, 34, 15, 25, 35, 40});
        // No drawing at hand has one; that the definition point is the centre is measured.
        if (f.since(Release::R2000) && !isDistance(centre, chord, head.measurement))
            f.fail();
        return centre;
    });
}

} // namespace

std::span<const ObjectType> dimensionTypes()
{
    static constexpr ObjectType rows[] = {
        {0x14, "DIMENSION", readOrdinate, true},
        {0x15, "DIMENSION", readRotated, true},
        {0x16, "DIMENSION", readAligned, true},
        {0x17, "DIMENSION", readThreePoints, true},
        {0x18, "DIMENSION", readTwoLines, true},
        {0x19, "DIMENSION", readRadius, true},
        {0x1a, "DIMENSION", readDiameter, true},
        {0, "ARC_DIMENSION", readArcLength, true},
        {0, "LARGE_RADIAL_DIMENSION", readJoggedRadius, true},
    };
    return rows;
}

} // namespace host::dwg
