#pragma once

#include "host/view/build/DisplayBuilder.h"

namespace host::view {

/// How a tolerance is drawn.
struct ToleranceLook
{
    double height = 1.0; ///< of its letters
    QString textStyle{};
    Style lines{};
    Style letters{};
};

/// Draws the frame of a tolerance with its signs and texts. The origin of `frame` is the middle of the first row's left
/// edge. False for a text that has no cells.
bool addToleranceFrame(BuildContext &context, const QString &text, const Matrix &frame, const ToleranceLook &look);

} // namespace host::view
