#include "host/commands/Commands.h"
#include "host/commands/common/KeptValues.h"
#include "host/commands/curves/PickedCurve.h"
#include "host/drawing/math/Angles.h"
#include "host/kernel/languages/Texts.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::EntityCurve;

/// How the new length is given.
struct LengthChange
{
    enum class Kind
    {
        Delta,
        DeltaAngle,
        Percent,
        Total,
        TotalAngle,
        Dynamic ///< by a point
    };
    Kind kind = Kind::Delta;
    double amount = 0.0; ///< units, radians or percent
};

bool isArc(const EntityCurve &curve)
{
    return curve.kind() == EntityCurve::Kind::Arc;
}

void printMeasure(CommandContext &context, const EntityCurve &curve)
{
    QString text = Commands::tr("\nCurrent length: %1").arg(context.shownLength(curve.length()));
    if (isArc(curve))
        text +=
            Commands::tr(", included angle: %1").arg(context.shownAngle(curve.endParameter() - curve.startParameter()));
    context.print(text);
}

/// The length that a curve comes to have. Nothing for an angle of what is no arc.
std::optional<double> newLength(const EntityCurve &curve, const LengthChange &change)
{
    const double now = curve.length();
    const bool isAngle = change.kind == LengthChange::Kind::DeltaAngle || change.kind == LengthChange::Kind::TotalAngle;
    if (isAngle && !isArc(curve))
        return {};
    const double radius = isAngle ? curve.pieces().front().xAxis().length() : 1.0;
    switch (change.kind) {
    case LengthChange::Kind::Delta:
    case LengthChange::Kind::DeltaAngle:
        return now + change.amount * radius;
    case LengthChange::Kind::Percent:
        return now * change.amount / 100.0;
    default:
        return change.amount * radius;
    }
}

/// The range of parameters with that length, changed at one end; nothing when the curve cannot have it.
std::optional<std::pair<double, double>> rangeOfLength(const EntityCurve &curve, double length, bool atStart)
{
    const double now = curve.length();
    const double start = curve.startParameter();
    const double end = curve.endParameter();
    const bool isTooLong = length > now && curve.kind() == EntityCurve::Kind::Spline;
    if (!(length > 0.0) || isTooLong || !std::isfinite(length))
        return {};
    const auto within = [&](double distance) { return curve.parameterAtDistance(distance).value_or(end); };
    double from = start;
    double to = end;
    if (atStart)
        from = length < now ? within(now - length) : curve.pieces().front().parameterAfter(start, now - length);
    else
        to = length < now ? within(length) : curve.pieces().back().parameterAfter(end, length - now);
    const bool isRound = isArc(curve) || curve.kind() == EntityCurve::Kind::Ellipse;
    if (isRound && to - from >= drawing::wholeTurn)
        return {};
    return std::pair(from, to);
}

/// Where the curve, extended at that end, comes nearest to a point.
std::pair<double, double> rangeToPoint(CommandContext &context, const PickedCurve &picked, const drawing::Vec3 &point)
{
    const bool atStart = picked.isNearStart();
    const double at = picked.curve.closestProjected(point, userNormal(context),
                                                    atStart ? drawing::Extension::Start : drawing::Extension::End);
    return atStart ? std::pair(at, picked.curve.endParameter()) : std::pair(picked.curve.startParameter(), at);
}

bool mayBeLengthened(CommandContext &context, const EntityCurve &curve)
{
    const bool isPossible = !curve.isClosed() && !curve.isEndless();
    if (!isPossible)
        context.print(Commands::tr("\nThis object cannot be lengthened."));
    return isPossible;
}

