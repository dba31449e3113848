#include "host/drawing/editing/StretchEntity.h"

#include "host/drawing/geometry/TransformEntity.h"
#include "host/drawing/geometry/TransformFields.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/math/Curves.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/PolylineFlags.h"

namespace host::drawing {

namespace {

/// The points of one entity with what moves them.
class Stretching
{
public:
    Stretching(Drawing &drawing, RecordId entity, const IsCaught &isCaught, const Vec3 &by)
        : m_drawing(drawing), m_entity(entity), m_isCaught(isCaught), m_by(by), m_fields(drawing.fields(entity))
    {
        const Field *extrusion = findField(m_fields, 210);
        m_plane = Matrix::fromExtrusion(extrusion ? extrusion->point() : Vec3{0.0, 0.0, 1.0});
        m_flatBy = m_plane.inverted().direction(by);
    }

    StretchOutcome run()
    {
        const QByteArrayView type = m_drawing.typeName(m_entity);
        if (type == "LINE" || type == "3DFACE")
            return movePoints({10, 11, 12, 13}, Matrix());
        if (type == "SOLID" || type == "TRACE")
            return movePoints({10, 11, 12, 13}, m_plane);
        if (type == "SPLINE")
            return movePoints({10, 11}, Matrix());
        if (type == "LEADER")
            return movePoints({10}, Matrix());
        if (type == "ARC")
            return stretchArc();
        if (type == "LWPOLYLINE")
            return stretchLight();
        if (type == "POLYLINE")
            return stretchOld();
        if (type.endsWith("DIMENSION"))
            return stretchDimension();
        return moveWhole(ownPoint());
    }

private:
    Vec3 ownPoint() const
    {
        static const QSet<QByteArray> flat = {"CIRCLE", "TEXT", "ATTDEF", "INSERT", "SHAPE"};
        const QByteArrayView type = m_drawing.typeName(m_entity);
        const TagList tags = m_drawing.tags(m_entity);
        if (type == "HATCH" || type == "VIEWPORT")
            return middleOf(tags, type);
        const Vec3 point = tags.point(10);
        return flat.contains(type.toByteArray()) ? m_plane.point(point) : point;
    }

    /// Of a hatch the middle of its boundary's points.
    Vec3 middleOf(const TagList &tags, QByteArrayView type) const
    {
        std::vector<Vec3> points = tags.points(10);
        if (type == "VIEWPORT" || points.size() < 2)
            return tags.point(10);
        Box box;
        for (std::size_t i = 1; i < points.size(); ++i)
            box.add(points[i]);
        const Vec3 middle = (box.low + box.high) * 0.5;
        return m_plane.point({middle.x, middle.y, points.front().z});
    }

    StretchOutcome moveWhole(const Vec3 &point)
    {
        if (!m_isCaught(point))
            return StretchOutcome::Nothing;
        return transformEntity(m_drawing, m_entity, Matrix::translation(m_by)) ? StretchOutcome::Done
                                                                               : StretchOutcome::Refused;
    }

    /// Points in coordinates that `toWorld` leads from.
    StretchOutcome movePoints(std::initializer_list<int> codes, const Matrix &toWorld)
    {
        const Vec3 by = toWorld == Matrix() ? m_by : m_flatBy;
        for (auto field = m_fields.begin(), end = ownEnd(m_fields); field != end; ++field) {
            const bool isWanted = std::ranges::find(codes, field->code) != codes.end();
            if (!isWanted || !isPoint(*field) || !m_isCaught(toWorld.point(field->point())))
                continue;
            field->value = field->point() + by;
            m_isMoved = true;
        }
        return finish();
    }

    StretchOutcome finish()
    {
        if (m_isMoved)
            m_drawing.setFields(m_entity, m_fields);
        return m_isMoved ? StretchOutcome::Done : StretchOutcome::Nothing;
    }

