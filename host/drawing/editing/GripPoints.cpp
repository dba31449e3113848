#include "host/drawing/editing/GripPoints.h"

#include "host/drawing/curves/EntityCurve.h"
#include "host/drawing/geometry/MultiLeaderFields.h"
#include "host/drawing/records/PolylineFlags.h"

#include <numbers>

namespace host::drawing {

namespace {

/// The grips of one entity while they are listed.
class GripList
{
public:
    GripList(const Drawing &from, RecordId of, std::size_t most)
        : drawing(from), entity(of), tags(from.tags(of)),
          plane(Matrix::fromExtrusion(tags.point(210, {0.0, 0.0, 1.0}))), m_most(most)
    {
    }

    void add(const Vec3 &point, GripRole role, int index = 0)
    {
        if (grips.size() < m_most)
            grips.push_back({.point = point, .role = role, .index = index});
    }
    void addMiddle(const Vec3 &from, const Vec3 &to, int index = 0)
    {
        if (grips.size() < m_most)
            grips.push_back(
                {.point = (from + to) * 0.5, .role = GripRole::Middle, .index = index, .from = from, .to = to});
    }
    /// The points of groups that the record has.
    void addGroups(std::initializer_list<int> codes, const Matrix &toWorld, GripRole role = GripRole::Vertex)
    {
        for (const int code : codes)
            for (const Vec3 &point : tags.points(code))
                add(toWorld.point(point), role);
    }

