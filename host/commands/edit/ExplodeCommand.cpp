#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/ObjectChoice.h"
#include "host/commands/edit/DisplayedParts.h"
#include "host/drawing/editing/ExplodeEntity.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/view/build/EntityExtents.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::RecordId;
using Entities = std::vector<RecordId>;

/// What was chosen before, else what is chosen now. Programs hand over one selection and go on with their next command.
Dialogue<Entities> askExploded(CommandContext &context)
{
    if (!context.document().impliedSelection().empty()) {
        const PromptReply chosen = co_await context.selection();
        co_return chosen.entities;
    }
    const ObjectChoice chosen =
        co_await askObjects(context, Commands::tr("Select objects: "), {}, ChoiceEnd::FirstOfProgram);
    co_return chosen.entities;
}

void explodeAll(CommandContext &context, const Entities &entities)
{
    drawing::Drawing &drawing = context.drawing();
    constexpr qint64 mostPieces = 1'000'000; // beside as many as there are records
    drawing::WorkBudget work(mostPieces + drawing.idLimit());
    drawing::ExplodeRules rules;
    rules.takesUneven = context.document().variables().integer(u"EXPLMODE", 1) != 0;
    rules.shown = [&context](RecordId id) { return displayedParts(context.document().entityExtents().scene(), id); };
    Entities pieces;
    Entities exploded;
    QStringList told;
    int leftOut = 0;
    for (const RecordId id : entities) {
        const drawing::ExplodeResult result = drawing::explodeEntity(drawing, id, rules, work);
        pieces.insert(pieces.end(), result.pieces.begin(), result.pieces.end());
        leftOut += result.leftOut;
        if (result)
            exploded.push_back(id);
        if (!result && !told.contains(result.refusal))
            told.append(result.refusal);
    }
    eraseAll(context, exploded);
    for (const QString &reason : told)
        context.print(u'\n' + reason);
    if (leftOut > 0)
        context.print(Commands::tr("\n%1 of the pieces could not be made.").arg(leftOut));
    if (!pieces.empty())
        context.document().setPreviousSelection(pieces);
}

// What is chosen, each taken apart by one level; the pieces are the previous selection then.
CommandTask explode(CommandContext &context)
{
    const Entities chosen = co_await askExploded(context);
    explodeAll(context, editable(context, chosen));
}

} // namespace

std::vector<CommandRow> explodeCommands()
{
    return {{"EXPLODE", explode, "Takes blocks, polylines, texts and dimensions apart"}};
}

} // namespace host::kernel
