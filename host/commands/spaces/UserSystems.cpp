#include "host/commands/spaces/UserSystems.h"

#include "host/drawing/math/Angles.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/running/CommandContext.h"

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::Matrix;
using drawing::TagList;
using drawing::Vec3;

namespace {

bool isOnModel(CommandContext &context)
{
    return currentSpace(context.drawing()) == drawing::Space::Model;
}

QString headerName(CommandContext &context, QLatin1StringView end)
{
    return (isOnModel(context) ? u"$UCS"_s : u"$PUCS"_s) + end;
}

/// A header that leaves the world's out means it.
void setPoint(CommandContext &context, QLatin1StringView end, const Vec3 &value, const Vec3 &ofWorld)
{
    drawing::HeaderVariables &header = context.drawing().header();
    const QString name = headerName(context, end);
    if (header.get(name) || !(value == ofWorld))
        header.set(name, drawing::Field{10, value});
}

void writeSystem(CommandContext &context, const UserSystem &system)
{
    const Matrix world;
    setPoint(context, "ORG"_L1, system.axes.origin, world.origin);
    setPoint(context, "XDIR"_L1, system.axes.xAxis, world.xAxis);
    setPoint(context, "YDIR"_L1, system.axes.yAxis, world.yAxis);
    drawing::HeaderVariables &header = context.drawing().header();
    const QString name = headerName(context, "NAME"_L1);
    if (header.get(name) || !system.name.isEmpty())
        header.set(name, drawing::Field{2, system.name});
}

std::vector<UserSystem> &formerSystems(CommandContext &context)
{
    CommandMemory &memory = context.document().memory();
    return isOnModel(context) ? memory.formerModelSystems : memory.formerSheetSystems;
}

/// Of an entity with object coordinates: its origin, with the x axis turned by an angle in its plane.
Matrix flatAxes(const TagList &tags, const Vec3 &origin, double angle)
{
    Matrix axes = Matrix::fromExtrusion(tags.point(210, {0.0, 0.0, 1.0})) * Matrix::rotation(angle);
    axes.origin = origin;
    return axes;
}

Vec3 fromObject(const TagList &tags, const Vec3 &point)
{
    return Matrix::fromExtrusion(tags.point(210, {0.0, 0.0, 1.0})).point(point);
}

std::optional<Matrix> towards(const TagList &tags, const Vec3 &from, const Vec3 &to)
{
    return axesAlong(from, to - from, drawing::normalized(tags.point(210, {0.0, 0.0, 1.0})));
}

std::optional<Matrix> axesOfLine(const TagList &tags, const Vec3 &picked)
{
    const Vec3 start = tags.point(10);
    const Vec3 end = tags.point(11);
    const bool isNearStart = (picked - start).length() <= (picked - end).length();
    return isNearStart ? towards(tags, start, end) : towards(tags, end, start);
}

std::optional<Matrix> axesOfCircle(const TagList &tags, const Vec3 &picked)
{
    const Vec3 center = fromObject(tags, tags.point(10));
    const std::optional<Matrix> axes = towards(tags, center, picked);
    return axes ? axes : flatAxes(tags, center, 0.0);
}

std::optional<Matrix> axesOfArc(const TagList &tags, const Vec3 &picked)
{
    const Vec3 center = tags.point(10);
    const auto end = [&](int code) {
        const double angle = tags.real(code) * drawing::radians;
        return fromObject(tags, center + Vec3{std::cos(angle), std::sin(angle), 0.0} * tags.real(40));
    };
    const bool isNearStart = (picked - end(50)).length() <= (picked - end(51)).length();
    return towards(tags, fromObject(tags, center), end(isNearStart ? 50 : 51));
}

std::optional<Matrix> axesOfText(const TagList &tags, const Vec3 &)
{
    return flatAxes(tags, fromObject(tags, tags.point(10)), tags.real(50) * drawing::radians);
}

std::optional<Matrix> axesOfParagraph(const TagList &tags, const Vec3 &)
{
    const Vec3 origin = tags.point(10);
    if (tags.find(11))
        return towards(tags, origin, origin + tags.point(11));
    return flatAxes(tags, origin, tags.real(50) * drawing::radians);
}

std::optional<Matrix> axesOfPoint(const TagList &tags, const Vec3 &)
{
    return flatAxes(tags, tags.point(10), 0.0);
}

std::optional<Matrix> axesOfPolyline(const TagList &tags, const Vec3 &)
{
    const std::vector<Vec3> points = tags.points(10);
    if (points.size() < 2)
        return {};
    const Vec3 height{0.0, 0.0, tags.real(38)};
    return towards(tags, fromObject(tags, points[0] + height), fromObject(tags, points[1] + height));
}

std::optional<Matrix> axesOfSolid(const TagList &tags, const Vec3 &)
{
    return towards(tags, fromObject(tags, tags.point(10)), fromObject(tags, tags.point(11)));
}

std::optional<Matrix> axesOfFace(const TagList &tags, const Vec3 &)
{
    const Vec3 origin = tags.point(10);
    return axesAlong(origin, tags.point(11) - origin, cross(tags.point(11) - origin, tags.point(13) - origin));
}

std::optional<Matrix> axesOfDimension(const TagList &tags, const Vec3 &)
{
    return flatAxes(tags, fromObject(tags, tags.point(11)), -tags.real(51) * drawing::radians);
}

struct EntityAxes
{
    const char *type;
    std::optional<Matrix> (*read)(const TagList &tags, const Vec3 &picked);
};

constexpr EntityAxes entityAxes[] = {
    {"LINE", axesOfLine},   {"CIRCLE", axesOfCircle},       {"ARC", axesOfArc},
    {"TEXT", axesOfText},   {"ATTDEF", axesOfText},         {"INSERT", axesOfText},
    {"SHAPE", axesOfText},  {"MTEXT", axesOfParagraph},     {"POINT", axesOfPoint},
    {"SOLID", axesOfSolid}, {"LWPOLYLINE", axesOfPolyline}, {"TRACE", axesOfSolid},
    {"3DFACE", axesOfFace}, {"DIMENSION", axesOfDimension},
};

/// An old polyline has its points in records of their own.
std::optional<Matrix> axesOfVertices(const drawing::Drawing &drawing, drawing::RecordId entity)
{
    const TagList tags = drawing.tags(entity);
    std::vector<Vec3> points;
    for (const drawing::RecordId vertex : drawing.children(entity)) {
        points.push_back(drawing.tags(vertex).point(10));
        if (points.size() == 2)
            return towards(tags, fromObject(tags, points[0]), fromObject(tags, points[1]));
    }
    return {};
}

} // namespace

