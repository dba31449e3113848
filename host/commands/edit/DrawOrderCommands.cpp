// Which entity covers which.

#include "host/commands/Commands.h"
#include "host/drawing/records/SortTable.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/view/display/DrawOrder.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::RecordId;
using Entities = std::vector<RecordId>;

/// Where the chosen ones go among the others: in front of the entity at this place.
std::size_t placeOf(const QString &where, const Entities &others, const Entities &references)
{
    if (where == u"Back" || others.empty())
        return 0;
    if (where == u"Front")
        return others.size();
    const bool isAbove = where == u"Above";
    const QSet<RecordId> wanted(references.begin(), references.end());
    std::size_t place = isAbove ? 0 : others.size();
    for (std::size_t i = 0; i < others.size(); ++i)
        if (wanted.contains(others[i]))
            place = isAbove ? std::max(place, i + 1) : std::min(place, i);
    return place;
}

/// The chosen ones keep their order among each other.
Entities reordered(const Entities &all, const Entities &chosen, const QString &where, const Entities &references)
{
    const QSet<RecordId> moving(chosen.begin(), chosen.end());
    Entities moved;
    Entities others;
    for (RecordId id : all)
        (moving.contains(id) ? moved : others).push_back(id);
    const auto place = static_cast<std::ptrdiff_t>(placeOf(where, others, references));
    others.insert(others.begin() + place, moved.begin(), moved.end());
    return others;
}

// What is chosen comes in front of all, behind all, or directly over or under what is chosen next.
CommandTask drawOrder(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    if (chosen.entities.empty())
        co_return;
    const PromptReply option = co_await context.keyword(
        Commands::tr("Enter object ordering option [Above objects/Under objects/Front/Back] <Back>: "),
        u"Above Under Front Back"_s, u"Back"_s);
    const QString where = option.hasValue() ? option.text : u"Back"_s;
    Entities references;
    if (where == u"Above" || where == u"Under") {
        const PromptReply reply = co_await context.selection();
        references = reply.entities;
        if (references.empty())
            co_return;
    }
    drawing::Drawing &drawing = context.drawing();
    const Entities all = view::drawOrder(drawing, view::readSortHandles(drawing), currentEntities(drawing));
    if (!drawing::setDrawOrder(drawing, reordered(all, chosen.entities, where, references)))
        context.print(Commands::tr("\nA drawing of this version keeps no draw order."));
}

} // namespace

std::vector<CommandRow> drawOrderCommands()
{
    return {{"DRAWORDER", drawOrder, "Brings entities in front of others or behind them"}};
}

} // namespace host::kernel
