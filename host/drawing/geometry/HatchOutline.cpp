#include "host/drawing/geometry/EntityOutlines.h"
#include "host/drawing/math/Angles.h"

#include <numbers>

namespace host::drawing {

namespace {

enum PathFlag
{
    FlagExternal = 1,
    FlagPolyline = 2,
    FlagOutermost = 16
};

/// Reads boundary paths tag by tag: they have no markers of their own, only counts and order.
class BoundaryReader
{
public:
    BoundaryReader(OutlineSink &sink, const TagList &tags, double elevation)
        : m_sink(sink), m_tags(tags), m_elevation(elevation)
    {
    }

    void read()
    {
        skipTo(91);
        const qint64 paths = integer(91, 0);
        for (qint64 i = 0; i < paths && m_next < m_tags.size(); ++i) {
            skipTo(92);
            const qint64 flags = integer(92, 0);
            if (m_next >= m_tags.size())
                return;
            Path path = (flags & FlagPolyline) != 0 ? polylinePath() : edgePath();
            // Where no path is marked as an outer one the first is taken for it.
            const bool isOuter = (flags & (FlagExternal | FlagOutermost)) != 0 || i == 0;
            if (!path.empty())
                path.push_back(path.front());
            m_sink.add(path, isOuter, !isOuter);
        }
    }

private:
    bool isAt(int code) const { return m_next < m_tags.size() && m_tags[m_next].code == code; }
    void skipTo(int code)
    {
        while (m_next < m_tags.size() && !isAt(code))
            ++m_next;
    }
    qint64 integer(int code, qint64 otherwise)
    {
        return isAt(code) ? m_tags[m_next++].integer().value_or(otherwise) : otherwise;
    }
    double real(int code, double otherwise)
    {
        return isAt(code) ? m_tags[m_next++].real().value_or(otherwise) : otherwise;
    }
    Vec3 point(int code)
    {
        if (!isAt(code))
            return {};
        Vec3 result = m_tags.pointAt(m_next, &m_next);
        result.z = m_elevation;
        return result;
    }

    Path polylinePath()
    {
        integer(72, 0);
        integer(73, 1);
        const qint64 count = integer(93, 0);
        std::vector<std::pair<Vec3, double>> vertices;
        for (qint64 i = 0; i < count && isAt(10); ++i) {
            const Vec3 vertex = point(10);
            vertices.emplace_back(vertex, real(42, 0.0));
        }
        Path path;
        for (size_t i = 0; i < vertices.size(); ++i) {
            if (path.empty())
                path.push_back(vertices[i].first);
            const auto &[next, bulge] = std::pair(vertices[(i + 1) % vertices.size()].first, vertices[i].second);
            appendBulge(path, vertices[i].first, next, bulge, m_sink.flatness());
        }
        return path;
    }

    Path edgePath()
    {
        const qint64 count = integer(93, 0);
        Path path;
        for (qint64 i = 0; i < count && isAt(72); ++i) {
            const Path edge = readEdge(integer(72, 0));
            path.insert(path.end(), edge.begin(), edge.end());
        }
        return path;
    }

    Path readEdge(qint64 type)
    {
        switch (type) {
        case 1: {
            const Vec3 from = point(10);
            return {from, point(11)};
        }
        case 2:
            return arcEdge();
        case 3:
            return ellipseEdge();
        case 4:
            return splineEdge();
        default:
            return {};
        }
    }

    /// Angles of clockwise edges are measured clockwise as well.
    Path arcEdge()
    {
        const Vec3 center = point(10);
        const double radius = real(40, 0.0);
        const double start = real(50, 0.0) * radians;
        const double end = real(51, 360.0) * radians;
        if (integer(73, 1) != 0)
            return arcPath(center, radius, start, end, m_sink.flatness());
        Path path = arcPath(center, radius, -end, -start, m_sink.flatness());
        std::reverse(path.begin(), path.end());
        return path;
    }

    /// The angles are directions, as those of circles, and no parameters.
    Path ellipseEdge()
    {
        const Vec3 center = point(10);
        Vec3 major = point(11);
        major.z = 0.0;
        const double ratio = real(40, 1.0);
        const double start = ellipseParameter(real(50, 0.0) * radians, ratio);
        const double end = ellipseParameter(real(51, 360.0) * radians, ratio);
        if (integer(73, 1) != 0)
            return ellipsePath(center, major, {0, 0, 1}, ratio, start, end, m_sink.flatness());
        Path path = ellipsePath(center, major, {0, 0, 1}, ratio, -end, -start, m_sink.flatness());
        std::reverse(path.begin(), path.end());
        return path;
    }

    Path splineEdge()
    {
        Spline spline;
        spline.degree = static_cast<int>(std::clamp<qint64>(integer(94, 3), 0, 100));
        integer(73, 0);
        spline.isClosed = integer(74, 0) != 0;
        integer(95, 0);
        integer(96, 0);
        while (isAt(40))
            spline.knots.push_back(real(40, 0.0));
        while (isAt(10)) {
            spline.controlPoints.push_back(point(10));
            if (isAt(42))
                spline.weights.push_back(real(42, 1.0));
        }
        const bool hasFitCount = isAt(97); // the same group counts boundary objects at the end of a path
        if (hasFitCount && m_next + 1 < m_tags.size() && m_tags[m_next + 1].code == 11) {
            integer(97, 0);
            while (isAt(11))
                spline.fitPoints.push_back(point(11));
        }
        return splinePath(spline, m_sink.flatness());
    }

    OutlineSink &m_sink;
    const TagList &m_tags;
    double m_elevation;
    size_t m_next = 0;
};

} // namespace

bool outlineOfHatch(OutlineSink &sink, const TagList &tags)
{
    sink.useExtrusion(tags.point(210, {0, 0, 1}));
    BoundaryReader(sink, tags, tags.point(10).z).read();
    return true;
}

} // namespace host::drawing
