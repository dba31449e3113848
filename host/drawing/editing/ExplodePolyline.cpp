#include "host/drawing/editing/ExplodePolyline.h"

#include "host/drawing/math/Angles.h"
#include "host/drawing/math/Curves.h"
#include "host/drawing/math/Matrix.h"
#include "host/drawing/records/PolylineFlags.h"

#include <numbers>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 splineFitFlag = 4; ///< of a POLYLINE: what it was fitted to is among the vertices

/// A vertex in the coordinates of its polyline, with the bulge of the segment behind it.
struct PieceVertex
{
    Vec3 at;
    double bulge = 0.0;
};

FieldList linePiece(const FieldList &look, const Vec3 &from, const Vec3 &to)
{
    FieldList line = look;
    line.front().value = u"LINE"_s;
    line.push_back({10, from});
    line.push_back({11, to});
    return line;
}

FieldList arcPiece(const FieldList &look, const BulgeArc &arc, double elevation)
{
    const double end = arc.startAngle + arc.sweep;
    const auto inDegrees = [](double angle) {
        const double degrees = std::fmod(angle / radians, 360.0);
        return degrees < 0.0 ? degrees + 360.0 : degrees;
    };
    FieldList piece = look;
    piece.front().value = u"ARC"_s;
    piece.push_back({10, Vec3{arc.center.x, arc.center.y, elevation}});
    piece.push_back({40, arc.radius});
    piece.push_back({50, inDegrees(arc.sweep > 0.0 ? arc.startAngle : end)});
    piece.push_back({51, inDegrees(arc.sweep > 0.0 ? end : arc.startAngle)});
    return piece;
}

std::vector<FieldList> segmentPieces(const FieldList &look, const std::vector<PieceVertex> &vertices, bool isClosed,
                                     const Vec3 &extrusion)
{
    constexpr double flattest = 1e-10;
    const Matrix plane = Matrix::fromExtrusion(extrusion);
    std::vector<FieldList> pieces;
    const size_t count = vertices.size() < 2 ? 0 : vertices.size() - (isClosed ? 0 : 1);
    for (size_t i = 0; i < count; ++i) {
        const auto &[from, bulge] = vertices[i];
        const Vec3 to = vertices[(i + 1) % vertices.size()].at;
        const bool isArc = std::abs(bulge) > flattest && (to - from).xy().length() > 0.0;
        if (isArc)
            pieces.push_back(arcPiece(look, bulgeArc(from.xy(), to.xy(), bulge), from.z));
        else if (to != from)
            pieces.push_back(linePiece(look, plane.point(from), plane.point(to)));
    }
    for (FieldList &piece : pieces)
        if (extrusion != Vec3{0.0, 0.0, 1.0})
            piece.push_back({210, extrusion});
    return pieces;
}

std::vector<FieldList> lightPieces(const FieldList &fields)
{
    std::vector<PieceVertex> vertices;
    const double elevation = realOf(fields, 38);
    for (auto field = fields.begin(), end = ownEnd(fields); field != end; ++field) {
        if (field->code == 10)
            vertices.push_back({{field->point().x, field->point().y, elevation}, 0.0});
        else if (field->code == 42 && !vertices.empty())
            vertices.back().bulge = field->real();
    }
    const Field *flags = findField(fields, 70);
    const Field *extrusion = findField(fields, 210);
    return segmentPieces(lookOfPiece(fields, u"LINE"_s), vertices, flags && (flags->integer() & FlagClosed) != 0,
                         extrusion ? extrusion->point() : Vec3{0.0, 0.0, 1.0});
}

FieldList facePiece(const FieldList &look, const std::array<Vec3, 4> &corners, qint64 hidden)
{
    FieldList face = look;
    face.front().value = u"3DFACE"_s;
    std::erase_if(face, [](const Field &field) { return field.code == 39; });
    for (int i = 0; i < 4; ++i)
        face.push_back({10 + i, corners[static_cast<size_t>(i)]});
    if (hidden != 0)
        face.push_back({70, hidden});
    return face;
}

/// A mesh of rows and columns; of a smoothed one the smooth points count.
std::vector<FieldList> meshPieces(const TagList &head, const FieldList &look, const Path &points)
{
    const bool isSmooth = (head.integer(70) & splineFitFlag) != 0 && head.integer(73) > 1 && head.integer(74) > 1;
    const qint64 rows = head.integer(isSmooth ? 73 : 71);
    const qint64 columns = head.integer(isSmooth ? 74 : 72);
    std::vector<FieldList> faces;
    const auto known = static_cast<qint64>(points.size());
    if (rows < 2 || columns < 2 || rows > known || columns > known || rows * columns > known)
        return faces;
    const bool isClosedDown = (head.integer(70) & FlagClosed) != 0;
    const bool isClosedAcross = (head.integer(70) & FlagClosedAcross) != 0;
    const auto at = [&](qint64 row, qint64 column) {
        return points[static_cast<size_t>(row % rows * columns + column % columns)];
    };
    for (qint64 row = 0; row < rows - (isClosedDown ? 0 : 1); ++row)
        for (qint64 column = 0; column < columns - (isClosedAcross ? 0 : 1); ++column)
            faces.push_back(facePiece(
                look, {at(row, column), at(row + 1, column), at(row + 1, column + 1), at(row, column + 1)}, 0));
    return faces;
}

