#include "host/drawing/solids/SolidModel.h"
#include "host/view/build/DisplayBuilder.h"
#include "host/view/build/ProxyGraphics.h"

namespace host::view {

using drawing::Tag;
using drawing::TagList;

namespace {

/// Faces are lists of vertex numbers, each with its length in front.
void addMeshFaces(BuildContext &context, const Path &vertices, const std::vector<qint64> &faces)
{
    const auto limit = static_cast<qint64>(vertices.size());
    for (std::size_t at = 0; at < faces.size();) {
        const qint64 count = faces[at++];
        if (count < 2 || count > static_cast<qint64>(faces.size() - at))
            break;
        Path edge;
        for (qint64 i = 0; i < count; ++i, ++at) {
            if (faces[at] >= 0 && faces[at] < limit)
                edge.push_back(vertices[static_cast<std::size_t>(faces[at])]);
        }
        if (edge.size() < 2)
            continue;
        edge.push_back(edge.front());
        context.addStroke(std::move(edge));
    }
}

/// Nothing for a piece with coordinates that cannot be shown.
std::optional<Curve> pieceCurve(const drawing::CurvePiece &piece)
{
    if (piece.shape() != drawing::CurvePiece::Shape::Round) {
        Curve curve{.points = drawing::piecePath(piece)};
        return areUsable(curve.points) ? std::optional(std::move(curve)) : std::nullopt;
    }
    const double start = piece.angleAt(piece.start());
    const ArcSpan span{.center = piece.center(),
                       .xAxis = piece.xAxis(),
                       .yAxis = piece.yAxis(),
                       .start = start,
                       .sweep = piece.angleAt(piece.end()) - start};
    if (!isUsable(span.center) || !isUsable(span.xAxis) || !isUsable(span.yAxis) || !isUsable(span.sweep))
        return std::nullopt;
    return Curve{.points = {piece.startPoint(), piece.endPoint()}, .arcs = {span}};
}

} // namespace

/// The cage, which is the mesh itself where it is not smoothed. The picture that the record keeps has it smooth.
bool buildMesh(BuildContext &context, const TagList &tags)
{
    const bool isSmoothed = tags.integer(91) > 0;
    if (isSmoothed && drawProxyGraphics(context, proxyGraphics(tags)))
        return true;
    Path vertices;
    std::vector<qint64> faces;
    bool isInFaces = false;
    const auto own = tags.own();
    for (std::size_t i = 0; i < own.size(); ++i) {
        const Tag &tag = own[i];
        if (tag.code == 10)
            vertices.push_back(tags.pointAt(i));
        else if (tag.code == 93)
            isInFaces = true;
        else if (tag.code == 94)
            isInFaces = false;
        else if (tag.code == 90 && isInFaces)
            faces.push_back(tag.integer().value_or(-1));
    }
    if (!areUsable(vertices))
        return false;
    addMeshFaces(context, vertices, faces);
    context.display.isSimplified = isSmoothed;
    return !context.display.items.empty();
}

/// The picture that the record keeps, or else the edges of its model.
bool buildSolidModel(BuildContext &context, const TagList &tags)
{
    if (drawProxyGraphics(context, proxyGraphics(tags)))
        return true;
    const drawing::SolidModel model = drawing::readSolidModel(tags);
    context.display.isSimplified = !model.isWhole;
    for (const drawing::SolidEdge &edge : model.edges) {
        for (const drawing::CurvePiece &piece : edge) {
            std::optional<Curve> curve = pieceCurve(piece);
            context.display.isSimplified |= !curve;
            if (curve)
                context.add(Stroke{std::move(*curve)});
        }
    }
    return !context.display.items.empty();
}

} // namespace host::view
