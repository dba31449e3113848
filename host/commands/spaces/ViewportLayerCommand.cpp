#include "host/commands/Commands.h"
#include "host/commands/spaces/SheetViewports.h"
#include "host/drawing/editing/RenameLayer.h"
#include "host/drawing/records/Layouts.h"
#include "host/drawing/records/Symbols.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/selection/Wildcard.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::RecordId;
using drawing::TableKind;

constexpr qint64 frozenInNewViewports = 2; ///< of a layer's group 70

QStringList matchingNames(CommandContext &context, const QString &patterns)
{
    QStringList names;
    for (const drawing::Layer &layer : drawing::allLayers(context.drawing()))
        if (drawing::matchesWildcard(layer.name, patterns.trimmed()))
            names.append(layer.name);
    if (names.isEmpty())
        context.print(Commands::tr("\nNo matching layer names found."));
    return names;
}

std::vector<RecordId> allSheetViewports(CommandContext &context)
{
    std::vector<RecordId> found;
    for (const drawing::LayoutTab &tab : drawing::layoutTabs(context.drawing())) {
        if (tab.isModel())
            continue;
        const std::vector<RecordId> here = drawing::viewportsOf(context.drawing(), tab);
        found.insert(found.end(), here.begin(), here.end());
    }
    return found;
}

/// The viewport that is worked in; on the sheet the one that stands for the sheet itself.
std::vector<RecordId> viewportInUse(CommandContext &context)
{
    const RecordId inside = currentViewport(context.drawing());
    const std::optional<drawing::LayoutTab> sheet = neededSheet(context);
    const RecordId found = isValid(inside) || !sheet ? inside : drawing::sheetViewport(context.drawing(), *sheet);
    return isValid(found) ? std::vector{found} : std::vector<RecordId>();
}

Dialogue<std::vector<RecordId>> askWhere(CommandContext &context)
{
    const PromptReply where = co_await context.keyword(
        Commands::tr("Enter an option [All/Select/Current/eXcept current] <Current>: "), {}, u"Current"_s);
    if (where.text == u"All"_s)
        co_return allSheetViewports(context);
    if (where.text == u"Select"_s) {
        // They are chosen on the sheet, and the work goes on where it was.
        const RecordId before = currentViewport(context.drawing());
        enterSheet(context);
        const PromptReply chosen = co_await context.selection();
        context.drawing().layouts().setCurrentViewport(before);
        co_return viewportsAmong(context, chosen.entities);
    }
    const std::vector<RecordId> current = viewportInUse(context);
    if (where.text != u"eXcept"_s)
        co_return current;
    std::vector<RecordId> others = allSheetViewports(context);
    std::erase_if(others, [&](RecordId id) { return !current.empty() && id == current.front(); });
    co_return others;
}

bool isFrozenInNew(const drawing::Drawing &drawing, const QString &name)
{
    const RecordId entry = drawing.tables().find(TableKind::Layer, name);
    return isValid(entry) && (drawing.tags(entry).integer(70) & frozenInNewViewports) != 0;
}

enum class Change
{
    Freeze,
    Thaw,
    Reset ///< as new viewports have it
};

void changeIn(CommandContext &context, RecordId viewport, const QStringList &names, Change change)
{
    drawing::Drawing &drawing = context.drawing();
    QStringList toFreeze;
    QSet<QString> thawed;
    for (const QString &name : names) {
        if (change == Change::Freeze || (change == Change::Reset && isFrozenInNew(drawing, name)))
            toFreeze.append(name);
        else
            thawed.insert(name.toCaseFolded());
    }
    QStringList frozen = drawing::layersFrozenIn(drawing, viewport);
    frozen.removeIf([&](const QString &name) { return thawed.contains(name.toCaseFolded()); });
    drawing::setLayersFrozenIn(drawing, viewport, frozen);
    drawing::freezeLayersIn(drawing, viewport, toFreeze);
}

Dialogue<QStringList> layersOfChosen(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    QStringList names;
    for (const RecordId entity : chosen.entities)
        if (const QString name = context.drawing().tags(entity).text(8, u"0"_s); !names.contains(name))
            names.append(name);
    co_return names;
}

Dialogue<bool> changeLayers(CommandContext &context, QString prompt, Change change)
{
    const PromptReply typed = co_await context.text(prompt);
    QStringList names;
    if (typed.hasValue())
        names = matchingNames(context, typed.text);
    else if (change == Change::Freeze)
        names = co_await layersOfChosen(context);
    else
        co_return false;
    const std::vector<RecordId> viewports = co_await askWhere(context);
    for (const RecordId viewport : viewports)
        changeIn(context, viewport, names, change);
    co_return true;
}