    /// A bulge so that the arc stands as high over its new chord.
    static double bulgeOver(double bulge, double chord, double newChord)
    {
        return newChord > 0.0 ? bulge * chord / newChord : 0.0;
    }

    StretchOutcome stretchArc()
    {
        const double radius = realOf(m_fields, 40);
        const Vec3 center = findField(m_fields, 10) ? findField(m_fields, 10)->point() : Vec3{};
        const double start = realOf(m_fields, 50) * radians;
        double sweep = (realOf(m_fields, 51) - realOf(m_fields, 50)) * radians;
        sweep += sweep <= 0.0 ? 360.0 * radians : 0.0;
        const auto at = [&](double angle) { return center + Vec3{std::cos(angle), std::sin(angle), 0.0} * radius; };
        const Vec3 from = at(start);
        const Vec3 to = at(start + sweep);
        const bool movesFrom = m_isCaught(m_plane.point(from));
        const bool movesTo = m_isCaught(m_plane.point(to));
        if (!movesFrom && !movesTo)
            return StretchOutcome::Nothing;
        if (movesFrom && movesTo)
            return moveWhole(m_plane.point(from));
        const Vec3 newFrom = movesFrom ? from + m_flatBy : from;
        const Vec3 newTo = movesTo ? to + m_flatBy : to;
        const double bulge =
            bulgeOver(std::tan(sweep / 4.0), (to - from).xy().length(), (newTo - newFrom).xy().length());
        const BulgeArc arc = bulgeArc(newFrom.xy(), newTo.xy(), bulge);
        if (!(arc.radius > 0.0) || m_flatBy.z != 0.0)
            return StretchOutcome::Refused;
        setOwnField(m_fields, 10, Vec3{arc.center.x, arc.center.y, center.z});
        setOwnField(m_fields, 40, arc.radius);
        setOwnField(m_fields, 50, std::fmod(arc.startAngle / radians + 720.0, 360.0));
        setOwnField(m_fields, 51, std::fmod((arc.startAngle + arc.sweep) / radians + 720.0, 360.0));
        m_isMoved = true;
        return finish();
    }

    /// Bulges by the vertices before and after; `setBulge(i, value)`.
    template <typename Bulges, typename SetBulge>
    static void keepHeights(const Path &before, const Path &after, bool isClosed, const Bulges &bulges,
                            const SetBulge &setBulge)
    {
        const std::size_t count = before.size();
        for (std::size_t i = 0; i + (isClosed ? 0 : 1) < count; ++i) {
            const std::size_t next = (i + 1) % count;
            const double chord = (before[next] - before[i]).xy().length();
            const double newChord = (after[next] - after[i]).xy().length();
            if (bulges[i] != 0.0 && std::abs(chord - newChord) > 1e-12 * chord)
                setBulge(i, bulgeOver(bulges[i], chord, newChord));
        }
    }

    StretchOutcome stretchLight()
    {
        const double elevation = realOf(m_fields, 38);
        Path before;
        Path after;
        std::vector<double> bulges;
        std::vector<Field *> bulgeFields;
        for (auto field = m_fields.begin(), end = ownEnd(m_fields); field != end; ++field) {
            if (field->code == 42 && !bulges.empty()) {
                bulges.back() = field->real();
                bulgeFields.back() = &*field;
            }
            if (field->code != 10)
                continue;
            const Vec3 at{field->point().x, field->point().y, elevation};
            const bool isMoving = m_isCaught(m_plane.point(at));
            m_isMoved = m_isMoved || isMoving;
            before.push_back(at);
            after.push_back(isMoving ? at + m_flatBy : at);
            bulges.push_back(0.0);
            bulgeFields.push_back(nullptr);
            field->value = after.back().xy();
        }
        const bool isAll =
            m_isMoved && std::ranges::all_of(before, [&](const Vec3 &p) { return m_isCaught(m_plane.point(p)); });
        if (isAll)
            return moveWhole(m_plane.point(before.front()));
        const Field *flags = findField(m_fields, 70);
        keepHeights(before, after, flags && (flags->integer() & FlagClosed) != 0, bulges,
                    [&](std::size_t i, double bulge) { bulgeFields[i]->value = bulge; });
        return finish();
    }

