#include "host/drawing/TransformEntity.h"
#include "host/kernel/Document.h"
#include "host/kernel/SystemVariables.h"
#include "host/kernel/commands/CommandContext.h"
#include "host/kernel/commands/Commands.h"
#include "host/kernel/input/SelectionBuilder.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Matrix;
using drawing::RecordId;
using drawing::Vec3;

/// Whether the command works on what was chosen before it started.
bool takesImplied(SelectionBuilder &chosen, CommandContext &context)
{
    Document &document = context.document();
    if (document.impliedSelection().empty() || document.variables().integer(u"PICKFIRST") == 0)
        return false;
    PromptReply all;
    all.entities = document.impliedSelection();
    chosen.add(all);
    PromptReply end;
    end.kind = ReplyKind::Empty;
    chosen.add(end);
    document.setImpliedSelection({});
    return true;
}

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
    SelectionBuilder chosen(context.document());
    takesImplied(chosen, context);
    while (!chosen.isDone()) {
        const PromptReply reply = co_await context.ask(chosen.request());
        chosen.add(reply);
    }
    context.document().setPreviousSelection(chosen.entities());
    for (RecordId id : chosen.entities())
        context.drawing().setErased(id, true);
}

// Base point and second point; an empty second point takes the first one as the displacement.
CommandTask move(CommandContext &context)
{
    SelectionBuilder chosen(context.document());
    takesImplied(chosen, context);
    while (!chosen.isDone()) {
        const PromptReply reply = co_await context.ask(chosen.request());
        chosen.add(reply);
    }
    if (chosen.entities().empty())
        co_return;
    context.document().setPreviousSelection(chosen.entities());
    const PromptReply from = co_await context.point(u"Specify base point or displacement: "_s);
    if (!from.hasValue())
        co_return;
    const PromptReply to = co_await context.point(u"Specify second point of displacement: "_s, {}, from.point);
    transformAll(context, chosen.entities(), Matrix::translation(to.hasValue() ? to.point - from.point : from.point));
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
    SelectionBuilder chosen(context.document());
    takesImplied(chosen, context);
    while (!chosen.isDone()) {
        const PromptReply reply = co_await context.ask(chosen.request());
        chosen.add(reply);
    }
    if (chosen.entities().empty())
        co_return;
    context.document().setPreviousSelection(chosen.entities());
    const PromptReply from = co_await context.point(u"Specify base point or displacement: "_s);
    if (!from.hasValue())
        co_return;
    PromptReply to = co_await context.point(u"Specify second point of displacement: "_s, {}, from.point);
    if (!to.hasValue()) {
        copyBy(context, chosen.entities(), from.point);
        co_return;
    }
    while (to.hasValue()) {
        copyBy(context, chosen.entities(), to.point - from.point);
        to = co_await context.point(u"Specify second point: "_s, {}, from.point);
    }
}

CommandTask rotate(CommandContext &context)
{
    SelectionBuilder chosen(context.document());
    takesImplied(chosen, context);
    while (!chosen.isDone()) {
        const PromptReply reply = co_await context.ask(chosen.request());
        chosen.add(reply);
    }
    if (chosen.entities().empty())
        co_return;
    context.document().setPreviousSelection(chosen.entities());
    const PromptReply centre = co_await context.point(u"Specify base point: "_s);
    if (!centre.hasValue())
        co_return;
    const PromptReply turn = co_await context.orientation(u"Specify rotation angle: "_s, {}, centre.point);
    if (turn.hasValue())
        transformAll(context, chosen.entities(), Matrix::rotation(turn.real, centre.point));
}

CommandTask scale(CommandContext &context)
{
    SelectionBuilder chosen(context.document());
    takesImplied(chosen, context);
    while (!chosen.isDone()) {
        const PromptReply reply = co_await context.ask(chosen.request());
        chosen.add(reply);
    }
    if (chosen.entities().empty())
        co_return;
    context.document().setPreviousSelection(chosen.entities());
    const PromptReply centre = co_await context.point(u"Specify base point: "_s);
    if (!centre.hasValue())
        co_return;
    const PromptReply factor = co_await context.distance(u"Specify scale factor: "_s, {}, centre.point);
    if (!factor.hasValue())
        co_return;
    if (factor.real <= 0.0)
        context.print(u"\nValue must be positive and nonzero."_s);
    else
        transformAll(context, chosen.entities(),
                     Matrix::scaling({factor.real, factor.real, factor.real}, centre.point));
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
