#include "host/commands/common/NamedEntries.h"

#include "host/drawing/selection/Wildcard.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::RecordId;
using drawing::TableKind;

std::vector<RecordId> matchingEntries(CommandContext &context, TableKind kind, const QString &patterns)
{
    const drawing::Tables &tables = context.drawing().tables();
    std::vector<RecordId> found = tables.entries(kind);
    std::erase_if(found,
                  [&](RecordId entry) { return !drawing::matchesWildcard(tables.name(entry), patterns.trimmed()); });
    return found;
}

Dialogue<bool> listEntries(CommandContext &context, TableKind kind, QString prompt,
                           std::function<QString(RecordId)> line)
{
    const PromptReply names = co_await context.text(prompt, u"*"_s);
    for (const RecordId entry : matchingEntries(context, kind, names.hasValue() ? names.text : u"*"_s))
        context.print(u'\n' + line(entry));
    co_return true;
}

Dialogue<std::optional<QString>> askEntryName(CommandContext &context, TableKind kind, QString prompt, QString usual)
{
    for (;;) {
        const PromptReply reply = co_await context.text(prompt, usual, u"?"_s);
        if (reply.hasValue())
            co_return reply.text.trimmed();
        if (reply.kind != ReplyKind::Keyword)
            co_return usual.isEmpty() ? std::nullopt : std::optional(usual);
        for (const RecordId entry : context.drawing().tables().entries(kind))
            context.print(u'\n' + context.drawing().tables().name(entry));
    }
}

RecordId neededEntry(CommandContext &context, TableKind kind, const QString &what, const QString &name)
{
    const RecordId entry = context.drawing().tables().find(kind, name);
    if (!isValid(entry))
        context.fail(Commands::tr("Cannot find %1 \"%2\".").arg(what, name));
    return entry;
}

} // namespace host::kernel
