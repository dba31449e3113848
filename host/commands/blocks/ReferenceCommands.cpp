#include "files/qt/Files.h"
#include "host/commands/Commands.h"
#include "host/commands/blocks/AttachedDrawing.h"
#include "host/commands/blocks/InsertPlacement.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/InputFile.h"
#include "host/drawing/dwg/DwgText.h"
#include "host/drawing/editing/ExternalReferences.h"
#include "host/drawing/editing/RenameLayer.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/selection/Wildcard.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::RecordId;

constexpr int externalFlag = 4;
constexpr int overlayFlag = 8;
/// What is typed for a new reference: "file", or "name=file".
struct NamedFile
{
    QString name;
    QString file;
};

NamedFile namedFile(const QString &typed)
{
    const QString file = fileName(typed.section(u'=', typed.contains(u'=') ? 1 : 0));
    const QString name = QString(file).replace(u'\\', u'/');
    return {typed.contains(u'=') ? typed.section(u'=', 0, 0).trimmed() : QFileInfo(name).completeBaseName(), file};
}

void setPath(drawing::Drawing &drawing, RecordId block, const QString &path)
{
    drawing::FieldList fields = drawing.fields(block);
    drawing::setField(fields, 1, path);
    drawing.setFields(block, fields);
}

/// Whether the file can be referred to: any kind of drawing, also a DWG file that only other programs read.
bool isDrawing(const QString &path)
{
    constexpr qint64 largestDrawing = 0xFFFFFFFFLL;
    QFile file;
    if (!files::openRegular(file, path, largestDrawing).isEmpty())
        return false;
    return drawing::isDwgFile(path) || bool(drawing::Drawing::open(path));
}

/// Why the drawing can have no reference of that name to the file; empty when it can.
QString obstacleToReference(CommandContext &context, const NamedFile &named, const QString &path)
{
    const QString own = context.document().path();
    const std::optional<drawing::Block> present = context.drawing().blocks().get(named.name);
    if (path.isEmpty())
        return Commands::tr("Cannot find file \"%1\".").arg(named.file);
    if (!own.isEmpty() && QFileInfo(path) == QFileInfo(own))
        return Commands::tr("The drawing cannot refer to itself.");
    if (present && !present->isExternal())
        return Commands::tr("The name \"%1\" is a block's already.").arg(named.name);
    if (!drawing::isSymbolName(named.name, context.drawing().version()))
        return Commands::tr("The name \"%1\" cannot be used.").arg(named.name);
    return isDrawing(path) ? QString() : Commands::tr("\"%1\" is no drawing.").arg(path);
}

/// The external reference to the file, made when the drawing has none of its name yet; noRecord when the command
/// failed.
RecordId referenceTo(CommandContext &context, const QString &typed, int flags)
{
    drawing::Blocks &blocks = context.drawing().blocks();
    const NamedFile named = namedFile(typed);
    const QString path = findDrawingFile(context.document(), named.file);
    if (const QString obstacle = obstacleToReference(context, named, path); !obstacle.isEmpty()) {
        context.fail(obstacle);
        return drawing::noRecord;
    }
    context.document().allowReading(path);
    RecordId block = blocks.find(named.name);
    if (isValid(block)) {
        context.print(
            Commands::tr("\nXref \"%1\" has already been defined.\nUsing existing definition.").arg(named.name));
        return block;
    }
    block = blocks.create(named.name, {}, flags);
    setPath(context.drawing(), block, keptPath(context, path));
    context.print(
        Commands::tr("\n%1 Xref \"%2\": %3").arg((flags & overlayFlag) ? u"Overlay"_s : u"Attach"_s, named.name, path));
    loadReference(context, blocks.read(block));
    return block;
}

/// External references whose names match a list of patterns; a sentence when there are none.
std::vector<drawing::Block> matchingReferences(CommandContext &context, const QString &names)
{
    std::vector<drawing::Block> found;
    for (const RecordId id : context.drawing().blocks().all()) {
        const drawing::Block block = context.drawing().blocks().read(id);
        if (block.isExternal() && drawing::matchesWildcard(block.name, names.trimmed()))
            found.push_back(block);
    }
    if (found.empty())
        context.print(Commands::tr("\nNo matching references found."));
    return found;
}

void listReference(CommandContext &context, const drawing::Block &block)
{
    const QString type = (block.flags & overlayFlag) ? u"Overlay"_s : u"Attach"_s;
    context.print(u"\n\"%1\"  %2  %3"_s.arg(block.name, block.externalPath, type));
    if (block.isUnloaded)
        context.print(Commands::tr("  Unloaded"));
}

/// Takes the reference out with all its insertions; not while a block or a locked layer has one.
void detach(CommandContext &context, const drawing::Block &block)
{
    drawing::Drawing &drawing = context.drawing();
    const std::vector<RecordId> inserts = drawing::insertionsOf(drawing, block.name);
    for (const RecordId id : inserts) {
        const RecordId container = drawing.parent(id);
        const bool isInBlock =
            drawing.kind(container) == drawing::RecordKind::Block && !drawing.blocks().read(container).isLayout();
        if (isInBlock)
            return context.print(Commands::tr("\n\"%1\" was not detached: block \"%2\" holds it.")
                                     .arg(block.name, drawing.blocks().name(container)));
    }
    if (editable(context, inserts).size() != inserts.size())
        return context.print(Commands::tr("\n\"%1\" was not detached.").arg(block.name));
    drawing::eraseReference(drawing, block);
    context.print(Commands::tr("\n\"%1\" detached.").arg(block.name));
}

