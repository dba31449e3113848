#include "host/drawing/geometry/TransformFields.h"
#include "host/drawing/math/Angles.h"

#include <numbers>

namespace host::drawing {

namespace {

enum EdgeType
{
    PolylinePath = 0,
    LineEdge = 1,
    ArcEdge = 2,
    EllipseEdge = 3,
    SplineEdge = 4
};

/// Goes through a hatch's fields in order: which points and numbers they are depends on what came before.
class HatchTransformer
{
public:
    HatchTransformer(FieldList &fields, const PlaneMap &plane) : m_fields(fields), m_plane(plane) {}

    void run()
    {
        for (Field &field : m_fields) {
            if (field.code >= 1000)
                return;
            follow(field);
            if (m_isInPaths)
                changeBoundary(field);
            else
                changeRest(field);
        }
    }

private:
    void follow(const Field &field)
    {
        if (field.code == 91)
            m_isInPaths = true;
        else if (field.code == 75)
            m_isInPaths = false;
        else if (m_isInPaths && field.code == 92)
            m_isPolyline = (field.integer() & 2) != 0;
        else if (m_isInPaths && field.code == 72)
            m_edge = m_isPolyline ? PolylinePath : static_cast<int>(field.integer());
    }

    static void setPoint(Field &field, const Vec3 &point)
    {
        if (std::holds_alternative<Vec3>(field.value))
            field.value = point;
        else
            field.value = point.xy();
    }

    /// Angles of boundary edges are measured in their own sense, which turns round in a mirror.
    void changeAngle(Field &field)
    {
        const double sense = m_isClockwise ? -1.0 : 1.0;
        const double newSense = m_plane.isMirrored() ? -sense : sense;
        field.value = newSense * m_plane.angle(sense * field.real() * radians) / radians;
    }

    void changeBoundary(Field &field)
    {
        switch (field.code) {
        case 10:
            setPoint(field, m_plane.point(field.point()));
            if (m_edge == ArcEdge)
                m_isClockwise = isEdgeClockwise(field);
            break;
        case 11:
            setPoint(field,
                     m_edge == EllipseEdge ? m_plane.map().direction(field.point()) : m_plane.point(field.point()));
            break;
        case 12:
        case 13:
            setPoint(field, m_plane.map().direction(field.point()));
            break;
        case 40:
            if (m_edge == ArcEdge)
                field.value = field.real() * m_plane.factor();
            break;
        case 42:
            if (m_edge == PolylinePath && m_plane.isMirrored())
                field.value = -field.real();
            break;
        case 50:
        case 51:
            if (m_edge == ArcEdge)
                changeAngle(field);
            break;
        case 73:
            if ((m_edge == ArcEdge || m_edge == EllipseEdge) && m_plane.isMirrored())
                field.value = qint64(field.integer() != 0 ? 0 : 1);
            break;
        default:
            break;
        }
    }

    /// The flag stands behind the angles it concerns.
    bool isEdgeClockwise(const Field &center) const
    {
        for (const Field *field = &center; field < m_fields.data() + m_fields.size() && field->code != 72; ++field) {
            if (field->code == 73)
                return field->integer() == 0;
        }
        return false;
    }

    void changeRest(Field &field)
    {
        const auto mapVector = [&](double x, double y) { return m_plane.map().direction({x, y, 0.0}).xy(); };
        switch (field.code) {
        case 10: // the elevation in front, seed points behind
            setPoint(field, m_plane.point(field.point()));
            break;
        case 52:
        case 53:
            field.value = m_plane.angle(field.real() * radians) / radians;
            break;
        case 41:
        case 47:
        case 49:
            field.value = field.real() * m_plane.factor();
            break;
        case 43:
        case 45:
            m_first = &field;
            break;
        case 44:
        case 46:
            if (m_first && m_first->code == field.code - 1) {
                const bool isBase = field.code == 44;
                const Vec3 base = m_plane.point({m_first->real(), field.real(), 0.0});
                const Vec2 mapped = isBase ? base.xy() : mapVector(m_first->real(), field.real());
                m_first->value = mapped.x;
                field.value = mapped.y;
            }
            break;
        default:
            break;
        }
    }

    FieldList &m_fields;
    const PlaneMap &m_plane;
    bool m_isInPaths = false;
    bool m_isPolyline = false;
    bool m_isClockwise = false;
    int m_edge = PolylinePath;
    Field *m_first = nullptr; ///< the x of a pair that has no point codes
};

} // namespace

bool transformHatch(FieldList &fields, const PlaneMap &plane)
{
    if (!plane.isSimilar())
        return false;
    HatchTransformer(fields, plane).run();
    return true;
}

} // namespace host::drawing
