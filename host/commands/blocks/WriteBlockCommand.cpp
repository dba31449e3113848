#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/OutputFile.h"
#include "host/drawing/editing/CopyBetweenDrawings.h"
#include "host/drawing/file/Save.h"
#include "host/drawing/records/Blocks.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::RecordId;

/// Writes a new drawing under a name; a name ending in .dwg is what the tools call their symbol files. Whether it was
/// written.
bool writeDrawing(CommandContext &context, const std::unique_ptr<drawing::Drawing> &made, const QString &path)
{
    if (!made) {
        context.print(Commands::tr("\nNothing to write."));
        return false;
    }
    const bool isSymbol = path.endsWith(u".dwg"_s, Qt::CaseInsensitive);
    const drawing::SaveResult result = isSymbol ? drawing::saveSymbolCopy(*made, path) : drawing::saveCopy(*made, path);
    context.print(!result    ? u'\n' + result.error
                  : isSymbol ? Commands::tr("\n%1 was written as DXF text.").arg(path)
                             : Commands::tr("\n%1 was written.").arg(path));
    return bool(result);
}

// File name, then a block's name, "*" for the whole drawing, or an empty answer to choose entities and their base
// point. What is chosen and written goes out of the drawing; OOPS brings it back.
CommandTask writeBlock(CommandContext &context)
{
    const PromptReply file = co_await context.text(Commands::tr("Enter name of output file: "));
    if (!file.hasValue() || file.text.trimmed().isEmpty())
        co_return;
    const QString path = drawingPath(file.text);
    const bool isWanted = co_await mayReplaceFile(context, path);
    if (!isWanted)
        co_return;
    const PromptReply name = co_await context.text(
        Commands::tr("Enter name of existing block, [= (same name)/* (whole drawing)] <choose entities>: "));
    const QString typed = name.hasValue() ? name.text.trimmed() : QString();
    if (typed == u"*"_s) {
        writeDrawing(context,
                     drawing::wblock(context.drawing(), context.drawing().entities().inSpace(drawing::Space::Model),
                                     context.document().variables().point(u"INSBASE")),
                     path);
        co_return;
    }
    if (!typed.isEmpty()) {
        const QString wanted = typed == u"="_s ? QFileInfo(path).completeBaseName() : typed;
        const RecordId block = context.drawing().blocks().find(wanted);
        if (isValid(block))
            writeDrawing(context, drawing::wblock(context.drawing(), block), path);
        else
            context.print(Commands::tr("\nBlock \"%1\" not found.").arg(wanted));
        co_return;
    }
    const PromptReply base = co_await context.point(Commands::tr("Specify insertion base point: "));
    const PromptReply chosen = co_await context.selection();
    if (writeDrawing(context, drawing::wblock(context.drawing(), chosen.entities, base.point), path))
        takeOut(context, editable(context, chosen.entities));
}

} // namespace

std::vector<CommandRow> writeBlockCommands()
{
    return {{"-WBLOCK", writeBlock, "Writes a block or entities to a drawing file"},
            {"WBLOCK", writeBlock, "Writes a block or entities to a drawing file"}};
}

} // namespace host::kernel