/// Picks curves to be changed until an empty answer. Undo takes the last one back.
Dialogue<bool> changeLengths(CommandContext &context, LengthChange change)
{
    std::vector<CurveStep> steps;
    for (;;) {
        const CurveAnswer answer =
            co_await askCurve(context, Commands::tr("Select an object to change or [Undo]: "), u"LENGTHEN"_s);
        if (answer.reply.isKeyword(u"Undo") && !steps.empty()) {
            takeBack(context, steps.back());
            steps.pop_back();
        }
        if (!answer.picked && answer.reply.kind != ReplyKind::Keyword)
            co_return true;
        if (!answer.picked || !mayBeLengthened(context, answer.picked->curve))
            continue;
        const PickedCurve &picked = *answer.picked;
        std::optional<std::pair<double, double>> range;
        if (change.kind == LengthChange::Kind::Dynamic) {
            const PromptReply end = co_await context.neededPoint(Commands::tr("Specify new endpoint: "));
            range = rangeToPoint(context, picked, end.point);
        } else if (const std::optional<double> length = newLength(picked.curve, change)) {
            range = rangeOfLength(picked.curve, *length, picked.isNearStart());
        }
        CurveStep step{picked.entity, context.drawing().fields(picked.entity), {}};
        if (range && replaceByParts(context, picked.entity, {*range}, &step.made))
            steps.push_back(std::move(step));
        else
            context.print(Commands::tr("\nThe object cannot have that length."));
    }
}

Dialogue<LengthChange> askDelta(CommandContext &context)
{
    const QString zero = context.shownLength(0.0);
    const PromptReply reply =
        co_await context.distance(Commands::tr("Enter delta length or [Angle] <%1>: ").arg(zero), {}, {}, zero);
    if (!reply.isKeyword(u"Angle"))
        co_return LengthChange{LengthChange::Kind::Delta, reply.hasValue() ? reply.real : 0.0};
    const QString none = context.shownAngle(0.0);
    const PromptReply angle =
        co_await context.angle(Commands::tr("Enter delta angle <%1>: ").arg(none), {}, {}, none, SignedAngle);
    co_return LengthChange{LengthChange::Kind::DeltaAngle, angle.hasValue() ? angle.real : 0.0};
}

Dialogue<LengthChange> askTotal(CommandContext &context)
{
    constexpr int bits = NoZero | NoNegative;
    const QString one = context.shownLength(1.0);
    const PromptReply reply =
        co_await context.distance(Commands::tr("Specify total length or [Angle] <%1>: ").arg(one), {}, {}, one, bits);
    if (!reply.isKeyword(u"Angle"))
        co_return LengthChange{LengthChange::Kind::Total, reply.hasValue() ? reply.real : 1.0};
    const double usual = 57.0 * drawing::radians;
    const QString shown = context.shownAngle(usual);
    const PromptReply angle =
        co_await context.angle(Commands::tr("Specify total angle <%1>: ").arg(shown), {}, {}, shown, NoZero);
    co_return LengthChange{LengthChange::Kind::TotalAngle, angle.hasValue() ? angle.real : usual};
}

Dialogue<LengthChange> askPercent(CommandContext &context)
{
    const PromptReply reply = co_await context.real(Commands::tr("Enter percentage length <100.0000>: "), {},
                                                    u"100.0000"_s, NoZero | NoNegative);
    co_return LengthChange{LengthChange::Kind::Percent, reply.hasValue() ? reply.real : 100.0};
}

// Measures what is picked until a way to change is chosen; then changes what is picked, at the end nearer to the pick.
CommandTask lengthen(CommandContext &context)
{
    for (;;) {
        const CurveAnswer answer = co_await askCurve(
            context, Commands::tr("Select an object to measure or [DElta/Percent/Total/DYnamic]: "), u"LENGTHEN"_s);
        if (answer.picked) {
            if (!answer.picked->curve.isEndless())
                printMeasure(context, answer.picked->curve);
            continue;
        }
        LengthChange change{LengthChange::Kind::Dynamic, 0.0};
        if (answer.reply.kind != ReplyKind::Keyword)
            co_return;
        if (answer.reply.isKeyword(u"DElta"))
            change = co_await askDelta(context);
        else if (answer.reply.isKeyword(u"Percent"))
            change = co_await askPercent(context);
        else if (answer.reply.isKeyword(u"Total"))
            change = co_await askTotal(context);
        co_await changeLengths(context, change);
        co_return;
    }
}

} // namespace

std::vector<CommandRow> lengthenCommands()
{
    return {{"LENGTHEN", lengthen, "measures curves and makes them longer or shorter", WhenCancelled::KeepDone}};
}

} // namespace host::kernel
