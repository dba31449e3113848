#include "host/commands/curves/CornerPolylines.h"

#include "host/commands/common/CircleGeometry.h"
#include "host/commands/common/UserPlane.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::Vec2;
using drawing::Vec3;

namespace {

/// The direction (radians) in which a stretch runs at one of its points, or where it would go on.
double directionAt(const EditedVertex &front, const EditedVertex &back, Vec2 at)
{
    Vec2 way = (back.point - front.point).xy();
    if (front.bulge != 0.0) {
        const drawing::BulgeArc arc = drawing::bulgeArc(front.point.xy(), back.point.xy(), front.bulge);
        way = turnedLeft(at - arc.center) * (arc.sweep < 0.0 ? -1.0 : 1.0);
    }
    return std::atan2(way.y, way.x);
}

/// The bulge of what a stretch is between two of its points.
double bulgeBetween(const EditedVertex &front, const EditedVertex &back, Vec2 from, Vec2 to)
{
    return front.bulge == 0.0 ? 0.0 : bulgeAlong(from, directionAt(front, back, from), to);
}

/// Places of the user's plane in a polyline's object coordinates.
class UserInObject
{
public:
    UserInObject(const UserPlane &plane, const EditedPolyline &polyline, double height)
        : m_plane(plane), m_polyline(polyline), m_height(height)
    {
    }
    Vec3 operator()(Vec2 user) const { return m_polyline.fromWorld(m_plane.worldFromUser({user.x, user.y, m_height})); }

private:
    const UserPlane &m_plane;
    const EditedPolyline &m_polyline;
    double m_height;
};

/// The polyline that a side is, running towards the cut, up to it.
std::optional<EditedPolyline> towardsCut(CommandContext &context, const CornerSide &side, Vec2 cut, Vec2 kept)
{
    const UserPlane plane(context.document());
    const Vec3 normal = plane.worldFromUser({0.0, 0.0, 1.0}) - plane.worldFromUser({});
    std::optional<EditedPolyline> polyline =
        side.polyline ? side.polyline : polylineLike(context.drawing(), side.record, normal);
    if (!polyline || polyline->isClosed)
        return {};
    const std::vector<EditedVertex> &vertices = polyline->vertices;
    const UserInObject place(plane, *polyline, side.shape.height);
    const Vec3 end = place(cut);
    const Vec2 away = (place(cut + kept) - end).xy();
    const double along = directionAt(vertices[side.stretch], vertices[side.stretch + 1], end.xy());
    const bool runsAway = dot(polar(along, 1.0), away) > 0.0;
    if (side.stretch != (runsAway ? 0 : vertices.size() - 2))
        return {};
    if (runsAway)
        polyline->reverse();
    EditedVertex &front = polyline->vertices[vertices.size() - 2];
    front.bulge = bulgeBetween(front, vertices.back(), front.point.xy(), end.xy());
    polyline->vertices.back().point = end;
    return polyline;
}

/// An arc between neighbouring stretches, of which the first leads to the second.
QString filletNeighbours(CommandContext &context, CornerChanges &changes, double radius, const CornerSide &first,
                         const CornerSide &second)
{
    EditedPolyline polyline = *first.polyline;
    std::vector<EditedVertex> &vertices = polyline.vertices;
    const std::size_t count = vertices.size();
    EditedVertex &front = vertices[first.stretch];
    EditedVertex &corner = vertices[second.stretch];
    const EditedVertex &back = vertices[(second.stretch + 1) % count];
    const UserPlane plane(context.document());
    const UserInObject place(plane, polyline, first.shape.height);
    const auto isOn = [](const EditedVertex &from, const EditedVertex &to, const Vec3 &point) {
        const drawing::CurvePiece piece = drawing::bulgedPiece(from.point, to.point, from.bulge, 0.0);
        return (piece.point(piece.closest(point)) - point).length() <= 1e-6;
    };
    for (const Vec2 centre : tangentCentres(first.shape, second.shape, radius)) {
        const Vec3 begin = place(touchingPoint(first.shape, centre, radius));
        const Vec3 end = place(touchingPoint(second.shape, centre, radius));
        const double arriving = directionAt(front, corner, begin.xy());
        const double leaving = directionAt(corner, back, end.xy());
        const double bulge = radius > 0.0 ? bulgeAlong(begin.xy(), arriving, end.xy()) : 0.0;
        const double turn = arrivalDirection(begin.xy(), end.xy(), bulge) - leaving;
        if (!isOn(front, corner, begin) || !isOn(corner, back, end) || (radius > 0.0 && std::cos(turn) < 1.0 - 1e-9))
            continue;
        EditedVertex onward = corner;
        onward.bulge = bulgeBetween(corner, back, end.xy(), back.point.xy());
        onward.point = end;
        front.bulge = bulgeBetween(front, corner, front.point.xy(), begin.xy());
        corner.point = begin;
        corner.bulge = bulge;
        if ((end - begin).length() > 1e-12)
            vertices.insert(vertices.begin() + static_cast<qsizetype>(second.stretch) + 1, onward);
        else
            corner.bulge = onward.bulge;
        changes.store(polyline);
        return {};
    }
    return Commands::tr("Radius is too large.");
}

/// The cut of the corner that two stretches make, which come from `start` and go to `end`; without ends where there is
/// none, and why.
struct StretchCut
{
    std::optional<CutEnds> ends;
    QString problem{};
};

StretchCut cutStretches(Vec2 start, Vec2 startEnd, Vec2 endStart, Vec2 end, const CornerCut &cut)
{
    const Vec2 in = startEnd - start;
    const Vec2 out = end - endStart;
    const double sine = cross(in, out);
    if (!(std::abs(sine) > 1e-9 * in.length() * out.length()))
        return {{}, Commands::tr("The lines are parallel.")};
    const Vec2 corner = start + in * (cross(endStart - start, out) / sine);
    const Vec2 back = (start - corner) * (1.0 / (start - corner).length());
    const Vec2 on = (end - corner) * (1.0 / (end - corner).length());
    const std::optional<CutEnds> ends = cutCorner(corner, back, on, cut);
    if (!ends || ends->firstReach > (start - corner).length() || ends->secondReach > (end - corner).length())
        return {{}, Commands::tr("The corner has no room for that.")};
    return {ends};
}

/// An open polyline is closed by the corner of its last and its first stretch.
QString closeByCorner(CornerChanges &changes, EditedPolyline polyline, const CornerCut &cut)
{
    std::vector<EditedVertex> &vertices = polyline.vertices;
    const std::size_t last = vertices.size() - 1;
    const StretchCut made = cutStretches(vertices[last - 1].point.xy(), vertices[last].point.xy(),
                                         vertices[0].point.xy(), vertices[1].point.xy(), cut);
    if (!made.ends)
        return made.problem;
    const double height = vertices[0].point.z;
    vertices[0].point = {made.ends->second.x, made.ends->second.y, height};
    vertices[last].point = {made.ends->first.x, made.ends->first.y, height};
    vertices[last].bulge = made.ends->bulge;
    if ((made.ends->first - made.ends->second).length() <= 1e-12)
        vertices.pop_back();
    polyline.isClosed = true;
    changes.store(polyline);
    return {};
}

} // namespace

