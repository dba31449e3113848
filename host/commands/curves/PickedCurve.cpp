#include "host/commands/curves/PickedCurve.h"

#include "host/commands/common/EntityEdits.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/SelectionQuery.h"
#include "host/kernel/languages/Texts.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::CurveRecord;
using drawing::EntityCurve;
using drawing::RecordId;
using drawing::Vec3;

bool PickedCurve::isNearStart() const
{
    if (curve.isEndless())
        return true;
    return curve.distanceAt(parameter) <= curve.length() / 2.0;
}

Vec3 userNormal(const CommandContext &context)
{
    return const_cast<CommandContext &>(context).document().userAxes().zAxis;
}

std::optional<PickedCurve> curvePickedAt(CommandContext &context, RecordId entity, const Vec3 &point)
{
    std::optional<EntityCurve> curve = EntityCurve::ofEntity(context.drawing(), entity);
    if (!curve)
        return {};
    const std::optional<double> exact = curve->parameterAt(point);
    const double parameter = exact ? *exact : curve->closestProjected(point, userNormal(context));
    return PickedCurve{entity, std::move(*curve), parameter};
}

std::optional<PickedCurve> pickedCurve(CommandContext &context, const PromptReply &reply, const QString &verb)
{
    if (reply.entities.empty())
        return {};
    const RecordId entity = reply.entities.front();
    if (isOnLayerOf(lockedLayers(context.drawing()), context.drawing(), entity)) {
        context.print(Commands::tr("\nThat object is on a locked layer."));
        return {};
    }
    std::optional<PickedCurve> picked = curvePickedAt(context, entity, reply.point);
    if (!picked)
        context.print(Commands::tr("\nCannot %1 this object.").arg(verb));
    return picked;
}

Dialogue<CurveAnswer> askCurve(CommandContext &context, QString prompt, QString verb)
{
    for (;;) {
        const PromptReply reply = co_await context.entity(prompt);
        if (reply.kind == ReplyKind::Keyword || (reply.entities.empty() && !reply.isMiss))
            co_return CurveAnswer{{}, reply};
        std::optional<PickedCurve> picked = pickedCurve(context, reply, verb);
        if (picked)
            co_return CurveAnswer{std::move(picked), reply};
    }
}

bool replaceByParts(CommandContext &context, RecordId entity, const std::vector<std::pair<double, double>> &parts,
                    std::vector<RecordId> *made)
{
    drawing::Drawing &drawing = context.drawing();
    std::vector<CurveRecord> records;
    for (const auto &[from, to] : parts) {
        std::optional<CurveRecord> record = curveSection(drawing, entity, from, to);
        if (!record)
            return false;
        records.push_back(std::move(*record));
    }
    if (records.empty()) {
        eraseAll(context, {entity});
        return true;
    }
    const RecordId first = replaceCurve(drawing, entity, records.front());
    for (size_t i = 1; i < records.size(); ++i) {
        const RecordId added = addCurve(drawing, entity, records[i]);
        if (made)
            made->push_back(added);
    }
    if (made && first != entity)
        made->push_back(first);
    return isValid(first);
}

void takeBack(CommandContext &context, const CurveStep &step)
{
    eraseAll(context, step.made);
    bringBack(context, {step.entity});
    context.drawing().setFields(step.entity, step.before);
}

} // namespace host::kernel
