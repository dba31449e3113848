#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/KeptValues.h"
#include "host/commands/common/UserPlane.h"
#include "host/commands/draw/PolylineDraft.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Vec2;
using drawing::Vec3;

/// The arcs of a cloud turn by 110 degrees.
constexpr double cloudTurn = 110.0 * M_PI / 180.0;
/// Of a cloud. More of them are a mistyped length.
constexpr double mostArcs = 50'000.0;
/// A turn of the line from here on (30 degrees) is a corner, where an arc ends.
constexpr double cloudCorner = M_PI / 6.0;

struct CloudLook
{
    double shortest = 0.5; ///< arc lengths
    double longest = 0.5;
    bool isCalligraphic = false;

    /// How far apart the ends of an arc are to lie.
    double chord() const { return (shortest + longest) / 2.0 * std::sin(cloudTurn / 2.0) * 2.0 / cloudTurn; }
};

/// What a cloud goes along, in user coordinates.
struct CloudLine
{
    std::vector<Vec2> points;
    double height = 0.0;
    bool isClosed = true;
};

double signedArea(const std::vector<Vec2> &points)
{
    double twice = 0.0;
    for (std::size_t i = 0; i < points.size(); ++i)
        twice += cross(points[i], points[(i + 1) % points.size()]);
    return twice / 2.0;
}

/// Where the line has corners, both ends included.
std::vector<std::size_t> cornersOf(const std::vector<Vec2> &points)
{
    std::vector<std::size_t> corners = {0};
    for (std::size_t i = 1; i + 1 < points.size(); ++i) {
        const Vec2 in = points[i] - points[i - 1];
        const Vec2 out = points[i + 1] - points[i];
        if (std::abs(std::atan2(cross(in, out), dot(in, out))) > cloudCorner)
            corners.push_back(i);
    }
    corners.push_back(points.size() - 1);
    return corners;
}

/// Appends the ends of the arcs along a stretch of the line, but for the last one.
void divideStretch(const std::vector<Vec2> &points, std::size_t first, std::size_t last, double chord,
                   std::vector<Vec2> &ends)
{
    double length = 0.0;
    for (std::size_t i = first; i < last; ++i)
        length += (points[i + 1] - points[i]).length();
    const double count = std::max(1.0, std::round(length / chord));
    double passed = 0.0;
    double next = 0.0;
    for (std::size_t i = first; i < last; ++i) {
        const double step = (points[i + 1] - points[i]).length();
        for (; next < passed + step && ends.size() < mostArcs; next += length / count)
            if (next < length * (1.0 - 0.5 / count))
                ends.push_back(points[i] + (points[i + 1] - points[i]) * ((next - passed) / step));
        passed += step;
    }
}

double lengthOf(const std::vector<Vec2> &points)
{
    double length = 0.0;
    for (std::size_t i = 1; i < points.size(); ++i)
        length += (points[i] - points[i - 1]).length();
    return length;
}

/// Outward arcs along the line, or inward ones.
PolylineDraft cloudAlong(CloudLine line, const CloudLook &look, bool isReversed)
{
    const bool isLeft = signedArea(line.points) >= 0.0;
    if (line.isClosed)
        line.points.push_back(line.points.front());
    std::vector<Vec2> ends;
    const std::vector<std::size_t> corners = cornersOf(line.points);
    for (std::size_t i = 1; i < corners.size(); ++i)
        divideStretch(line.points, corners[i - 1], corners[i], look.chord(), ends);
    if (!line.isClosed)
        ends.push_back(line.points.back());
    PolylineDraft draft = closedDraft(ends, line.height);
    draft.isClosed = line.isClosed;
    const double bulge = std::tan(cloudTurn / 4.0) * (isLeft != isReversed ? 1.0 : -1.0);
    for (PolylineDraft::Vertex &vertex : draft.vertices) {
        vertex.bulge = bulge;
        vertex.endWidth = look.isCalligraphic ? look.chord() * 0.1 : 0.0;
    }
    return draft;
}

Dialogue<bool> createCloud(CommandContext &context, CloudLine line, CloudLook look, bool asksDirection)
{
    const double arcs = lengthOf(line.points) / look.chord();
    if (line.points.size() < 2 || !(arcs > 0.0)) {
        context.fail(Commands::tr("A cloud needs a line along which it goes."));
        co_return false;
    }
    if (!(arcs < mostArcs)) {
        context.fail(Commands::tr("The arcs are too short for this line."));
        co_return false;
    }
    bool isReversed = false;
    if (asksDirection)
        isReversed = co_await askYesNo(context, u"Reverse direction"_s, false);
    createPolyline(context, cloudAlong(std::move(line), look, isReversed));
    context.print(Commands::tr("\nRevision cloud finished."));
    co_return true;
}

/// The line of what an entity looks like; no points for one without.
CloudLine lineOfEntity(CommandContext &context, drawing::RecordId entity)
{
    const UserPlane plane(context.document());
    const drawing::Outline outline = drawing::entityOutline(context.drawing(), entity);
    CloudLine line;
    if (outline.pieces.empty() || outline.isInfinite || outline.isApproximate)
        return line;
    // A wide polyline's outline has its line behind the areas.
    const drawing::Path &path = outline.pieces.back().points;
    for (const Vec3 &point : path) {
        const Vec2 flat = plane.userFromWorld(point).xy();
        if (line.points.empty() || !(line.points.back() == flat))
            line.points.push_back(flat);
    }
    line.height = path.empty() ? 0.0 : plane.userFromWorld(path.front()).z;
    line.isClosed = line.points.size() > 2 && (line.points.back() - line.points.front()).length() < 1e-9;
    if (line.isClosed)
        line.points.pop_back();
    return line;
}

