#include "tests/dwg/PairExplanations.h"

#include <algorithm>
#include <span>

namespace host::dwg::test {

namespace {

using Kind = Difference::Kind;

/// What differs between the two files of a pair without being in the DWG file. A `*` stands for anything.
struct Explanation
{
    std::string_view pair;
    Kind kind;
    std::string_view record;
    std::initializer_list<int> groups; ///< of Different
    std::string_view why;
};

constexpr std::string_view localTime = "local time of the machine that wrote the text form; files have universal time";
constexpr std::string_view savedAgain = "the drawing was saved again for the text form";

constexpr std::string_view shapeNames = "files number shapes; their names stand in the shape file";
constexpr std::string_view blanks = "the text form has no blanks at the end of a line, here the whole text";

// Of the pairs from R2007 on.
constexpr std::string_view newerProgram =
    "the text form was made by a newer program, which brings records of its own up "
    "to date and counts them anew";
constexpr std::string_view window = "the size of the window that the drawing was saved from again";
constexpr std::string_view drawnAgain = "where the drawing reaches was worked out again when it was saved again";
constexpr std::string_view countsViews = "each saving leaves one more view counted that there was";
constexpr std::string_view addresses = "names that are numbers out of the memory of the program";
constexpr std::string_view empty = "an empty dictionary was taken out when the drawing was saved again";
constexpr std::string_view chance = "bytes that mean nothing and are others at each saving";
constexpr std::string_view otherProgram =
    "the text form was made by another program than those of the other pairs: it has "
    "other orders, and writes and leaves out other usual values";
constexpr std::string_view scaleLayer = "the other program has what is shown at one scale alone on a layer of its own";
constexpr std::string_view tolerance =
    "the size of a tolerance comes from its font, and the vertex of a hook line from "
    "the style; neither is in the file";

std::span<const Explanation> explanations()
{
    static const Explanation rows[] = {
        {"*", Kind::Different, "$TDCREATE", {40}, localTime},
        {"*", Kind::Different, "$TDUPDATE", {40}, localTime},
        {"*", Kind::Different, "$TDUUPDATE", {40}, savedAgain},
        {"*", Kind::Different, "$TDINDWG", {40}, savedAgain},
        {"*", Kind::Different, "$TDUSRTIMER", {40}, savedAgain},
        {"*", Kind::Different, "$HANDSEED", {5}, savedAgain},
        {"*", Kind::Extra, "SECTION THUMBNAILIMAGE", {}, "the program was not to write previews to text files"},
        {"r9_entities", Kind::Different, "$TDUPDATE", {40}, savedAgain},
        {"r11_entities", Kind::Different, "$TDUPDATE", {40}, savedAgain},
        {"r9_entities", Kind::Different, "SHAPE *", {2}, shapeNames},
        {"r11_entities", Kind::Different, "SHAPE *", {2}, shapeNames},
        {"r9_entities", Kind::Different, "DIMENSION *", {1}, blanks},
        {"r11_entities", Kind::Different, "DIMENSION *", {1}, blanks},
        {"r20*", Kind::Different, "TABLE VIEW", {70}, countsViews},
        {"r20*", Kind::Different, "DICTIONARY /AcDsDecomposeData/AcDsSchemas", {3}, addresses},
        {"r2007_*", Kind::Different, "$LASTSAVEDBY", {1}, savedAgain},
        {"r2007_*", Kind::Different, "$EXTMIN", {10, 20, 30}, drawnAgain},
        {"r2007_*", Kind::Different, "$EXTMAX", {10, 20, 30}, drawnAgain},
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
        {"r2010_leader", Kind::Different, "LEADER 9DD", {75, 40, 41, 76, 10, 20, 30}, tolerance},
        {"r2010_leader", Kind::Different, "DICTIONARY /AcDbVariableDictionary", {3, 350}, newerProgram},
        {"r2010_leader", Kind::Missing, "DICTIONARYVAR /AcDbVariableDictionary/XCLIPFRAME", {}, newerProgram},
        {"r2010_leader", Kind::Different, "VISUALSTYLE /ACAD_VISUALSTYLE/Realistic", {72}, newerProgram},
        {"r2010_leader", Kind::Different, "XRECORD /ACAD_LAYOUT/Model/*/ADSK_XREC_LAYOUTTHUMBNAIL", {310}, savedAgain},
        {"r2013_leader", Kind::Different, "MULTILEADER 732", {310}, chance},
        {"r2018_sample", Kind::Different, "$ACADMAINTVER", {90}, newerProgram},
        {"r2018_sample", Kind::Different, "CLASS DICTIONARYVAR", {91}, newerProgram},
        {"r2018_leader", Kind::Different, "CLASS *", {91}, otherProgram},
        {"r2018_leader", Kind::Different, "VISUALSTYLE *", {62}, otherProgram},
        {"r2018_leader", Kind::Different, "TABLE DIMSTYLE", {71}, otherProgram},
        {"r2018_leader", Kind::Different, "DIMSTYLE *", {178}, otherProgram},
        {"r2018_leader", Kind::Different, "BLOCK *", {67}, otherProgram},
        {"r2018_leader", Kind::Different, "ENDBLK *", {67}, otherProgram},
        {"r2018_leader", Kind::Different, "IMAGE *", {290}, otherProgram},
        {"r2018_leader", Kind::Different, "MULTILEADER *", {92}, otherProgram},
        {"r2018_leader", Kind::Different, "LAYOUT *", {147, 331}, otherProgram},
        {"r2018_leader", Kind::Different, "MATERIAL *", {72, 73, 78, 172, 176, 270, 274}, otherProgram},
        {"r2018_leader", Kind::Different, "MLEADERSTYLE *", {341, 343}, otherProgram},
        {"r2018_leader", Kind::Different, "TABLESTYLE *", {280, 63}, otherProgram},
        {"r2018_leader", Kind::Different, "DICTIONARY C", {3, 350}, otherProgram},
        {"r2018_leader", Kind::Moved, "*", {}, otherProgram},
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

bool matchesPattern(std::string_view pattern, std::string_view text)
{
    if (pattern.empty())
        return text.empty();
    if (pattern[0] != '*')
        return !text.empty() && text[0] == pattern[0] && matchesPattern(pattern.substr(1), text.substr(1));
    return matchesPattern(pattern.substr(1), text) || (!text.empty() && matchesPattern(pattern, text.substr(1)));
}

bool concerns(const Explanation &row, std::string_view pair, const Difference &difference)
{
    return row.kind == difference.kind && matchesPattern(row.pair, pair) &&
           matchesPattern(row.record, difference.record);
}

} // namespace

std::string_view explanationOf(std::string_view pair, const Difference &difference)
{
    std::string_view why;
    std::vector<int> left = difference.groups;
    for (const Explanation &row : explanations()) {
        if (!concerns(row, pair, difference))
            continue;
        const std::size_t before = left.size();
        std::erase_if(left, [&row](int group) { return std::ranges::find(row.groups, group) != row.groups.end(); });
        if (left.size() < before || difference.groups.empty())
            why = row.why;
    }
    return left.empty() ? why : std::string_view();
}

} // namespace host::dwg::test
