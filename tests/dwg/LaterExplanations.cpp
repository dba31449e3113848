#include "tests/dwg/ExplanationRows.h"

namespace host::dwg::test {

namespace {

constexpr std::string_view newerProgram =
    "the text form was made by a newer program, which brings records of its own up "
    "to date and counts them anew";
constexpr std::string_view window = "the size of the window that the drawing was saved from again";
constexpr std::string_view reachesAgain = "where the drawing reaches was worked out again when it was saved again";
constexpr std::string_view countsViews = "each saving leaves one more view counted that there was";
constexpr std::string_view empty = "an empty dictionary was taken out when the drawing was saved again";
constexpr std::string_view anotherProgram =
    "the text form was made by another program than those of the other pairs: it has "
    "other orders, and writes and leaves out other usual values";
constexpr std::string_view scaleLayer = "the other program has what is shown at one scale alone on a layer of its own";
constexpr std::string_view tolerance = "the size of a tolerance comes from its font, which is not in the file";

} // namespace

std::span<const Explanation> laterExplanations()
{
    using Kind = Difference::Kind;
    static const Explanation rows[] = {
        {"r20*", Kind::Different, "TABLE VIEW", {70}, countsViews},
        {"r2007_*", Kind::Different, "$LASTSAVEDBY", {1}, savedAgain},
        {"r2007_*", Kind::Different, "$EXTMIN", {10, 20, 30}, reachesAgain},
        {"r2007_*", Kind::Different, "$EXTMAX", {10, 20, 30}, reachesAgain},
        {"r2007_*", Kind::Different, "CLASS DICTIONARYVAR", {91}, newerProgram},
        {"r2007_*", Kind::Different, "CLASS CELLSTYLEMAP", {91}, newerProgram},
        {"r2007_*", Kind::Different, "VPORT *Active", {22, 40, 41}, window},
        {"r2007_*", Kind::Different, "XRECORD /ACAD_CIP_PREVIOUS_PRODUCT_INFO", {300}, newerProgram},
        {"r2007_*", Kind::Different, "ACDB*VIEWSTYLE *", {102, 360}, newerProgram},
        {"r2007_*", Kind::Missing, "DICTIONARY /ACAD_*VIEWSTYLE/Imperial24/*", {}, newerProgram},
        {"r2007_*", Kind::Missing, "XRECORD /ACAD_*VIEWSTYLE/Imperial24/*/ACAD_XREC_ROUNDTRIP", {}, newerProgram},
        {"r2007_*", Kind::Different, "VISUALSTYLE /ACAD_VISUALSTYLE/Shaded with edges", {91}, newerProgram},
        {"r2010_leader", Kind::Different, "TABLE VPORT", {102, 360}, empty},
        {"r2010_leader", Kind::Extra, "DICTIONARY TABLE VPORT/*", {}, empty},
        {"r2010_leader", Kind::Different, "VPORT *Active", {12, 41}, window},
        {"r2010_leader", Kind::Different, "LEADER 9DD", {40, 41}, tolerance},
        {"r2010_leader", Kind::Different, "DICTIONARY /AcDbVariableDictionary", {3, 350}, newerProgram},
        {"r2010_leader", Kind::Missing, "DICTIONARYVAR /AcDbVariableDictionary/XCLIPFRAME", {}, newerProgram},
        {"r2010_leader", Kind::Different, "VISUALSTYLE /ACAD_VISUALSTYLE/Realistic", {72}, newerProgram},
        {"r2010_leader", Kind::Different, "XRECORD /ACAD_LAYOUT/Model/*/ADSK_XREC_LAYOUTTHUMBNAIL", {310}, savedAgain},
        {"r2013_leader", Kind::Different, "MULTILEADER 732", {310}, unsetBytes},
        {"r2018_sample", Kind::Different, "$ACADMAINTVER", {90}, newerProgram},
        {"r2018_sample", Kind::Different, "CLASS DICTIONARYVAR", {91}, newerProgram},
        {"r2018_leader", Kind::Different, "CLASS *", {91}, anotherProgram},
        {"r2018_leader", Kind::Different, "VISUALSTYLE *", {62}, anotherProgram},
        {"r2018_leader", Kind::Different, "TABLE DIMSTYLE", {71}, anotherProgram},
        {"r2018_leader", Kind::Different, "DIMSTYLE *", {178}, anotherProgram},
        {"r2018_leader", Kind::Different, "BLOCK *", {67}, anotherProgram},
        {"r2018_leader", Kind::Different, "ENDBLK *", {67}, anotherProgram},
        {"r2018_leader", Kind::Different, "IMAGE *", {290}, anotherProgram},
        {"r2018_leader", Kind::Different, "MULTILEADER *", {92}, anotherProgram},
        {"r2018_leader", Kind::Different, "LAYOUT *", {147, 331}, anotherProgram},
        {"r2018_leader", Kind::Different, "MATERIAL *", {72, 73, 78, 102, 172, 176, 270, 274, 360}, anotherProgram},
        {"r2018_leader", Kind::Different, "ACDB*VIEWSTYLE *", {102, 360}, anotherProgram},
        {"r2018_leader", Kind::Different, "MLEADERSTYLE *", {341, 343}, anotherProgram},
        {"r2018_leader", Kind::Different, "TABLESTYLE *", {63, 102, 280, 360}, anotherProgram},
        {"r2018_leader", Kind::Different, "DICTIONARY C", {3, 350}, anotherProgram},
        {"r2018_leader", Kind::Moved, "*", {}, anotherProgram},
        {"r2018_leader", Kind::Different, "TABLE LAYER", {70}, scaleLayer},
        {"r2018_leader", Kind::Different, "TABLE APPID", {70}, scaleLayer},
        {"r2018_leader", Kind::Missing, "LAYER 0 @ 1", {}, scaleLayer},
        {"r2018_leader", Kind::Missing, "DICTIONARY LAYER 0 @ 1/*", {}, scaleLayer},
        {"r2018_leader", Kind::Missing, "XRECORD LAYER 0 @ 1/*", {}, scaleLayer},
        {"r2018_leader", Kind::Missing, "APPID AcadAnnotativeDecomposition", {}, scaleLayer},
        {"r2018_leader", Kind::Different, "LEADER 72E", {8, 1040}, scaleLayer},
        {"r2018_leader", Kind::Different, "XRECORD /ACDB_RECOMPOSE_DATA", {330}, scaleLayer},
    };
    return rows;
}

} // namespace host::dwg::test
