#include "host/commands/Commands.h"
#include "host/commands/common/KeptValues.h"
#include "host/commands/common/UserPlane.h"
#include "host/commands/draw/CurveEntity.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Vec2;
using drawing::Vec3;

/// Four corners become an entity of the user's plane, at the height of the first one.
void createFlatFace(CommandContext &context, const QString &type, const std::array<Vec3, 4> &corners)
{
    const UserPlane plane(context.document());
    drawing::FieldList fields = {{0, type}};
    const double height = plane.userFromWorld(corners[0]).z;
    for (int i = 0; i < 4; ++i) {
        const Vec3 user = plane.userFromWorld(corners[static_cast<std::size_t>(i)]);
        fields.push_back({10 + i, plane.objectFromUser({user.x, user.y, height})});
    }
    context.create(plane.placed(std::move(fields)));
}

// Four points, the third and fourth across from the first and second; then more of these, until an empty answer for a
// third one.
CommandTask solid(CommandContext &context)
{
    const PromptReply first = co_await context.neededPoint(Commands::tr("Specify first point: "));
    const PromptReply second = co_await context.neededPoint(Commands::tr("Specify second point: "), first.point);
    std::array<Vec3, 4> corners = {first.point, second.point};
    for (;;) {
        const PromptReply third = co_await context.point(Commands::tr("Specify third point: "), {}, corners[1]);
        if (!third.hasValue())
            co_return;
        const PromptReply fourth =
            co_await context.point(Commands::tr("Specify fourth point or <exit>: "), {}, third.point);
        corners[2] = third.point;
        corners[3] = fourth.hasValue() ? fourth.point : third.point;
        createFlatFace(context, u"SOLID"_s, corners);
        corners = {corners[2], corners[3]};
    }
}

/// The corners of a wide line at a point: at right angles to its end, or halfway between two stretches.
std::pair<Vec2, Vec2> traceCorners(const std::vector<Vec2> &points, std::size_t i, double width)
{
    const auto leftOf = [&](std::size_t stretch) {
        const Vec2 along = points[stretch + 1] - points[stretch];
        return turnedLeft(along) * (1.0 / along.length());
    };
    const std::size_t last = points.size() - 1;
    const Vec2 before = leftOf(i == 0 ? 0 : i - 1);
    const Vec2 behind = leftOf(i == last ? last - 1 : i);
    const Vec2 sum = before + behind;
    // Straight back there is no corner.
    const double square = dot(sum, sum) / 2.0;
    const Vec2 aside = square > 1e-9 ? sum * (width / 2.0 / square) : before * (width / 2.0);
    return {points[i] - aside, points[i] + aside};
}

void createTraces(CommandContext &context, const std::vector<Vec2> &points, double height, double width)
{
    const UserPlane plane(context.document());
    const auto world = [&](Vec2 point) { return plane.worldFromUser({point.x, point.y, height}); };
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        const auto [right, left] = traceCorners(points, i, width);
        const auto [nextRight, nextLeft] = traceCorners(points, i + 1, width);
        createFlatFace(context, u"TRACE"_s, {world(right), world(left), world(nextRight), world(nextLeft)});
    }
}

// A width and points, until an empty answer; the corners are known only then.
CommandTask trace(CommandContext &context)
{
    const double width = co_await askUsualLength(context, Commands::tr("Specify trace width"),
                                                 context.document().variables().real(u"TRACEWID", 0.05));
    keepValue(context, u"TRACEWID", width);
    PromptReply reply = co_await context.neededPoint(Commands::tr("Specify start point: "));
    const UserPlane plane(context.document());
    const double height = plane.userFromWorld(reply.point).z;
    std::vector<Vec2> points = {plane.userFromWorld(reply.point).xy()};
    for (;;) {
        reply = co_await context.point(Commands::tr("Specify next point: "), {}, reply.point);
        if (!reply.hasValue())
            break;
        const Vec2 next = plane.userFromWorld(reply.point).xy();
        if ((next - points.back()).length() > 0.0)
            points.push_back(next);
    }
    createTraces(context, points, height, width);
}