void unload(CommandContext &context, const drawing::Block &block)
{
    context.drawing().blocks().setUnloaded(block.record, true);
    context.print(Commands::tr("\n\"%1\" unloaded.").arg(block.name));
}

void reload(CommandContext &context, const drawing::Block &block)
{
    if (!loadReference(context, block))
        return;
    context.drawing().blocks().setUnloaded(block.record, false);
    // The file may have changed though the drawing has not.
    emit context.document().regenerated();
}

/// An option that does something to the references named.
struct NamesOption
{
    QStringView option;
    const char *prompt;
    const char *usual; ///< the names for an empty answer; null when there must be some
    void (*apply)(CommandContext &context, const drawing::Block &block);
};

constexpr NamesOption namesOptions[] = {
    {u"?", QT_TRANSLATE_NOOP("Commands", "Enter xref name(s) to list <*>: "), "*", listReference},
    {u"Bind", QT_TRANSLATE_NOOP("Commands", "Enter xref name(s) to bind: "), nullptr, bindWithNested},
    {u"Detach", QT_TRANSLATE_NOOP("Commands", "Enter xref name(s) to detach: "), nullptr, detach},
    {u"Unload", QT_TRANSLATE_NOOP("Commands", "Enter xref name(s) to unload: "), nullptr, unload},
    {u"Reload", QT_TRANSLATE_NOOP("Commands", "Enter xref name(s) to reload: "), nullptr, reload},
};

Dialogue<bool> changeNamed(CommandContext &context, const NamesOption &option)
{
    const PromptReply names = co_await context.text(Commands::tr(option.prompt), QLatin1String(option.usual));
    if (!names.hasValue() && !option.usual)
        co_return false;
    for (const drawing::Block &block :
         matchingReferences(context, names.hasValue() ? names.text : QString(QLatin1String(option.usual)))) {
        option.apply(context, block);
        if (context.hasFailed())
            co_return false;
    }
    co_return true;
}

Dialogue<bool> changePaths(CommandContext &context)
{
    const PromptReply names = co_await context.text(Commands::tr("Enter xref name(s) to edit path: "));
    if (!names.hasValue())
        co_return false;
    for (const drawing::Block &block : matchingReferences(context, names.text)) {
        context.print(Commands::tr("\nXref name: %1\nOld path: %2").arg(block.name, block.externalPath));
        const PromptReply path = co_await context.text(Commands::tr("Enter new path: "));
        if (!path.hasValue())
            continue;
        const QString named = fileName(path.text);
        setPath(context.drawing(), block.record, named);
        if (const QString file = findDrawingFile(context.document(), named); !file.isEmpty())
            context.document().allowReading(file);
        if (!block.isUnloaded)
            loadReference(context, context.drawing().blocks().read(block.record));
    }
    co_return true;
}

double factorOf(CommandContext &context, RecordId block)
{
    const QString path = fileOfReference(context, context.drawing().blocks().read(block));
    const drawing::ReadResult source = path.isEmpty() ? drawing::ReadResult{} : drawing::Drawing::open(path);
    return source ? unitFactor(context, *source.drawing) : 1.0;
}

Dialogue<bool> attach(CommandContext &context, int flags)
{
    const PromptReply file = co_await context.text(Commands::tr("Enter name of file to attach: "));
    const RecordId block = file.hasValue() ? referenceTo(context, fileName(file.text), flags) : drawing::noRecord;
    if (!isValid(block))
        co_return false;
    const double factor = factorOf(context, block);
    InsertPlacement placement = co_await askPlacement(context);
    if (context.hasFailed())
        co_return false;
    placement.scale = placement.scale * factor;
    context.create(insertFields(context, context.drawing().blocks().name(block), placement));
    co_return true;
}

// References by their names, or Attach and Overlay: file, insertion point, scales, rotation.
CommandTask reference(CommandContext &context)
{
    const PromptReply option = co_await context.keyword(
        Commands::tr("Enter an option [?/Bind/Detach/Path/Unload/Reload/Overlay/Attach] <Attach>: "), {}, u"Attach"_s);
    const QString chosen = option.hasValue() ? option.text : u"Attach"_s;
    for (const NamesOption &row : namesOptions) {
        if (row.option == chosen) {
            co_await changeNamed(context, row);
            co_return;
        }
    }
    if (chosen == u"Path"_s)
        co_await changePaths(context);
    else
        co_await attach(context, chosen == u"Overlay"_s ? externalFlag | overlayFlag : externalFlag);
}

} // namespace

std::vector<CommandRow> referenceCommands()
{
    return {
        {"-XREF", reference, "Attaches drawing files as external references, and changes, binds and detaches these"},
        {"XREF", reference, "As -XREF; there is no window for it"}};
}

} // namespace host::kernel