QString joinPolylines(CommandContext &context, CornerChanges &changes, const CornerSide &first,
                      const CornerSide &second, const CutEnds &ends, const KeptWays &kept)
{
    const UserPlane plane(context.document());
    const bool isFirst = first.polyline.has_value();
    const std::optional<EditedPolyline> atFirst = towardsCut(context, first, ends.first, kept.first);
    const std::optional<EditedPolyline> atSecond = towardsCut(context, second, ends.second, kept.second);
    if (!atFirst || !atSecond)
        return Commands::tr("Only the ends of open polylines, lines and arcs can be joined.");
    EditedPolyline polyline = isFirst ? *atFirst : *atSecond;
    EditedPolyline rest = isFirst ? *atSecond : *atFirst;
    rest.reverse();
    const double sense = dot(polyline.extrusion, plane.worldFromUser({0.0, 0.0, 1.0}) - plane.worldFromUser({}));
    polyline.vertices.back().bulge = (isFirst ? ends.bulge : -ends.bulge) * (sense < 0.0 ? -1.0 : 1.0);
    if (ends.bulge == 0.0 && (ends.first - ends.second).length() < 1e-9)
        polyline.vertices.pop_back();
    const drawing::Matrix map = polyline.toWorld().inverted() * rest.toWorld();
    const bool isMirrored = dot(polyline.extrusion, rest.extrusion) < 0.0;
    for (EditedVertex vertex : rest.vertices) {
        vertex.point = map.point(vertex.point);
        vertex.bulge = isMirrored ? -vertex.bulge : vertex.bulge;
        polyline.vertices.push_back(vertex);
    }
    changes.erase(isFirst ? second.record : first.record);
    changes.store(polyline);
    return {};
}

QString cutWithin(CommandContext &context, CornerChanges &changes, const CornerCut &wanted, const CornerSide &first,
                  const CornerSide &second)
{
    EditedPolyline polyline = *first.polyline;
    std::vector<EditedVertex> &vertices = polyline.vertices;
    const std::size_t count = vertices.size();
    // Round a closed one the shorter way counts.
    const std::size_t onward = (second.stretch + count - first.stretch) % count;
    const bool isInOrder = polyline.isClosed ? onward <= count - onward : first.stretch < second.stretch;
    const std::size_t before = isInOrder ? first.stretch : second.stretch;
    const std::size_t behind = isInOrder ? second.stretch : first.stretch;
    const std::size_t between = (behind + count - before) % count;
    const bool isByEnds = !polyline.isClosed && before == 0 && behind + 2 == count && between > 2;
    CornerCut cut = wanted;
    if (isInOrder == isByEnds)
        std::swap(cut.first, cut.second);
    if (!first.shape.isStraight || !second.shape.isStraight)
        return between == 1 ? filletNeighbours(context, changes, cut.radius, isInOrder ? first : second,
                                               isInOrder ? second : first)
                            : Commands::tr("Only neighbouring stretches of a polyline make a corner.");
    if (isByEnds)
        return closeByCorner(changes, polyline, cut);
    if (between < 1 || between > 2)
        return Commands::tr("Only neighbouring stretches of a polyline make a corner.");
    const StretchCut made = cutStretches(vertices[before].point.xy(), vertices[(before + 1) % count].point.xy(),
                                         vertices[behind].point.xy(), vertices[(behind + 1) % count].point.xy(), cut);
    if (!made.ends)
        return made.problem;
    const std::optional<CutEnds> &ends = made.ends;
    const double height = vertices[behind].point.z;
    EditedVertex begin = vertices[behind];
    begin.point = {ends->first.x, ends->first.y, height};
    begin.bulge = ends->bulge;
    vertices[behind].point = {ends->second.x, ends->second.y, height};
    if (between == 2)
        vertices[(before + 1) % count] = begin;
    else if ((ends->first - ends->second).length() > 1e-12)
        vertices.insert(vertices.begin() + static_cast<qsizetype>(behind), begin);
    if (between == 2 && (ends->first - ends->second).length() <= 1e-12)
        vertices.erase(vertices.begin() + static_cast<qsizetype>(behind));
    changes.store(polyline);
    return {};
}

} // namespace host::kernel
