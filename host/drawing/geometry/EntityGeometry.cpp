#include "host/drawing/geometry/EntityGeometry.h"

#include "host/drawing/geometry/EntityOutlines.h"

namespace host::drawing {

namespace {

constexpr std::int64_t pointsOfUnit = 4;
constexpr std::int64_t unitsOfEntity = 16;

double distanceToSegment(Vec2 point, Vec2 from, Vec2 to)
{
    const Vec2 along = to - from;
    const double square = dot(along, along);
    const double t = square > 0.0 ? std::clamp(dot(point - from, along) / square, 0.0, 1.0) : 0.0;
    return (point - (from + along * t)).length();
}

bool isInFilledArea(const Outline &outline, Vec2 point)
{
    bool isInside = false;
    for (const Outline::Piece &piece : outline.pieces) {
        if (piece.isHole && contains(piece.points, point))
            return false;
        isInside = isInside || (piece.isFilled && contains(piece.points, point));
    }
    return isInside;
}

bool isWithin(const Vec3 &point, const Box &window)
{
    return point.x >= window.low.x && point.x <= window.high.x && point.y >= window.low.y && point.y <= window.high.y;
}

/// Clips the segment by one pair of sides after the other; something is left when it meets the window.
bool segmentMeets(const Vec3 &from, const Vec3 &to, const Box &window)
{
    double first = 0.0;
    double last = 1.0;
    const auto clip = [&](double start, double step, double low, double high) {
        if (step == 0.0)
            return start >= low && start <= high;
        const double a = (low - start) / step;
        const double b = (high - start) / step;
        first = std::max(first, std::min(a, b));
        last = std::min(last, std::max(a, b));
        return first <= last;
    };
    return clip(from.x, to.x - from.x, window.low.x, window.high.x) &&
           clip(from.y, to.y - from.y, window.low.y, window.high.y);
}

bool pathMeets(const Path &path, const Box &window)
{
    if (path.size() == 1)
        return isWithin(path.front(), window);
    for (size_t i = 0; i + 1 < path.size(); ++i) {
        if (segmentMeets(path[i], path[i + 1], window))
            return true;
    }
    return false;
}

} // namespace

bool contains(const Path &polygon, Vec2 point)
{
    bool isInside = false;
    for (size_t i = 0, previous = polygon.size() - 1; i < polygon.size(); previous = i++) {
        const Vec3 &a = polygon[i];
        const Vec3 &b = polygon[previous];
        if ((a.y > point.y) != (b.y > point.y) && point.x < (b.x - a.x) * (point.y - a.y) / (b.y - a.y) + a.x)
            isInside = !isInside;
    }
    return isInside;
}

Outline entityOutline(const Drawing &drawing, RecordId entity, WorkBudget &work, const Flatness &flatness,
                      const Matrix &transform)
{
    Outline outline;
    size_t counted = 0;
    visitInserted(drawing, entity, work, [&](const VisitedEntity &visited) {
        appendOutline(outline, drawing, visited.entity, transform * visited.transform, flatness);
        std::int64_t points = 0;
        for (; counted < outline.pieces.size(); ++counted)
            points += static_cast<std::int64_t>(outline.pieces[counted].points.size());
        return visited.inserts.empty() || work.take(points / pointsOfUnit);
    });
    return outline;
}

Outline entityOutline(const Drawing &drawing, RecordId entity, const Flatness &flatness, const Matrix &transform)
{
    WorkBudget work(outlineWork);
    return entityOutline(drawing, entity, work, flatness, transform);
}

WorkBudget outlineBudget(std::size_t entities)
{
    return WorkBudget(outlineWork + unitsOfEntity * static_cast<std::int64_t>(entities));
}

Box outlineBox(const Outline &outline)
{
    Box box;
    for (const Outline::Piece &piece : outline.isInfinite ? std::vector<Outline::Piece>() : outline.pieces) {
        for (const Vec3 &point : piece.points) {
            if (std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z))
                box.add(point);
        }
    }
    return box;
}

