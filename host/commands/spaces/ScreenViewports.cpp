#include "host/commands/spaces/ScreenViewports.h"

#include "host/commands/common/NamedEntries.h"
#include "host/commands/spaces/SheetViewports.h"
#include "host/drawing/editing/RenameLayer.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/tags/GroupCodes.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::Box;
using drawing::RecordId;
using drawing::TableKind;
using drawing::Vec3;

namespace {

const QString inUse = u"*Active"_s;

/// Of an entry: a copy under a name, which other entries may have. Notes of other programs stay with the original.
RecordId copyScreenViewport(drawing::Drawing &drawing, RecordId entry, const QString &name)
{
    // A name of its own first: one that is there would be given back instead.
    QString own = u"$"_s;
    while (isValid(drawing.tables().find(TableKind::Viewport, own)))
        own += u'$';
    const RecordId made = drawing.tables().add(TableKind::Viewport, own);
    drawing::FieldList fields;
    drawing::BraceDepth braces;
    for (const drawing::Field &field : drawing.fields(entry))
        if (!braces.isInside(field) && field.code != 5)
            fields.push_back(field);
    drawing::setField(fields, 2, name);
    drawing.tables().modify(made, fields);
    return made;
}

void place(drawing::Drawing &drawing, RecordId entry, const Box &box)
{
    drawing::FieldList fields = drawing.fields(entry);
    drawing::setField(fields, 10, box.low.xy());
    drawing::setField(fields, 11, box.high.xy());
    drawing.tables().modify(entry, fields);
}

void eraseAll(drawing::Drawing &drawing, const std::vector<RecordId> &entries)
{
    for (const RecordId entry : entries)
        drawing.dictionaries().setErasedWithOwned(entry, true);
}

RecordId firstInUse(drawing::Drawing &drawing)
{
    const std::vector<RecordId> active = screenViewports(drawing, inUse);
    return active.empty() ? drawing.tables().add(TableKind::Viewport, inUse) : active.front();
}

Box wholeScreen()
{
    Box box;
    box.add(Vec3{});
    box.add(Vec3{1.0, 1.0, 0.0});
    return box;
}

Dialogue<bool> saveConfiguration(CommandContext &context)
{
    const auto name = co_await askEntryName(context, TableKind::Viewport,
                                            Commands::tr("Enter name for new viewport configuration or [?]: "));
    if (!name)
        co_return false;
    drawing::Drawing &drawing = context.drawing();
    if (!drawing::isSymbolName(*name, drawing.version())) {
        context.fail(Commands::tr("\"%1\" cannot be the name of a viewport configuration.").arg(*name));
        co_return false;
    }
    eraseAll(drawing, screenViewports(drawing, *name));
    firstInUse(drawing);
    for (const RecordId entry : screenViewports(drawing, inUse))
        copyScreenViewport(drawing, entry, *name);
    co_return true;
}

Dialogue<bool> restoreScreen(CommandContext &context)
{
    const auto name = co_await askEntryName(context, TableKind::Viewport,
                                            Commands::tr("Enter name of viewport configuration to restore or [?]: "));
    if (!name)
        co_return false;
    drawing::Drawing &drawing = context.drawing();
    const std::vector<RecordId> wanted = screenViewports(drawing, *name);
    if (wanted.empty()) {
        context.fail(Commands::tr("Cannot find viewport configuration \"%1\".").arg(*name));
        co_return false;
    }
    if (name->compare(inUse, Qt::CaseInsensitive) == 0)
        co_return true;
    eraseAll(drawing, screenViewports(drawing, inUse));
    for (const RecordId entry : wanted)
        copyScreenViewport(drawing, entry, inUse);
    co_return true;
}

Dialogue<bool> deleteConfigurations(CommandContext &context)
{
    const PromptReply names =
        co_await context.text(Commands::tr("Enter name(s) of viewport configurations to delete <none>: "), u"none"_s);
    if (!names.hasValue())
        co_return false;
    std::vector<RecordId> doomed = matchingEntries(context, TableKind::Viewport, names.text);
    std::erase_if(doomed, [&](RecordId entry) { return context.drawing().tables().name(entry).startsWith(u'*'); });
    if (doomed.empty())
        context.print(Commands::tr("\nNo matching viewport configurations found."));
    eraseAll(context.drawing(), doomed);
    co_return true;
}

Dialogue<bool> listConfigurations(CommandContext &context)
{
    co_return co_await listEntries(context, TableKind::Viewport,
                                   Commands::tr("Enter name(s) of viewport configuration(s) to list <*>: "),
                                   [&context](RecordId entry) {
                                       const ScreenViewport shown = readScreenViewport(context.drawing(), entry);
                                       return u"\"%1\"  %2,%3  %4,%5"_s.arg(context.drawing().tables().name(entry))
                                           .arg(shown.place.low.x)
                                           .arg(shown.place.low.y)
                                           .arg(shown.place.high.x)
                                           .arg(shown.place.high.y);
                                   });
}

Dialogue<bool> divideScreen(CommandContext &context, int count)
{
    const ViewportArrangement arrangement = co_await askArrangement(context, count);
    drawing::Drawing &drawing = context.drawing();
    constexpr std::size_t most = 64;
    if (screenViewports(drawing, inUse).size() + std::size_t(count) > most) {
        context.fail(Commands::tr("The screen is divided into too many viewports already."));
        co_return false;
    }
    const RecordId first = firstInUse(drawing);
    const std::vector<Box> parts = divided(readScreenViewport(drawing, first).place, arrangement);
    place(drawing, first, parts.front());
    for (std::size_t i = 1; i < parts.size(); ++i)
        place(drawing, copyScreenViewport(drawing, first, inUse), parts[i]);
    co_return true;
}

void useWholeScreen(CommandContext &context)
{
    drawing::Drawing &drawing = context.drawing();
    const RecordId first = firstInUse(drawing);
    std::vector<RecordId> others = screenViewports(drawing, inUse);
    std::erase(others, first);
    eraseAll(drawing, others);
    place(drawing, first, wholeScreen());
}

/// Two parts are one again; which of more are to be joined cannot be picked in a window that shows one.
void join(CommandContext &context)
{
    constexpr std::size_t two = 2;
    if (screenViewports(context.drawing(), inUse).size() > two)
        context.fail(Commands::tr("The window shows one view: the viewports to join cannot be picked."));
    else
        useWholeScreen(context);
}

} // namespace

