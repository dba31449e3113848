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
