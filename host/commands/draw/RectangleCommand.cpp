#include "host/commands/Commands.h"
#include "host/commands/common/CircleGeometry.h"
#include "host/commands/common/KeptValues.h"
#include "host/commands/common/UserPlane.h"
#include "host/commands/draw/PolylineDraft.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Vec2;
using drawing::Vec3;

/// What rectangles look like, until the command ends.
struct RectangleLook
{
    double before = 0.0; ///< cut off a corner's first and second edge
    double behind = 0.0;
    bool isRound = false; ///< the corners are arcs, not straight
    std::optional<double> elevation;
    double thickness = 0.0;
    double width = 0.0;
    double rotation = 0.0; ///< of its first edge, radians

    /// What the four corners lack.
    double lostArea() const { return isRound ? (4.0 - M_PI) * before * before : 2.0 * before * behind; }
};

/// From its first corner: along the first edge and to its left; either may be negative.
using RectangleSize = Vec2;

Dialogue<bool> askCorners(CommandContext &context, RectangleLook &look, bool isRound)
{
    look.isRound = isRound;
    if (isRound) {
        look.before =
            co_await askUsualLength(context, Commands::tr("Specify fillet radius for rectangles"), look.before);
        look.behind = look.before;
        co_return true;
    }
    look.before =
        co_await askUsualLength(context, Commands::tr("Specify first chamfer distance for rectangles"), look.before);
    const double usual = look.before;
    look.behind =
        co_await askUsualLength(context, Commands::tr("Specify second chamfer distance for rectangles"), usual);
    co_return true;
}

Dialogue<Vec3> askFirstCorner(CommandContext &context, RectangleLook &look)
{
    for (;;) {
        const PromptReply reply = co_await context.neededPoint(
            Commands::tr("Specify first corner point or [Chamfer/Elevation/Fillet/Thickness/Width]: "));
        if (reply.isKeyword(u"Chamfer") || reply.isKeyword(u"Fillet"))
            co_await askCorners(context, look, reply.isKeyword(u"Fillet"));
        else if (reply.isKeyword(u"Elevation"))
            look.elevation = co_await askUsualLength(context, Commands::tr("Specify the elevation for rectangles"),
                                                     look.elevation.value_or(0.0), 0);
        else if (reply.isKeyword(u"Thickness"))
            look.thickness =
                co_await askUsualLength(context, Commands::tr("Specify thickness for rectangles"), look.thickness, 0);
        else if (reply.isKeyword(u"Width"))
            look.width =
                co_await askUsualLength(context, Commands::tr("Specify line width for rectangles"), look.width);
        else
            co_return reply.point;
    }
}

Dialogue<double> askSide(CommandContext &context, const QString prompt)
{
    const double side = co_await askUsualLength(context, prompt, 10.0, NoZero | NoNegative);
    co_return side;
}

/// The size that has an area, with one of the sides given.
Dialogue<RectangleSize> askArea(CommandContext &context, const RectangleLook &look)
{
    const double area = co_await askUsualLength(context, Commands::tr("Enter area of rectangle in current units"),
                                                100.0, NoZero | NoNegative);
    const QString by = co_await askUsualOption(
        context, Commands::tr("Calculate rectangle dimensions based on [Length/Width]"), u"Length"_s);
    const QString sidePrompt =
        by == u"Width" ? Commands::tr("Enter rectangle width") : Commands::tr("Enter rectangle length");
    const double side = co_await askUsualLength(context, sidePrompt, 10.0, NoZero | NoNegative);
    const double other = (area + look.lostArea()) / side;
    co_return by == u"Width" ? RectangleSize{other, side} : RectangleSize{side, other};
}

Dialogue<bool> askRectangleRotation(CommandContext &context, RectangleLook &look, const Vec3 corner)
{
    const QString usual = context.shownAngle(look.rotation);
    PromptReply angle = co_await context.orientation(
        Commands::tr("Specify rotation angle or [Pick points] <%1>: ").arg(usual), {}, corner, usual);
    if (angle.isKeyword(u"Pick")) {
        const PromptReply first = co_await context.neededPoint(Commands::tr("Specify first point: "));
        angle =
            co_await context.orientation(Commands::tr("Specify second point: "), {}, first.point, {}, NoEmptyAnswer);
    }
    if (angle.hasValue())
        look.rotation = angle.real;
    co_return true;
}

