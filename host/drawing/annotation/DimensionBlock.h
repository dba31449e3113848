#pragma once

#include "host/drawing/annotation/DimensionPicture.h"

namespace host::drawing {

/// Where a dimension's text goes when its picture is made anew.
enum class TextPlace
{
    AsNoted, ///< where the record says, when the user has moved it there; otherwise where the style places it
    ByStyle  ///< where the style places it, whatever the record says
};

/// Makes the picture of a DIMENSION, ARC_DIMENSION or LARGE_RADIAL_DIMENSION anew from its points, its style and its
/// overrides: fills its block (a new anonymous one where it has none of its own), and notes the block's name, the
/// measured value and where the text stands. The entities of the picture take colour, linetype and weight of the
/// dimension where the style does not say others. False for a record that readDimension() cannot read.
bool drawDimension(Drawing &drawing, RecordId dimension, const TextSize &textSize,
                   TextPlace place = TextPlace::AsNoted);

/// The entities that a picture consists of, ready to be made: in world coordinates, flat ones in those of their
/// extrusion. Blocks of arrow heads are made where the drawing lacks them. In drawings without multi-line texts the
/// text is a line without codes.
std::vector<FieldList> pictureEntities(Drawing &drawing, const DimensionPicture &picture, const DimensionStyle &style,
                                       const Vec3 &extrusion, double elevation);

} // namespace host::drawing
