#include "host/view/build/DisplayBuilder.h"
#include "host/view/build/HatchGradient.h"
#include "host/view/build/HatchLines.h"
#include "host/view/display/MapShapes.h"

namespace host::view {

using drawing::TagList;

namespace {

constexpr std::int64_t mostHatchPieces = 200'000; ///< of one hatch

void addHatchArea(BuildContext &context, HatchData &hatch, const Matrix &ocs, FillKind kind)
{
    auto gradient = kind == FillKind::Area ? hatchGradient(hatch, ocs) : nullptr;
    std::ranges::for_each(hatch.loops, [&](Curve &loop) { mapCurve(loop, ocs); });
    context.add(Fill{.contours = std::move(hatch.loops), .kind = kind, .gradient = std::move(gradient)});
}

bool addPattern(BuildContext &context, HatchData &hatch, const Matrix &ocs)
{
    HatchLines lines = hatchLines(hatch, mostHatchPieces, context.work);
    if (lines.isTooDense) {
        context.display.isCutShort = true;
        addHatchArea(context, hatch, ocs, FillKind::Dense);
        return true;
    }
    for (Path *points : {&lines.pieces.ends, &lines.pieces.dots})
        std::ranges::for_each(*points, [&](Vec3 &point) { point = ocs.point(point); });
    // A pattern wider than its boundary leaves nothing to see; that is how it is drawn.
    if (!lines.pieces.ends.empty() || !lines.pieces.dots.empty())
        context.add(std::move(lines.pieces));
    return true;
}

} // namespace

bool buildHatch(BuildContext &context, const TagList &tags)
{
    HatchData hatch = readHatch(tags, context.work);
    if (hatch.loops.empty() || !isUsable(hatch.extrusion))
        return false;
    applyIslands(hatch);
    const Matrix ocs = Matrix::fromExtrusion(hatch.extrusion);
    if (!hatch.isSolid && !hatch.lines.empty())
        return addPattern(context, hatch, ocs);
    addHatchArea(context, hatch, ocs, FillKind::Area);
    return true;
}

} // namespace host::view
