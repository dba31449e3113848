#include "host/commands/curves/PolylineJoin.h"

#include <cmath>
#include <map>

namespace host::kernel {

using drawing::Vec2;
using drawing::Vec3;

namespace {

/// Ends that are this near to each other are one.
constexpr double sameEnd = 1e-6;

/// The other polyline in the first one's object coordinates; nothing when it does not lie in its plane.
std::optional<EditedPolyline> inPlaneOf(const EditedPolyline &plane, EditedPolyline other)
{
    const drawing::Matrix map = plane.toWorld().inverted() * other.toWorld();
    const double height = plane.vertices.front().point.z;
    const double sense = dot(drawing::normalized(plane.extrusion), drawing::normalized(other.extrusion));
    bool hasArcs = false;
    for (EditedVertex &vertex : other.vertices) {
        hasArcs |= vertex.bulge != 0.0;
        vertex.point = map.point(vertex.point);
        vertex.bulge *= sense < 0.0 ? -1.0 : 1.0;
        if (std::abs(vertex.point.z - height) > sameEnd)
            return {};
        vertex.point.z = height;
    }
    if (hasArcs && std::abs(std::abs(sense) - 1.0) > 1e-9)
        return {};
    return other;
}

/// The free ends of polylines by where they are.
class FreeEnds
{
public:
    void add(Vec2 at, std::size_t polyline) { m_ends.emplace(at.x, End{at, polyline}); }
    /// The nearest within reach of a polyline that is not taken yet.
    std::optional<std::size_t> nearest(Vec2 at, double reach, const std::vector<bool> &isTaken) const
    {
        std::optional<std::size_t> best;
        double least = reach;
        for (auto end = m_ends.lower_bound(at.x - reach); end != m_ends.end() && end->first <= at.x + reach; ++end) {
            const double away = (end->second.at - at).length();
            if (!isTaken[end->second.polyline] && away <= least && (!best || away < least)) {
                least = away;
                best = end->second.polyline;
            }
        }
        return best;
    }

private:
    struct End
    {
        Vec2 at;
        std::size_t polyline = 0;
    };
    std::multimap<double, End> m_ends;
};

/// Where two straight stretches lead to; nothing for arcs and parallels.
std::optional<Vec2> leadTo(const EditedVertex &before, const EditedVertex &end, const EditedVertex &begin,
                           const EditedVertex &behind)
{
    const Vec2 first = (end.point - before.point).xy();
    const Vec2 second = (behind.point - begin.point).xy();
    const double sine = cross(first, second);
    if (before.bulge != 0.0 || begin.bulge != 0.0 || std::abs(sine) <= 1e-9 * first.length() * second.length())
        return {};
    return before.point.xy() + first * (cross((begin.point - before.point).xy(), second) / sine);
}

/// Puts `other`, which begins at the end of `polyline`, behind it.
void appendPolyline(EditedPolyline &polyline, const EditedPolyline &other, JoinType type)
{
    std::vector<EditedVertex> &vertices = polyline.vertices;
    const bool isApart = (vertices.back().point - other.vertices.front().point).length() > sameEnd;
    if (!isApart) {
        const EditedVertex end = vertices.back();
        vertices.back() = other.vertices.front();
        vertices.back().point = end.point;
    } else {
        const std::optional<Vec2> corner =
            type == JoinType::Extend && vertices.size() > 1
                ? leadTo(vertices[vertices.size() - 2], vertices.back(), other.vertices[0], other.vertices[1])
                : std::nullopt;
        if (corner) {
            const double height = vertices.back().point.z;
            vertices.back() = other.vertices.front();
            vertices.back().point = {corner->x, corner->y, height};
        } else {
            vertices.back().bulge = 0.0;
            vertices.push_back(other.vertices.front());
        }
    }
    vertices.insert(vertices.end(), other.vertices.begin() + 1, other.vertices.end());
}

/// Whether the ends came together; the polyline is closed then.
bool closeWhereEndsMeet(EditedPolyline &polyline, double reach)
{
    std::vector<EditedVertex> &vertices = polyline.vertices;
    if (polyline.isClosed)
        return true;
    if (vertices.size() < 3 || (vertices.back().point - vertices.front().point).length() > reach)
        return false;
    if ((vertices.back().point - vertices.front().point).length() <= sameEnd)
        vertices.pop_back();
    polyline.isClosed = true;
    return true;
}

} // namespace

std::vector<std::size_t> joinTo(EditedPolyline &polyline, const std::vector<EditedPolyline> &others,
                                const JoinSettings &settings)
{
    std::vector<std::optional<EditedPolyline>> flat;
    FreeEnds ends;
    for (const EditedPolyline &other : others) {
        flat.push_back(other.isClosed || other.isSpatial || other.vertices.size() < 2 ? std::nullopt
                                                                                      : inPlaneOf(polyline, other));
        if (flat.back()) {
            ends.add(flat.back()->vertices.front().point.xy(), flat.size() - 1);
            ends.add(flat.back()->vertices.back().point.xy(), flat.size() - 1);
        }
    }
    std::vector<bool> isTaken(others.size(), false);
    std::vector<std::size_t> taken;
    const double reach = std::max(settings.fuzz, sameEnd);
    // At the end first; a polyline turned round has its begin there.
    for (int side = 0; side < 2; ++side) {
        while (taken.empty() ? !polyline.isClosed : !closeWhereEndsMeet(polyline, reach)) {
            const Vec2 at = polyline.vertices.back().point.xy();
            const std::optional<std::size_t> next = ends.nearest(at, reach, isTaken);
            if (!next)
                break;
            EditedPolyline other = *flat[*next];
            if ((other.vertices.back().point.xy() - at).length() < (other.vertices.front().point.xy() - at).length())
                other.reverse();
            appendPolyline(polyline, other, settings.type);
            isTaken[*next] = true;
            taken.push_back(*next);
        }
        polyline.reverse();
    }
    return taken;
}

} // namespace host::kernel
