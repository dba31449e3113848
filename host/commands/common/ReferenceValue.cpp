#include "host/commands/common/ReferenceValue.h"

#include "host/commands/common/DragShapes.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::Vec3;

Dialogue<double> askReferenceAngle(CommandContext &context, Vec3 base, std::vector<drawing::RecordId> dragged)
{
    const QString zero = context.shownAngle(0.0);
    const PromptReply reference =
        co_await context.orientation(u"Specify the reference angle <%1>: "_s.arg(zero), {}, {}, zero);
    const UserPlane plane(context.document());
    const double from = reference.hasValue() ? reference.real : 0.0;
    PromptReply wanted =
        co_await context.orientation(u"Specify the new angle or [Points] <%1>: "_s.arg(zero), {}, base, zero)
            .dragging(turnedBy(plane, dragged, base, from));
    if (wanted.isKeyword(u"Points")) {
        const PromptReply first = co_await context.neededPoint(u"Specify first point: "_s);
        wanted = co_await context.orientation(u"Specify second point: "_s, {}, first.point, {}, NoEmptyAnswer)
                     .dragging(turnedBy(plane, dragged, base, from, first.point));
    }
    co_return (wanted.hasValue() ? wanted.real : 0.0) - from;
}

Dialogue<double> askReferenceFactor(CommandContext &context, Vec3 base, std::vector<drawing::RecordId> dragged)
{
    constexpr int bits = NoZero | NoNegative;
    const QString one = context.shownLength(1.0);
    const PromptReply reference =
        co_await context.distance(u"Specify reference length <%1>: "_s.arg(one), {}, {}, one, bits);
    const UserPlane plane(context.document());
    const double from = reference.hasValue() ? reference.real : 1.0;
    PromptReply wanted =
        co_await context.distance(u"Specify new length or [Points] <%1>: "_s.arg(one), {}, base, one, bits)
            .dragging(scaledBy(plane, dragged, base, from));
    if (wanted.isKeyword(u"Points")) {
        const PromptReply first = co_await context.neededPoint(u"Specify first point: "_s);
        wanted = co_await context.distance(u"Specify second point: "_s, {}, first.point, {}, bits | NoEmptyAnswer)
                     .dragging(scaledBy(plane, dragged, base, from, first.point));
    }
    co_return (wanted.hasValue() ? wanted.real : 1.0) / from;
}

} // namespace host::kernel