/// A face by the numbers of its corners, of which negative ones begin an edge that is not seen.
std::optional<FieldList> numberedFace(const TagList &record, const FieldList &look, const Path &points)
{
    std::array<Vec3, 4> corners;
    qint64 hidden = 0;
    int count = 0;
    for (int i = 0; i < 4; ++i) {
        const qint64 number = record.integer(71 + i);
        const auto place = static_cast<size_t>(std::abs(number));
        if (number == 0 || place > points.size())
            break;
        corners[static_cast<size_t>(i)] = points[place - 1];
        hidden |= number < 0 ? qint64{1} << i : 0;
        ++count;
    }
    for (int i = count; i > 0 && i < 4; ++i)
        corners[static_cast<size_t>(i)] = corners[static_cast<size_t>(i - 1)];
    return count < 2 ? std::nullopt : std::optional(facePiece(look, corners, hidden));
}

std::vector<FieldList> oldPieces(const Drawing &drawing, RecordId polyline)
{
    const TagList head = drawing.tags(polyline);
    const FieldList look = lookOfPiece(head.fields(), u"LINE"_s);
    const qint64 flags = head.integer(70);
    const bool isFlat = (flags & (Flag3d | FlagMesh | FlagFaces)) == 0;
    std::vector<PieceVertex> vertices;
    Path points;
    std::vector<FieldList> faces;
    for (const RecordId child : drawing.children(polyline)) {
        const TagList vertex = drawing.tags(child);
        const qint64 kind = vertex.integer(70);
        if ((flags & FlagFaces) != 0 && (kind & FlagFaceRecord) != 0 && (kind & FlagMeshVertex) == 0) {
            if (auto face = numberedFace(vertex, look, points))
                faces.push_back(std::move(*face));
        } else if ((kind & FlagFrameControl) == 0) {
            points.push_back(vertex.point(10));
            vertices.push_back({vertex.point(10), isFlat ? vertex.real(42) : 0.0});
        }
    }
    if ((flags & FlagFaces) != 0)
        return faces;
    if ((flags & FlagMesh) != 0)
        return meshPieces(head, look, points);
    const double elevation = head.point(10).z;
    for (PieceVertex &vertex : vertices)
        vertex.at.z = isFlat ? elevation : vertex.at.z;
    return segmentPieces(look, vertices, (flags & FlagClosed) != 0,
                         isFlat ? head.point(210, {0.0, 0.0, 1.0}) : Vec3{0.0, 0.0, 1.0});
}

} // namespace

FieldList lookOfPiece(const FieldList &entity, const QString &type)
{
    FieldList look = {{0, type}};
    for (const int code : {8, 6, 62, 48, 60, 370, 390, 420, 430, 440, 39}) {
        if (const Field *field = findField(entity, code))
            look.push_back(*field);
    }
    return look;
}

std::vector<FieldList> polylinePieces(const Drawing &drawing, RecordId polyline)
{
    if (drawing.isType(polyline, "LWPOLYLINE"))
        return lightPieces(drawing.fields(polyline));
    if (drawing.isType(polyline, "POLYLINE"))
        return oldPieces(drawing, polyline);
    return {};
}

FieldList ellipseOf(const FieldList &circle)
{
    const QString type = circle.front().text();
    const Field *center = findField(circle, 10);
    if ((type != u"CIRCLE" && type != u"ARC") || !center)
        return {};
    const Field *direction = findField(circle, 210);
    const Vec3 extrusion = direction ? direction->point() : Vec3{0.0, 0.0, 1.0};
    const Matrix plane = Matrix::fromExtrusion(extrusion);
    FieldList ellipse = lookOfPiece(circle, u"ELLIPSE"_s);
    std::erase_if(ellipse, [](const Field &field) { return field.code == 39; });
    ellipse.push_back({10, plane.point(center->point())});
    ellipse.push_back({11, plane.xAxis * realOf(circle, 40)});
    ellipse.push_back({210, normalized(extrusion)});
    ellipse.push_back({40, 1.0});
    const bool isArc = type == u"ARC";
    const double start = isArc ? realOf(circle, 50) * radians : 0.0;
    double end = isArc ? realOf(circle, 51) * radians : 2.0 * std::numbers::pi;
    if (end <= start)
        end += 2.0 * std::numbers::pi;
    ellipse.push_back({41, start});
    ellipse.push_back({42, end});
    return ellipse;
}

} // namespace host::drawing