UserSystem currentSystem(CommandContext &context)
{
    return {context.document().userAxes(), context.drawing().header().text(headerName(context, "NAME"_L1))};
}

void useSystem(CommandContext &context, const UserSystem &system)
{
    constexpr std::size_t most = 10;
    std::vector<UserSystem> &former = formerSystems(context);
    if (former.size() == most)
        former.erase(former.begin());
    former.push_back(currentSystem(context));
    writeSystem(context, system);
}

bool usePreviousSystem(CommandContext &context)
{
    std::vector<UserSystem> &former = formerSystems(context);
    if (former.empty())
        return false;
    writeSystem(context, former.back());
    former.pop_back();
    return true;
}

UserSystem namedSystem(const drawing::Drawing &drawing, drawing::RecordId entry)
{
    const TagList tags = drawing.tags(entry);
    UserSystem system{.axes = {}, .name = tags.text(2)};
    system.axes.origin = tags.point(10);
    system.axes.xAxis = drawing::normalized(tags.point(11, {1.0, 0.0, 0.0}));
    system.axes.yAxis = drawing::normalized(tags.point(12, {0.0, 1.0, 0.0}));
    system.axes.zAxis = cross(system.axes.xAxis, system.axes.yAxis);
    return system;
}

QString systemTitle(const UserSystem &system)
{
    if (!system.name.isEmpty())
        return u'"' + system.name + u'"';
    return system.axes == Matrix() ? u"*WORLD*"_s : u"*NO NAME*"_s;
}

std::optional<Matrix> axesOfEntity(const drawing::Drawing &drawing, drawing::RecordId entity, const Vec3 &picked)
{
    if (drawing.isType(entity, "POLYLINE"))
        return axesOfVertices(drawing, entity);
    for (const EntityAxes &row : entityAxes)
        if (drawing.isType(entity, row.type))
            return row.read(drawing.tags(entity), picked);
    return {};
}

std::optional<Matrix> axesAlong(const Vec3 &origin, const Vec3 &x, const Vec3 &near)
{
    Matrix axes;
    axes.origin = origin;
    axes.xAxis = drawing::normalized(x);
    if (!(axes.xAxis.length() > 0.5))
        return {};
    Vec3 y = cross(near, axes.xAxis);
    // The x axis stands upright on that plane: any other will do.
    if (y.length() < 1e-9)
        y = cross(std::abs(axes.xAxis.y) < 0.9 ? Vec3{0.0, 1.0, 0.0} : Vec3{0.0, 0.0, 1.0}, axes.xAxis);
    axes.yAxis = drawing::normalized(y);
    axes.zAxis = cross(axes.xAxis, axes.yAxis);
    return axes;
}

Matrix orthographicAxes(const QString &option)
{
    struct Row
    {
        QStringView option;
        Vec3 x;
        Vec3 y;
    };
    static constexpr std::array<Row, 5> rows = {{{u"Bottom", {-1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}},
                                                 {u"Front", {1.0, 0.0, 0.0}, {0.0, 0.0, 1.0}},
                                                 {u"BAck", {-1.0, 0.0, 0.0}, {0.0, 0.0, 1.0}},
                                                 {u"Left", {0.0, -1.0, 0.0}, {0.0, 0.0, 1.0}},
                                                 {u"Right", {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}}}};
    Matrix axes;
    for (const Row &row : rows) {
        if (row.option != option)
            continue;
        axes.xAxis = row.x;
        axes.yAxis = row.y;
        axes.zAxis = cross(row.x, row.y);
    }
    return axes;
}

} // namespace host::kernel
