#pragma once

#include "host/drawing/tags/TagList.h"
#include "host/view/display/Display.h"

#include <optional>
#include <vector>

namespace host::view {

/// A multileader as its record has it. Tags point into the list it was read from; null where the record has none.
struct MultiLeaderData
{
    using Tag = drawing::Tag;

    /// A piece of a line that is left out.
    struct Break
    {
        Vec3 from{};
        Vec3 to{};
    };
    /// One line from its arrow to where all of its leader meet.
    struct Line
    {
        Path points{};
        std::vector<Break> breaks{};
        qint64 index = 0;
        qint64 overrides = 0; ///< which of the following count: 1, 2, 4, 8, 16, 32 in their order
        qint64 type = 1;
        const Tag *colour = nullptr;
        const Tag *linetype = nullptr;
        const Tag *lineweight = nullptr;
        double arrowSize = 0.0;
        const Tag *arrow = nullptr;
    };
    struct Leader
    {
        bool hasLanding = true;
        bool hasDogleg = true;
        std::optional<Vec3> landing{}; ///< the last point of all its lines
        Vec3 dogleg{};                 ///< direction towards the content
        double doglegLength = 0.0;
        bool isVertical = false; ///< attached above or below the content
        std::vector<Break> breaks{};
        std::vector<Line> lines{};
    };
    struct Text
    {
        const Tag *content = nullptr;
        const Tag *style = nullptr;
        Vec3 normal{0.0, 0.0, 1.0};
        Vec3 at{};
        Vec3 direction{1.0, 0.0, 0.0};
        double rotation = 0.0; ///< radians; counts where there is no direction
        double width = 0.0;
        double lineSpacing = 1.0;
        bool isSpacingExact = false;
        qint64 alignment = 1; ///< 1 left, 2 middle, 3 right
        const Tag *colour = nullptr;
        bool hasFill = false;
        bool isGroundFill = false;
        const Tag *fillColour = nullptr;
        double fillScale = 1.5;
    };
    struct Block
    {
        const Tag *record = nullptr;
        Vec3 at{};
        Vec3 normal{0.0, 0.0, 1.0};
        Vec3 scale{1.0, 1.0, 1.0};
        double rotation = 0.0; ///< radians
        const Tag *colour = nullptr;
        std::vector<double> matrix{}; ///< four rows of four
    };
    /// What an attribute of the block shows.
    struct Attribute
    {
        const Tag *definition = nullptr;
        const Tag *text = nullptr;
    };
    struct ArrowOfLine
    {
        qint64 index = 0;
        const Tag *arrow = nullptr;
    };

    std::vector<Leader> leaders{};
    double scale = 1.0;
    double textHeight = 0.0;
    double arrowSize = 0.0;
    double gap = 0.0; ///< between landing or frame and text
    qint64 leftAttachment = 1;
    qint64 rightAttachment = 1;
    bool hasText = false;
    bool hasBlock = false;
    Text text{};
    Block block{};
    std::vector<Attribute> attributes{};
    std::vector<ArrowOfLine> arrows{};
    std::vector<Tag> own{}; ///< outside of the context data
    qint64 overrides = 0;   ///< which of them count in place of the style's, a bit each

    /// The first of those with this code.
    const Tag *find(int code) const;
};

MultiLeaderData readMultiLeader(const drawing::TagList &tags);

} // namespace host::view
