#include "host/view/build/DisplayBuilder.h"
#include "host/view/display/WideLine.h"

namespace host::view {

using drawing::Drawing;
using drawing::Tag;
using drawing::TagList;

namespace {

constexpr qint64 isClosedFlag = 1;
constexpr qint64 isSplineFitFlag = 4;
constexpr qint64 is3dFlag = 8;
constexpr qint64 isMeshFlag = 16;
constexpr qint64 isClosedAcrossFlag = 32;
constexpr qint64 isFacesFlag = 64;
constexpr qint64 runsThroughFlag = 128;
constexpr qint64 isFrameVertexFlag = 16;

bool isUsableVertex(const PolylineVertex &vertex)
{
    return isUsable(vertex.at) && isUsable(vertex.bulge) && isUsable(vertex.startWidth) && isUsable(vertex.endWidth);
}

bool addFlatPolyline(BuildContext &context, const std::vector<PolylineVertex> &vertices, qint64 flags,
                     const Vec3 &extrusion)
{
    if (vertices.empty() || !std::ranges::all_of(vertices, isUsableVertex) || !isUsable(extrusion))
        return false;
    const Matrix ocs = Matrix::fromExtrusion(extrusion);
    const bool isClosed = (flags & isClosedFlag) != 0;
    if (hasWidth(vertices)) {
        Fill band = polylineBand(vertices, isClosed, ocs, context.work);
        if (!band.contours.empty()) {
            context.add(std::move(band));
            return true;
        }
    }
    Curve curve = polylineCurve(vertices, isClosed, ocs);
    curve.isOneRun = (flags & runsThroughFlag) != 0;
    context.add(Stroke{std::move(curve)});
    return true;
}

std::vector<PolylineVertex> readLwVertices(const TagList &tags)
{
    std::vector<PolylineVertex> vertices;
    const double width = std::max(0.0, tags.real(43));
    const double elevation = tags.real(38);
    for (std::size_t i = 0; i < tags.size(); ++i) {
        const Tag &tag = tags[i];
        if (tag.code >= 1000)
            break;
        if (tag.code == 10) {
            Vec3 at = tags.pointAt(i);
            at.z = elevation;
            vertices.push_back({.at = at, .startWidth = width, .endWidth = width});
        }
        if (vertices.empty())
            continue;
        if (tag.code == 40)
            vertices.back().startWidth = tag.real().value_or(0.0);
        else if (tag.code == 41)
            vertices.back().endWidth = tag.real().value_or(0.0);
        else if (tag.code == 42)
            vertices.back().bulge = tag.real().value_or(0.0);
    }
    return vertices;
}

bool build2dPolyline(BuildContext &context, const TagList &tags, const std::vector<RecordId> &children, qint64 flags)
{
    std::vector<PolylineVertex> vertices;
    const double startWidth = tags.real(40);
    const double endWidth = tags.real(41);
    const double elevation = tags.point(10).z;
    for (const RecordId child : children) {
        const TagList own = context.drawing.tags(child);
        if ((own.integer(70) & isFrameVertexFlag) != 0 && (flags & isSplineFitFlag) != 0)
            continue;
        Vec3 at = own.point(10);
        at.z = elevation;
        vertices.push_back({.at = at,
                            .startWidth = own.real(40, startWidth),
                            .endWidth = own.real(41, endWidth),
                            .bulge = own.real(42)});
    }
    return addFlatPolyline(context, vertices, flags, tags.point(210, {0.0, 0.0, 1.0}));
}

std::vector<Vec3> readPoints(const Drawing &drawing, const std::vector<RecordId> &children, qint64 flags)
{
    std::vector<Vec3> points;
    for (const RecordId child : children) {
        const TagList tags = drawing.tags(child);
        if ((tags.integer(70) & isFrameVertexFlag) == 0 || (flags & isSplineFitFlag) == 0)
            points.push_back(tags.point(10));
    }
    return points;
}

bool build3dPolyline(BuildContext &context, const std::vector<RecordId> &children, qint64 flags)
{
    std::vector<Vec3> points = readPoints(context.drawing, children, flags);
    if (!areUsable(points))
        return false;
    if ((flags & isClosedFlag) != 0)
        points.push_back(points.front());
    context.add(Stroke{{.points = std::move(points), .arcs = {}, .isOneRun = (flags & runsThroughFlag) != 0}});
    return true;
}

bool buildGrid(BuildContext &context, const TagList &tags, const std::vector<RecordId> &children, qint64 flags)
{
    const std::vector<Vec3> points = readPoints(context.drawing, children, flags);
    const bool isSmoothed = (flags & isSplineFitFlag) != 0;
    const auto rows = static_cast<std::size_t>(std::clamp<qint64>(tags.integer(isSmoothed ? 73 : 71), 0, 32767));
    const auto columns = static_cast<std::size_t>(std::clamp<qint64>(tags.integer(isSmoothed ? 74 : 72), 0, 32767));
    if (!areUsable(points) || rows * columns == 0 || rows * columns > points.size())
        return false;
    for (std::size_t row = 0; row < rows; ++row) {
        Path line(points.begin() + static_cast<std::ptrdiff_t>(row * columns),
                  points.begin() + static_cast<std::ptrdiff_t>((row + 1) * columns));
        if ((flags & isClosedAcrossFlag) != 0)
            line.push_back(line.front());
        context.addStroke(std::move(line));
    }
    for (std::size_t column = 0; column < columns; ++column) {
        Path line;
        for (std::size_t row = 0; row < rows; ++row)
            line.push_back(points[row * columns + column]);
        if ((flags & isClosedFlag) != 0)
            line.push_back(line.front());
        context.addStroke(std::move(line));
    }
    return true;
}

/// The edges of one face record: vertex numbers from 1, negative where the edge to the next is not to be seen.
void addFaceEdges(BuildContext &context, const TagList &face, const std::vector<Vec3> &points)
{
    std::vector<qint64> corners;
    for (int code = 71; code <= 74; ++code) {
        if (const qint64 number = face.integer(code); number != 0)
            corners.push_back(number);
    }
    const auto limit = static_cast<qint64>(points.size());
    for (std::size_t i = 0; corners.size() > 1 && i < corners.size(); ++i) {
        const qint64 from = corners[i];
        const qint64 to = std::abs(corners[(i + 1) % corners.size()]);
        if (from > 0 && from <= limit && to <= limit)
            context.addStroke({points[static_cast<std::size_t>(from - 1)], points[static_cast<std::size_t>(to - 1)]});
    }
}

bool buildFaces(BuildContext &context, const std::vector<RecordId> &children)
{
    std::vector<Vec3> points;
    bool isSound = true;
    bool hasFaces = false;
    for (const RecordId child : children) {
        const TagList tags = context.drawing.tags(child);
        if ((tags.integer(70) & isFacesFlag) != 0) {
            points.push_back(tags.point(10));
            isSound &= isUsable(points.back());
        } else if (isSound) {
            hasFaces = true;
            addFaceEdges(context, tags, points);
        }
    }
    // Points without faces are nothing to be seen, and no failure.
    context.display.isHidden = isSound && !points.empty() && !hasFaces;
    return !context.display.items.empty() || context.display.isHidden;
}

} // namespace

bool buildLwPolyline(BuildContext &context, const TagList &tags)
{
    return addFlatPolyline(context, readLwVertices(tags), tags.integer(70), tags.point(210, {0.0, 0.0, 1.0}));
}

bool buildPolyline(BuildContext &context, const TagList &tags)
{
    const std::vector<RecordId> children = context.drawing.children(context.display.record);
    const qint64 flags = tags.integer(70);
    if ((flags & isFacesFlag) != 0)
        return buildFaces(context, children);
    if ((flags & isMeshFlag) != 0)
        return buildGrid(context, tags, children, flags);
    if ((flags & is3dFlag) != 0)
        return build3dPolyline(context, children, flags);
    return build2dPolyline(context, tags, children, flags);
}

} // namespace host::view
