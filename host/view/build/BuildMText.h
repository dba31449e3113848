#pragma once

#include "host/view/build/DisplayBuilder.h"
#include "host/view/text/MTextLayout.h"

namespace host::view {

/// Where multi-line text stands.
struct MTextPlace
{
    /// A background behind the text.
    struct Cover
    {
        FillKind kind = FillKind::Mask;
        Colour colour{};     ///< of an area
        double margin = 0.0; ///< around the text, in text heights
    };

    Matrix frame{}; ///< its insertion point and the direction of its lines
    double height = 1.0;
    int attachment = 0; ///< which point of the text is the insertion point: three rows of three from the top left
    QString styleName{};
    std::optional<Cover> cover{};
    std::optional<double> frameMargin{}; ///< a frame around the text, as far from it in text heights
};

/// Adds the text; font and alignment of `box` are filled in from the place.
void addMText(BuildContext &context, const MTextPlace &place, const QString &content, MTextBox box);

} // namespace host::view
