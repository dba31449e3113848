#include "host/dwg/objects/TypeTable.h"

#include <cmath>

namespace host::dwg {

namespace {

void noteUnlessPoint(Fields &f, int code, Point point, Point usual)
{
    if (point != usual)
        f.note(code, point);
}

/// What a leader leads to.
enum class Annotation
{
    Text = 0,
    Tolerance = 1,
    Block = 2,
    None = 3
};

struct LeaderLine
{
    std::vector<Point> points;
    Point direction; ///< along the text
    bool isCurve = false;
    bool hooksAlong = false; ///< along the direction, not against it
};

/// Adds the vertex from which a line leads on to the text along its direction, as long as an arrow, where the leader
/// comes from farther aside than 15 degrees. Files do not have it. False where there is none.
bool addHook(LeaderLine &line, double arrow)
{
    constexpr double cosine = 0.96592582628906829; // of 15 degrees
    if (line.isCurve || line.points.size() < 2 || arrow <= 0.0)
        return false;
    const Point end = line.points.back();
    const Point before = line.points[line.points.size() - 2];
    const Point along = line.direction;
    const Point last{end.x - before.x, end.y - before.y, end.z - before.z};
    const double length = std::hypot(last.x, last.y, last.z);
    if (std::abs(last.x * along.x + last.y * along.y + last.z * along.z) >= cosine * length)
        return false;
    const double step = line.hooksAlong ? arrow : -arrow;
    line.points.insert(line.points.end() - 1, {end.x + along.x * step, end.y + along.y * step, end.z + along.z * step});
    return true;
}

/// What is no more than its style has; the colour, for a style that leaves that to the block, is told up to R14.
int readLeaderStyle(Fields &f)
{
    int colour = 0;
    f.int16();
    if (f.until(Release::R14)) {
        f.real();
        f.flag();
        f.flag();
        f.int16();
        colour = f.int16();
    }
    f.flag();
    f.flag();
    return colour;
}

void readLeader(Fields &f)
{
    f.subclass("AcDbLeader");
    const std::size_t begin = f.mark();
    LeaderLine line;
    f.flag();
    const auto kind = static_cast<Annotation>(f.int16(73));
    line.isCurve = f.int16(72, {0}) != 0;
    line.points.resize(f.count(6));
    for (Point &point : line.points)
        point = f.point();
    f.point(); // the origin of its plane
    const Point extrusion = f.point();
    line.direction = f.point();
    const Point fromBlock = f.point();
    const Point fromText = f.since(Release::R14) ? f.point() : Point();
    if (f.until(Release::R14))
        f.real(); // a gap, as its style has it
    if (f.until(Release::R2007)) {
        f.real(40);
        f.real(41);
    }
    line.hooksAlong = f.flag(74);
    f.flag(71, {1});
    const int colour = readLeaderStyle(f);
    const std::uint64_t annotation = f.reference();
    const std::uint64_t style = f.reference();
    f.nameUnlessLost(3, style);
    const bool leadsToText = annotation != 0 && (kind == Annotation::Text || kind == Annotation::Tolerance);
    if (leadsToText && f.since(Release::R2000) && addHook(line, f.arrowSizeOf(style)))
        f.note(75, 1);
    f.note(76, line.points.size());
    // Later files have the size of its text with the text alone.
    if (const auto size = f.since(Release::R2010) ? f.sizeOf(annotation) : std::nullopt) {
        f.note(40, size->height);
        f.note(41, size->width);
    }
    f.arrange(begin, {3, 71, 72, 73, 74, 75, 40, 41, 76});
    for (const Point &point : line.points)
        f.note(10, point);
    if (f.until(Release::R14))
        f.note(77, colour);
    if (annotation != 0)
        f.noteHandle(340, annotation);
    noteUnlessPoint(f, 210, extrusion, {0.0, 0.0, 1.0});
    noteUnlessPoint(f, 211, line.direction, {1.0, 0.0, 0.0});
    noteUnlessPoint(f, 212, fromBlock, {});
    noteUnlessPoint(f, 213, fromText, {});
}

} // namespace

std::span<const ObjectType> leaderTypes()
{
    static constexpr ObjectType rows[] = {{0x2d, "LEADER", readLeader, true}};
    return rows;
}

} // namespace host::dwg
