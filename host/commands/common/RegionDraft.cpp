#include "host/commands/common/RegionDraft.h"

#include "host/kernel/running/CommandContext.h"

#include <algorithm>

namespace host::kernel {

using drawing::CurvePiece;
using drawing::Matrix;
using drawing::PlaneGraph;
using drawing::RegionEdge;
using drawing::RegionLoop;
using drawing::Vec3;

namespace {

constexpr std::int64_t loopWork = 4'000'000; ///< pairs of pieces that may meet

/// How far a piece reaches out of the plane at height 0.
double heightOf(const CurvePiece &piece)
{
    double height = std::max(std::abs(piece.startPoint().z), std::abs(piece.endPoint().z));
    if (piece.shape() == CurvePiece::Shape::Round)
        height = std::max({height, std::abs(piece.center().z), std::abs(piece.xAxis().z), std::abs(piece.yAxis().z)});
    if (piece.shape() == CurvePiece::Shape::Polynomial)
        for (const Vec3 &point : piece.span().points)
            height = std::max(height, std::abs(point.z));
    return height;
}

/// Of two directions the one that points up; of level ones that along y, or x.
Vec3 upwardNormal(const Vec3 &normal)
{
    constexpr double level = 1e-9;
    const bool isDown = std::abs(normal.z) > level   ? normal.z < 0.0
                        : std::abs(normal.y) > level ? normal.y < 0.0
                                                     : normal.x < 0.0;
    return isDown ? normal * -1.0 : normal;
}

} // namespace

LoopCheck checkLoop(const RegionLoop &loop)
{
    const Vec3 origin = loop.front().pieces.front().startPoint();
    Vec3 swept;
    double reach = origin.length();
    double size = 0.0;
    for (const RegionEdge &edge : loop) {
        for (const CurvePiece &piece : edge.pieces) {
            swept = swept + piece.sweptArea(origin) * (edge.isReversed ? -1.0 : 1.0);
            const drawing::Box box = piece.box();
            size = std::max({size, (box.low - origin).length(), (box.high - origin).length()});
        }
    }
    reach += size;
    const double tolerance = std::max(1e-9, 1e-9 * reach);
    LoopCheck check{LoopFault::None, upwardNormal(normalized(swept))};
    const Matrix plane = Matrix::fromExtrusion(check.normal);
    const Matrix flat = (Matrix::translation(origin) * plane).inverted();
    std::vector<drawing::FlatPiece> pieces;
    double height = 0.0;
    for (const RegionEdge &edge : loop) {
        for (const CurvePiece &piece : edge.pieces) {
            pieces.push_back({piece.transformed(flat), 0});
            height = std::max(height, heightOf(pieces.back().piece));
        }
    }
    drawing::WorkBudget work(loopWork);
    // Loops that cross themselves may sweep nothing in all.
    if (height > std::max(1e-6, 1e-9 * reach))
        check.fault = LoopFault::NotFlat;
    else if (const PlaneGraph graph(std::move(pieces), tolerance, 0.0, work); !graph.isSimpleLoop())
        check.fault = graph.isComplete() && graph.outlines().empty() ? LoopFault::Degenerate : LoopFault::Crossing;
    else if (swept.length() <= 2.0 * tolerance * size)
        check.fault = LoopFault::Degenerate;
    return check;
}

RegionLoop regionEdges(std::span<const CurvePiece> pieces)
{
    RegionLoop edges;
    bool isSpline = false;
    for (const CurvePiece &piece : pieces) {
        if (piece.length() <= 0.0)
            continue;
        const bool isSpan = piece.shape() == CurvePiece::Shape::Polynomial;
        if (isSpan && isSpline && piece.span().points.size() == edges.back().pieces.back().span().points.size())
            edges.back().pieces.push_back(piece);
        else
            edges.push_back({{piece}, false});
        isSpline = isSpan;
    }
    return edges;
}

RegionLoop regionLoop(const PlaneGraph::Loop &loop, const Matrix &map)
{
    RegionLoop edges;
    for (const PlaneGraph::Stretch &stretch : loop.stretches)
        edges.push_back({{stretch.piece.transformed(map)}, stretch.isReversed});
    return edges;
}

drawing::RecordId createRegion(CommandContext &context, const std::vector<drawing::RegionFace> &faces,
                               const Vec3 &normal)
{
    return context.create(drawing::regionRecord(faces, normal, context.drawing().version()));
}

} // namespace host::kernel
