#include "files/qt/Files.h"
#include "host/commands/Commands.h"
#include "host/commands/blocks/InsertPlacement.h"
#include "host/commands/common/EntityEdits.h"
#include "host/drawing/editing/CopyBetweenDrawings.h"
#include "host/drawing/editing/UnusedNames.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/FileIndexer.h"
#include "host/drawing/selection/Wildcard.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/running/CommandContext.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::RecordId;

constexpr int externalFlag = 4;
constexpr int overlayFlag = 8;
constexpr int resolvedFlag = 32;

void setPath(drawing::Drawing &drawing, RecordId block, const QString &path)
{
    drawing::FieldList fields = drawing.fields(block);
    drawing::setField(fields, 1, path);
    drawing.setFields(block, fields);
}

/// Whether the file can be referred to: any kind of drawing, also one that only other programs read.
bool isDrawing(const QString &path)
{
    constexpr qint64 largestDrawing = 0xFFFFFFFFLL;
    QFile file;
    if (!files::openRegular(file, path, largestDrawing).isEmpty())
        return false;
    const QByteArray start = file.read(64);
    return drawing::isDwg(start) || bool(drawing::Drawing::open(path));
}

/// The external reference to the file, made when the drawing has none of the file's name yet. noRecord, with the reason
/// printed, when there can be none.
RecordId referenceTo(CommandContext &context, const QString &typed, int flags)
{
    drawing::Blocks &blocks = context.drawing().blocks();
    const QString path = context.document().findFile(typed);
    const QString name = QFileInfo(typed).completeBaseName();
    const std::optional<drawing::Block> present = blocks.get(name);
    const QString own = context.document().path();
    if (path.isEmpty()) {
        context.fail(u"Cannot find file \"%1\"."_s.arg(typed));
    } else if (!own.isEmpty() && QFileInfo(path) == QFileInfo(own)) {
        context.fail(u"The drawing cannot refer to itself."_s);
    } else if (!isDrawing(path)) {
        context.print(u"\n\"%1\" is no drawing."_s.arg(path));
    } else if (present && present->isExternal()) {
        return present->record;
    } else if (present) {
        context.fail(u"The name \"%1\" is a block's already."_s.arg(name));
    } else if (const RecordId made = blocks.create(name, {}, flags); isValid(made)) {
        setPath(context.drawing(), made, typed);
        context.document().allowReading(path);
        return made;
    } else {
        context.fail(u"The name \"%1\" cannot be used."_s.arg(name));
    }
    return drawing::noRecord;
}

/// Gives each external reference that the pattern names this path.
void redefinePaths(CommandContext &context, const QString &names, const QString &path)
{
    int count = 0;
    for (const RecordId id : context.drawing().blocks().all()) {
        const drawing::Block block = context.drawing().blocks().read(id);
        if (!block.isExternal() || !drawing::matchesWildcard(block.name, names))
            continue;
        setPath(context.drawing(), id, path);
        ++count;
    }
    if (const QString file = context.document().findFile(path); count > 0 && !file.isEmpty())
        context.document().allowReading(file);
    if (count == 0)
        context.print(u"\nNo matching references found."_s);
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
        context.print(u"\nNo matching references found."_s);
    return found;
}

void listReference(CommandContext &context, const drawing::Block &block)
{
    const QString type = (block.flags & overlayFlag) ? u"Overlay"_s : u"Attach"_s;
    context.print(u"\n\"%1\"  %2  %3"_s.arg(block.name, block.externalPath, type));
}

void setFlags(CommandContext &context, const drawing::Block &block, int flags)
{
    drawing::FieldList fields = context.drawing().fields(block.record);
    drawing::setField(fields, 70, qint64(flags));
    context.drawing().setFields(block.record, fields);
}