    const Drawing &drawing;
    RecordId entity;
    TagList tags;
    Matrix plane; ///< from object coordinates
    std::vector<Grip> grips;

private:
    std::size_t m_most;
};

void listLine(GripList &list)
{
    const Vec3 from = list.tags.point(10);
    const Vec3 to = list.tags.point(11);
    list.add(from, GripRole::Vertex);
    list.add(to, GripRole::Vertex);
    list.addMiddle(from, to);
}

// One point and one in its direction.
void listEndless(GripList &list)
{
    list.add(list.tags.point(10), GripRole::Whole);
    list.add(list.tags.point(10) + list.tags.point(11), GripRole::Shape);
}

void listCircle(GripList &list)
{
    const Vec3 center = list.tags.point(10);
    const double radius = list.tags.real(40);
    list.add(list.plane.point(center), GripRole::Whole);
    for (int i = 0; i < 4; ++i) {
        const double angle = i * std::numbers::pi / 2.0;
        list.add(list.plane.point(center + Vec3{std::cos(angle), std::sin(angle), 0.0} * radius), GripRole::Shape, i);
    }
}

void listArc(GripList &list)
{
    list.add(list.plane.point(list.tags.point(10)), GripRole::Whole);
    const auto curve = EntityCurve::ofEntity(list.drawing, list.entity);
    if (!curve)
        return;
    list.add(curve->startPoint(), GripRole::Vertex);
    list.add(curve->endPoint(), GripRole::Vertex);
    list.add(curve->point((curve->startParameter() + curve->endParameter()) / 2.0), GripRole::Shape);
}

// The ends of the axes, of an elliptical arc its own ends.
void listEllipse(GripList &list)
{
    const Vec3 center = list.tags.point(10);
    list.add(center, GripRole::Whole);
    const auto curve = EntityCurve::ofEntity(list.drawing, list.entity);
    if (!curve)
        return;
    if (!curve->isClosed()) {
        list.add(curve->startPoint(), GripRole::Shape, 4);
        list.add(curve->endPoint(), GripRole::Shape, 5);
        return;
    }
    const Vec3 major = list.tags.point(11);
    const Vec3 minor = cross(normalized(list.tags.point(210, {0.0, 0.0, 1.0})), major) * list.tags.real(40);
    const Vec3 ends[] = {major, minor, major * -1.0, minor * -1.0};
    for (int i = 0; i < 4; ++i)
        list.add(center + ends[i], GripRole::Shape, i);
}

/// Vertices and middles of the pieces between them.
void listPieces(GripList &list)
{
    const auto curve = EntityCurve::ofEntity(list.drawing, list.entity);
    if (!curve)
        return;
    int index = 0;
    for (const CurvePiece &piece : curve->pieces()) {
        list.add(piece.startPoint(), GripRole::Vertex);
        if (piece.shape() == CurvePiece::Shape::Round)
            list.add(piece.point((piece.start() + piece.end()) / 2.0), GripRole::Shape, index);
        else
            list.addMiddle(piece.startPoint(), piece.endPoint(), index);
        ++index;
    }
    if ((list.tags.integer(70) & FlagClosed) == 0)
        list.add(curve->endPoint(), GripRole::Vertex);
}

// Of meshes the corners; of smoothed ones no vertex moves by itself, as the others follow from it.
void listOldPolyline(GripList &list)
{
    constexpr qint64 smoothed = 2 | 4;
    const qint64 flags = list.tags.integer(70);
    const std::vector<RecordId> vertices = list.drawing.children(list.entity);
    const bool isMesh = (flags & (FlagMesh | FlagFaces)) != 0;
    if (!isMesh && (flags & smoothed) == 0)
        return listPieces(list);
    const Matrix toWorld = (flags & (Flag3d | FlagMesh | FlagFaces)) == 0 ? list.plane : Matrix();
    for (const RecordId vertex : vertices) {
        const TagList tags = list.drawing.tags(vertex);
        const qint64 kind = tags.integer(70);
        const bool isFace = (kind & FlagFaceRecord) != 0 && (kind & FlagMeshVertex) == 0;
        if (!isFace)
            list.add(toWorld.point(tags.point(10)), isMesh ? GripRole::Vertex : GripRole::Whole);
        if (!isMesh)
            return;
    }
}

void listSpline(GripList &list)
{
    const bool hasFitPoints = !list.tags.points(11).empty();
    list.addGroups({hasFitPoints ? 11 : 10}, Matrix());
}

// Texts: where they begin, and where they are aligned to.
void listText(GripList &list)
{
    const bool isAligned = list.tags.integer(72) != 0 || list.tags.integer(73) != 0 || list.tags.integer(74) != 0;
    list.add(list.plane.point(list.tags.point(10)), GripRole::Whole);
    if (isAligned && !list.tags.points(11).empty())
        list.add(list.plane.point(list.tags.point(11)), GripRole::Whole);
}

void listInsert(GripList &list)
{
    list.add(list.plane.point(list.tags.point(10)), GripRole::Whole);
    for (const RecordId child : list.drawing.children(list.entity)) {
        if (!list.drawing.isType(child, "ATTRIB"))
            continue;
        GripList own(list.drawing, child, 2);
        listText(own);
        list.add(own.grips.back().point, GripRole::Shape);
        list.grips.back().part = child;
    }
}

void listWhole(GripList &list)
{
    list.add(list.tags.point(10), GripRole::Whole);
}

void listFlatWhole(GripList &list)
{
    list.add(list.plane.point(list.tags.point(10)), GripRole::Whole);
}

void listCorners(GripList &list)
{
    list.addGroups({10, 11, 12, 13}, Matrix());
}

void listFlatCorners(GripList &list)
{
    list.addGroups({10, 11, 12, 13}, list.plane);
}

// Pictures move by any of their corners.
void listPicture(GripList &list)
{
    const Vec3 across = list.tags.point(11) * list.tags.point(13).x;
    const Vec3 up = list.tags.point(12) * list.tags.point(13).y;
    for (const Vec3 &by : {Vec3{}, across, across + up, up})
        list.add(list.tags.point(10) + by, GripRole::Whole);
}

void listViewport(GripList &list)
{
    const Vec3 center = list.tags.point(10);
    const Vec3 half{list.tags.real(40) / 2.0, list.tags.real(41) / 2.0, 0.0};
    list.add(center, GripRole::Whole);
    int index = 0;
    for (const auto &[x, y] : {std::pair(-1, -1), std::pair(1, -1), std::pair(1, 1), std::pair(-1, 1)})
        list.add(center + Vec3{half.x * x, half.y * y, 0.0}, GripRole::Shape, index++);
}

void listHatch(GripList &list)
{
    const std::vector<Vec3> points = list.tags.points(10);
    Box box;
    for (std::size_t i = 1; i < points.size(); ++i)
        box.add(points[i]);
    if (box.isEmpty())
        return;
    const Vec3 middle = (box.low + box.high) * 0.5;
    list.add(list.plane.point({middle.x, middle.y, points.front().z}), GripRole::Whole);
}

// Which of its points say something follows from its kind.
void listDimension(GripList &list)
{
    constexpr qint64 angularByLines = 2;
    constexpr qint64 diameter = 3;
    constexpr qint64 radius = 4;
    constexpr qint64 ordinate = 6;
    const qint64 kind = list.tags.integer(70) & 7;
    const bool isRound = list.drawing.isType(list.entity, "DIMENSION") && (kind == diameter || kind == radius);
    if (isRound) {
        list.addGroups({10, 15}, Matrix());
    } else if (list.drawing.isType(list.entity, "DIMENSION") && kind < angularByLines) {
        list.addGroups({13, 14, 10}, Matrix());
    } else if (kind == ordinate) {
        list.addGroups({13, 14}, Matrix());
    } else {
        list.addGroups({13, 14, 15, 10}, Matrix());
        list.addGroups({16}, list.plane);
    }
    list.addGroups({11}, list.plane);
}

void listLeader(GripList &list)
{
    list.addGroups({10}, Matrix());
}

void listMultiline(GripList &list)
{
    list.addGroups({11}, Matrix());
}

// The arrows and bends of its lines, in their order, then the content.
void listMultiLeader(GripList &list)
{
    const FieldList fields = list.drawing.fields(list.entity);
    int index = 0;
    for (const MultiLeaderBranch &branch : multiLeaderBranches(fields))
        for (const MultiLeaderLine &line : branch.lines)
            for (const Vec3 &point : line.points)
                list.add(point, GripRole::Shape, index++);
    if (const auto base = multiLeaderBase(fields))
        list.add(*base, GripRole::Shape, -1);
}

struct GripRow
{
    const char *type;
    void (*list)(GripList &list);
};

constexpr GripRow gripRows[] = {
    {"3DFACE", listCorners},
    {"ARC", listArc},
    {"ARC_DIMENSION", listDimension},
    {"ATTDEF", listText},
    {"CIRCLE", listCircle},
    {"DIMENSION", listDimension},
    {"ELLIPSE", listEllipse},
    {"HATCH", listHatch},
    {"IMAGE", listPicture},
    {"INSERT", listInsert},
    {"LARGE_RADIAL_DIMENSION", listDimension},
    {"LEADER", listLeader},
    {"LINE", listLine},
    {"LWPOLYLINE", listPieces},
    {"MLINE", listMultiline},
    {"MTEXT", listWhole},
    {"MULTILEADER", listMultiLeader},
    {"POINT", listWhole},
    {"POLYLINE", listOldPolyline},
    {"RAY", listEndless},
    {"SHAPE", listFlatWhole},
    {"SOLID", listFlatCorners},
    {"SPLINE", listSpline},
    {"TEXT", listText},
    {"TOLERANCE", listWhole},
    {"TRACE", listFlatCorners},
    {"VIEWPORT", listViewport},
    {"WIPEOUT", listPicture},
    {"XLINE", listEndless},
};

} // namespace

std::vector<Grip> gripsOf(const Drawing &drawing, RecordId entity, std::size_t most)
{
    if (!drawing.isAlive(entity))
        return {};
    const QByteArrayView type = drawing.typeName(entity);
    const auto row = std::ranges::find_if(gripRows, [&](const GripRow &one) { return type == one.type; });
    if (row == std::end(gripRows))
        return {};
    GripList list(drawing, entity, most);
    row->list(list);
    // What is damaged has no place to be taken by.
    std::erase_if(list.grips, [](const Grip &grip) { return !std::isfinite(grip.point.length()); });
    return std::move(list.grips);
}

} // namespace host::drawing