void setFrozenInNew(CommandContext &context, const QString &name, bool isFrozen)
{
    const RecordId entry = context.drawing().tables().find(TableKind::Layer, name);
    if (!isValid(entry))
        return;
    drawing::FieldList fields = context.drawing().fields(entry);
    const drawing::Field *flags = drawing::findField(fields, 70);
    const qint64 before = flags ? flags->integer() : 0;
    drawing::setField(fields, 70, isFrozen ? before | frozenInNewViewports : before & ~frozenInNewViewports);
    context.drawing().tables().modify(entry, fields);
}

/// New layers, frozen in every viewport that there is and that will be.
Dialogue<bool> makeFrozenLayers(CommandContext &context)
{
    const PromptReply typed =
        co_await context.text(Commands::tr("Enter name(s) of new layers frozen in all viewports: "));
    if (!typed.hasValue())
        co_return false;
    QStringList names;
    for (const QString &part : typed.text.split(u',', Qt::SkipEmptyParts)) {
        const QString name = part.trimmed();
        if (!drawing::isSymbolName(name, context.drawing().version())) {
            context.refuse(Commands::tr("\"%1\" cannot be the name of a layer.").arg(name));
            co_return false;
        }
        context.drawing().tables().add(TableKind::Layer, name);
        setFrozenInNew(context, name, true);
        names.append(name);
    }
    for (const RecordId viewport : allSheetViewports(context))
        changeIn(context, viewport, names, Change::Freeze);
    co_return true;
}

Dialogue<bool> changeDefaults(CommandContext &context)
{
    const PromptReply typed =
        co_await context.text(Commands::tr("Enter layer name(s) to change viewport visibility: "));
    if (!typed.hasValue())
        co_return false;
    const PromptReply state = co_await context.keyword(
        Commands::tr("Enter a viewport visibility option [Frozen/Thawed] <Thawed>: "), {}, u"Thawed"_s);
    for (const QString &name : matchingNames(context, typed.text))
        setFrozenInNew(context, name, state.text == u"Frozen"_s);
    co_return true;
}

Dialogue<bool> listFrozen(CommandContext &context)
{
    const PromptReply picked = co_await context.entity(Commands::tr("Select a viewport: "));
    if (picked.entities.empty() || !context.drawing().isType(picked.entities.front(), "VIEWPORT")) {
        context.refuse(Commands::tr("No viewport was chosen."));
        co_return false;
    }
    const RecordId viewport = picked.entities.front();
    context.print(
        Commands::tr("\nLayers currently frozen in viewport %1:").arg(context.drawing().tags(viewport).integer(69)));
    for (const QString &name : drawing::layersFrozenIn(context.drawing(), viewport))
        context.print(u"\n\"%1\""_s.arg(name));
    co_return true;
}

Dialogue<bool> takeLayerOptionOfViewports(CommandContext &context, QString option)
{
    if (option == u"?")
        co_return co_await listFrozen(context);
    if (option == u"Freeze")
        co_return co_await changeLayers(context, Commands::tr("Enter layer name(s) to freeze or <select objects>: "),
                                        Change::Freeze);
    if (option == u"Thaw")
        co_return co_await changeLayers(context, Commands::tr("Enter layer name(s) to thaw: "), Change::Thaw);
    if (option == u"Reset")
        co_return co_await changeLayers(context, Commands::tr("Enter layer name(s) to reset: "), Change::Reset);
    if (option == u"Newfrz")
        co_return co_await makeFrozenLayers(context);
    if (option == u"Vpvisdflt")
        co_return co_await changeDefaults(context);
    context.refuse(Commands::tr("Layers have the same properties in all viewports here: nothing was changed."));
    co_return false;
}

// Options, one after another until an empty answer.
CommandTask viewportLayers(CommandContext &context)
{
    if (!neededSheet(context))
        co_return;
    while (!context.hasFailed()) {
        const PromptReply option = co_await context.keyword(
            Commands::tr("Enter an option [?/Color/Ltype/LWeight/TRansparency/Freeze/Thaw/Reset/Newfrz/Vpvisdflt]: "));
        if (!option.hasValue())
            co_return;
        co_await takeLayerOptionOfViewports(context, option.text);
    }
}

} // namespace

std::vector<CommandRow> viewportLayerCommands()
{
    return {{"VPLAYER", viewportLayers, "Freezes and thaws layers in viewports of sheets"}};
}

} // namespace host::kernel
