#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/edit/ChangePoint.h"
#include "host/commands/edit/EntityProperties.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::RecordId;
using Entities = std::vector<RecordId>;

/// One property after the other, until an empty answer.
Dialogue<bool> askProperties(CommandContext &context, Entities entities, QString options)
{
    for (;;) {
        const PromptReply option =
            co_await context.keyword(Commands::tr("Enter property to change [%1]: ").arg(options));
        if (!option.hasValue())
            co_return true;
        const PropertyChange change = co_await askPropertyChange(context, entities, option.text);
        if (context.hasFailed())
            co_return false;
        if (change.apply)
            changeProperties(context, entities, change);
    }
}

CommandTask changeProps(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    const Entities entities = editable(context, chosen.entities);
    if (!entities.empty())
        co_await askProperties(context, entities, propertyOptions());
}

// A point for what has one, or properties.
CommandTask change(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    const Entities entities = editable(context, chosen.entities);
    if (entities.empty())
        co_return;
    const PromptReply point = co_await context.point(Commands::tr("Specify change point or [Properties]: "));
    if (point.isKeyword(u"Properties"))
        co_await askProperties(context, entities, QString(propertyOptions()).replace(u"Color/"_s, u"Color/Elev/"_s));
    else
        co_await changeByPoint(context, entities, point.hasValue() ? std::optional(point.point) : std::nullopt);
}

} // namespace

std::vector<CommandRow> changeCommands()
{
    return {{"CHANGE", change, "Changes entities by a point, or their properties"},
            {"CHPROP", changeProps, "Changes layer, color, linetype and weight of entities"}};
}

} // namespace host::kernel