Dialogue<bool> askObject(CommandContext &context, CloudLook look)
{
    const PromptReply picked = co_await context.entity(Commands::tr("Select object: "));
    if (picked.entities.empty())
        co_return false;
    const drawing::RecordId entity = picked.entities.front();
    const bool isDone = co_await createCloud(context, lineOfEntity(context, entity), look, true);
    if (isDone && context.document().variables().integer(u"DELOBJ", 1) != 0)
        eraseAll(context, editable(context, {entity}));
    co_return isDone;
}

Dialogue<bool> askRectangularCloud(CommandContext &context, CloudLook look, const Vec3 corner)
{
    const UserPlane plane(context.document());
    const PromptReply opposite =
        co_await context.neededPoint(Commands::tr("Specify opposite corner: "), corner).asBox();
    const Vec3 from = plane.userFromWorld(corner);
    const Vec2 to = plane.userFromWorld(opposite.point).xy();
    CloudLine line{{from.xy(), {to.x, from.y}, to, {from.x, to.y}}, from.z, true};
    co_return co_await createCloud(context, std::move(line), look, false);
}

/// Points until an empty answer; the cloud closes behind the last.
Dialogue<bool> askPolygonalCloud(CommandContext &context, CloudLook look, const Vec3 start)
{
    const UserPlane plane(context.document());
    std::vector<Vec3> points = {start};
    for (;;) {
        const QString prompt =
            points.size() < 2 ? Commands::tr("Specify next point: ") : Commands::tr("Specify next point or [Undo]: ");
        const PromptReply reply = co_await context.point(prompt, {}, points.back());
        if (reply.isEmpty())
            break;
        if (reply.hasValue())
            points.push_back(reply.point);
        else
            points.pop_back();
    }
    CloudLine line{{}, plane.userFromWorld(start).z, true};
    for (const Vec3 &point : points)
        line.points.push_back(plane.userFromWorld(point).xy());
    co_return co_await createCloud(context, std::move(line), look, true);
}

/// Both lengths. An option in place of the second one means that both are the same: it is given back for the prompt
/// that follows.
Dialogue<PromptReply> askArcLengths(CommandContext &context, CloudLook &look)
{
    constexpr int bits = NoZero | NoNegative;
    look.shortest =
        co_await askUsualLength(context, Commands::tr("Specify minimum length of arc"), look.shortest, bits);
    const QString usual = context.shownLength(look.shortest);
    const PromptReply longest =
        co_await context.distance(Commands::tr("Specify maximum length of arc <%1>: ").arg(usual),
                                  u"Object Rectangular Polygonal Freehand Style"_s, {}, usual, bits);
    look.longest = longest.hasValue() ? std::max(longest.real, look.shortest) : look.shortest;
    keepValue(context, u"REVCLOUDMINARCLENGTH", look.shortest);
    keepValue(context, u"REVCLOUDMAXARCLENGTH", look.longest);
    co_return longest;
}

/// What stands in front of the line: lengths, style, the way to give it. The reply that begins the line.
Dialogue<PromptReply> askCloudStart(CommandContext &context, CloudLook &look, bool &isRectangular)
{
    std::optional<PromptReply> ahead;
    for (;;) {
        const QString prompt =
            isRectangular
                ? Commands::tr("Specify first corner point or [Arc length/Object/Rectangular/Polygonal/Freehand/Style] "
                               "<Object>: ")
                : Commands::tr(
                      "Specify start point or [Arc length/Object/Rectangular/Polygonal/Freehand/Style] <Object>: ");
        PromptReply reply;
        if (ahead)
            reply = *std::exchange(ahead, {});
        else
            reply = co_await context.point(prompt, {}, {}, u"Object"_s);
        if (reply.isKeyword(u"Arc")) {
            const PromptReply next = co_await askArcLengths(context, look);
            if (next.kind == ReplyKind::Keyword)
                ahead = next;
        } else if (reply.isKeyword(u"Style")) {
            const QString style =
                co_await askUsualOption(context, Commands::tr("Select arc style [Normal/Calligraphy]"),
                                        look.isCalligraphic ? u"Calligraphy"_s : u"Normal"_s);
            look.isCalligraphic = style == u"Calligraphy";
        } else if (reply.isKeyword(u"Rectangular") || reply.isKeyword(u"Polygonal") || reply.isKeyword(u"Freehand")) {
            isRectangular = reply.isKeyword(u"Rectangular");
        } else {
            co_return reply;
        }
    }
}

// Lengths and style of the arcs, then what they go along: a rectangle, a polygon or an entity.
CommandTask revisionCloud(CommandContext &context)
{
    constexpr qint32 rectangular = 1;
    const SystemVariables &variables = context.document().variables();
    CloudLook look;
    look.shortest = std::max(variables.real(u"REVCLOUDMINARCLENGTH", 0.5), 1e-9);
    look.longest = std::max(variables.real(u"REVCLOUDMAXARCLENGTH", look.shortest), look.shortest);
    bool isRectangular = variables.integer(u"REVCLOUDCREATEMODE", rectangular) == rectangular;
    const PromptReply start = co_await askCloudStart(context, look, isRectangular);
    if (!start.hasValue())
        co_await askObject(context, look);
    else if (isRectangular)
        co_await askRectangularCloud(context, look, start.point);
    else
        co_await askPolygonalCloud(context, look, start.point);
}

} // namespace

std::vector<CommandRow> revisionCloudCommands()
{
    return {{"REVCLOUD", revisionCloud, "Draws a cloud of arcs, or makes one of an entity"}};
}

} // namespace host::kernel