/// A corner of a face, and whether the edge that starts there shows.
struct FaceCorner
{
    Vec3 point;
    bool hidesEdge = false;
};
/// Nothing for an empty answer.
using MaybeCorner = std::optional<FaceCorner>;

Dialogue<MaybeCorner> askFaceCorner(CommandContext &context, const QString prompt, std::optional<Vec3> base,
                                    bool isNeeded)
{
    FaceCorner corner;
    for (;;) {
        const PromptReply reply =
            co_await context.point(prompt, u"Invisible"_s, base, {}, isNeeded ? NoEmptyAnswer : 0);
        if (reply.isEmpty())
            co_return std::nullopt;
        if (reply.hasValue()) {
            corner.point = reply.point;
            co_return corner;
        }
        corner.hidesEdge = true;
    }
}

void createSpaceFace(CommandContext &context, const std::array<FaceCorner, 4> &corners)
{
    drawing::FieldList fields = {{0, u"3DFACE"_s}};
    qint64 hidden = 0;
    for (int i = 0; i < 4; ++i) {
        const FaceCorner &corner = corners[static_cast<std::size_t>(i)];
        fields.push_back({10 + i, corner.point});
        hidden |= corner.hidesEdge ? qint64(1) << i : 0;
    }
    if (hidden != 0)
        fields.push_back({70, hidden});
    context.create(fields);
}

// Four points around; then more third and fourth ones, until an empty answer for a third one. "Invisible" in front of a
// point hides the edge that starts there.
CommandTask face(CommandContext &context)
{
    const MaybeCorner first =
        co_await askFaceCorner(context, Commands::tr("Specify first point or [Invisible]: "), {}, true);
    const MaybeCorner second =
        co_await askFaceCorner(context, Commands::tr("Specify second point or [Invisible]: "), first->point, true);
    std::array<FaceCorner, 4> corners = {*first, *second};
    for (;;) {
        const MaybeCorner third = co_await askFaceCorner(
            context, Commands::tr("Specify third point or [Invisible] <exit>: "), corners[1].point, false);
        if (!third)
            co_return;
        const MaybeCorner fourth = co_await askFaceCorner(
            context, Commands::tr("Specify fourth point or [Invisible] <create three-sided face>: "), third->point,
            false);
        corners[2] = *third;
        corners[3] = fourth.value_or(FaceCorner{third->point, third->hidesEdge});
        createSpaceFace(context, corners);
        corners = {corners[2], corners[3]};
    }
}

// Points in space; Undo takes back one segment, Close goes back to the first point.
CommandTask spacePolyline(CommandContext &context)
{
    PromptReply reply = co_await context.neededPoint(Commands::tr("Specify start point of polyline: "));
    drawing::Path path = {reply.point};
    bool isClosed = false;
    for (;;) {
        const QString shown = path.size() > 2 ? Commands::tr("Specify endpoint of line or [Close/Undo]: ")
                                              : Commands::tr("Specify endpoint of line or [Undo]: ");
        reply = co_await context.point(shown, {}, path.back());
        if (reply.isEmpty())
            break;
        if (reply.isKeyword(u"Close")) {
            isClosed = true;
            break;
        }
        if (reply.hasValue())
            path.push_back(reply.point);
        else if (path.size() > 1)
            path.pop_back();
        else
            context.print(Commands::tr("\nAll segments already undone."));
    }
    createSpacePolyline(context, path, isClosed);
}

} // namespace

std::vector<CommandRow> faceCommands()
{
    return {{"3DFACE", face, "Draws faces in space", WhenCancelled::KeepDone},
            {"3DPOLY", spacePolyline, "Draws a polyline in space"},
            {"SOLID", solid, "Draws filled areas with three or four corners", WhenCancelled::KeepDone},
            {"TRACE", trace, "Draws wide lines"}};
}

} // namespace host::kernel
