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

const FormRow formRows[] = {
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

TEST(DwgRecordForms, HaveEmptyTextsOfDimensionsFromTheFirstProgramsOfR2000Alone)
{
    for (const auto &[release, maintenance, hasText] :
         {std::tuple{Release::R2000, 6, true}, {Release::R2000, 15, false}, {Release::R2004, 0, false}}) {
        MadeDrawing drawing(release);
        const std::uint64_t radius = drawing.addEntity(
            0x19, writerOf("p0,0,1 f2,3 d0 c2 t d0 d0 p1,1,1 d0 s5 s1 d1 d5 f0,0 p0,0,0 p3,4,0 d1 h0 h1D"));
        FileBytes file = drawing.file();
        file[0x0b] = static_cast<std::uint8_t>(maintenance);
        const std::string text = hasText ? "1 |" : "";
        EXPECT_NE(readBack(file).record(radius).find("|70 164|" + text + "71 5|42 5.0|100 "), std::string::npos)
            << static_cast<int>(release) << ' ' << maintenance << readBack(file).record(radius);
    }
}

} // namespace host::dwg::test
