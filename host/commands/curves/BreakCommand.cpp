#include "host/commands/Commands.h"
#include "host/commands/curves/PickedCurve.h"
#include "host/kernel/languages/Texts.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::EntityCurve;
using drawing::Vec3;

double parameterNear(CommandContext &context, const EntityCurve &curve, const Vec3 &point)
{
    return curve.parameterAt(point).value_or(curve.closestProjected(point, userNormal(context)));
}

bool goesRound(const EntityCurve &curve)
{
    const auto kind = curve.kind();
    return curve.isClosed() && (kind == EntityCurve::Kind::Circle || kind == EntityCurve::Kind::Ellipse);
}

/// What is left without the part between two parameters. Of closed curves the part goes from the first to the second,
/// counter-clockwise on circles and ellipses and as others run; of open ones the order does not matter.
std::vector<std::pair<double, double>> partsBeside(const EntityCurve &curve, double first, double second)
{
    if (curve.isClosed())
        return {{second, first}};
    const auto [low, high] = std::minmax(first, second);
    const double start = curve.startParameter();
    const double end = curve.endParameter();
    const auto hasExtent = [&](double from, double to) {
        return !std::isfinite(from) || !std::isfinite(to) ||
               std::abs(curve.distanceAt(to) - curve.distanceAt(from)) > curve.tolerance();
    };
    std::vector<std::pair<double, double>> parts;
    if (hasExtent(start, low))
        parts.emplace_back(start, low);
    if (hasExtent(high, end))
        parts.emplace_back(high, end);
    return parts;
}

// A curve, picked at the first break point unless First point is asked for, and the second; @ cuts without a gap.
CommandTask breakCurve(CommandContext &context)
{
    const CurveAnswer answer = co_await askCurve(context, Commands::tr("Select object: "), u"BREAK"_s);
    if (!answer.picked)
        co_return;
    const PickedCurve &picked = *answer.picked;
    double first = picked.parameter;
    PromptReply reply =
        co_await context.neededPoint(Commands::tr("Specify second break point or [First point]: "), answer.reply.point);
    if (!reply.hasValue()) {
        const PromptReply begin = co_await context.neededPoint(Commands::tr("Specify first break point: "));
        first = parameterNear(context, picked.curve, begin.point);
        reply = co_await context.neededPoint(Commands::tr("Specify second break point: "), begin.point);
    }
    const double second = parameterNear(context, picked.curve, reply.point);
    const bool isSame = (picked.curve.point(first) - picked.curve.point(second)).length() <= picked.curve.tolerance();
    if (isSame && goesRound(picked.curve))
        co_return context.fail(Commands::tr("A whole circle or ellipse cannot be broken at one point."));
    if (!replaceByParts(context, picked.entity, partsBeside(picked.curve, first, isSame ? first : second)))
        context.fail(Commands::tr("The object cannot be broken there."));
}

} // namespace

std::vector<CommandRow> breakCommands()
{
    return {{"BREAK", breakCurve, "takes a part out of a curve, or cuts it in two"}};
}

} // namespace host::kernel
