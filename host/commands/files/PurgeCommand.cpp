#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/drawing/editing/UnusedNames.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/selection/Wildcard.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::NamedKind;
using drawing::NamedThing;
using drawing::RecordId;

/// The options in the order of NamedKind.
constexpr QStringView kindOptions[] = {
    u"Blocks",     u"DEtailviewstyles", u"Dimstyles",         u"Groups",      u"LAyers",
    u"LTypes",     u"MAterials",        u"MUltileaderstyles", u"Plotstyles",  u"SHapes",
    u"textSTyles", u"Mlinestyles",      u"SEctionviewstyles", u"Tablestyles", u"Visualstyles",
    u"Regapps"};

/// What the user has said of the names to purge, and those that are to stay.
struct Choice
{
    QString pattern;
    bool isVerified = true;
    QSet<RecordId> staying{};
    int count = 0;
};

Dialogue<bool> confirm(CommandContext &context, NamedKind kind, const NamedThing &thing)
{
    const QString one = drawing::kindNameOfOne(kind);
    const PromptReply answer =
        co_await context.keyword(Commands::tr("Purge %1 \"%2\"? [Yes/No] <No>: ").arg(one, thing.name), {}, u"No"_s);
    co_return answer.text == u"Yes"_s;
}

/// Purges what is unused of a kind now. Whether there was some.
Dialogue<bool> purgeKind(CommandContext &context, NamedKind kind, Choice &choice)
{
    const auto isWanted = [&](const QString &name) { return drawing::matchesWildcard(name, choice.pattern); };
    std::vector<NamedThing> doomed;
    for (const NamedThing &thing : drawing::unusedNames(context.drawing(), kind, isWanted)) {
        if (choice.staying.contains(thing.record))
            continue;
        bool isSure = true;
        if (choice.isVerified)
            isSure = co_await confirm(context, kind, thing);
        if (!isSure) {
            choice.staying.insert(thing.record);
            continue;
        }
        context.print(Commands::tr("\nDeleting %1 \"%2\".").arg(drawing::kindNameOfOne(kind), thing.name));
        doomed.push_back(thing);
        ++choice.count;
    }
    if (!doomed.empty())
        drawing::eraseNamed(context.drawing(), kind, doomed);
    co_return !doomed.empty();
}

Dialogue<Choice> askChoice(CommandContext &context)
{
    const PromptReply names = co_await context.text(Commands::tr("Enter name(s) to purge <*>: "), u"*"_s);
    const PromptReply verify =
        co_await context.keyword(Commands::tr("Verify each name to be purged? [Yes/No] <Yes>: "), {}, u"Yes"_s);
    co_return Choice{names.hasValue() ? names.text.trimmed() : u"*"_s, verify.text != u"No"_s};
}

/// What becomes unused with what was purged goes as well.
Dialogue<bool> purgeAll(CommandContext &context)
{
    Choice choice = co_await askChoice(context);
    for (bool isAny = true; isAny;) {
        isAny = false;
        for (const NamedKind kind : drawing::allNamedKinds()) {
            const bool isOfKind = co_await purgeKind(context, kind, choice);
            isAny = isAny || isOfKind;
        }
    }
    if (choice.count == 0 && choice.staying.isEmpty())
        context.print(Commands::tr("\nNothing unreferenced found."));
    co_return true;
}

bool isWithoutLength(const drawing::Drawing &drawing, RecordId id)
{
    const drawing::TagList tags = drawing.tags(id);
    if (drawing.isType(id, "LINE"))
        return tags.point(10) == tags.point(11);
    if (drawing.isType(id, "ARC"))
        return tags.real(40) == 0.0 || tags.real(50) == tags.real(51);
    if (!drawing.isType(id, "LWPOLYLINE"))
        return false;
    const std::vector<drawing::Vec3> points = tags.points(10);
    return std::ranges::all_of(points, [&](const drawing::Vec3 &point) { return point == points.front(); });
}

bool isEmptyText(const drawing::Drawing &drawing, RecordId id)
{
    const bool isText = drawing.isType(id, "TEXT") || drawing.isType(id, "MTEXT");
    if (!isText)
        return false;
    const drawing::TagList tags = drawing.tags(id);
    QString content;
    for (const drawing::Tag &tag : tags)
        if (tag.code == 1 || tag.code == 3)
            content += tags.decoded(tag);
    return content.trimmed().isEmpty();
}

void purgeEntities(CommandContext &context, bool (*isWanted)(const drawing::Drawing &, RecordId), const QString &told)
{
    drawing::Drawing &drawing = context.drawing();
    std::vector<RecordId> found;
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id))
        if (drawing.kind(id) == drawing::RecordKind::Entity && isWanted(drawing, id))
            found.push_back(id);
    found = editable(context, std::move(found));
    eraseAll(context, found);
    context.print(told.arg(found.size()));
}

/// Objects whose owner is not there any more, and what they own.
void purgeOrphans(CommandContext &context)
{
    drawing::Drawing &drawing = context.drawing();
    const auto isOrphan = [&](RecordId id) {
        const drawing::Handle owner = drawing.owner(id);
        const RecordId record = drawing.find(owner);
        return drawing.kind(id) == drawing::RecordKind::Object && !owner.isNull() &&
               !(isValid(record) && drawing.isAlive(record));
    };
    int count = 0;
    for (int before = -1; before != count;) {
        before = count;
        std::vector<RecordId> orphans;
        for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id))
            if (isOrphan(id))
                orphans.push_back(id);
        for (const RecordId id : orphans)
            drawing.setErased(id, true);
        count += int(orphans.size());
    }
    context.print(Commands::tr("\n%1 orphaned objects deleted.").arg(count));
}

Dialogue<bool> purgeOption(CommandContext &context, const QString &option)
{
    if (option == u"All")
        co_return co_await purgeAll(context);
    if (option == u"Zero-length") {
        purgeEntities(context, isWithoutLength, Commands::tr("\n%1 entities without length deleted."));
    } else if (option == u"Empty") {
        purgeEntities(context, isEmptyText, Commands::tr("\n%1 empty texts deleted."));
    } else if (option == u"Orphaned") {
        purgeOrphans(context);
    } else {
        const auto index = std::ranges::find(kindOptions, QStringView(option)) - std::begin(kindOptions);
        const NamedKind kind = drawing::allNamedKinds()[static_cast<std::size_t>(index)];
        Choice choice = co_await askChoice(context);
        co_await purgeKind(context, kind, choice);
        if (choice.count == 0 && choice.staying.isEmpty())
            context.print(Commands::tr("\nNo unreferenced %1 found.").arg(drawing::kindName(kind)));
    }
    co_return true;
}

// What to purge, names, and whether each is to be confirmed.
CommandTask purge(CommandContext &context)
{
    const PromptReply what = co_await context.keyword(Commands::tr(
        "Enter type of unused objects to purge [Blocks/DEtailviewstyles/Dimstyles/Groups/LAyers/LTypes/MAterials/"
        "MUltileaderstyles/Plotstyles/SHapes/textSTyles/Mlinestyles/SEctionviewstyles/Tablestyles/Visualstyles/Regapps/"
        "Zero-length geometry/Empty text objects/Orphaned data/All]: "));
    if (what.hasValue())
        co_await purgeOption(context, what.text);
}

} // namespace

std::vector<CommandRow> purgeCommands()
{
    return {{"-PURGE", purge, "Takes out of the drawing what nothing refers to"},
            {"PURGE", purge, "As -PURGE; there is no window for it"}};
}

} // namespace host::kernel