Box entityBox(const Drawing &drawing, RecordId entity)
{
    return outlineBox(entityOutline(drawing, entity));
}

Box spaceBox(const Drawing &drawing, const std::vector<RecordId> &entities)
{
    Box box;
    WorkBudget work = outlineBudget(entities.size());
    for (const RecordId entity : entities) {
        if (drawing.isAlive(entity))
            box.add(outlineBox(entityOutline(drawing, entity, work)));
    }
    return box;
}

double flatDistance(const Outline &outline, Vec2 point)
{
    if (isInFilledArea(outline, point))
        return 0.0;
    double nearest = std::numeric_limits<double>::infinity();
    for (const Outline::Piece &piece : outline.pieces) {
        const Path &path = piece.points;
        if (path.size() == 1)
            nearest = std::min(nearest, (path.front().xy() - point).length());
        for (size_t i = 0; i + 1 < path.size(); ++i)
            nearest = std::min(nearest, distanceToSegment(point, path[i].xy(), path[i + 1].xy()));
    }
    return nearest;
}

bool liesWithin(const Outline &outline, const Box &window)
{
    const auto isPieceWithin = [&window](const Outline::Piece &piece) {
        return std::all_of(piece.points.begin(), piece.points.end(),
                           [&window](const Vec3 &point) { return isWithin(point, window); });
    };
    return !outline.pieces.empty() && !outline.isInfinite &&
           std::all_of(outline.pieces.begin(), outline.pieces.end(), isPieceWithin);
}

bool crosses(const Outline &outline, const Box &window)
{
    return isInFilledArea(outline, window.low.xy()) ||
           std::any_of(outline.pieces.begin(), outline.pieces.end(),
                       [&window](const Outline::Piece &piece) { return pathMeets(piece.points, window); });
}

BoxCache::BoxCache(Drawing &drawing) : m_drawing(drawing), m_work(outlineBudget(drawing.idLimit()))
{
    m_drawing.addObserver(this);
}

BoxCache::~BoxCache()
{
    m_drawing.removeObserver(this);
}

const Box &BoxCache::box(RecordId entity)
{
    const auto index = static_cast<size_t>(entity);
    if (index >= m_boxes.size()) {
        m_boxes.resize(m_drawing.idLimit());
        m_known.resize(m_drawing.idLimit());
    }
    if (!m_known[index]) {
        m_boxes[index] = outlineBox(entityOutline(m_drawing, entity, m_work));
        m_known[index] = true;
    }
    return m_boxes[index];
}

std::vector<RecordId> BoxCache::touching(const std::vector<RecordId> &entities, const Box &window)
{
    std::vector<RecordId> found;
    const auto mayTouch = [&](RecordId entity) {
        const Box &known = box(entity);
        // What has no end has no box either, and nor has what shows it.
        return known.isEmpty() ? entityOutline(m_drawing, entity, m_work).isInfinite : known.touchesFlat(window);
    };
    std::copy_if(entities.begin(), entities.end(), std::back_inserter(found), mayTouch);
    return found;
}

void BoxCache::forget()
{
    m_known.assign(m_known.size(), false);
    m_work = outlineBudget(m_drawing.idLimit());
}

void BoxCache::recordChanged(RecordId record, RecordChange, ChangeCause)
{
    const bool isPlain = m_drawing.kind(record) == RecordKind::Entity && m_drawing.section(record) == Section::Entities;
    const auto index = static_cast<size_t>(record);
    m_work = outlineBudget(m_drawing.idLimit());
    if (isPlain && index < m_known.size())
        m_known[index] = false;
    // Children change their polyline's box; blocks and what they are found by change any insert's.
    const Section section = m_drawing.section(record);
    const RecordId owner = m_drawing.parent(record);
    if (section == Section::Entities && !isPlain && isValid(owner) && static_cast<size_t>(owner) < m_known.size())
        m_known[static_cast<size_t>(owner)] = false;
    else if (section == Section::Blocks)
        forget();
}

} // namespace host::drawing
