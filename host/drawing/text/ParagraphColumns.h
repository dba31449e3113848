#pragma once

#include "host/drawing/records/Drawing.h"

#include <optional>

namespace host::drawing {

// How an MTEXT is set out, wherever the version of the format has it: in an object embedded in the entity (R2018), in
// extended data (R2007 to R2013), or among the entity's own groups.

/// Columns of a text, side by side.
struct ParagraphColumns
{
    /// Static columns are as many as `count`; dynamic ones as many as the text needs.
    bool isDynamic = false;
    qint64 count = 1;
    double width = 0.0;            ///< of each; positive
    double gutter = 0.0;           ///< between two
    bool isReversed = false;       ///< the first one stands on the right
    bool isAutoHeight = false;     ///< all are of the defined height
    double definedHeight = 0.0;    ///< 0: as high as the text needs
    std::vector<double> heights{}; ///< of dynamic columns one by one; a 0 among them has no limit
    /// Other MTEXTs that hold the further columns, each where it stands. With these the text itself is the first column
    /// alone.
    std::vector<Handle> linked{};
};

/// Nothing for a text without columns. Numbers are as the record has them, but for the width; counts too, so they may
/// be any.
std::optional<ParagraphColumns> paragraphColumns(const TagList &paragraph);

/// Gives the fields of an MTEXT without columns these, in the form that drawings of the version have; none before
/// R2007. `size` is that of the whole text. The columns' width is that of its lines too (group 41).
void addParagraphColumns(FieldList &paragraph, const ParagraphColumns &columns, Vec2 size, Version version);

/// The frame around an MTEXT.
struct ParagraphFrame
{
    bool isShown = false; ///< by the entity's own flags
    Handle polyline{};    ///< in older drawings an LWPOLYLINE that is the frame, where it lies
};
ParagraphFrame paragraphFrame(const TagList &paragraph);

} // namespace host::drawing