/// Makes what the file holds the block, which is an ordinary one then.
void bind(CommandContext &context, const drawing::Block &block)
{
    const QString path = context.document().findNamedFile(block.externalPath);
    if (path.isEmpty())
        return context.fail(u"Cannot find file \"%1\" of reference \"%2\"."_s.arg(block.externalPath, block.name));
    const drawing::ReadResult source = drawing::Drawing::open(path);
    if (!source)
        return context.fail(u"%1: %2"_s.arg(path, source.error.message()));
    const drawing::CopyResult made = drawing::insertAsBlock(*source.drawing, context.drawing(), block.name);
    if (!made)
        return context.fail(made.error);
    setPath(context.drawing(), made.record, {});
    drawing::eraseDependents(context.drawing(), block.name);
    context.print(u"\n\"%1\" is a block of this drawing now."_s.arg(block.name));
    if (made.skipped > 0)
        context.print(u" %1 of its records could not be taken over."_s.arg(made.skipped));
}

/// Takes the reference out with all its insertions; not while a block or a locked layer has one.
void detach(CommandContext &context, const drawing::Block &block)
{
    drawing::Drawing &drawing = context.drawing();
    std::vector<RecordId> inserts;
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id)) {
        if (!drawing.isType(id, "INSERT") || drawing.tags(id).text(2).compare(block.name, Qt::CaseInsensitive) != 0)
            continue;
        const RecordId container = drawing.parent(id);
        const bool isInBlock =
            drawing.kind(container) == drawing::RecordKind::Block && !drawing.blocks().read(container).isLayout();
        if (isInBlock)
            return context.print(u"\n\"%1\" was not detached: block \"%2\" holds it."_s.arg(
                block.name, drawing.blocks().name(container)));
        inserts.push_back(id);
    }
    if (editable(context, inserts).size() != inserts.size())
        return context.print(u"\n\"%1\" was not detached."_s.arg(block.name));
    eraseAll(context, inserts);
    drawing.blocks().erase(block.record);
    drawing::eraseDependents(drawing, block.name);
    context.print(u"\n\"%1\" detached."_s.arg(block.name));
}

void unload(CommandContext &context, const drawing::Block &block)
{
    setFlags(context, block, block.flags & ~resolvedFlag);
    context.print(u"\n\"%1\" unloaded."_s.arg(block.name));
}

void reload(CommandContext &context, const drawing::Block &block)
{
    if (context.document().findNamedFile(block.externalPath).isEmpty())
        return context.print(u"\nCannot find file \"%1\" of reference \"%2\"."_s.arg(block.externalPath, block.name));
    setFlags(context, block, block.flags | resolvedFlag);
    context.print(u"\n\"%1\" reloaded."_s.arg(block.name));
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
    {u"?", "Enter xref name(s) to list <*>: ", "*", listReference},
    {u"Bind", "Enter xref name(s) to bind: ", nullptr, bind},
    {u"Detach", "Enter xref name(s) to detach: ", nullptr, detach},
    {u"Unload", "Enter xref name(s) to unload: ", nullptr, unload},
    {u"Reload", "Enter xref name(s) to reload: ", nullptr, reload},
};

Dialogue<bool> changeNamed(CommandContext &context, const NamesOption &option)
{
    const PromptReply names = co_await context.text(QLatin1String(option.prompt), QLatin1String(option.usual));
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
    const PromptReply names = co_await context.text(u"Enter xref name(s) to edit path: "_s);
    const PromptReply path = co_await context.text(u"Enter new path: "_s);
    if (names.hasValue() && path.hasValue())
        redefinePaths(context, names.text.trimmed(), path.text.trimmed());
    co_return true;
}

Dialogue<bool> attach(CommandContext &context, int flags)
{
    const PromptReply file = co_await context.text(u"Enter name of file to attach: "_s);
    const RecordId block = file.hasValue() ? referenceTo(context, file.text.trimmed(), flags) : drawing::noRecord;
    if (!isValid(block))
        co_return false;
    const InsertPlacement placement = co_await askPlacement(context);
    if (context.hasFailed())
        co_return false;
    context.create(insertFields(context, context.drawing().blocks().name(block), placement));
    context.print(u"\nAttached. This program does not show what the file holds."_s);
    co_return true;
}

// References by their names, or Attach and Overlay: file, insertion point, scales, rotation. What the file holds is not
// shown.
CommandTask reference(CommandContext &context)
{
    const PromptReply option = co_await context.keyword(
        u"Enter an option [?/Bind/Detach/Path/Unload/Reload/Overlay/Attach] <Attach>: "_s, {}, u"Attach"_s);
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
