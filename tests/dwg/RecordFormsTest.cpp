// What records have in one release and not in another, what they leave out, and in which order they have it; bit by
// bit, for types with numbers of their own.

#include "tests/dwg/FieldWords.h"
#include "tests/dwg/making/ReadBack.h"
#include "tests/dwg/making/TypeNumbers.h"

#include <gtest/gtest.h>

namespace host::dwg::test {

namespace {

enum class Place
{
    Entity,
    Entry, ///< of the table that is for its type
    Object
};

struct FormRow
{
    const char *name;
    Release release;
    Place place;
    int type;
    std::string fields; ///< as FieldWords.h has them
    std::string tags;   ///< behind the last subclass
};

// A layer, behind its name: what it is, its colour, what it refers to.
const std::string layerOff = "s18 K#c2139b48 h0 h0 h0 h16";
const std::string layerOn = "s16 K#c2a953a0 h0 h0 h0 h16";

// A block without entities up to its preview, and behind it.
const std::string blockHead = "nB b0 b0 b0 b0 b0 ";
const std::string blockPreview = "p0,0,0 t c1 c0 t l3 c40 c0 c255 ";
const std::string blockLinks = "h0 h0 h0 h0 h0 h51 h52 ";
const std::string laterBlockLinks = "s4 b1 c1 h0 h0 h0 h51 h52 ";

const std::string hatchPlane = "d0 p0,0,1 tANSI31 ";
const std::string hatchEnd = "l0 s0 s1 ";
const std::string noGradient = "l0 l0 d0 d0 l0 d0 l1 d0 K5 tLINEAR ";
const std::string hatchTags = "10 0.0|20 0.0|30 0.0|210 0.0|220 0.0|230 1.0|2 ANSI31|";
const std::string gradientTags = "450 0|451 0|460 0.0|461 0.0|452 0|462 0.0|453 1|463 0.0|63 5|470 LINEAR|";

const std::string axes = "p0,0,0 p1,0,0 p0,1,0 d7 s2 ";
const std::string axesTags = "110 0.0|120 0.0|130 0.0|111 1.0|121 0.0|131 0.0|112 0.0|122 1.0|132 0.0|79 2|146 7.0|";
const std::string viewTags = "2 V|70 0|40 2.0|10 5.0|20 6.0|41 3.0|11 0.0|21 0.0|31 1.0|12 0.0|22 0.0|32 0.0|42 50.0|"
                             "43 0.0|44 0.0|50 0.0|71 0|281 0|72 1|";

const std::string lineStyle = "tM t s0 C256 d0 d0 c2 d0.5 C1 s32766 d-0.5 C2 s0";
const std::string lineStyleTags =
    "2 M|70 0|3 |62 256|51 0.0|52 0.0|71 2|49 0.5|62 1|6 BYBLOCK|49 -0.5|62 2|6 Continuous|";

// A dimension style with what is usual, but for the angle of jogs and a colour.
const std::string dimensionStyle =
    "nS t t d1 d0.18 d0.0625 d0.38 d0.18 d0 d0 d0 d0 d1 d1 s0 C0 b0 b0 b1 b1 b0 b0 s0 s0 s0 s0 d0.18 "
    "d0.09 d0 d25.4 d1 d0 d1 d0.09 d0 b0 s2 b0 b0 b0 b0 K#c2ff0000 C0 C0 s0 s4 s4 s2 s2 s0 s0 s2 s46 s0 s0 b0 b0 s1 s0 "
    "s0 s0 b0 s3 b0 s-2 s-2 b0 h0 h11 h0 h0 h0 h0 h0 h0 h0";

/// A linetype with a text in its second dash, whose letters stand in so many raw numbers from `begin` on.
std::string linetypeFields(const std::string &letters, int zeros, int begin = 0)
{
    std::string fields = "nL tD d1.5 c65 c2 d0.5 s0 r0 r0 d1 d0 s0 d-0.25 s" + std::to_string(begin) +
                         " r0.1 r0.2 d0.75 d1 s2 " + letters;
    for (int i = 0; i < zeros; ++i)
        fields += " w0";
    return fields + " h0 h0 h11";
}

const std::string linetypeTags = "2 L|70 0|3 D|72 65|73 2|40 1.5|49 0.5|74 0|49 -0.25|74 2|75 0|340 11|46 0.75|"
                                 "50 57.29577951308232|44 0.1|45 0.2|9 ";

const FormRow formRows[] = {
    {"a linetype with a text, of one byte a character", Release::R2004, Place::Entry, LinetypeType,
     linetypeFields("w16961", 127), linetypeTags + "AB|"},
    {"a linetype with a text, of two bytes a character", Release::R2007, Place::Entry, LinetypeType,
     linetypeFields("w65 w66", 254), linetypeTags + "AB|"},
    {"the same from its second letter on", Release::R2007, Place::Entry, LinetypeType,
     linetypeFields("w65 w66", 254, 2), linetypeTags + "B|"},
    {"a text in front of all texts", Release::R2007, Place::Entry, LinetypeType, linetypeFields("w65 w66", 254, -1),
     linetypeTags + "|"},
    {"the same, of one byte a character", Release::R2004, Place::Entry, LinetypeType, linetypeFields("w16961", 127, -1),
     linetypeTags + "|"},
    {"a text behind all texts", Release::R2007, Place::Entry, LinetypeType, linetypeFields("w65 w66", 254, 511),
     linetypeTags + "|"},
    {"an array of inserts", Release::R2004, Place::Entity, 0x08,
     "p1,2,3 b0 b0 r2 b1 b1 r3 b0 b0 d1 p0,0,-1 b0 s4 s5 d6 d7 h1D",
     "2 *MODEL_SPACE|10 1.0|20 2.0|30 3.0|41 2.0|42 3.0|43 2.0|50 57.29577951308232|70 4|71 5|44 6.0|45 7.0|210 0.0|"
     "220 0.0|230 -1.0|"},
    {"a face with hidden edges", Release::R2000, Place::Entity, 0x1c,
     "b0 b0 r1 r2 r3 b1 b1 r4 b1 b1 r5 b1 b1 r6 b0 b0 b0 b0 b0 b0 b1 b1 r7 b0 b0 b0 b0 s5",
     "10 1.0|20 2.0|30 3.0|11 4.0|21 5.0|31 6.0|12 4.0|22 5.0|32 6.0|13 7.0|23 5.0|33 6.0|70 5|"},
    {"a mesh that is smoothed", Release::R2010, Place::Entity, 0x1e, "s5 s6 s4 s5 s2 s3 l0 h0",
     "66 1|10 0.0|20 0.0|30 0.0|70 21|71 4|72 5|73 2|74 3|75 6|"},
    {"a polyline in space that is smoothed and closed", Release::R2010, Place::Entity, 0x10, "c2 c1 l0 h0",
     "66 1|10 0.0|20 0.0|30 0.0|70 13|75 6|"},
    {"a tolerance of R14 has its size in the file alone", Release::R14, Place::Entity, 0x2e,
     "s1 d1 d2 p1,2,3 p0,1,0 p0,0,-1 tX h11",
     "3 Standard|10 1.0|20 2.0|30 3.0|1 X|210 0.0|220 0.0|230 -1.0|11 0.0|21 1.0|31 0.0|"},
    {"a dimension style", Release::R2007, Place::Entry, 0x45, dimensionStyle,
     "2 S|70 0|50 57.29577951308232|176 1|340 11|"},
    {"a line of a style with a linetype of the table", Release::R2004, Place::Object, 0x49, lineStyle, lineStyleTags},
    {"a layer that is off keeps its colour", Release::R2007, Place::Entry, LayerType, "nL " + layerOff,
     "2 L|70 0|62 -114|420 1284936|6 Continuous|370 0|390 0|"},
    {"a layer that is on", Release::R2007, Place::Entry, LayerType, "nL " + layerOn,
     "2 L|70 0|62 215|420 11096992|6 Continuous|370 0|390 0|"},
    {"the preview of a block", Release::R2000, Place::Entry, 0x31, blockHead + blockPreview + blockLinks,
     "2 B|340 52|310 2800FF|102 {BLKREFS|331 51|102 }|"},
    {"an external block that is laid over, which has no entities here", Release::R2000, Place::Entry, 0x31,
     "nB b0 b0 b0 b1 b0 " + blockPreview + "h0 h0 h0 h51 h52", "2 B|340 52|310 2800FF|102 {BLKREFS|331 51|102 }|"},
    {"what insertions of a block may do", Release::R2010, Place::Entry, 0x31,
     blockHead + "l0 " + blockPreview + laterBlockLinks,
     "2 B|340 52|310 2800FF|102 {BLKREFS|331 51|102 }|70 4|280 1|281 1|"},
    {"a pattern", Release::R2004, Place::Entity, 0x4e, noGradient + hatchPlane + "b0 b0 " + hatchEnd + "d0 d1 b0 s0 l0",
     hatchTags + "70 0|71 0|91 0|75 0|76 1|52 0.0|41 1.0|77 0|78 0|98 0|"},
    {"a solid hatch", Release::R2004, Place::Entity, 0x4e, noGradient + hatchPlane + "b1 b0 " + hatchEnd + "l0",
     hatchTags + "70 1|71 0|91 0|75 0|76 1|98 0|" + gradientTags},
    {"a hatch within a spline and an ellipse", Release::R2010, Place::Entity, 0x4e,
     noGradient + hatchPlane +
         "b1 b1 l1 l5 l2 c4 l3 b1 b0 l2 l1 d0 d1 f1,2 d0.5 l1 f3,4 f5,6 f7,8 c3 f1,2 f3,4 d0.5 d1 d2 b1 l1 h50 s0 s1 "
         "d0.25 l1 f9,8",
     hatchTags +
         "70 1|71 1|91 1|92 5|93 2|72 4|94 3|73 1|74 0|95 2|96 1|40 0.0|40 1.0|10 1.0|20 2.0|42 0.5|97 1|"
         "11 3.0|21 4.0|12 5.0|22 6.0|13 7.0|23 8.0|72 3|10 1.0|20 2.0|11 3.0|21 4.0|40 0.5|"
         "50 57.29577951308232|51 114.59155902616465|73 1|97 1|330 50|75 0|76 1|47 0.25|98 1|10 9.0|20 8.0|" +
         gradientTags},
    {"a light polyline with all that it may have", Release::R2010, Place::Entity, LightPolylineType,
     "s1851 d5 d6 p0,0,-1 l2 l2 l2 l2 f1,2 b1 b1 r3 b1 b1 r4 d0.5 d0 l7 l8 d1 d2 d3 d4",
     "90 2|70 129|38 5.0|39 6.0|10 1.0|20 2.0|40 1.0|41 2.0|42 0.5|91 7|10 3.0|20 4.0|40 3.0|41 4.0|91 8|210 0.0|"
     "220 0.0|230 -1.0|"},
    {"faces without vertices", Release::R2000, Place::Entity, 0x1d, "s8 s0 h0 h0 h0",
     "66 1|10 0.0|20 0.0|30 0.0|70 64|71 8|"},
    {"a view with a coordinate system", Release::R2000, Place::Entry, 0x3d,
     "nV d2 d3 f5,6 p0,0,0 p0,0,1 d0 d50 d0 d0 b0 b0 b0 b1 c0 b0 b1 " + axes + "h0 h60 h61",
     viewTags + axesTags + "345 61|346 60|"},
    {"a view with a section", Release::R2007, Place::Entry, 0x3d,
     "nV d2 d3 f5,6 p0,0,0 p0,0,1 d0 d50 d0 d0 b0 b0 b0 b1 c0 b1 c1 d0 d0 K250 b0 b1 " + axes +
         "b1 h0 h62 h63 h64 h60 h61 h65",
     viewTags + "73 1|332 62|334 65|348 63|361 64|" + axesTags + "345 61|346 60|"},
    {"a coordinate system that others stand upon", Release::R2000, Place::Entry, 0x3f,
     "nU p0,0,0 p1,0,0 p0,1,0 d7 s1 s1 s5 p1,2,3 h0 h60",
     "2 U|70 0|10 0.0|20 0.0|30 0.0|11 1.0|21 0.0|31 0.0|12 0.0|22 1.0|32 0.0|79 1|146 7.0|346 60|71 5|13 1.0|23 2.0|"
     "33 3.0|"},
};

/// An entity with all its parts, and what is read of it behind the layer.
struct WholeRow
{
    Release release;
    int type;
    std::string fields;
    std::string tags;
};

// How dimensions begin up to the kind's own fields, in three forms, and what the text form has of it around the
// definition point and the type.
const std::string lateHead = "c7 p0,0,-1 f2,3 d4 c0 tT d2 d1 p1,1,1 d0 s5 s2 d1.5 d9 b1 b0 b1 f6,7 ";
const std::string middleHead = "p0,0,1 f2,3 d4 c3 t d0 d0 p1,1,1 d0 s5 s1 d1 d9 f0,0 ";
const std::string oldHead = "p0,0,1 f2,3 d4 c2 tT d0 d0 p1,1,1 d0 f6,7 ";
const std::string definitionTags = "10 7.0|20 8.0|30 9.0|11 2.0|21 3.0|31 4.0|";
const std::string lateBegin = "100 AcDbDimension|280 7|2 *MODEL_SPACE|" + definitionTags + "12 6.0|22 7.0|32 4.0|70 ";
const std::string lateEnd = "|1 T|71 5|72 2|41 1.5|42 9.0|73 1|74 0|75 1|3 Standard|53 114.59155902616465|51 "
                            "57.29577951308232|210 0.0|220 0.0|230 -1.0|100 ";
const std::string firstPoints = "13 1.0|23 2.0|33 3.0|14 4.0|24 5.0|34 6.0|";

const WholeRow wholeRows[] = {
    {Release::R2010, 0x14, lateHead + "p7,8,9 p1,2,3 p4,5,6 c1 h11 h1D",
     lateBegin + "198" + lateEnd + "AcDbOrdinateDimension|" + firstPoints},
    {Release::R2010, 0x15, lateHead + "p1,2,3 p4,5,6 p7,8,9 d1 d2 h11 h1D",
     lateBegin + "128" + lateEnd + "AcDbAlignedDimension|" + firstPoints +
         "50 114.59155902616465|52 57.29577951308232|100 AcDbRotatedDimension|"},
    {Release::R2004, 0x16, middleHead + "p1,2,3 p4,5,6 p7,8,9 d1 h11 h1D",
     "100 AcDbDimension|2 *MODEL_SPACE|" + definitionTags + "70 33|71 5|42 9.0|3 Standard|100 AcDbAlignedDimension|" +
         firstPoints + "52 57.29577951308232|"},
    {Release::R2010, 0x17, lateHead + "p7,8,9 p1,2,3 p4,5,6 p3,2,1 h11 h1D",
     lateBegin + "133" + lateEnd + "AcDb3PointAngularDimension|" + firstPoints + "15 3.0|25 2.0|35 1.0|"},
    {Release::R2010, 0x18, lateHead + "f8,6 p1,2,3 p4,5,6 p3,2,1 p7,8,9 h11 h1D",
     lateBegin + "130" + lateEnd + "AcDb2LineAngularDimension|" + firstPoints +
         "15 3.0|25 2.0|35 1.0|16 8.0|26 6.0|36 "
         "0.0|"},
    {Release::R2010, 0x19, lateHead + "p7,8,9 p3,2,1 d0.5 h11 h1D",
     lateBegin + "132" + lateEnd + "AcDbRadialDimension|15 3.0|25 2.0|35 1.0|40 0.5|"},
    {Release::R14, 0x1a, oldHead + "p3,2,1 p7,8,9 d0.5 h11 h1D",
     "100 AcDbDimension|2 *MODEL_SPACE|" + definitionTags +
         "12 6.0|22 7.0|32 4.0|70 163|1 T|3 Standard|100 AcDbDiametricDimension|15 3.0|25 2.0|35 1.0|40 0.5|"},
    {Release::R2010, 0x22,
     "p1,2,3 d4 d5 p6,7,8 p9,8,7 d1 d11 d12 d13 d14 d2 f21,22 f23,24 f25,26 f27,28 s100 s5 l1 l32864 tS c2 b1 b0 "
     "p31,32,33 p34,35,36 p37,38,39 d40 s3 s1 b1 c1 d0.5 d0.75 K250 h50 h51 h52 h53 h54 h55 h56 h57",
     "100 AcDbViewport|10 1.0|20 2.0|30 3.0|40 4.0|41 5.0|68 1|69 1|12 21.0|22 22.0|13 23.0|23 24.0|14 25.0|24 26.0|"
     "15 27.0|25 28.0|16 9.0|26 8.0|36 7.0|17 6.0|27 7.0|37 8.0|42 12.0|43 13.0|44 14.0|45 11.0|50 114.59155902616465|"
     "51 57.29577951308232|72 100|341 50|90 32864|340 51|1 S|281 2|71 0|74 1|110 31.0|120 32.0|130 33.0|111 34.0|"
     "121 35.0|131 36.0|112 37.0|122 38.0|132 39.0|345 52|346 53|79 3|146 40.0|170 1|61 5|332 54|333 56|348 55|292 1|"
     "282 1|141 0.5|142 0.75|63 250|361 57|"},
    {Release::R2004, TextType, "c0 r9 r1 r2 b1 b1 r3 b0 b0 b0 p0,0,-1 b0 d0.5 r1 r2 r0.25 r0.75 tV s2 s1 s3 h11",
     "100 AcDbText|39 0.5|10 1.0|20 2.0|30 9.0|40 0.25|1 V|50 114.59155902616465|41 0.75|51 57.29577951308232|71 2|"
     "72 1|11 3.0|21 2.0|31 9.0|210 0.0|220 0.0|230 -1.0|100 AcDbText|73 3|"},
};

std::uint64_t addRow(MadeDrawing &drawing, const FormRow &row)
{
    const MadeDrawing::Write write = writerOf(row.fields);
    return row.place == Place::Entity  ? drawing.addEntity(row.type, write)
           : row.place == Place::Entry ? drawing.addEntry(row.type, write)
                                       : drawing.addObject(row.type, "IT", write);
}

} // namespace

TEST(DwgRecordForms, AreThoseOfTheirRelease)
{
    for (const FormRow &row : formRows) {
        MadeDrawing drawing(row.release);
        const std::uint64_t handle = addRow(drawing, row);
        const ReadBack read = readBack(drawing);
        EXPECT_EQ(read.lastPart(handle), row.tags) << row.name;
        EXPECT_EQ(read.problems().find("IT "), std::string::npos) << read.problems();
    }
}

TEST(DwgRecordForms, HaveAllPartsOfEntities)
{
    for (const WholeRow &row : wholeRows) {
        MadeDrawing drawing(row.release);
        const std::uint64_t handle = drawing.addEntity(row.type, writerOf(row.fields));
        const ReadBack read = readBack(drawing);
        const std::string record = read.record(handle);
        EXPECT_EQ(record.substr(std::min(record.find("|100 AcDbEntity|8 0|"), record.size())),
                  "|100 AcDbEntity|8 0|" + row.tags);
        EXPECT_EQ(read.problems(), "");
    }
}

TEST(DwgRecordForms, HaveEmptyTextsOfDimensionsFromTheFirstProgramsOfR2000Alone)
{
    for (const auto &[release, maintenance, hasText] :
         {std::tuple{Release::R2000, 6, true}, {Release::R2000, 15, false}, {Release::R2004, 0, false}}) {
        MadeDrawing drawing(release);
        const std::uint64_t radius = drawing.addEntity(
            0x19, writerOf("p0,0,1 f2,3 d0 c2 t d0 d0 p1,1,1 d0 s5 s1 d1 d5 f0,0 p0,0,0 p3,4,0 d1 h11 h1D"));
        FileBytes file = drawing.file();
        file[0x0b] = static_cast<std::uint8_t>(maintenance);
        const std::string text = hasText ? "1 |" : "";
        EXPECT_NE(readBack(file).record(radius).find("|70 164|" + text + "71 5|42 5.0|3 Standard|100 "),
                  std::string::npos)
            << static_cast<int>(release) << ' ' << maintenance << readBack(file).record(radius);
    }
}

} // namespace host::dwg::test
