#include "host/commands/edit/DisplayedParts.h"

#include "host/drawing/editing/ExplodePolyline.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Blocks.h"
#include "host/view/build/Scene.h"

#include <numbers>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::FieldList;
using drawing::Matrix;
using drawing::radians;
using drawing::Vec3;

constexpr double likeness = 1e-9;

double degreesOf(double angle)
{
    const double degrees = std::fmod(angle / radians, 360.0);
    return degrees < 0.0 ? degrees + 360.0 : degrees;
}

/// Axes of object coordinates for what lies along two directions.
Vec3 normalOf(const Vec3 &x, const Vec3 &y)
{
    const Vec3 normal = normalized(cross(x, y));
    return normal.length() > 0.0 ? normal : Vec3{0.0, 0.0, 1.0};
}

class PartCollector
{
public:
    PartCollector(view::Scene &scene, const FieldList &entity, std::vector<FieldList> &parts)
        : m_scene(scene), m_entity(entity), m_parts(parts)
    {
    }

    void add(const view::DisplayItem &item)
    {
        m_style = item.style;
        std::visit([this](const auto &shape) { take(shape); }, item.shape);
    }

private:
    /// A part with the look of the item.
    FieldList &begin(const QString &type)
    {
        FieldList look = drawing::lookOfPiece(m_entity, type);
        std::erase_if(look, [](const drawing::Field &field) {
            return field.code == 62 || field.code == 420 || field.code == 430 || field.code == 39;
        });
        if (m_style.colour.kind == view::Colour::Kind::ByBlock)
            look.push_back({62, qint64(0)});
        else if (m_style.colour.kind == view::Colour::Kind::Index)
            look.push_back({62, qint64(m_style.colour.value)});
        else if (m_style.colour.kind == view::Colour::Kind::True)
            look.push_back({420, qint64(m_style.colour.value)});
        return m_parts.emplace_back(std::move(look));
    }

    static void append(FieldList &part, std::initializer_list<drawing::Field> fields)
    {
        part.insert(part.end(), fields);
    }

    void addLine(const Vec3 &from, const Vec3 &to)
    {
        if (from != to)
            append(begin(u"LINE"_s), {{10, from}, {11, to}});
    }

    void addDot(const Vec3 &at) { append(begin(u"POINT"_s), {{10, at}}); }

    void addArc(const view::ArcSpan &span)
    {
        const double x = span.xAxis.length();
        const double y = span.yAxis.length();
        const bool isCircular =
            std::abs(x - y) <= likeness * x && std::abs(dot(span.xAxis, span.yAxis)) <= likeness * x * y;
        const double start = std::min(span.start, span.start + span.sweep);
        const double sweep = std::abs(span.sweep);
        const Vec3 normal = normalOf(span.xAxis, span.yAxis);
        if (!isCircular) {
            const bool isMajor = x >= y;
            const double shift = isMajor ? 0.0 : std::numbers::pi / 2.0;
            append(begin(u"ELLIPSE"_s), {{10, span.center},
                                         {11, isMajor ? span.xAxis : span.yAxis},
                                         {210, normal},
                                         {40, isMajor ? y / x : x / y},
                                         {41, start - shift},
                                         {42, start - shift + sweep}});
            return;
        }
        const Matrix plane = Matrix::fromExtrusion(normal).inverted();
        const Vec3 along = plane.direction(span.xAxis);
        const double turn = std::atan2(along.y, along.x);
        const bool isWhole = sweep >= 2.0 * std::numbers::pi - likeness;
        FieldList &part = begin(isWhole ? u"CIRCLE"_s : u"ARC"_s);
        append(part, {{10, plane.point(span.center)}, {40, x}, {210, normal}});
        if (!isWhole)
            append(part, {{50, degreesOf(start + turn)}, {51, degreesOf(start + turn + sweep)}});
    }

    void take(const view::Stroke &stroke)
    {
        const view::Curve &curve = stroke.curve;
        if (curve.points.size() == 1)
            addDot(curve.points.front());
        auto arc = curve.arcs.begin();
        for (std::size_t i = 0; i + 1 < curve.points.size(); ++i) {
            if (arc != curve.arcs.end() && arc->segment == i)
                addArc(*arc++);
            else
                addLine(curve.points[i], curve.points[i + 1]);
        }
    }

    void take(const view::Segments &segments)
    {
        for (std::size_t i = 0; i + 1 < segments.ends.size(); i += 2)
            addLine(segments.ends[i], segments.ends[i + 1]);
        for (const Vec3 &dot : segments.dots)
            addDot(dot);
    }

    Vec3 ownNormal() const
    {
        const drawing::Field *field = drawing::findField(m_entity, 210);
        return field ? field->point() : Vec3{0.0, 0.0, 1.0};
    }

    /// Three or four corners are a solid, other areas a filled hatch.
    void take(const view::Fill &fill)
    {
        if (fill.kind != view::FillKind::Area || fill.contours.empty())
            return;
        const view::Curve &first = fill.contours.front();
        const std::size_t corners = first.points.size() - 1;
        const Matrix plane = Matrix::fromExtrusion(ownNormal()).inverted();
        if (fill.contours.size() > 1 || !first.arcs.empty() || corners < 3 || corners > 4)
            return addArea(fill, plane);
        const auto at = [&](std::size_t i) { return plane.point(first.points[std::min(i, corners - 1)]); };
        append(begin(u"SOLID"_s),
               {{10, at(0)}, {11, at(1)}, {12, at(corners == 3 ? 2 : 3)}, {13, at(2)}, {210, ownNormal()}});
    }

