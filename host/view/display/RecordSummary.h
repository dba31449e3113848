#pragma once

#include "host/view/display/Display.h"

namespace host::view {

/// What is kept of every record of a space or block that is looked at: where it is, and how it looks where that is too
/// small to have a shape. Its shapes are kept only where they cannot be made again; see Scene::shown().
struct RecordSummary
{
    RecordId record = noRecord; ///< as long as its place in the order is known, also where it is gone
    std::uint32_t look = 0;     ///< the number of its style, or with `isKept` that of its display, in the scene
    Box box{};                  ///< as RecordDisplay::box
    bool isEndless : 1 = false;
    bool hasReferences : 1 = false;
    bool isSkipped : 1 = false;
    bool isExternal : 1 = false;
    bool isSimplified : 1 = false;
    bool isCutShort : 1 = false;
    bool isHidden : 1 = false;
    bool isKept : 1 = false;      ///< otherwise the display is made again at each look
    bool isEmpty : 1 = false;     ///< shows nothing
    bool hasOneStyle : 1 = false; ///< and `look` is its number, where the display is not kept
    bool hasMarks : 1 =
        false;                ///< not to be taken for a dot, however small: marks of points, frames of masks and images
    bool isGone : 1 = false;  ///< erased: it shows nothing, and its place waits for it
    bool isLoose : 1 = false; ///< not where the index of its block has it
    bool isElsewhere : 1 = false; ///< while a block is gone through: it belongs to another space
    bool isNew : 1 = false;       ///< likewise: its style has no number of the scene yet
};

/// Whether making it again would cost more than keeping it.
bool isLarge(const RecordDisplay &display);

/// Of a display with its box known: all but where its shapes are.
RecordSummary summaryOf(const RecordDisplay &display);

} // namespace host::view
