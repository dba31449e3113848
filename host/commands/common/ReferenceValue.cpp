#include "host/commands/common/ReferenceValue.h"

#include "host/commands/common/DragShapes.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::Vec3;

Dialogue<double> askReferenceAngle(CommandContext &context, Vec3 base, std::vector<drawing::RecordId> dragged)
{
    const QString zero = context.shownAngle(0.0);
    const PromptReply reference =
        co_await context.orientation(Commands::tr("Specify the reference angle <%1>: ").arg(zero), {}, {}, zero);
    const UserPlane plane(context.document());
    const double from = reference.hasValue() ? reference.real : 0.0;
    PromptReply wanted =
        co_await context.orientation(Commands::tr("Specify the new angle or [Points] <%1>: ").arg(zero), {}, base, zero)
            .dragging(turnedBy(plane, dragged, base, from));
    if (wanted.isKeyword(u"Points")) {
        const PromptReply first = co_await context.neededPoint(Commands::tr("Specify first point: "));
        wanted =
            co_await context.orientation(Commands::tr("Specify second point: "), {}, first.point, {}, NoEmptyAnswer)
                .dragging(turnedBy(plane, dragged, base, from, first.point));
    }
    co_return (wanted.hasValue() ? wanted.real : 0.0) - from;
}

Dialogue<double> askReferenceFactor(CommandContext &context, Vec3 base, std::vector<drawing::RecordId> dragged)
{
    constexpr int bits = NoZero | NoNegative;
    const QString one = context.shownLength(1.0);
    const PromptReply reference =
        co_await context.distance(Commands::tr("Specify reference length <%1>: ").arg(one), {}, {}, one, bits);
    const UserPlane plane(context.document());
    const double from = reference.hasValue() ? reference.real : 1.0;
    PromptReply wanted =
        co_await context.distance(Commands::tr("Specify new length or [Points] <%1>: ").arg(one), {}, base, one, bits)
            .dragging(scaledBy(plane, dragged, base, from));
    if (wanted.isKeyword(u"Points")) {
        const PromptReply first = co_await context.neededPoint(Commands::tr("Specify first point: "));
        wanted =
            co_await context.distance(Commands::tr("Specify second point: "), {}, first.point, {}, bits | NoEmptyAnswer)
                .dragging(scaledBy(plane, dragged, base, from, first.point));
    }
    co_return (wanted.hasValue() ? wanted.real : 1.0) / from;
}

} // namespace host::kernel