    StretchOutcome stretchOld()
    {
        const qint64 flags = m_drawing.tags(m_entity).integer(70);
        const bool isFlat = (flags & (Flag3d | FlagMesh | FlagFaces)) == 0;
        const Matrix toWorld = isFlat ? m_plane : Matrix();
        const std::vector<RecordId> vertices = m_drawing.children(m_entity);
        Path before;
        Path after;
        std::vector<double> bulges;
        bool isAll = true;
        for (const RecordId id : vertices) {
            const TagList vertex = m_drawing.tags(id);
            const bool isCaught = m_isCaught(toWorld.point(vertex.point(10)));
            before.push_back(vertex.point(10));
            after.push_back(isCaught ? before.back() + (isFlat ? m_flatBy : m_by) : before.back());
            bulges.push_back(vertex.real(42));
            m_isMoved = m_isMoved || isCaught;
            isAll = isAll && isCaught;
        }
        if (!m_isMoved)
            return StretchOutcome::Nothing;
        if (isAll)
            return moveWhole(toWorld.point(before.front()));
        std::vector<double> newBulges = bulges;
        keepHeights(before, after, (flags & FlagClosed) != 0, bulges,
                    [&](std::size_t i, double bulge) { newBulges[i] = bulge; });
        for (std::size_t i = 0; i < vertices.size(); ++i) {
            if (after[i] == before[i] && newBulges[i] == bulges[i])
                continue;
            FieldList fields = m_drawing.fields(vertices[i]);
            setField(fields, 10, isFlat ? Vec3{after[i].x, after[i].y, before[i].z} : after[i]);
            if (newBulges[i] != bulges[i])
                setField(fields, 42, newBulges[i]);
            m_drawing.setFields(vertices[i], fields);
        }
        return StretchOutcome::Done;
    }

    bool isCaughtAt(int code, const Matrix &toWorld) const
    {
        const Field *field = findField(m_fields, code);
        return !field || m_isCaught(toWorld.point(field->point()));
    }

    void moveAt(int code, const Matrix &toWorld)
    {
        Field *field = findField(m_fields, code);
        if (!field || !m_isCaught(toWorld.point(field->point())))
            return;
        field->value = field->point() + (toWorld == Matrix() ? m_by : m_flatBy);
        m_isMoved = true;
    }

    StretchOutcome stretchDimension()
    {
        bool isAll = true;
        for (const int code : {10, 13, 14, 15})
            isAll = isAll && isCaughtAt(code, Matrix());
        if (isAll && isCaughtAt(16, m_plane))
            return moveWhole(findField(m_fields, 10) ? findField(m_fields, 10)->point() : Vec3{});
        for (const int code : {10, 13, 14, 15})
            moveAt(code, Matrix());
        for (const int code : {11, 12, 16})
            moveAt(code, m_plane);
        if (!m_isMoved)
            return StretchOutcome::Nothing;
        m_drawing.setFields(m_entity, m_fields);
        return StretchOutcome::Done;
    }

    Drawing &m_drawing;
    RecordId m_entity;
    const IsCaught &m_isCaught;
    Vec3 m_by;
    Vec3 m_flatBy; ///< in object coordinates
    Matrix m_plane;
    FieldList m_fields;
    bool m_isMoved = false;
};

} // namespace

StretchOutcome stretchEntity(Drawing &drawing, RecordId entity, const IsCaught &isCaught, const Vec3 &by)
{
    const JournalGroup group(drawing.journal(), {});
    return Stretching(drawing, entity, isCaught, by).run();
}

} // namespace host::drawing
