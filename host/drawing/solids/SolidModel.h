#pragma once

#include "host/drawing/curves/CurvePiece.h"
#include "host/drawing/tags/TagList.h"

#include <optional>
#include <vector>

namespace host::drawing {

class SolidRecords;

/// An edge of a model, in world coordinates: one piece, or the spans of a spline, in order.
using SolidEdge = std::vector<CurvePiece>;

/// What of the model of a solid, region or body is known here.
struct SolidModel
{
    /// A part of a loop: the number of an edge, which is gone along, or back.
    struct Side
    {
        std::size_t edge = 0;
        bool isReversed = false;
    };
    std::vector<SolidEdge> edges;
    std::vector<std::vector<Side>> loops; ///< round its faces; those with edges that are not known are left out
    bool isWhole =
        true; ///< nothing is left out: no edge of another kind than lines, ellipses and splines, no bent face
};

/// Reads the model that a record keeps as text, as versions up to R2010 do; records of other versions have none here.
/// What the text leaves open or refers to in vain is left out. Costs by its length.
SolidModel readSolidModel(const TagList &tags);

/// Points along a piece that has an end, both ends included.
Path piecePath(const CurvePiece &piece, const Flatness &flatness = {});

/// Where a model stands: rows of a matrix, a shift and a scale in a record of their own, which most do without.
Matrix solidPlacement(const SolidRecords &records);

/// What a region encloses, and how long its loops are together, those round holes too.
struct RegionMeasures
{
    double area = 0.0;
    double perimeter = 0.0;
};
/// Nothing for a model that is not read as a whole or has no loops.
std::optional<RegionMeasures> measureRegion(const SolidModel &region);

} // namespace host::drawing
