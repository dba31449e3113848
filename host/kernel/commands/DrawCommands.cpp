#include "host/kernel/Document.h"
#include "host/kernel/SystemVariables.h"
#include "host/kernel/commands/CommandContext.h"
#include "host/kernel/commands/Commands.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::FieldList;
using drawing::RecordId;
using drawing::Vec2;
using drawing::Vec3;

RecordId createLine(CommandContext &context, const Vec3 &from, const Vec3 &to)
{
    return context.create({{0, u"LINE"_s}, {10, from}, {11, to}});
}

// First point, next points; Undo takes back one segment, Close goes back to the first point.
CommandTask line(CommandContext &context)
{
    PromptReply reply = co_await context.point(u"Specify first point: "_s);
    if (!reply.hasValue())
        co_return;
    std::vector<Vec3> points = {reply.point};
    std::vector<RecordId> segments;
    for (;;) {
        const QString options = points.size() > 2 ? u"Close Undo"_s : u"Undo"_s;
        const QString shown =
            points.size() > 2 ? u"Specify next point or [Close/Undo]: "_s : u"Specify next point or [Undo]: "_s;
        reply = co_await context.point(shown, options, points.back());
        if (reply.isEmpty())
            co_return;
        if (reply.isKeyword(u"Close")) {
            createLine(context, points.back(), points.front());
            co_return;
        }
        if (reply.isKeyword(u"Undo")) {
            if (segments.empty())
                continue;
            context.drawing().setErased(segments.back(), true);
            segments.pop_back();
            points.pop_back();
            continue;
        }
        segments.push_back(createLine(context, points.back(), reply.point));
        points.push_back(reply.point);
    }
}

// Centre and radius, or Diameter.
CommandTask circle(CommandContext &context)
{
    const PromptReply centre = co_await context.point(u"Specify center point for circle: "_s);
    if (!centre.hasValue())
        co_return;
    PromptReply size =
        co_await context.distance(u"Specify radius of circle or [Diameter]: "_s, u"Diameter"_s, centre.point);
    double radius = size.real;
    if (size.isKeyword(u"Diameter")) {
        size = co_await context.distance(u"Specify diameter of circle: "_s, {}, centre.point);
        radius = size.real / 2.0;
    }
    if (!size.hasValue())
        co_return;
    if (radius <= 0.0) {
        context.print(u"\nValue must be positive and nonzero."_s);
        co_return;
    }
    context.create({{0, u"CIRCLE"_s}, {10, centre.point}, {40, radius}});
}

/// The vertices of a polyline while it is drawn. A bulge belongs to the segment behind its vertex.
struct PolylineVertex
{
    Vec3 point;
    double bulge = 0.0;
    double startWidth = 0.0;
    double endWidth = 0.0;
};

FieldList lightPolyline(const std::vector<PolylineVertex> &vertices, bool isClosed)
{
    FieldList fields = {{0, u"LWPOLYLINE"_s},
                        {90, qint64(vertices.size())},
                        {70, qint64(isClosed ? 1 : 0)},
                        {38, vertices.front().point.z}};
    for (const PolylineVertex &vertex : vertices) {
        fields.push_back({10, vertex.point.xy()});
        fields.push_back({40, vertex.startWidth});
        fields.push_back({41, vertex.endWidth});
        fields.push_back({42, vertex.bulge});
    }
    return fields;
}

void createPolyline(CommandContext &context, const std::vector<PolylineVertex> &vertices, bool isClosed)
{
    if (vertices.size() < 2)
        return;
    if (context.drawing().version() >= drawing::Version::R14) {
        context.create(lightPolyline(vertices, isClosed));
        return;
    }
    std::vector<FieldList> children;
    for (const PolylineVertex &vertex : vertices)
        children.push_back(
            {{0, u"VERTEX"_s}, {10, vertex.point}, {40, vertex.startWidth}, {41, vertex.endWidth}, {42, vertex.bulge}});
    context.createComplex({{0, u"POLYLINE"_s},
                           {66, qint64(1)},
                           {10, Vec3{0.0, 0.0, vertices.front().point.z}},
                           {70, qint64(isClosed ? 1 : 0)}},
                          children);
}

// Points; Width sets both widths from here on, Close and Undo as in LINE. The
// polyline is made when its last point is known.
CommandTask polyline(CommandContext &context)
{
    PromptReply reply = co_await context.point(u"Specify start point: "_s);
    if (!reply.hasValue())
        co_return;
    double width = context.document().variables().real(u"PLINEWID");
    std::vector<PolylineVertex> vertices = {{reply.point}};
    bool isClosed = false;
    for (;;) {
        reply = co_await context.point(u"Specify next point or [Close/Undo/Width]: "_s, u"Close Undo Width"_s,
                                       vertices.back().point);
        if (reply.isEmpty())
            break;
        isClosed = reply.isKeyword(u"Close");
        if (isClosed)
            break;
        if (reply.isKeyword(u"Undo")) {
            if (vertices.size() > 1)
                vertices.pop_back();
        } else if (reply.isKeyword(u"Width")) {
            reply = co_await context.distance(u"Specify width: "_s);
            if (reply.hasValue() && reply.real >= 0.0)
                width = reply.real;
        } else {
            vertices.back().startWidth = vertices.back().endWidth = width;
            vertices.push_back({reply.point});
        }
    }
    if (isClosed)
        vertices.back().startWidth = vertices.back().endWidth = width;
    createPolyline(context, vertices, isClosed);
}

// One point.
CommandTask point(CommandContext &context)
{
    const PromptReply reply = co_await context.point(u"Specify a point: "_s);
    if (reply.hasValue())
        context.create({{0, u"POINT"_s}, {10, reply.point}});
}

// Start point, height, rotation, text.
CommandTask text(CommandContext &context)
{
    SystemVariables &variables = context.document().variables();
    const PromptReply start = co_await context.point(u"Specify start point of text: "_s);
    if (!start.hasValue())
        co_return;
    const QString usual = variables.display(u"TEXTSIZE");
    const PromptReply size = co_await context.distance(u"Specify height <%1>: "_s.arg(usual), {}, start.point, usual);
    const double height = size.hasValue() ? size.real : variables.real(u"TEXTSIZE");
    const PromptReply turn =
        co_await context.orientation(u"Specify rotation angle of text <0>: "_s, {}, start.point, u"0"_s);
    const double rotation = turn.hasValue() ? turn.real : 0.0;
    const PromptReply content = co_await context.text(u"Enter text: "_s);
    if (!content.hasValue() || content.text.isEmpty())
        co_return;
    if (height <= 0.0) {
        context.print(u"\nValue must be positive and nonzero."_s);
        co_return;
    }
    variables.setInternally(u"TEXTSIZE", height);
    context.create({{0, u"TEXT"_s},
                    {10, start.point},
                    {40, height},
                    {1, content.text},
                    {50, rotation * 180.0 / M_PI},
                    {7, variables.text(u"TEXTSTYLE")}});
}

} // namespace

std::vector<CommandRow> drawCommands()
{
    return {{"CIRCLE", circle, "Draws a circle by centre and radius or diameter"},
            {"LINE", line, "Draws straight segments"},
            {"PLINE", polyline, "Draws a polyline of straight segments"},
            {"POINT", point, "Draws a point"},
            {"TEXT", text, "Writes one line of text"},
            {"-TEXT", text, "Writes one line of text"}};
}

} // namespace host::kernel