    void addArea(const view::Fill &fill, const Matrix &plane)
    {
        FieldList &part = begin(u"HATCH"_s);
        const double elevation = plane.point(fill.contours.front().points.front()).z;
        append(part, {{10, Vec3{0.0, 0.0, elevation}},
                      {210, ownNormal()},
                      {2, u"SOLID"_s},
                      {70, qint64(1)},
                      {71, qint64(0)},
                      {91, qint64(fill.contours.size())}});
        for (const view::Curve &contour : fill.contours)
            addContour(part, contour, plane);
        append(part, {{75, qint64(0)}, {76, qint64(1)}, {98, qint64(0)}});
    }

    static void addContour(FieldList &part, const view::Curve &contour, const Matrix &plane)
    {
        constexpr qint64 isPolyline = 2;
        const std::size_t count = contour.points.size() - 1;
        append(part, {{92, isPolyline | 1}, {72, qint64(!contour.arcs.empty())}, {73, qint64(1)}, {93, qint64(count)}});
        auto arc = contour.arcs.begin();
        for (std::size_t i = 0; i < count; ++i) {
            part.push_back({10, plane.point(contour.points[i]).xy()});
            const bool isArc = arc != contour.arcs.end() && arc->segment == i;
            if (!contour.arcs.empty())
                part.push_back({42, isArc ? std::tan(arc->sweep / 4.0) : 0.0});
            arc += isArc ? 1 : 0;
        }
        part.push_back({97, qint64(0)});
    }

    void take(const std::unique_ptr<view::TextRun> &run)
    {
        const Matrix &map = run->placement;
        const double length = map.xAxis.length();
        const Vec3 normal = normalOf(map.xAxis, map.yAxis);
        const double height = length > 0.0 ? cross(map.xAxis, map.yAxis).length() / length : 0.0;
        if (!(height > 0.0) || run->text.trimmed().isEmpty())
            return;
        const Matrix plane = Matrix::fromExtrusion(normal).inverted();
        const Vec3 along = plane.direction(map.xAxis);
        const double slant = dot(map.xAxis, map.yAxis) / length / height;
        const drawing::Field *style = drawing::findField(m_entity, 7);
        FieldList &part = begin(u"TEXT"_s);
        append(part, {{10, plane.point(map.origin)},
                      {40, height},
                      {1, run->text},
                      {50, degreesOf(std::atan2(along.y, along.x))},
                      {7, style ? style->text() : u"Standard"_s}});
        if (std::abs(length / height - 1.0) > likeness)
            part.push_back({41, length / height});
        if (std::abs(slant) > likeness)
            part.push_back({51, std::atan(slant) / radians});
        part.push_back({210, normal});
    }

    void take(const view::PointMark &mark) { addDot(mark.at); }

    /// The block of an arrow or of a leader's content.
    void take(const std::unique_ptr<view::Reference> &reference)
    {
        const auto block = m_scene.drawing().blocks().get(m_scene.display(reference->block).name);
        const Matrix &map = reference->placement;
        const Vec3 normal = normalOf(map.xAxis, map.yAxis);
        if (!block || map.xAxis.length() == 0.0)
            return;
        const Matrix plane = Matrix::fromExtrusion(normal).inverted();
        const Vec3 along = plane.direction(map.xAxis);
        append(begin(u"INSERT"_s), {{2, block->name},
                                    {10, plane.point(map.point(block->basePoint))},
                                    {41, map.xAxis.length()},
                                    {42, map.yAxis.length()},
                                    {43, map.zAxis.length()},
                                    {50, degreesOf(std::atan2(along.y, along.x))},
                                    {210, normal}});
        for (const view::DisplayItem &item : reference->beside)
            add(item);
    }

    void take(const view::Endless &) {}
    void take(const std::unique_ptr<view::Raster> &) {}

    view::Scene &m_scene;
    const FieldList &m_entity;
    std::vector<FieldList> &m_parts;
    view::Style m_style;
};

bool hasParts(const drawing::TagList &tags, QByteArrayView type)
{
    static const QSet<QByteArray> types = {"MTEXT", "LEADER", "MULTILEADER", "MLINE", "TOLERANCE", "RTEXT"};
    if (type == "HATCH")
        return tags.integer(70) == 0;
    return type.endsWith("DIMENSION") || types.contains(type.toByteArray());
}

} // namespace

std::vector<FieldList> displayedParts(view::Scene &scene, drawing::RecordId entity)
{
    std::vector<FieldList> parts;
    const drawing::TagList tags = scene.drawing().tags(entity);
    if (!hasParts(tags, scene.drawing().typeName(entity)))
        return parts;
    const view::RecordDisplay display = scene.buildAlone(entity);
    if (display.isSkipped || display.isCutShort)
        return parts;
    const FieldList fields = tags.fields();
    PartCollector collector(scene, fields, parts);
    for (const view::DisplayItem &item : display.items)
        collector.add(item);
    return parts;
}

} // namespace host::kernel
