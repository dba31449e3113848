#include "host/commands/Commands.h"
#include "host/commands/common/UserPlane.h"
#include "host/commands/draw/CurveEntity.h"
#include "host/drawing/math/Curves.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/Units.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Vec2;
using drawing::Vec3;

constexpr double wholeEllipse = 2.0 * M_PI;

/// An ellipse in the user's plane, or a part of one. Parameters count from the first axis.
struct UserEllipse
{
    Vec3 centre;      ///< user coordinates
    Vec2 axis;        ///< from the centre to the end of the axis that was given first
    double ratio = 1; ///< of the other axis to it; above 1 when that is the longer one
    double start = 0.0;
    double end = wholeEllipse;
};
/// Nothing where there is no such ellipse.
using MaybeEllipse = std::optional<UserEllipse>;

/// The longest turn of a circle that still shows as an ellipse.
constexpr double largestTurn = 89.4 * M_PI / 180.0;

Dialogue<MaybeEllipse> askOtherAxis(CommandContext &context, UserEllipse ellipse)
{
    const UserPlane plane(context.document());
    const Vec3 base = plane.worldFromUser(ellipse.centre);
    const PromptReply other =
        co_await context.distance(Commands::tr("Specify distance to other axis or [Rotation]: "), {}, base, {},
                                  NoEmptyAnswer | NoZero | NoNegative | FlatDistance);
    const double length = ellipse.axis.length();
    if (other.isKeyword(u"Rotation")) {
        const PromptReply turn =
            co_await context.angle(Commands::tr("Specify rotation around major axis: "), {}, base, {}, NoEmptyAnswer);
        const double tilt = std::abs(std::remainder(turn.real, M_PI));
        if (!(tilt <= largestTurn)) {
            context.fail(Commands::tr("An ellipse is turned by 0 to 89.4 degrees."));
            co_return std::nullopt;
        }
        ellipse.ratio = std::cos(tilt);
        co_return ellipse;
    }
    ellipse.ratio = other.real / length;
    co_return ellipse;
}

/// Centre and axes; `first` is the answer to the first question.
Dialogue<MaybeEllipse> askAxes(CommandContext &context, PromptReply first)
{
    const UserPlane plane(context.document());
    UserEllipse ellipse;
    if (first.isKeyword(u"Center")) {
        const PromptReply centre = co_await context.neededPoint(Commands::tr("Specify center of ellipse: "));
        const PromptReply end = co_await context.neededPoint(Commands::tr("Specify endpoint of axis: "), centre.point);
        ellipse.centre = plane.userFromWorld(centre.point);
        ellipse.axis = (plane.userFromWorld(end.point) - ellipse.centre).xy();
    } else {
        const PromptReply other =
            co_await context.neededPoint(Commands::tr("Specify other endpoint of axis: "), first.point);
        const Vec3 from = plane.userFromWorld(first.point);
        const Vec2 middle = (from.xy() + plane.userFromWorld(other.point).xy()) * 0.5;
        ellipse.centre = {middle.x, middle.y, from.z};
        ellipse.axis = from.xy() - middle;
    }
    if (!(ellipse.axis.length() > 0.0)) {
        context.fail(Commands::tr("The endpoints of the axis are one point."));
        co_return std::nullopt;
    }
    co_return co_await askOtherAxis(context, ellipse);
}

/// Where the part of an ellipse begins or ends.
struct EllipseEnd
{
    double parameter = 0.0;
    bool isIncluded = false; ///< counts from the start
};

double parameterOfDirection(const UserEllipse &ellipse, double angle)
{
    return drawing::ellipseParameter(angle, ellipse.ratio);
}

