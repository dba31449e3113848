// The values of one block reference's attributes.

#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/drawing/editing/BlockAttributes.h"
#include "host/drawing/editing/TextContent.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/TextSizes.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::BlockAttribute;
using drawing::RecordId;

void listValues(CommandContext &context, const std::vector<BlockAttribute> &attributes)
{
    for (std::size_t i = 0; i < attributes.size(); ++i)
        context.print(
            u"\n%1  %2  %3  %4%5"_s.arg(i + 1).arg(attributes[i].tag, attributes[i].prompt, attributes[i].value,
                                                   attributes[i].isConstant() ? u"  (constant)"_s : QString()));
}

/// By its number in the list, or the first of that tag; null for none.
const BlockAttribute *attributeNamed(const std::vector<BlockAttribute> &attributes, const QString &typed)
{
    bool isNumber = false;
    const qsizetype number = typed.toLongLong(&isNumber);
    if (isNumber)
        return number >= 1 && number <= qsizetype(attributes.size()) ? &attributes[number - 1] : nullptr;
    const auto found = std::ranges::find_if(attributes, [&](const BlockAttribute &attribute) {
        return attribute.tag.compare(typed, Qt::CaseInsensitive) == 0;
    });
    return found == attributes.end() ? nullptr : &*found;
}

/// The reference that was picked, or whose attribute was. noRecord, which was told, for anything else.
Dialogue<RecordId> askReference(CommandContext &context)
{
    const drawing::Drawing &drawing = context.drawing();
    const PromptReply picked = co_await context.entity(Commands::tr("Select a block: "));
    RecordId reference = picked.entities.empty() ? drawing::noRecord : picked.entities.front();
    if (isValid(reference) && drawing.isType(reference, "ATTRIB"))
        reference = drawing.parent(reference);
    if (!isValid(reference) || !drawing.isType(reference, "INSERT")) {
        context.fail(Commands::tr("That is no block reference."));
        co_return drawing::noRecord;
    }
    const bool isFree = !editable(context, {reference}).empty();
    co_return isFree ? reference : drawing::noRecord;
}

void setAttributeValue(CommandContext &context, RecordId attribute, const QString &value)
{
    if (value == drawing::contentOf(context.drawing(), attribute))
        return;
    const QString error = context.drawing().entities().modify(
        attribute, completedText(context.document(), drawing::withContent(context.drawing().fields(attribute), value)));
    if (!error.isEmpty())
        context.fail(error);
}

Dialogue<bool> askValue(CommandContext &context, BlockAttribute attribute)
{
    const PromptReply reply =
        co_await context.text(Commands::tr("%1, . for none <%2>: ")
                                  .arg(attribute.prompt.isEmpty() ? attribute.tag : attribute.prompt, attribute.value),
                              attribute.value);
    if (reply.hasValue() && !reply.text.isEmpty())
        setAttributeValue(context, attribute.record, reply.text == u"." ? QString() : reply.text);
    co_return !context.hasFailed();
}

// One reference, then one attribute after another with its value, until an empty answer.
CommandTask editValues(CommandContext &context)
{
    const RecordId reference = co_await askReference(context);
    if (!isValid(reference))
        co_return;
    if (drawing::blockAttributes(context.drawing(), reference).empty()) {
        context.fail(Commands::tr("The block has no attributes."));
        co_return;
    }
    for (;;) {
        const std::vector<BlockAttribute> attributes = drawing::blockAttributes(context.drawing(), reference);
        const PromptReply which =
            co_await context.text(Commands::tr("Enter number or tag of attribute or [?] <exit>: "), u"exit"_s, u"?"_s);
        if (which.isKeyword(u"?")) {
            listValues(context, attributes);
            continue;
        }
        if (!which.hasValue() || which.text.isEmpty())
            co_return;
        const BlockAttribute *attribute = attributeNamed(attributes, which.text.trimmed());
        const bool mayChange = attribute && !attribute->isConstant();
        if (mayChange && !co_await askValue(context, *attribute))
            co_return;
        const QString reason =
            attribute ? Commands::tr("The value of %1 is constant.") : Commands::tr("There is no attribute \"%1\".");
        if (!mayChange && context.refuse(reason.arg(which.text.trimmed())))
            co_return;
    }
}

} // namespace

std::vector<CommandRow> attributeValueCommands()
{
    return {{"EATTEDIT", editValues, "Changes the values of a block reference's attributes"}};
}

} // namespace host::kernel
