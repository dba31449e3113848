#include "host/drawing/selection/PolygonSelection.h"

namespace host::drawing {

namespace {

bool isBetween(Vec2 a, Vec2 b, Vec2 point)
{
    return std::min(a.x, b.x) <= point.x && point.x <= std::max(a.x, b.x) && std::min(a.y, b.y) <= point.y &&
           point.y <= std::max(a.y, b.y);
}

int side(Vec2 a, Vec2 b, Vec2 point)
{
    const double area = cross(b - a, point - a);
    return area > 0.0 ? 1 : area < 0.0 ? -1 : 0;
}

bool meet(Vec2 a, Vec2 b, Vec2 c, Vec2 d)
{
    const int sideC = side(a, b, c);
    const int sideD = side(a, b, d);
    const int sideA = side(c, d, a);
    const int sideB = side(c, d, b);
    if (sideC != sideD && sideA != sideB && sideC * sideD <= 0 && sideA * sideB <= 0)
        return true;
    return (sideC == 0 && isBetween(a, b, c)) || (sideD == 0 && isBetween(a, b, d)) ||
           (sideA == 0 && isBetween(c, d, a)) || (sideB == 0 && isBetween(c, d, b));
}

Path closed(Path path)
{
    if (!path.empty())
        path.push_back(path.front());
    return path;
}

bool pathsMeet(const Path &path, const Path &other)
{
    for (size_t i = 1; i < path.size(); ++i)
        for (size_t j = 1; j < other.size(); ++j)
            if (meet(path[i - 1].xy(), path[i].xy(), other[j - 1].xy(), other[j].xy()))
                return true;
    return false;
}

/// The edge of a piece: filled ones close themselves.
Path edgeOf(const Outline::Piece &piece)
{
    return piece.isFilled ? closed(piece.points) : piece.points;
}

} // namespace

bool liesWithin(const Outline &outline, const Path &polygon)
{
    if (polygon.size() < 3 || outline.pieces.empty())
        return false;
    const Path edge = closed(polygon);
    for (const Outline::Piece &piece : outline.pieces) {
        if (pathsMeet(edgeOf(piece), edge))
            return false;
        for (const Vec3 &point : piece.points)
            if (!contains(polygon, point.xy()))
                return false;
    }
    return true;
}

bool crosses(const Outline &outline, const Path &polygon)
{
    if (polygon.size() < 3)
        return false;
    for (const Outline::Piece &piece : outline.pieces)
        if (!piece.points.empty() && contains(polygon, piece.points.front().xy()))
            return true;
    return crossesPath(outline, closed(polygon));
}

bool crossesPath(const Outline &outline, const Path &path)
{
    if (path.empty())
        return false;
    for (const Outline::Piece &piece : outline.pieces) {
        if (pathsMeet(edgeOf(piece), path))
            return true;
        if (piece.isFilled && piece.points.size() > 2 && contains(piece.points, path.front().xy()))
            return true;
    }
    return false;
}

} // namespace host::drawing
