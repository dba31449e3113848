#include "host/commands/Commands.h"
#include "host/commands/blocks/AttributeDefinitions.h"
#include "host/commands/blocks/InsertPlacement.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/InputFile.h"
#include "host/drawing/editing/CopyBetweenDrawings.h"
#include "host/drawing/geometry/TransformEntity.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/selection/Wildcard.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::FieldList;
using drawing::Matrix;
using drawing::RecordId;

/// What an answer to INSERT means.
struct Wanted
{
    QString block;         ///< the definition's name; empty when there is none, which was told
    bool isPieces = false; ///< "*name": its entities instead of a reference
    bool isNew = false;    ///< made for this command
};

/// Makes the drawing file at `path` a block, as `name`. Empty when all went well, else the reason.
QString readBlock(CommandContext &context, const QString &name, const QString &path)
{
    const drawing::ReadResult source = openSource(context, path);
    if (!source)
        return u"%1: %2"_s.arg(path, source.error.message());
    const drawing::CopyResult made = drawing::insertAsBlock(*source.drawing, context.drawing(), name);
    if (made.converted > 0)
        context.print(
            Commands::tr("\n%1 of its entities became ones that a drawing of this version has.").arg(made.converted));
    if (made.skipped > 0)
        context.print(Commands::tr("\n%1 of its entities could not be taken over.").arg(made.skipped));
    return made.error;
}

/// "name", "file" or "name=file", where a file makes or redefines the block; a star in front of it for its entities.
Wanted wantedBlock(CommandContext &context, QString answer)
{
    Wanted wanted;
    const drawing::Blocks &blocks = context.drawing().blocks();
    wanted.isPieces = answer.startsWith(u'*') && !isValid(blocks.find(answer));
    if (wanted.isPieces)
        answer.remove(0, 1);
    const bool namesFile = answer.contains(u'=');
    if (!namesFile && isValid(blocks.find(answer))) {
        wanted.block = answer;
        return wanted;
    }
    const QString name = namesFile ? answer.section(u'=', 0, 0).trimmed() : QFileInfo(answer).completeBaseName();
    const QString file = namesFile ? fileName(answer.section(u'=', 1)) : answer;
    const QString path = findDrawingFile(context.document(), file);
    wanted.isNew = !isValid(blocks.find(name));
    const QString problem =
        path.isEmpty() ? Commands::tr("Cannot find block or file \"%1\".").arg(file) : readBlock(context, name, path);
    if (problem.isEmpty())
        wanted.block = name;
    else
        context.fail(problem);
    return wanted;
}

void listBlocks(CommandContext &context, const QString &pattern)
{
    context.print(Commands::tr("\nDefined blocks."));
    for (const RecordId id : context.drawing().blocks().all()) {
        const drawing::Block block = context.drawing().blocks().read(id);
        if (!block.isLayout() && !block.isAnonymous() && drawing::matchesWildcard(block.name, pattern))
            context.print(u"\n  \"%1\""_s.arg(block.name));
    }
}

void createInsert(CommandContext &context, const QString &block, const InsertPlacement &placement,
                  const std::vector<AttributeDefinition> &attributes)
{
    FieldList head = insertFields(context, block, placement);
    if (attributes.empty()) {
        context.create(head);
        return;
    }
    head.push_back({66, qint64(1)});
    const Matrix toDrawing = placementMatrix(context, context.drawing().blocks().get(block)->basePoint, placement);
    std::vector<FieldList> children;
    children.reserve(attributes.size());
    for (const AttributeDefinition &definition : attributes)
        children.push_back(attributeFor(definition, toDrawing));
    context.createComplex(head, children);
}

/// Puts copies of the block's entities into the drawing.
void createPieces(CommandContext &context, const Wanted &wanted, const InsertPlacement &placement)
{
    drawing::Drawing &drawing = context.drawing();
    const drawing::Block block = *drawing.blocks().get(wanted.block);
    std::vector<RecordId> pieces;
    for (const RecordId entity : drawing.children(block.record))
        pieces.push_back(copyToCurrent(drawing, entity));
    transformAll(context, pieces, placementMatrix(context, block.basePoint, placement));
    if (wanted.isNew)
        drawing.blocks().erase(block.record);
}

/// Asks which block, and lists those that there are.
Dialogue<Wanted> askBlock(CommandContext &context)
{
    const QString last = context.document().variables().text(u"INSNAME");
    // GCC 12 destroys a temporary twice that one branch of a condition makes within a co_await.
    const QString prompt = last.isEmpty() ? Commands::tr("Enter block name or [?]: ")
                                          : Commands::tr("Enter block name or [?] <%1>: ").arg(last);
    PromptReply name = co_await context.text(prompt, last, u"?"_s);
    while (name.isKeyword(u"?")) {
        const PromptReply pattern = co_await context.text(Commands::tr("Enter block(s) to list <*>: "), u"*"_s);
        listBlocks(context, pattern.hasValue() ? pattern.text.trimmed() : u"*"_s);
        name = co_await context.text(prompt, last, u"?"_s);
    }
    co_return wantedBlock(context, name.hasValue() ? fileName(name.text) : last);
}

/// Asks for the values of the attributes that are asked for (ATTREQ 0: none, their defaults count).
Dialogue<std::vector<AttributeDefinition>> askAttributes(CommandContext &context, const QString &block)
{
    std::vector<AttributeDefinition> attributes = attributeDefinitions(context.drawing(), block);
    const bool areAsked = context.document().variables().integer(u"ATTREQ") != 0;
    for (AttributeDefinition &definition : attributes) {
        if (!areAsked || !definition.isAsked)
            continue;
        const QString asked = definition.prompt.isEmpty() ? definition.tag : definition.prompt;
        const PromptReply value = co_await context.text(u"%1 <%2>: "_s.arg(asked, definition.value), definition.value);
        if (value.hasValue())
            definition.value = value.text;
    }
    co_return attributes;
}

// Name, insertion point, scales, rotation, then the values of the attributes.
CommandTask insert(CommandContext &context)
{
    const Wanted wanted = co_await askBlock(context);
    if (wanted.block.isEmpty())
        co_return;
    context.document().variables().setInternally(u"INSNAME", wanted.block);
    const InsertScales scales = wanted.isPieces ? InsertScales::One : InsertScales::OfEachAxis;
    const InsertPlacement placement = co_await askPlacement(context, scales, wanted.block);
    if (context.hasFailed())
        co_return;
    if (wanted.isPieces) {
        createPieces(context, wanted, placement);
        co_return;
    }
    const std::vector<AttributeDefinition> attributes = co_await askAttributes(context, wanted.block);
    createInsert(context, wanted.block, placement, attributes);
}

} // namespace

std::vector<CommandRow> insertCommands()
{
    // Programs read a block from a file by "name=file" and an Esc at the next prompt: the block stays.
    constexpr const char *help = "Inserts a block or drawing file, as a reference or in pieces";
    return {{"-INSERT", insert, help, WhenCancelled::KeepDone}, {"INSERT", insert, help, WhenCancelled::KeepDone}};
}

} // namespace host::kernel
