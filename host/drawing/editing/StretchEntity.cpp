#include "host/drawing/editing/StretchEntity.h"

#include "host/drawing/curves/Sections.h"
#include "host/drawing/geometry/TransformEntity.h"
#include "host/drawing/geometry/TransformFields.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/math/Curves.h"
#include "host/drawing/math/SplineEdit.h"
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
            return stretchSpline();
        if (type == "MLINE")
            return stretchMultiline();
        if (type == "HATCH" && hasStraightBoundary())
            return stretchHatch();
        if (type == "VIEWPORT")
            return stretchViewport();
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
        if (type == "HATCH")
            return middleOf(tags);
        const Vec3 point = tags.point(10);
        return flat.contains(type.toByteArray()) ? m_plane.point(point) : point;
    }

    /// Of a hatch the middle of its boundary's points.
    Vec3 middleOf(const TagList &tags) const
    {
        std::vector<Vec3> points = tags.points(10);
        if (points.size() < 2)
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

    /// One that runs through fit points is moved by these, and runs through them again.
    StretchOutcome stretchSpline()
    {
        if (!findField(m_fields, 11))
            return movePoints({10}, Matrix());
        std::vector<Vec3> points;
        bool isAll = true;
        for (auto field = m_fields.begin(), end = ownEnd(m_fields); field != end; ++field) {
            if (field->code != 11)
                continue;
            const bool isCaught = m_isCaught(field->point());
            points.push_back(field->point() + (isCaught ? m_by : Vec3{}));
            m_isMoved = m_isMoved || isCaught;
            isAll = isAll && isCaught;
        }
        if (!m_isMoved || isAll)
            return m_isMoved ? moveWhole(findField(m_fields, 11)->point()) : StretchOutcome::Nothing;
        const Field *flags = findField(m_fields, 70);
        const auto tangent = [this](int code) {
            const Field *field = findField(m_fields, code);
            return field ? std::optional(field->point()) : std::nullopt;
        };
        const Spline spline = fittedSpline(points, flags && (flags->integer() & 1) != 0, tangent(12), tangent(13));
        if (!spline.isValid())
            return StretchOutcome::Refused;
        FieldList fields = withSpline(m_fields, spline);
        for (const int code : {12, 13})
            if (const auto direction = tangent(code))
                fields.insert(ownEnd(fields), {code, *direction});
        for (const Vec3 &point : points)
            fields.insert(ownEnd(fields), {11, point});
        setOwnField(fields, 74, qint64(points.size()));
        setOwnField(fields, 70, flags ? flags->integer() : qint64(0));
        m_fields = fields;
        return finish();
    }

    /// The lines cross each vertex along its mitre; how far out they do follows from the angle that it makes.
    StretchOutcome stretchMultiline()
    {
        std::vector<std::size_t> vertices; // where their points are among the fields
        Path points;
        bool isAll = true;
        for (std::size_t i = 0; i < m_fields.size() && !endsOwnGroups(m_fields[i]); ++i) {
            if (m_fields[i].code != 11)
                continue;
            const Vec3 at = m_fields[i].point();
            const bool isCaught = m_isCaught(at);
            vertices.push_back(i);
            points.push_back(isCaught ? at + m_by : at);
            m_isMoved = m_isMoved || isCaught;
            isAll = isAll && isCaught;
        }
        if (!m_isMoved || isAll || points.size() < 2)
            return m_isMoved ? moveWhole(m_fields[vertices.front()].point()) : StretchOutcome::Nothing;
        const Field *flags = findField(m_fields, 71);
        const bool isClosed = flags && (flags->integer() & 2) != 0;
        for (std::size_t i = 0; i < points.size(); ++i)
            if (!setMultilineVertex(vertices[i], points, i, isClosed))
                return StretchOutcome::Refused;
        setOwnField(m_fields, 10, points.front());
        return finish();
    }

    bool setMultilineVertex(std::size_t place, const Path &points, std::size_t i, bool isClosed)
    {
        const std::size_t count = points.size();
        const auto along = [&](std::size_t from) { return normalized(points[(from + 1) % count] - points[from]); };
        const bool isLast = i + 1 == count && !isClosed;
        const Vec3 behind = along(isLast ? i - 1 : i);
        const Vec3 before = i > 0 ? along(i - 1) : isClosed ? along(count - 1) : behind;
        const Vec3 left = cross(m_plane.zAxis, behind);
        const Vec3 mitre = normalized(left + cross(m_plane.zAxis, before));
        const double share = dot(mitre, left);
        if (!(share > 1e-6) || place + 2 >= m_fields.size() || m_fields[place + 1].code != 12 ||
            m_fields[place + 2].code != 13)
            return false;
        const double oldShare = dot(m_fields[place + 2].point(), cross(m_plane.zAxis, m_fields[place + 1].point()));
        m_fields[place].value = points[i];
        m_fields[place + 1].value = behind;
        m_fields[place + 2].value = mitre;
        bool isFirst = false; // of an element's distances: how far out it crosses
        for (std::size_t at = place + 3; at < m_fields.size() && m_fields[at].code != 11; ++at) {
            if (m_fields[at].code == 41 && isFirst)
                m_fields[at].value = m_fields[at].real() * oldShare / share;
            isFirst = m_fields[at].code == 74;
        }
        return true;
    }

    /// Whether the boundary has no edges but lines and the arcs of polylines.
    bool hasStraightBoundary() const
    {
        bool isPolyline = false;
        for (const Field &field : m_fields) {
            if (field.code == 75)
                break;
            isPolyline = field.code == 92 ? (field.integer() & 2) != 0 : isPolyline;
            if (field.code == 72 && !isPolyline && field.integer() != 1)
                return false;
        }
        return true;
    }

    StretchOutcome stretchHatch()
    {
        const auto begin = std::ranges::find(m_fields, 91, &Field::code);
        const auto end = std::find_if(begin, m_fields.end(), [](const Field &field) { return field.code == 75; });
        const double elevation = findField(m_fields, 10) ? findField(m_fields, 10)->point().z : 0.0;
        bool isAll = true;
        Vec3 first;
        Path before;
        Path after;
        std::vector<double> bulges;
        std::vector<Field *> bulgeFields;
        const auto endPath = [&] {
            keepHeights(before, after, true, bulges,
                        [&](std::size_t i, double bulge) { bulgeFields[i]->value = bulge; });
            before.clear();
            after.clear();
            bulges.clear();
            bulgeFields.clear();
        };
        for (auto field = begin; field != end; ++field) {
            if (field->code == 92)
                endPath();
            if (field->code == 42 && !bulges.empty()) {
                bulges.back() = field->real();
                bulgeFields.back() = &*field;
            }
            if ((field->code != 10 && field->code != 11) || !isPoint(*field))
                continue;
            const Vec3 at{field->point().x, field->point().y, elevation};
            first = m_plane.point(at);
            const bool isCaught = m_isCaught(first);
            m_isMoved = m_isMoved || isCaught;
            isAll = isAll && isCaught;
            before.push_back(at);
            after.push_back(isCaught ? at + m_flatBy : at);
            bulges.push_back(0.0);
            bulgeFields.push_back(nullptr);
            field->value = after.back().xy();
        }
        endPath();
        return m_isMoved && isAll ? moveWhole(first) : finish();
    }

    /// Two corners on one side move that side: what is seen stays where it is on the sheet.
    StretchOutcome stretchViewport()
    {
        const TagList tags = m_drawing.tags(m_entity);
        const Vec3 center = tags.point(10);
        const double width = tags.real(40);
        const double height = tags.real(41);
        const auto isCaught = [&](double x, double y) {
            return m_isCaught(center + Vec3{x * width / 2.0, y * height / 2.0, 0.0});
        };
        const bool corners[] = {isCaught(-1, -1), isCaught(1, -1), isCaught(1, 1), isCaught(-1, 1)};
        const bool isLeft = corners[0] && corners[3];
        const bool isRight = corners[1] && corners[2];
        const bool isLow = corners[0] && corners[1];
        const bool isHigh = corners[2] && corners[3];
        if (isLeft && isRight)
            return moveWhole(center + Vec3{width / 2.0, height / 2.0, 0.0});
        const double wider = isRight ? m_by.x : isLeft ? -m_by.x : 0.0;
        const double higher = isHigh ? m_by.y : isLow ? -m_by.y : 0.0;
        if (wider == 0.0 && higher == 0.0)
            return StretchOutcome::Nothing;
        if (!(width + wider > 0.0) || !(height + higher > 0.0) || !(height > 0.0))
            return StretchOutcome::Refused;
        const Vec2 shift{isLeft || isRight ? m_by.x / 2.0 : 0.0, isLow || isHigh ? m_by.y / 2.0 : 0.0};
        const double shown = tags.real(45) / height;
        setOwnField(m_fields, 10, center + Vec3{shift.x, shift.y, 0.0});
        setOwnField(m_fields, 40, width + wider);
        setOwnField(m_fields, 41, height + higher);
        setOwnField(m_fields, 45, shown * (height + higher));
        setOwnField(m_fields, 12, tags.point(12).xy() + shift * shown);
        m_isMoved = true;
        return finish();
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