/// The size that leads to the other corner. Typed sides leave to a point on which side of the first corner it lies.
Dialogue<RectangleSize> askSize(CommandContext &context, RectangleLook &look, const Vec3 corner)
{
    const UserPlane plane(context.document());
    std::optional<RectangleSize> typed;
    for (;;) {
        const PromptReply reply =
            co_await context
                .neededPoint(Commands::tr("Specify other corner point or [Area/Dimensions/Rotation]: "), corner)
                .asBox();
        if (reply.isKeyword(u"Area"))
            co_return co_await askArea(context, look);
        if (reply.isKeyword(u"Dimensions")) {
            const double length = co_await askSide(context, Commands::tr("Specify length for rectangles"));
            const double width = co_await askSide(context, Commands::tr("Specify width for rectangles"));
            typed = RectangleSize{length, width};
            continue;
        }
        if (reply.isKeyword(u"Rotation")) {
            co_await askRectangleRotation(context, look, corner);
            continue;
        }
        const Vec2 diagonal = (plane.userFromWorld(reply.point) - plane.userFromWorld(corner)).xy();
        const RectangleSize size = turnedRound(diagonal, {}, -look.rotation);
        if (!typed)
            co_return size;
        co_return RectangleSize{std::copysign(typed->x, size.x), std::copysign(typed->y, size.y)};
    }
}

PolylineDraft rectangleDraft(const RectangleLook &look, Vec2 corner, RectangleSize size)
{
    const Vec2 along = polar(look.rotation, 1.0);
    const Vec2 across = turnedLeft(along);
    const std::vector<Vec2> corners = {corner, corner + along * size.x, corner + along * size.x + across * size.y,
                                       corner + across * size.y};
    PolylineDraft plain = closedDraft(corners, 0.0, look.width);
    plain.thickness = look.thickness;
    const double shorter = std::min(std::abs(size.x), std::abs(size.y));
    // Corners that do not fit stay as they are.
    if (!(look.before + look.behind > 0.0) || look.before + look.behind > shorter)
        return plain;
    PolylineDraft draft = plain;
    draft.vertices.clear();
    const double bulge = look.isRound ? std::copysign(bulgeOfAngle(M_PI / 2.0), size.x * size.y) : 0.0;
    for (std::size_t i = 0; i < 4; ++i) {
        const auto toward = [&](std::size_t other, double by) {
            const Vec2 edge = corners[other] - corners[i];
            return corners[i] + edge * (by / edge.length());
        };
        draft.vertices.push_back({toward((i + 3) % 4, look.before), bulge, look.width, look.width});
        const Vec2 behind = toward((i + 1) % 4, look.behind);
        if ((behind - draft.last()).length() > 0.0)
            draft.vertices.push_back({behind, 0.0, look.width, look.width});
    }
    return draft;
}

// Two corners; sides, area or rotation instead of the second one; in front of the first what the edges look like.
CommandTask rectangle(CommandContext &context)
{
    const SystemVariables &variables = context.document().variables();
    RectangleLook look;
    look.width = variables.real(u"PLINEWID");
    look.thickness = variables.real(u"THICKNESS");
    const Vec3 corner = co_await askFirstCorner(context, look);
    const RectangleSize size = co_await askSize(context, look, corner);
    if (size.x == 0.0 || size.y == 0.0) {
        context.fail(Commands::tr("The corners of a rectangle lie neither above nor beside each other."));
        co_return;
    }
    const Vec3 user = UserPlane(context.document()).userFromWorld(corner);
    PolylineDraft draft = rectangleDraft(look, user.xy(), size);
    draft.height = look.elevation.value_or(user.z);
    createPolyline(context, draft);
}

} // namespace

std::vector<CommandRow> rectangleCommands()
{
    return {{"RECTANG", rectangle, "Draws a rectangle by corners, sides or area"},
            {"RECTANGLE", rectangle, "Draws a rectangle by corners, sides or area"}};
}

} // namespace host::kernel
