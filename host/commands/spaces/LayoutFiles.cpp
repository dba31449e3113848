#include "host/commands/spaces/LayoutFiles.h"

#include "host/commands/common/InputFile.h"
#include "host/commands/common/OutputFile.h"
#include "host/drawing/editing/LayoutEdits.h"
#include "host/drawing/editing/SheetMerge.h"
#include "host/drawing/file/Recovery.h"
#include "host/drawing/file/Save.h"
#include "host/drawing/records/Layouts.h"
#include "host/drawing/selection/Wildcard.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

/// Sheets alone: what their viewports show is the model of the drawing that they come into.
constexpr bool withoutModel = false;

std::vector<drawing::LayoutTab> sheetsNamed(const drawing::Drawing &source, const QString &names)
{
    std::vector<drawing::LayoutTab> sheets = drawing::layoutTabs(source);
    std::erase_if(sheets, [&](const drawing::LayoutTab &tab) {
        return tab.isModel() || !drawing::matchesWildcard(tab.name, names);
    });
    return sheets;
}

/// Each by itself, so that the free name of the next is looked for among all.
void addSheets(CommandContext &context, const drawing::Drawing &source, const std::vector<drawing::LayoutTab> &sheets)
{
    drawing::Drawing &target = context.drawing();
    for (const drawing::LayoutTab &sheet : sheets) {
        const bool isTaken = drawing::findLayout(target, sheet.name).has_value();
        const QString name = isTaken ? drawing::freeCopyName(target, sheet.name) : sheet.name;
        const drawing::MergeResult made =
            drawing::mergeSheets(source, {{sheet.name, name}}, target, {.takesModel = withoutModel});
        if (!made)
            return context.fail(Commands::tr("Layout \"%1\": %2.").arg(sheet.name, made.error));
        context.print(Commands::tr("\nLayout \"%1\" created.").arg(name));
        if (made.skipped > 0)
            context.print(Commands::tr(" %1 of its entities could not be taken over.").arg(made.skipped));
    }
}

} // namespace

Dialogue<bool> takeLayoutsFromFile(CommandContext &context)
{
    const PromptReply file = co_await context.text(Commands::tr("Enter template file name: "));
    if (!file.hasValue())
        co_return false;
    const QString path = findDrawingFile(context.document(), fileName(file.text));
    if (path.isEmpty()) {
        context.fail(Commands::tr("Cannot find file \"%1\".").arg(file.text.trimmed()));
        co_return false;
    }
    const drawing::ReadResult source = openSource(context, path);
    if (!source) {
        context.fail(drawing::openingError(path, source));
        co_return false;
    }
    const PromptReply names = co_await context.text(Commands::tr("Enter layout name(s): "));
    const QString pattern = names.hasValue() ? names.text.trimmed() : QString();
    const std::vector<drawing::LayoutTab> sheets = sheetsNamed(*source.drawing, pattern);
    if (sheets.empty())
        context.fail(Commands::tr("Layout \"%1\" not found in %2.").arg(pattern, path));
    else
        addSheets(context, *source.drawing, sheets);
    co_return !context.hasFailed();
}

Dialogue<bool> saveLayoutToFile(CommandContext &context, drawing::LayoutTab layout)
{
    const PromptReply file = co_await context.text(Commands::tr("Enter file name to save layout to: "));
    if (!file.hasValue() || file.text.trimmed().isEmpty())
        co_return false;
    const QString path = drawingPath(file.text);
    const bool isWanted = co_await mayReplaceFile(context, path);
    if (!isWanted)
        co_return false;
    const std::unique_ptr<drawing::Drawing> made = drawing::newDrawingLike(context.drawing());
    // The sheet that the new drawing has already makes place for the one to save.
    const bool isRenamed = drawing::renameSheet(*made, made->layouts().paperName(), u"_"_s);
    const drawing::MergeRules rules{.takesEmptySheet = isRenamed, .takesModel = withoutModel};
    const drawing::MergeResult merged =
        drawing::mergeSheets(context.drawing(), {{layout.name, layout.name}}, *made, rules);
    if (!merged) {
        context.fail(Commands::tr("Layout \"%1\": %2.").arg(layout.name, merged.error));
        co_return false;
    }
    if (const drawing::SaveResult saved = drawing::saveCopy(*made, path); !saved)
        context.fail(saved.error);
    else
        context.print(Commands::tr("\n%1 was written.").arg(path));
    co_return !context.hasFailed();
}

} // namespace host::kernel
