#include "host/drawing/TransformEntity.h"
#include "host/kernel/commands/CommandContext.h"
#include "host/kernel/commands/Commands.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Matrix;
using drawing::RecordId;
using drawing::Vec3;

void transformAll(CommandContext &context, const std::vector<RecordId> &entities, const Matrix &matrix)
{
    int refused = 0;
    for (RecordId id : entities)
        refused += drawing::transformEntity(context.drawing(), id, matrix) ? 0 : 1;
    if (refused > 0)
        context.print(u"\n%1 could not be changed."_s.arg(refused));
}

CommandTask erase(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    for (RecordId id : chosen.entities)
        context.drawing().setErased(id, true);
}

// Base point and second point; an empty second point takes the first one as the displacement.
CommandTask move(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    if (chosen.entities.empty())
        co_return;
    const PromptReply from = co_await context.point(u"Specify base point or displacement: "_s);
    if (!from.hasValue())
        co_return;
    const PromptReply to = co_await context.point(u"Specify second point of displacement: "_s, {}, from.point);
    transformAll(context, chosen.entities, Matrix::translation(to.hasValue() ? to.point - from.point : from.point));
}

void copyBy(CommandContext &context, const std::vector<RecordId> &entities, const Vec3 &by)
{
    std::vector<RecordId> copies;
    for (RecordId id : entities)
        if (const RecordId copy = drawing::copyEntity(context.drawing(), id); isValid(copy))
            copies.push_back(copy);
    if (copies.size() != entities.size())
        context.print(u"\n%1 could not be copied."_s.arg(entities.size() - copies.size()));
    transformAll(context, copies, Matrix::translation(by));
}

// As MOVE, with more copies until an empty answer.
CommandTask copy(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    if (chosen.entities.empty())
        co_return;
    const PromptReply from = co_await context.point(u"Specify base point or displacement: "_s);
    if (!from.hasValue())
        co_return;
    PromptReply to = co_await context.point(u"Specify second point of displacement: "_s, {}, from.point);
    if (!to.hasValue()) {
        copyBy(context, chosen.entities, from.point);
        co_return;
    }
    while (to.hasValue()) {
        copyBy(context, chosen.entities, to.point - from.point);
        to = co_await context.point(u"Specify second point: "_s, {}, from.point);
    }
}

CommandTask rotate(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    if (chosen.entities.empty())
        co_return;
    const PromptReply centre = co_await context.point(u"Specify base point: "_s);
    if (!centre.hasValue())
        co_return;
    const PromptReply turn = co_await context.orientation(u"Specify rotation angle: "_s, {}, centre.point);
    if (turn.hasValue())
        transformAll(context, chosen.entities, Matrix::rotation(turn.real, centre.point));
}

CommandTask scale(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    if (chosen.entities.empty())
        co_return;
    const PromptReply centre = co_await context.point(u"Specify base point: "_s);
    if (!centre.hasValue())
        co_return;
    const PromptReply factor = co_await context.distance(u"Specify scale factor: "_s, {}, centre.point);
    if (!factor.hasValue())
        co_return;
    if (factor.real <= 0.0)
        context.print(u"\nValue must be positive and nonzero."_s);
    else
        transformAll(context, chosen.entities, Matrix::scaling({factor.real, factor.real, factor.real}, centre.point));
}

} // namespace

std::vector<CommandRow> editCommands()
{
    return {{"COPY", copy, "Copies entities"},
            {"ERASE", erase, "Takes entities out of the drawing"},
            {"MOVE", move, "Moves entities"},
            {"ROTATE", rotate, "Turns entities round a point"},
            {"SCALE", scale, "Makes entities larger or smaller"}};
}

} // namespace host::kernel
