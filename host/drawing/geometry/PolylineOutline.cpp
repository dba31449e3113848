#include "host/drawing/geometry/EntityOutlines.h"
#include "host/drawing/records/PolylineFlags.h"

namespace host::drawing {

namespace {

struct Vertex
{
    Vec3 point;
    double bulge = 0.0;
    double startWidth = 0.0;
    double endWidth = 0.0;
};

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

void addVertices(OutlineSink &sink, const std::vector<Vertex> &vertices, bool isClosed)
{
    if (vertices.empty())
        return;
    Path whole{vertices.front().point};
    const size_t stretches = isClosed ? vertices.size() : vertices.size() - 1;
    for (size_t i = 0; i < stretches; ++i) {
        const Vertex &from = vertices[i];
        const Vertex &to = vertices[(i + 1) % vertices.size()];
        const size_t first = whole.size() - 1;
        appendBulge(whole, from.point, to.point, from.bulge, sink.flatness());
        if (from.startWidth > 0.0 || from.endWidth > 0.0)
            addWideStretch(sink, Path(whole.begin() + static_cast<qsizetype>(first), whole.end()), from.startWidth,
                           from.endWidth);
    }
    sink.add(whole);
}

void outlineOfLightPolyline(OutlineSink &sink, const TagList &tags)
{
    const double elevation = tags.real(38);
    const double width = tags.real(43);
    std::vector<Vertex> vertices;
    for (size_t i = 0; i < tags.size(); ++i) {
        const Tag &tag = tags[i];
        if (tag.code == 10) {
            const Vec3 point = tags.pointAt(i);
            vertices.push_back({{point.x, point.y, elevation}, 0.0, width, width});
        } else if (!vertices.empty() && tag.code == 42) {
            vertices.back().bulge = tag.real().value_or(0.0);
        } else if (!vertices.empty() && tag.code == 40) {
            vertices.back().startWidth = tag.real().value_or(0.0);
        } else if (!vertices.empty() && tag.code == 41) {
            vertices.back().endWidth = tag.real().value_or(0.0);
        }
    }
    sink.useExtrusion(tags.point(210, {0, 0, 1}));
    addVertices(sink, vertices, (tags.integer(70) & FlagClosed) != 0);
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

void outlineOfOldPolyline(OutlineSink &sink, const Drawing &drawing, RecordId polyline, const TagList &tags)
{
    const qint64 flags = tags.integer(70);
    const bool isFlat = (flags & (Flag3d | FlagMesh | FlagFaces)) == 0;
    const Vec3 elevation{0.0, 0.0, tags.point(10).z};
    std::vector<Vertex> vertices;
    Path points;
    std::vector<RecordId> faces;
    for (const RecordId child : drawing.children(polyline)) {
        const TagList vertex = drawing.tags(child);
        const qint64 vertexFlags = vertex.integer(70);
        if ((flags & FlagFaces) != 0 && (vertexFlags & FlagFaceRecord) != 0 && (vertexFlags & FlagMeshVertex) == 0) {
            faces.push_back(child);
            continue;
        }
        if ((vertexFlags & FlagFrameControl) != 0)
            continue;
        const Vec3 point = vertex.point(10, isFlat ? elevation : Vec3{});
        points.push_back(point);
        vertices.push_back({point, isFlat ? vertex.real(42) : 0.0, isFlat ? vertex.real(40, tags.real(40)) : 0.0,
                            isFlat ? vertex.real(41, tags.real(41)) : 0.0});
    }
    if ((flags & FlagMesh) != 0)
        return outlineOfMesh(sink, points, tags);
    for (const RecordId face : faces)
        addFace(sink, points, drawing.tags(face));
    if ((flags & FlagFaces) != 0)
        return;
    if (isFlat)
        sink.useExtrusion(tags.point(210, {0, 0, 1}));
    addVertices(sink, vertices, (flags & FlagClosed) != 0);
}

} // namespace

bool outlineOfPolyline(OutlineSink &sink, const Drawing &drawing, RecordId entity, const TagList &tags)
{
    const bool isLight = drawing.isType(entity, "LWPOLYLINE");
    if (isLight)
        outlineOfLightPolyline(sink, tags);
    else if (drawing.isType(entity, "POLYLINE"))
        outlineOfOldPolyline(sink, drawing, entity, tags);
    else
        return false;
    return true;
}

} // namespace host::drawing
