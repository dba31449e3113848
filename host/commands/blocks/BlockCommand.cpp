#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/drawing/editing/RenameLayer.h"
#include "host/drawing/geometry/TransformEntity.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/selection/Wildcard.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Matrix;
using drawing::RecordId;

void listDefinitions(CommandContext &context, const QString &pattern)
{
    int count = 0;
    context.print(Commands::tr("\nDefined blocks."));
    for (const RecordId id : context.drawing().blocks().all()) {
        const drawing::Block block = context.drawing().blocks().read(id);
        if (block.isLayout() || block.isAnonymous() || !drawing::matchesWildcard(block.name, pattern))
            continue;
        context.print(u"\n  \"%1\""_s.arg(block.name));
        ++count;
    }
    context.print(Commands::tr("\n%1 user blocks.").arg(count));
}

/// A name for a definition; empty when there is none, which was told, or when another one is to stay.
Dialogue<QString> askDefinitionName(CommandContext &context)
{
    PromptReply reply = co_await context.text(Commands::tr("Enter block name or [?]: "), {}, u"?"_s);
    while (reply.isKeyword(u"?")) {
        const PromptReply pattern = co_await context.text(Commands::tr("Enter block(s) to list <*>: "), u"*"_s);
        listDefinitions(context, pattern.hasValue() ? pattern.text.trimmed() : u"*"_s);
        reply = co_await context.text(Commands::tr("Enter block name or [?]: "), {}, u"?"_s);
    }
    const QString name = reply.text.trimmed();
    const bool isAnonymous = name.compare(u"*U"_s, Qt::CaseInsensitive) == 0;
    if (!isAnonymous && !drawing::isSymbolName(name, context.drawing().version())) {
        context.fail(Commands::tr("\"%1\" cannot be the name of a block.").arg(name));
        co_return QString();
    }
    const std::optional<drawing::Block> present = context.drawing().blocks().get(name);
    if (present && (present->isExternal() || present->isLayout())) {
        context.fail(Commands::tr("Block \"%1\" cannot be redefined.").arg(name));
        co_return QString();
    }
    if (!present || context.document().variables().integer(u"EXPERT") >= 2)
        co_return name;
    const PromptReply redefine = co_await context.keyword(
        Commands::tr("Block \"%1\" already exists. Redefine it? [Yes/No] <N>: ").arg(name), u"Yes No"_s, u"No"_s);
    const bool isWanted = redefine.hasValue() && redefine.text == u"Yes";
    co_return isWanted ? name : QString();
}

/// Whether one of the entities shows the block, by itself or through others.
bool showsBlock(const drawing::Drawing &drawing, const std::vector<RecordId> &entities, RecordId block)
{
    std::vector<RecordId> waiting = entities;
    QSet<RecordId> seen;
    while (!waiting.empty()) {
        const RecordId entity = waiting.back();
        waiting.pop_back();
        if (!drawing.isType(entity, "INSERT"))
            continue;
        const RecordId shown = drawing.blocks().find(drawing.tags(entity).text(2));
        if (shown == block)
            return true;
        if (!isValid(shown) || seen.contains(shown))
            continue;
        seen.insert(shown);
        const std::vector<RecordId> within = drawing.children(shown);
        waiting.insert(waiting.end(), within.begin(), within.end());
    }
    return false;
}

/// Makes the definition of what was drawn: the user's axes at the base point are those of the block.
void defineBlock(CommandContext &context, const QString &name, const Matrix &axes,
                 const std::vector<RecordId> &entities)
{
    drawing::Drawing &drawing = context.drawing();
    constexpr int hasAttributesFlag = 2;
    const bool hasAttributes = std::ranges::any_of(entities, [&](RecordId id) { return drawing.isType(id, "ATTDEF"); });
    const RecordId existing = drawing.blocks().find(name);
    if (isValid(existing) && showsBlock(drawing, entities, existing))
        return context.fail(Commands::tr("Block \"%1\" would show itself.").arg(name));
    constexpr int anonymousFlag = 1;
    const int flags = (hasAttributes ? hasAttributesFlag : 0) | (name.startsWith(u'*') ? anonymousFlag : 0);
    const RecordId block = drawing.blocks().create(name.startsWith(u'*') ? name.toUpper() : name, {}, flags);
    if (!isValid(block))
        return context.fail(Commands::tr("\"%1\" cannot be the name of a block.").arg(name));
    std::vector<RecordId> copies;
    for (const RecordId id : entities)
        if (const RecordId copy = drawing::copyEntityInto(drawing, id, block); isValid(copy))
            copies.push_back(copy);
    transformAll(context, copies, axes.inverted());
    takeOut(context, entities);
}

// Name, base point and entities, which become the block's and leave the drawing.
CommandTask block(CommandContext &context)
{
    const QString name = co_await askDefinitionName(context);
    if (name.isEmpty())
        co_return;
    Matrix axes = context.document().userAxes();
    PromptReply base;
    do {
        base = co_await context.neededPoint(Commands::tr("Specify insertion base point or [Annotative]: "));
        if (base.isKeyword(u"Annotative")) {
            context.print(Commands::tr("\nBlocks are made without annotation scales."));
            const PromptReply answer =
                co_await context.keyword(Commands::tr("Create annotative block? [Yes/No] <N>: "), u"Yes No"_s, u"No"_s);
        }
    } while (!base.hasValue());
    axes.origin = base.point;
    const PromptReply chosen = co_await context.selection();
    defineBlock(context, name, axes, editable(context, chosen.entities));
}

// The point that the drawing is placed by where it is inserted in others.
CommandTask base(CommandContext &context)
{
    const drawing::Vec3 present = context.document().variables().point(u"INSBASE");
    const QString usual = u"%1,%2,%3"_s.arg(context.shownLength(present.x), context.shownLength(present.y),
                                            context.shownLength(present.z));
    const PromptReply reply = co_await context.point(Commands::tr("Enter base point <%1>: ").arg(usual), {}, {}, usual);
    if (reply.hasValue())
        context.document().variables().setInternally(u"INSBASE", reply.point);
}

// Expressions and files that texts show are read again.
CommandTask updateField(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    const auto found =
        std::ranges::count_if(chosen.entities, [&](RecordId id) { return context.drawing().isType(id, "RTEXT"); });
    context.print(Commands::tr("\n%1 field(s) found\n%1 field(s) updated").arg(found));
    if (found > 0)
        emit context.document().regenerated();
}

} // namespace

std::vector<CommandRow> blockCommands()
{
    constexpr const char *help = "Makes a block of entities";
    return {
        {"-BLOCK", block, help},
        {"BASE", base, "Sets the point that the drawing is inserted by", WhenCancelled::TakeBack, Interrupts::Prompts},
        {"BLOCK", block, help},
        {"UPDATEFIELD", updateField, "Evaluates the expressions of texts anew"}};
}

} // namespace host::kernel
