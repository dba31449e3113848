#include "host/drawing/curves/CurveVertices.h"
#include "host/drawing/geometry/EntityOutlines.h"
#include "host/drawing/records/PolylineFlags.h"

namespace host::drawing {

namespace {

void addWideStretch(OutlineSink &sink, const Path &path, double startWidth, double endWidth)
{
    const auto count = static_cast<double>(path.size() - 1);
    for (size_t i = 0; i + 1 < path.size(); ++i) {
        const Vec2 along = (path[i + 1] - path[i]).xy();
        const double length = along.length();
        if (length == 0.0)
            continue;
        const Vec3 aside{-along.y / length, along.x / length, 0.0};
        const double width = endWidth - startWidth;
        const double before = (startWidth + width * static_cast<double>(i) / count) / 2.0;
        const double after = (startWidth + width * static_cast<double>(i + 1) / count) / 2.0;
        const Vec3 corner = path[i] + aside * before;
        sink.add({corner, path[i + 1] + aside * after, path[i + 1] - aside * after, path[i] - aside * before, corner},
                 true);
    }
}

void addVertices(OutlineSink &sink, const std::vector<CurveVertex> &vertices, bool isClosed)
{
    if (vertices.empty())
        return;
    Path whole{vertices.front().point};
    const size_t stretches = isClosed ? vertices.size() : vertices.size() - 1;
    for (size_t i = 0; i < stretches; ++i) {
        const CurveVertex &from = vertices[i];
        const CurveVertex &to = vertices[(i + 1) % vertices.size()];
        const size_t first = whole.size() - 1;
        appendBulge(whole, from.point, to.point, from.bulge, sink.flatness());
        if (from.startWidth > 0.0 || from.endWidth > 0.0)
            addWideStretch(sink, Path(whole.begin() + static_cast<qsizetype>(first), whole.end()), from.startWidth,
                           from.endWidth);
    }
    sink.add(whole);
}

void outlineOfFlatOrSpatial(OutlineSink &sink, const CurveVertices &polyline)
{
    if (!polyline.isSpatial)
        sink.useExtrusion(polyline.extrusion);
    addVertices(sink, polyline.vertices, polyline.isClosed);
}

void outlineOfMesh(OutlineSink &sink, const Path &points, const TagList &tags)
{
    const qint64 flags = tags.integer(70);
    // A smoothed mesh has its points by the densities, a plain one by the counts.
    const bool isSmooth = tags.integer(75) != 0;
    const auto rows = static_cast<size_t>(std::clamp<qint64>(tags.integer(isSmooth ? 73 : 71), 1, 32767));
    const auto columns = static_cast<size_t>(std::clamp<qint64>(tags.integer(isSmooth ? 74 : 72), 1, 32767));
    if (points.size() < rows * columns)
        return sink.add(points);
    for (size_t row = 0; row < rows; ++row) {
        Path line(points.begin() + static_cast<qsizetype>(row * columns),
                  points.begin() + static_cast<qsizetype>((row + 1) * columns));
        if ((flags & FlagClosedAcross) != 0)
            line.push_back(line.front());
        sink.add(line);
    }
    for (size_t column = 0; column < columns; ++column) {
        Path line;
        for (size_t row = 0; row < rows; ++row)
            line.push_back(points[row * columns + column]);
        if ((flags & FlagClosed) != 0)
            line.push_back(line.front());
        sink.add(line);
    }
}

// Face records name their corners by number from 1; a negative number hides the edge that starts there.
void addFace(OutlineSink &sink, const Path &points, const TagList &face)
{
    std::vector<qint64> corners;
    for (int code = 71; code <= 74; ++code) {
        const qint64 corner = face.integer(code);
        const auto number = static_cast<size_t>(std::abs(corner));
        if (number >= 1 && number <= points.size())
            corners.push_back(corner);
    }
    for (size_t i = 0; i < corners.size(); ++i) {
        const auto to = static_cast<size_t>(std::abs(corners[(i + 1) % corners.size()]));
        if (corners[i] > 0)
            sink.add({points[static_cast<size_t>(corners[i]) - 1], points[to - 1]});
    }
}

void outlineOfMeshOrFaces(OutlineSink &sink, const Drawing &drawing, RecordId polyline, const TagList &tags)
{
    const bool isMesh = (tags.integer(70) & FlagMesh) != 0;
    Path points;
    std::vector<RecordId> faces;
    for (const RecordId child : drawing.children(polyline)) {
        const TagList vertex = drawing.tags(child);
        const qint64 flags = vertex.integer(70);
        if (!isMesh && (flags & FlagFaceRecord) != 0 && (flags & FlagMeshVertex) == 0)
            faces.push_back(child);
        else if ((flags & FlagFrameControl) == 0)
            points.push_back(vertex.point(10));
    }
    if (isMesh)
        return outlineOfMesh(sink, points, tags);
    for (const RecordId face : faces)
        addFace(sink, points, drawing.tags(face));
}

} // namespace

bool outlineOfPolyline(OutlineSink &sink, const Drawing &drawing, RecordId entity, const TagList &tags)
{
    if (const std::optional<CurveVertices> polyline = polylineVertices(drawing, entity))
        outlineOfFlatOrSpatial(sink, *polyline);
    else if (drawing.isType(entity, "POLYLINE"))
        outlineOfMeshOrFaces(sink, drawing, entity, tags);
    else
        return false;
    return true;
}

} // namespace host::drawing