std::vector<RecordId> screenViewports(const drawing::Drawing &drawing, const QString &name)
{
    std::vector<RecordId> entries = drawing.tables().entries(TableKind::Viewport);
    std::erase_if(entries,
                  [&](RecordId entry) { return drawing.tables().name(entry).compare(name, Qt::CaseInsensitive) != 0; });
    return entries;
}

ScreenViewport readScreenViewport(const drawing::Drawing &drawing, RecordId entry)
{
    const drawing::TagList tags = drawing.tags(entry);
    ScreenViewport screen;
    screen.place.add(tags.point(10));
    screen.place.add(tags.point(11, {1.0, 1.0, 0.0}));
    screen.aim.middle = tags.point(12).xy();
    screen.aim.direction = tags.point(16, {0.0, 0.0, 1.0});
    screen.aim.target = tags.point(17);
    screen.aim.height = tags.real(40, 1.0);
    screen.aim.twist = tags.real(51) * drawing::radians;
    return screen;
}

Dialogue<bool> askScreenViewports(CommandContext &context)
{
    const PromptReply reply = co_await context.keyword(
        Commands::tr("Enter an option [Save/Restore/Delete/Join/SIngle/?/2/3/4] <3>: "), {}, u"3"_s);
    const QString option = reply.text.isEmpty() ? u"3"_s : reply.text;
    if (option == u"Save")
        co_return co_await saveConfiguration(context);
    if (option == u"Restore")
        co_return co_await restoreScreen(context);
    if (option == u"Delete")
        co_return co_await deleteConfigurations(context);
    if (option == u"?")
        co_return co_await listConfigurations(context);
    if (option == u"2" || option == u"3" || option == u"4")
        co_return co_await divideScreen(context, option.toInt());
    if (option == u"Join")
        join(context);
    else
        useWholeScreen(context);
    co_return true;
}

} // namespace host::kernel
