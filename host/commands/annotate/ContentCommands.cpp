// Commands that change what texts, paragraphs, attributes and dimensions say.

#include "host/commands/Commands.h"
#include "host/commands/annotate/NewDimension.h"
#include "host/commands/common/EntityEdits.h"
#include "host/drawing/editing/TextContent.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/TextSizes.h"
#include "host/kernel/languages/Texts.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::ContentKind;
using drawing::FieldList;
using drawing::RecordId;

/// What an entity's groups become; a text is placed anew, a dimension drawn anew.
void changeFields(CommandContext &context, RecordId entity, FieldList fields)
{
    const QString error =
        context.drawing().entities().modify(entity, completedText(context.document(), std::move(fields)));
    if (!error.isEmpty())
        context.print(u'\n' + error);
    else if (isDimension(context.drawing(), entity))
        redrawDimension(context, entity);
}

/// One line; an empty answer leaves it as it is.
Dialogue<QString> askContent(CommandContext &context, QString question, QString present)
{
    const PromptReply reply = co_await context.text(u"%1 <%2>: "_s.arg(question, present), present);
    co_return reply.hasValue() && !reply.text.isEmpty() ? reply.text : present;
}

/// Tags are written in capitals and without blanks.
Dialogue<QString> askDefinitionTag(CommandContext &context, QString present)
{
    for (;;) {
        const QString tag = co_await askContent(context, Commands::tr("Enter attribute tag name"), present);
        const QString plain = tag == present ? tag : tag.trimmed().toUpper();
        if (plain == present || (!plain.isEmpty() && !plain.contains(u' ')))
            co_return plain;
        if (context.refuse(Commands::tr("A tag has no blanks.")))
            co_return present;
    }
}

/// Tag, prompt and default of an attribute's definition.
Dialogue<bool> editDefinition(CommandContext &context, RecordId definition)
{
    const drawing::TagList tags = context.drawing().tags(definition);
    const QString tag = co_await askDefinitionTag(context, tags.text(2));
    const QString prompt = co_await askContent(context, Commands::tr("Enter attribute prompt"), tags.text(3));
    const QString present = drawing::contentOf(context.drawing(), definition);
    const QString value =
        co_await askContent(context, Commands::tr("Enter default attribute value, . for none"), present);
    FieldList fields = context.drawing().fields(definition);
    if (value != present)
        fields = drawing::withContent(std::move(fields), value == u"." ? QString() : value);
    drawing::setField(fields, 2, tag);
    drawing::setField(fields, 3, prompt);
    if (fields != context.drawing().fields(definition))
        changeFields(context, definition, std::move(fields));
    co_return true;
}

Dialogue<bool> editContent(CommandContext &context, RecordId entity)
{
    if (drawing::contentKind(context.drawing(), entity) == ContentKind::Definition)
        co_return co_await editDefinition(context, entity);
    const QString present = drawing::contentOf(context.drawing(), entity);
    const QString content = co_await askContent(context, Commands::tr("Enter text"), present);
    if (content != present)
        changeFields(context, entity, drawing::withContent(context.drawing().fields(entity), content));
    co_return true;
}

// Texts, one after another, and what they say from now on; an empty line leaves one as it is.
CommandTask editText(CommandContext &context)
{
    for (;;) {
        const PromptReply picked = co_await context.entity(Commands::tr("Select an annotation object: "));
        if (picked.entities.empty() && !picked.isMiss)
            co_return;
        if (picked.entities.empty())
            continue;
        const RecordId entity = picked.entities.front();
        if (drawing::contentKind(context.drawing(), entity) == ContentKind::None) {
            if (context.refuse(Commands::tr("Requires a text.")))
                co_return;
            continue;
        }
        if (!editable(context, {entity}).empty())
            co_await editContent(context, entity);
    }
}

} // namespace

std::vector<CommandRow> contentCommands()
{
    constexpr const char *help = "Changes what texts, dimensions and definitions of attributes say";
    return {{"DDEDIT", editText, help, WhenCancelled::KeepDone}, {"TEXTEDIT", editText, help, WhenCancelled::KeepDone}};
}

} // namespace host::kernel
