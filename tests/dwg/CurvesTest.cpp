// Splines and the planes that they are in, viewports and their numbers.

#include "tests/dwg/FieldWords.h"
#include "tests/dwg/making/ReadBack.h"

#include <gtest/gtest.h>

namespace host::dwg::test {

namespace {

struct PlaneRow
{
    const char *name;
    std::vector<Point> points;
    std::string tags; ///< up to the flags
};

const PlaneRow planeRows[] = {
    {"at one height", {{0, 0, 5}, {1, 0, 5}, {1, 1, 5}, {0, 1, 5}}, "210 0.0|220 0.0|230 1.0|70 8|"},
    {"in a line", {{0, 0, 5}, {1, 0, 5}, {2, 0, 5}}, "210 0.0|220 0.0|230 1.0|70 8|"},
    {"upright", {{0, 0, 0}, {0, 0, 2}, {0, 3, 2}, {0, 3, 0}}, "210 1.0|220 0.0|230 0.0|70 8|"},
    {"the first two in one place", {{0, 0, 0}, {0, 0, 0}, {2, 0, 2}, {0, 3, 0}}, "210 0.70710678118654"},
    {"a line that rises", {{0, 0, 0}, {1, 0, 1}, {2, 0, 2}}, "70 0|"},
    {"in no plane", {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {1, 1, 1}}, "70 0|"},
};

void writeControlSpline(ObjectWriter &o, const std::vector<Point> &points)
{
    o.int32(1);
    if (o.since(Release::R2013)) {
        o.int32(0);
        o.int32(15);
    }
    o.int32(3);
    for (int i = 0; i < 3; ++i)
        o.flag(false);
    o.real(1e-9);
    o.real(1e-10);
    o.int32(0);
    o.int32(static_cast<std::int32_t>(points.size()));
    o.flag(false);
    for (const Point &point : points)
        o.point(point);
}

void writeViewportWith(ObjectWriter &o, int status, int layerKind)
{
    o.point({4.0, 3.0, 0.0});
    o.real(8.0);
    o.real(6.0);
    o.point({});
    o.point({0.0, 0.0, 1.0});
    for (const double number : {0.0, 9.0, 50.0, 0.0, 0.0, 0.0})
        o.real(number);
    for (int i = 0; i < 4; ++i)
        o.rawFlatPoint(1.0, 2.0);
    o.int16(100);
    o.int16(5);
    o.int32(1);
    o.int32(status);
    o.text("");
    o.small(0);
    o.flag(false);
    o.flag(true);
    for (int i = 0; i < 3; ++i)
        o.point({});
    o.real(0.0);
    o.int16(0);
    o.int16(0);
    o.flag(true);
    o.small(1);
    o.real(0.0);
    o.real(0.0);
    o.colour(7);
    o.reference(MadeHandles::LayerZero, layerKind);
    for (int i = 0; i < 7; ++i)
        o.reference(0);
}

void writeViewport(ObjectWriter &o)
{
    writeViewportWith(o, 0x8060, HandleReference::SoftPointer);
}

} // namespace

TEST(DwgCurves, SplinesTellThePlaneThatTheyAreIn)
{
    for (const Release release : {Release::R2000, Release::R2013}) {
        for (const PlaneRow &row : planeRows) {
            MadeDrawing drawing(release);
            const std::uint64_t spline =
                drawing.addEntity(0x24, [&row](ObjectWriter &o) { writeControlSpline(o, row.points); });
            const ReadBack read = readBack(drawing);
            EXPECT_EQ(read.problems(), "") << row.name;
            EXPECT_EQ(read.lastPart(spline).substr(0, row.tags.size()), row.tags) << row.name;
        }
    }
}

TEST(DwgCurves, ViewportsAreNumberedInTheirLayout)
{
    MadeDrawing drawing(Release::R2010);
    for (int number = 1; number <= 3; ++number) {
        const std::uint64_t viewport = drawing.addEntity(0x22, writeViewport);
        const ReadBack read = readBack(drawing);
        const std::string id = std::to_string(number);
        EXPECT_EQ(read.problems(), "");
        EXPECT_NE(read.lastPart(viewport).find("|40 8.0|41 6.0|68 " + id + "|69 " + id + "|12 1.0|"), std::string::npos)
            << read.lastPart(viewport);
        EXPECT_NE(read.lastPart(viewport).find("|331 10|90 32864|"), std::string::npos) << "its frozen layer";
    }
}

TEST(DwgCurves, ViewportsThatAreOffSayItAndFrozenLayersHowTheyAreReferredTo)
{
    MadeDrawing drawing(Release::R2010);
    const std::uint64_t viewport =
        drawing.addEntity(0x22, [](ObjectWriter &o) { writeViewportWith(o, 0x28060, HandleReference::HardPointer); });
    const std::string tags = readBack(drawing).lastPart(viewport);
    EXPECT_NE(tags.find("|68 0|69 1|12 1.0|"), std::string::npos) << tags;
    EXPECT_NE(tags.find("|72 100|341 10|90 163936|"), std::string::npos) << tags;
}

TEST(DwgCurves, ViewportsOfLayoutsThatAreNotShownHaveNoNumber)
{
    MadeDrawing drawing(Release::R2010);
    const std::uint64_t layout =
        drawing.addEntry(0x31, writerOf("n*Paper_Space b0 b0 b0 b0 b0 l1 p0,0,0 t c0 t l0 s0 b1 c0 h0 h0 h41 h0 h0"));
    const std::uint64_t viewport = drawing.addPart(0x22, layout, writeViewport);
    const ReadBack read = readBack(drawing);
    EXPECT_NE(read.record(viewport).find("|330 40|100 AcDbEntity|67 1|"), std::string::npos) << read.record(viewport);
    EXPECT_NE(read.lastPart(viewport).find("|68 0|69 0|"), std::string::npos) << read.lastPart(viewport);
}

} // namespace host::dwg::test
