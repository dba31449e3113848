#include "host/commands/common/Movement.h"

#include "host/commands/common/UserPlane.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::Vec3;

Dialogue<Vec3> askDisplacement(CommandContext &context)
{
    const QString zero = context.shownLength(0.0);
    const QString usual = u"%1, %1, %1"_s.arg(zero);
    const UserPlane plane(context.document());
    const PromptReply reply = co_await context.point(Commands::tr("Specify displacement <%1>: ").arg(usual), {},
                                                     plane.worldFromUser({}), usual);
    co_return reply.hasValue() ? plane.displacement(reply.point) : Vec3{};
}

Dialogue<Vec3> askMovement(CommandContext &context, ShapeFrom shape)
{
    const PromptReply from = co_await context.point(
        Commands::tr("Specify base point or [Displacement] <Displacement>: "), {}, {}, u"Displacement"_s);
    if (!from.hasValue())
        co_return co_await askDisplacement(context);
    const PromptReply to =
        co_await context
            .point(Commands::tr("Specify second point or <use first point as displacement>: "), {}, from.point)
            .dragging(shape(from.point));
    co_return to.hasValue() ? to.point - from.point : UserPlane(context.document()).displacement(from.point);
}

} // namespace host::kernel
