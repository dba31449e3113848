#include "host/commands/Commands.h"
#include "host/commands/common/UserPlane.h"
#include "host/commands/inquiry/EntityListing.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"
#include "host/kernel/variables/SystemVariables.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Vec3;

void keepDistance(CommandContext &context, double distance)
{
    SystemVariables &variables = context.document().variables();
    if (variables.get(u"DISTANCE"))
        variables.setInternally(u"DISTANCE", distance);
}

/// In the user's coordinate system.
void tellDistance(CommandContext &context, const Vec3 &by)
{
    const double flat = by.xy().length();
    const double angle = std::atan2(by.y, by.x);
    context.print(Commands::tr("\nDistance = %1,  Angle in XY Plane = %2,  Angle from XY Plane = %3")
                      .arg(context.shownLength(by.length()),
                           context.shownAngle(angle < 0.0 ? angle + 2.0 * M_PI : angle),
                           context.shownAngle(std::atan2(by.z, flat))));
    context.print(Commands::tr("\nDelta X = %1,  Delta Y = %2,   Delta Z = %3")
                      .arg(context.shownLength(by.x), context.shownLength(by.y), context.shownLength(by.z)));
    keepDistance(context, by.length());
}

/// Along straight pieces, told after each.
Dialogue<double> askPath(CommandContext &context, Vec3 from)
{
    std::vector<Vec3> points = {from};
    for (;;) {
        const PromptReply next = co_await context.point(
            Commands::tr("Specify next point or [Close/Undo/Total] <Total>: "), {}, points.back(), u"Total"_s);
        const bool isClosing = next.isKeyword(u"Close");
        if (next.hasValue())
            points.push_back(next.point);
        else if (isClosing)
            points.push_back(points.front());
        else if (next.isKeyword(u"Undo") && points.size() > 1)
            points.pop_back();
        double length = 0.0;
        for (std::size_t i = 1; i < points.size(); ++i)
            length += (points[i] - points[i - 1]).length();
        context.print(Commands::tr("\nDistance = %1").arg(context.shownLength(length)));
        if (!next.hasValue() && !next.isKeyword(u"Undo"))
            co_return length;
    }
}

// Two points, or a path through many.
CommandTask distance(CommandContext &context)
{
    const PromptReply first = co_await context.neededPoint(Commands::tr("Specify first point: "));
    const PromptReply second =
        co_await context.neededPoint(Commands::tr("Specify second point or [Multiple points]: "), first.point);
    if (second.hasValue()) {
        const UserPlane plane(context.document());
        tellDistance(context, plane.userFromWorld(second.point) - plane.userFromWorld(first.point));
        co_return;
    }
    const double length = co_await askPath(context, first.point);
    keepDistance(context, length);
}

// A point; it is the last point then.
CommandTask identify(CommandContext &context)
{
    const PromptReply reply = co_await context.neededPoint(Commands::tr("Specify point: "));
    const Vec3 at = UserPlane(context.document()).userFromWorld(reply.point);
    context.print(u"\nX = %1     Y = %2     Z = %3"_s.arg(context.shownLength(at.x), context.shownLength(at.y),
                                                          context.shownLength(at.z)));
}

// Everything that is known of the chosen entities.
CommandTask list(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    for (const drawing::RecordId entity : chosen.entities)
        context.print(entityListing(context, entity));
}

} // namespace

std::vector<CommandRow> inquiryCommands()
{
    return {
        {"DIST", distance, "Tells the distance and angle between points", WhenCancelled::TakeBack, Interrupts::Prompts},
        {"ID", identify, "Tells the coordinates of a point", WhenCancelled::TakeBack, Interrupts::Prompts},
        {"LIST", list, "Tells what is known of entities"}};
}

} // namespace host::kernel
