#include "tests/dwg/ExplanationRows.h"

namespace host::dwg::test {

namespace {

constexpr std::string_view localTime = "local time of the machine that wrote the text form; files have universal time";
constexpr std::string_view otherProgram = "what the program that wrote the text form says of itself";
constexpr std::string_view noPreviews = "the program was not to write previews to text files";
constexpr std::string_view shapeNames = "files number shapes; their names stand in the shape file";
constexpr std::string_view drawnAgain = "graphics and sizes of texts were worked out again";
constexpr std::string_view addresses = "names are addresses in the memory of the program that wrote them";
constexpr std::string_view forOthers = "what is kept for programs of other releases is made anew at each saving";
constexpr std::string_view forLater = "what later releases have is not written to the text form of this one";
constexpr std::string_view erased = "tables count what was erased while the drawing was open";
constexpr std::string_view laterState =
    "the text form was made of a later state of the drawing: the file has no object for it";
constexpr std::string_view olderOrder =
    "the program that wrote it has entries of dictionaries by their handles, files by names";
constexpr std::string_view inSession = "entities know which space they are in; files tell it for one layout alone";
constexpr std::string_view names = "the file has the name in capitals; the program found it in its own case or cut it";
constexpr std::string_view arcLengths =
    "dimensions of arc lengths became inserts of a block made of what they look like";
constexpr std::string_view hatches = "hatches of R13 are inserts of blocks, which were made and numbered anew";
constexpr std::string_view splines =
    "the curve passes its points at a distance, as its tolerance lets it; files have the points alone";

} // namespace

std::span<const Explanation> earlierExplanations()
{
    using Kind = Difference::Kind;
    static const Explanation rows[] = {
        {"*", Kind::Different, "$TDCREATE", {40}, localTime},
        {"*", Kind::Different, "$TDUPDATE", {40}, localTime},
        {"*", Kind::Different, "$TDUUPDATE", {40}, savedAgain},
        {"*", Kind::Different, "$TDINDWG", {40}, savedAgain},
        {"*", Kind::Different, "$TDUSRTIMER", {40}, savedAgain},
        {"*", Kind::Different, "$HANDSEED", {5}, savedAgain},
        {"*", Kind::Different, "XRECORD /DWGPROPS", {40, 42}, savedAgain},
        {"*", Kind::Different, "$ACADMAINTVER", {70}, otherProgram},
        {"*", Kind::Extra, "SECTION THUMBNAILIMAGE", {}, noPreviews},
        {"*", Kind::Different, "DICTIONARY /AcDsDecomposeData/AcDsSchemas", {3}, addresses},
        {"r9_entities", Kind::Different, "$TDUPDATE", {40}, savedAgain},
        {"r11_entities", Kind::Different, "$TDUPDATE", {40}, savedAgain},
        {"r9_entities", Kind::Different, "SHAPE *", {2}, shapeNames},
        {"r11_entities", Kind::Different, "SHAPE *", {2}, shapeNames},

        {"r13_example", Kind::Extra, "BLOCK* *PAPER_SPACE0", {}, forLater},
        {"r13_example", Kind::Extra, "ENDBLK 53", {}, forLater},
        {"r13_example", Kind::Extra, "LAYOUT /ACAD_LAYOUT/*", {}, forLater},
        {"r13_example", Kind::Extra, "VIEWPORT 84", {}, forLater},
        {"r13_example", Kind::Extra, "* VIEWPORT 84/*", {}, forLater},
        {"r13_example", Kind::Extra, "* /ACAD_PLOTSTYLENAME*", {}, forLater},
        {"r13_example", Kind::Extra, "* /ACAD_TABLESTYLE*", {}, forLater},
        {"r13_example", Kind::Extra, "* /ACAD_LAYOUT/MODEL/*", {}, forLater},
        {"r13_example", Kind::Extra, "* /AcDsDecomposeData*", {}, forLater},
        {"r13_example", Kind::Extra, "* /ACDBHEADERROUNDTRIPXREC/*", {}, forLater},
        {"r13_example", Kind::Extra, "ACAD_PROXY_ENTITY 75E", {}, forLater},
        {"r13_example", Kind::Extra, "* ACAD_PROXY_ENTITY 75E/*", {}, forLater},
        {"r13_example", Kind::Extra, "ACAD_PROXY_OBJECT 761", {}, forLater},
        {"r13_example", Kind::Extra, "ACAD_PROXY_OBJECT 105?", {}, forLater},
        {"r13_example", Kind::Extra, "XRECORD 10??", {}, forLater},
        {"r13_example", Kind::Extra, "XRECORD 11??", {}, forLater},
        {"r13_example", Kind::Different, "DICTIONARY C", {3, 350}, forLater},
        {"r13_example", Kind::Different, "DICTIONARY /ACAD_LAYOUT", {3, 350}, forLater},
        {"r13_example", Kind::Different, "DICTIONARY /ACDBHEADERROUNDTRIPXREC", {3, 350}, forLater},
        {"r13_example", Kind::Different, "XRECORD /ACDB_RECOMPOSE_DATA", {330}, forLater},
        {"r13_example", Kind::Different, "DICTIONARY VIEWPORT 88/*", {1000, 1001, 1070}, forOthers},
        {"r13_example", Kind::Different, "XRECORD VIEWPORT 88/*", {}, forOthers},
        {"r13_example", Kind::Different, "DIMENSION 43B", {1000, 1001, 1002, 1070}, forOthers},
        {"r13_example", Kind::Different, "SPLINE 894", {40, 10, 20, 30, 42, 43, 72, 73}, splines},
        {"r13_example", Kind::Different, "INSERT 399", {}, arcLengths},
        {"r13_example", Kind::Missing, "BLOCK* *X18", {}, arcLengths},
        {"r13_example", Kind::Missing, "ENDBLK 335A", {}, arcLengths},
        {"r13_example", Kind::Missing, "* 251?", {}, arcLengths},
        {"r13_example", Kind::Extra, "* ACAD_PROXY_ENTITY 399/*", {}, arcLengths},
        {"r13_example", Kind::Moved, "BLOCK* *X16", {}, hatches},

        {"r14_leader", Kind::Extra, "BLOCK* *PAPER_SPACE0", {}, forLater},
        {"r14_leader", Kind::Extra, "ENDBLK 60", {}, forLater},
        {"r14_leader", Kind::Extra, "* /ACAD_LAYOUT/*", {}, forLater},
        {"r14_leader", Kind::Extra, "* /ACAD_PLOTSTYLENAME*", {}, forLater},
        {"r14_leader", Kind::Extra, "* /ACAD_TABLESTYLE*", {}, forLater},
        {"r14_leader", Kind::Extra, "* /ACDSDECOMPOSEDATA*", {}, forLater},
        {"r14_leader", Kind::Extra, "* /ACDB_RECOMPOSE_DATA", {}, forLater},
        {"r14_leader", Kind::Extra, "XRECORD /ACDBHEADERROUNDTRIPXREC/*", {}, forLater},
        {"r14_leader", Kind::Extra, "XRECORD /ACAD_MATERIAL/GLOBAL/*TILE", {}, forLater},
        {"r14_leader", Kind::Different, "TABLE BLOCK_RECORD", {70}, forLater},
        {"r14_leader", Kind::Different, "DICTIONARY C", {3, 350}, forLater},
        {"r14_leader", Kind::Different, "DICTIONARY /ACAD_LAYOUT", {3, 350}, forLater},
        {"r14_leader", Kind::Different, "DICTIONARY /ACAD_MATERIAL/GLOBAL/*", {3, 360}, forLater},
        {"r14_leader", Kind::Different, "DICTIONARY /ACDBHEADERROUNDTRIPXREC", {3, 350}, forOthers},
        {"r14_leader", Kind::Missing, "XRECORD /ACDBHEADERROUNDTRIPXREC/*", {}, forOthers},
        {"r14_leader", Kind::Different, "LAYER 0", {102, 360}, forOthers},
        {"r14_leader", Kind::Extra, "DICTIONARY LAYER 0/*", {}, forOthers},
        {"r14_leader", Kind::Different, "CLASS *", {3, 90, 280}, otherProgram},
        {"r14_leader", Kind::Different, "$ATTDIA", {70}, otherProgram},
        {"r14_leader", Kind::Different, "LEADER 72E", {41}, drawnAgain},
        {"r14_leader", Kind::Different, "IMAGE *", {310}, drawnAgain},
        {"r14_leader",
         Kind::Different,
         "IMAGEDEF /ACAD_IMAGE_DICT/YOUR_NAME",
         {330},
         "reactors that are erased were left out"},
        {"r14_leader", Kind::Different, "APPID ACAD_EXEMPT_FROM_CAD_STAND", {2}, names},
        {"r14_leader", Kind::Different, "DICTIONARYVAR /ACDBVARIABLEDICTIONARY/C*STYLE", {1}, names},

        {"r2000_entities", Kind::Different, "TABLE VPORT", {70}, erased},
        {"r2000_entities", Kind::Different, "BLOCK *Paper_Space0", {67}, inSession},
        {"r2000_entities", Kind::Different, "ENDBLK 25", {67}, inSession},
        {"r2000_entities", Kind::Different, "SHAPE 39", {2}, shapeNames},
        {"r2000_entities", Kind::Different, "DICTIONARY C", {3, 350}, olderOrder},
        {"r2000_entities", Kind::Different, "DICTIONARY /ACAD_LAYOUT", {3, 350}, olderOrder},
        {"r2000_entities", Kind::Moved, "* /ACAD_PLOTSTYLENAME*", {}, olderOrder},
        {"r2000_entities", Kind::Moved, "* /ACAD_LAYOUT*", {}, olderOrder},
        {"r2000_entities", Kind::Moved, "MLINESTYLE /ACAD_MLINESTYLE/Standard", {}, olderOrder},

        {"r200?_leader", Kind::Different, "TABLE VPORT", {102, 360}, forOthers},
        {"r200?_leader", Kind::Extra, "* TABLE VPORT/*", {}, forOthers},
        {"r200?_leader", Kind::Different, "DICTIONARY /ACAD_LAYOUT/Model/*", {3, 360}, noPreviews},
        {"r200?_leader", Kind::Extra, "XRECORD /ACAD_LAYOUT/Model/*/ADSK_XREC_LAYOUTTHUMBNAIL", {}, noPreviews},
        {"r200?_leader", Kind::Different, "MULTILEADER 732", {310}, unsetBytes},
        {"r200?_leader", Kind::Different, "VISUALSTYLE /ACAD_VISUALSTYLE/Realistic", {72}, otherProgram},
        {"r2004_leader", Kind::Different, "CLASS CELLSTYLEMAP", {91}, forOthers},
        {"r2004_leader", Kind::Different, "TABLE VIEW", {70}, erased},

        {"r2000_sample", Kind::Missing, "*", {}, laterState},
        {"r2000_sample", Kind::Different, "$EXTM??", {10, 20, 30}, laterState},
        {"r2000_sample", Kind::Different, "VPORT *Active", {22, 40, 41, 1001, 1070}, laterState},
        {"r2000_sample", Kind::Different, "LAYER *", {102, 360}, laterState},
        {"r2000_sample", Kind::Different, "TABLE APPID", {70}, laterState},
        {"r2000_sample", Kind::Different, "TABLE *", {70}, erased},
        {"r2000_sample", Kind::Different, "DICTIONARY *", {3, 350}, laterState},
        {"r2000_sample", Kind::Different, "LAYOUT /ACAD_LAYOUT/Model", {331}, laterState},
        {"r2000_sample", Kind::Different, "SECTION THUMBNAILIMAGE", {310}, laterState},
        {"r2000_sample", Kind::Extra, "* /ACDBHEADERROUNDTRIPXREC*", {}, forOthers},
    };
    return rows;
}

} // namespace host::dwg::test