/// Asks for an end, by angle or by parameter, whichever was chosen last. Typed ones count from the first axis.
Dialogue<EllipseEnd> askEllipseEnd(CommandContext &context, const UserEllipse &ellipse, bool isEnd, bool &byParameter)
{
    const Vec3 base = UserPlane(context.document()).worldFromUser(ellipse.centre);
    const double axisAngle = std::atan2(ellipse.axis.y, ellipse.axis.x);
    for (;;) {
        const QString prompt = isEnd ? (byParameter ? Commands::tr("Specify end parameter or [Angle/Included angle]: ")
                                                    : Commands::tr("Specify end angle or [Parameter/Included angle]: "))
                               : byParameter ? Commands::tr("Specify start parameter or [Angle]: ")
                                             : Commands::tr("Specify start angle or [Parameter]: ");
        const PromptReply reply = co_await context.angle(prompt, {}, base, {}, NoEmptyAnswer);
        if (reply.isKeyword(u"Included")) {
            const PromptReply angle = co_await context.angle(Commands::tr("Specify included angle for arc <180>: "), {},
                                                             base, u"180"_s, SignedAngle | NoZero);
            co_return EllipseEnd{angle.hasValue() ? angle.real : M_PI, true};
        }
        if (reply.kind == ReplyKind::Keyword) {
            byParameter = reply.isKeyword(u"Parameter");
            continue;
        }
        const double angle = reply.isShown ? reply.real - axisAngle : reply.real;
        co_return EllipseEnd{byParameter ? angle : parameterOfDirection(ellipse, angle)};
    }
}

Dialogue<UserEllipse> askEllipseEnds(CommandContext &context, UserEllipse ellipse)
{
    bool byParameter = false;
    const EllipseEnd start = co_await askEllipseEnd(context, ellipse, false, byParameter);
    const EllipseEnd end = co_await askEllipseEnd(context, ellipse, true, byParameter);
    ellipse.start = start.parameter;
    ellipse.end = end.parameter;
    if (end.isIncluded) {
        // The angle from where the arc begins, seen from the centre.
        const double from = std::atan2(ellipse.ratio * std::sin(start.parameter), std::cos(start.parameter));
        ellipse.end =
            byParameter ? start.parameter + end.parameter : parameterOfDirection(ellipse, from + end.parameter);
        if (end.parameter < 0.0)
            std::swap(ellipse.start, ellipse.end);
    }
    co_return ellipse;
}

void createEllipse(CommandContext &context, UserEllipse ellipse)
{
    // Records have the longer axis.
    if (ellipse.ratio > 1.0) {
        ellipse.axis = turnedLeft(ellipse.axis) * ellipse.ratio;
        ellipse.ratio = 1.0 / ellipse.ratio;
        if (ellipse.end - ellipse.start != wholeEllipse) {
            ellipse.start -= M_PI / 2.0;
            ellipse.end -= M_PI / 2.0;
        }
    }
    if (ellipse.end - ellipse.start != wholeEllipse) {
        ellipse.start = normalizedAngle(ellipse.start);
        ellipse.end = normalizedAngle(ellipse.end);
        if (ellipse.end <= ellipse.start)
            ellipse.end += wholeEllipse;
    }
    const UserPlane plane(context.document());
    const Vec3 centre = plane.worldFromUser(ellipse.centre);
    const Vec3 axis = plane.worldFromUser(ellipse.centre + Vec3{ellipse.axis.x, ellipse.axis.y, 0.0}) - centre;
    const Vec3 normal = plane.worldFromUser({0.0, 0.0, 1.0}) - plane.worldFromUser({});
    createCurve(
        context,
        plane.placed(
            {{0, u"ELLIPSE"_s}, {10, centre}, {11, axis}, {40, ellipse.ratio}, {41, ellipse.start}, {42, ellipse.end}}),
        drawing::ellipsePath(centre, axis, normal, ellipse.ratio, ellipse.start, ellipse.end));
}

// The ends of an axis or the centre and one end, then the other axis; of an arc where it begins and ends.
CommandTask ellipse(CommandContext &context)
{
    PromptReply first =
        co_await context.neededPoint(Commands::tr("Specify axis endpoint of ellipse or [Arc/Center]: "));
    const bool isArc = first.isKeyword(u"Arc");
    if (isArc)
        first = co_await context.neededPoint(Commands::tr("Specify axis endpoint of elliptical arc or [Center]: "));
    MaybeEllipse made = co_await askAxes(context, first);
    if (made && isArc)
        made = co_await askEllipseEnds(context, *made);
    if (made)
        createEllipse(context, *made);
}

} // namespace

std::vector<CommandRow> ellipseCommands()
{
    return {{"ELLIPSE", ellipse, "Draws an ellipse or a part of one"}};
}

} // namespace host::kernel
