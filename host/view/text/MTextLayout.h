#pragma once

#include "host/view/text/Fonts.h"
#include "host/view/text/MTextParser.h"

#include <optional>
#include <vector>

namespace host::view {

/// A piece of multi-line text where it stands: x to the right and y up from the top left corner of the text box,
/// drawing units. All of it looks the same and stands on one line.
struct MTextRun
{
    QString text{};
    int font = 0;         ///< in Fonts
    MTextFormat format{}; ///< height and width factor as drawn, also inside stacks
    double x = 0.0;
    double y = 0.0;     ///< of the base line
    double width = 0.0; ///< drawing units, without the room that a stroke font has behind the last letter
};

/// A straight line of the text: under, over or through it, or the bar of a fraction.
struct MTextRule
{
    // Both ends, in the coordinates of MTextRun.
    double x1 = 0.0;
    double y1 = 0.0;
    double x2 = 0.0;
    double y2 = 0.0;
    MTextFormat format{}; ///< for its colour
};

/// A multi-line text taken apart, in no particular order.
struct MTextLayout
{
    std::vector<MTextRun> runs{};
    std::vector<MTextRule> rules{};
    double width = 0.0;  ///< of the box: the given one with all columns, or that of the longest line
    double height = 0.0; ///< from the top of the first line to the base of the last, in the highest column
};

/// Columns that the lines are shared out among. A line that does not end within its column's height goes to the next.
struct MTextColumns
{
    std::vector<double> heights{}; ///< of the columns one by one; 0 has no limit
    double furtherHeight = 0.0;    ///< of those behind
    std::size_t count = 1;         ///< columns that the box has at least
    bool isCountFixed = false;     ///< what is left over stays in the last one
    double gutter = 0.0;           ///< between two
    bool isReversed = false;       ///< the first one stands on the right
};

/// What the entity says for all of its text.
struct MTextBox
{
    double width = 0.0;                              ///< lines are broken here; 0: nowhere; that of a column
    double lineSpacing = 1.0;                        ///< factor on five thirds of the height
    bool isSpacingExact = false;                     ///< taller letters do not push lines apart
    MTextAlignment alignment = MTextAlignment::Left; ///< of paragraphs that have none of their own
    FontRequest styleFont{};                         ///< for what names no font
    std::optional<MTextColumns> columns{};           ///< with a width only
};

/// Breaks the tokens into lines and says where each piece stands. Lines break between words; a word longer than the
/// box has a line to itself.
MTextLayout layOutMText(const std::vector<MTextToken> &tokens, const MTextBox &box, double textHeight, Fonts &fonts);

} // namespace host::view
