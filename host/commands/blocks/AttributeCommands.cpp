#include "host/commands/Commands.h"
#include "host/commands/blocks/AttributeDefinitions.h"
#include "host/commands/common/EntityEdits.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/geometry/TransformFields.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/selection/Wildcard.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::FieldList;
using drawing::RecordId;

/// Block definitions with attributes, by name.
QStringList attributedBlocks(const drawing::Drawing &drawing)
{
    QStringList names;
    for (const RecordId id : drawing.blocks().all()) {
        const drawing::Block block = drawing.blocks().read(id);
        const std::vector<RecordId> contents = drawing.children(id);
        const bool hasDefinitions =
            std::ranges::any_of(contents, [&](RecordId part) { return drawing.isType(part, "ATTDEF"); });
        if (hasDefinitions && !block.isLayout())
            names.append(block.name);
    }
    return names;
}

/// All references to the block, wherever they stand.
std::vector<RecordId> referencesTo(const drawing::Drawing &drawing, const QString &block)
{
    std::vector<RecordId> found;
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id))
        if (drawing.kind(id) == drawing::RecordKind::Entity && drawing.isType(id, "INSERT") &&
            drawing.tags(id).text(2).compare(block, Qt::CaseInsensitive) == 0)
            found.push_back(id);
    return found;
}

/// Attributes as the definitions say, with the values that the reference has.
void synchronize(drawing::Drawing &drawing, RecordId insert, const std::vector<AttributeDefinition> &definitions)
{
    QHash<QString, QString> values;
    for (const RecordId child : drawing.children(insert)) {
        const drawing::TagList tags = drawing.tags(child);
        values.insert(tags.text(2).toUpper(), tags.text(1));
    }
    const drawing::Matrix toDrawing = drawing::insertTransform(drawing, drawing.tags(insert));
    std::vector<FieldList> attributes;
    for (AttributeDefinition definition : definitions) {
        definition.value = values.value(definition.tag.toUpper(), definition.value);
        attributes.push_back(attributeFor(definition, toDrawing));
    }
    setAttributes(drawing, insert, attributes);
}

/// The block by its name or by a reference to it. Empty when there is none, which was told.
Dialogue<QString> askSynchronized(CommandContext &context)
{
    PromptReply option;
    for (;;) {
        option = co_await context.keyword(Commands::tr("Enter an option [?/Name/Select] <Select>: "), {}, u"Select"_s);
        if (option.text != u"?")
            break;
        context.print(Commands::tr("\nBlocks with attributes:\n  ") +
                      attributedBlocks(context.drawing()).join(u"\n  "_s));
    }
    if (option.hasValue() && option.text == u"Name") {
        const PromptReply name =
            co_await context.text(Commands::tr("Enter name of block to synchronize or [?]: "), {}, u"?"_s);
        if (name.isKeyword(u"?"))
            context.print(u"\n  "_s + attributedBlocks(context.drawing()).join(u"\n  "_s));
        co_return name.hasValue() ? name.text.trimmed() : QString();
    }
    const PromptReply picked = co_await context.entity(Commands::tr("Select a block: "));
    if (picked.entities.empty() || !context.drawing().isType(picked.entities.front(), "INSERT")) {
        context.fail(Commands::tr("That is no block reference."));
        co_return QString();
    }
    const QString name = context.drawing().tags(picked.entities.front()).text(2);
    const PromptReply wanted =
        co_await context.keyword(Commands::tr("ATTSYNC block %1? [Yes/No] <Yes>: ").arg(name), u"Yes No"_s, u"Yes"_s);
    const bool isWanted = wanted.text != u"No";
    co_return isWanted ? name : QString();
}

// The attributes of all references to a block become those that it defines; their values stay.
CommandTask syncAttributes(CommandContext &context)
{
    const QString name = co_await askSynchronized(context);
    if (name.isEmpty())
        co_return;
    drawing::Drawing &drawing = context.drawing();
    if (!isValid(drawing.blocks().find(name))) {
        context.fail(Commands::tr("Block \"%1\" not found.").arg(name));
        co_return;
    }
    const std::vector<AttributeDefinition> definitions = attributeDefinitions(drawing, name);
    const std::vector<RecordId> references = referencesTo(drawing, name);
    for (const RecordId insert : references)
        synchronize(drawing, insert, definitions);
    context.print(Commands::tr("\n%1 block references were synchronized.").arg(references.size()));
}

/// Which attributes are edited, by wild-card patterns.
struct AttributeFilter
{
    QString block;
    QString tag;
    QString value;
};

Dialogue<AttributeFilter> askAttributeFilter(CommandContext &context)
{
    const QString prompts[] = {Commands::tr("Enter block name specification <*>: "),
                               Commands::tr("Enter attribute tag specification <*>: "),
                               Commands::tr("Enter attribute value specification <*>: ")};
    QStringList patterns;
    for (const QString &prompt : prompts) {
        const PromptReply reply = co_await context.text(prompt, u"*"_s);
        patterns.append(reply.hasValue() && !reply.text.isEmpty() ? reply.text : u"*"_s);
    }
    co_return AttributeFilter{patterns[0], patterns[1], patterns[2]};
}

std::vector<RecordId> matchingAttributes(const drawing::Drawing &drawing, const std::vector<RecordId> &references,
                                         const AttributeFilter &filter)
{
    std::vector<RecordId> found;
    for (const RecordId insert : references) {
        if (!drawing.isType(insert, "INSERT") || !drawing::matchesWildcard(drawing.tags(insert).text(2), filter.block))
            continue;
        for (const RecordId child : drawing.children(insert)) {
            const drawing::TagList tags = drawing.tags(child);
            if (drawing::matchesWildcard(tags.text(2), filter.tag) &&
                drawing::matchesWildcard(tags.text(1), filter.value, Qt::CaseSensitive))
                found.push_back(child);
        }
    }
    return found;
}

void setValue(drawing::Drawing &drawing, RecordId attribute, const QString &value)
{
    FieldList fields = drawing.fields(attribute);
    drawing::setField(fields, 1, value);
    drawing.setFields(attribute, fields);
}

/// Replaces the first place of a string in each value.
Dialogue<bool> replaceStrings(CommandContext &context, std::vector<RecordId> attributes)
{
    context.print(Commands::tr("\n%1 attributes selected.").arg(attributes.size()));
    const PromptReply from = co_await context.text(Commands::tr("Enter string to change: "));
    const PromptReply to = co_await context.text(Commands::tr("Enter new string: "));
    for (const RecordId id : attributes) {
        QString value = context.drawing().tags(id).text(1);
        const qsizetype place = from.text.isEmpty() ? 0 : value.indexOf(from.text);
        if (place >= 0)
            setValue(context.drawing(), id, value.replace(place, from.text.size(), to.text));
    }
    co_return true;
}

/// A change of one attribute's fields.
Dialogue<bool> changeAttribute(CommandContext &context, RecordId attribute, QString option)
{
    FieldList fields = context.drawing().fields(attribute);
    if (option == u"Value") {
        const PromptReply way = co_await context.keyword(
            Commands::tr("Enter type of value modification [Change/Replace] <R>: "), {}, u"Replace"_s);
        if (way.text == u"Change")
            co_return co_await replaceStrings(context, std::vector<RecordId>(1, attribute));
        const PromptReply value = co_await context.text(Commands::tr("Enter new attribute value: "));
        drawing::setField(fields, 1, value.text);
    } else if (option == u"Height") {
        const QString usual = context.shownLength(drawing::realOf(fields, 40));
        const PromptReply size = co_await context.distance(Commands::tr("Specify new height <%1>: ").arg(usual), {}, {},
                                                           usual, NoZero | NoNegative);
        if (size.hasValue())
            drawing::setField(fields, 40, size.real);
    } else if (option == u"Layer") {
        const PromptReply layer = co_await context.text(Commands::tr("Enter new layer name: "));
        if (layer.hasValue() && !layer.text.trimmed().isEmpty())
            drawing::setField(fields, 8, layer.text.trimmed());
    }
    const QString error = context.drawing().entities().modify(attribute, fields);
    if (!error.isEmpty())
        context.fail(error);
    co_return error.isEmpty();
}

/// Each attribute in turn, until Next.
Dialogue<bool> editOneByOne(CommandContext &context, AttributeFilter filter)
{
    const PromptReply chosen = co_await context.selection();
    const std::vector<RecordId> references = editable(context, chosen.entities);
    for (const RecordId id : matchingAttributes(context.drawing(), references, filter)) {
        for (;;) {
            const PromptReply option = co_await context.keyword(
                Commands::tr("Enter an option [Value/Height/Layer/Next] <N>: "), {}, u"Next"_s);
            if (!option.hasValue() || option.text == u"Next")
                break;
            if (!co_await changeAttribute(context, id, option.text))
                co_return false;
        }
    }
    co_return true;
}

// One by one, or a string in all of them at once.
CommandTask editAttributes(CommandContext &context)
{
    const PromptReply single =
        co_await context.keyword(Commands::tr("Edit attributes one at a time? [Yes/No] <Y>: "), {}, u"Yes"_s);
    if (single.text != u"No") {
        const AttributeFilter filter = co_await askAttributeFilter(context);
        co_await editOneByOne(context, filter);
        co_return;
    }
    const PromptReply visible =
        co_await context.keyword(Commands::tr("Edit only attributes visible on screen? [Yes/No] <Y>: "), {}, u"Yes"_s);
    const AttributeFilter filter = co_await askAttributeFilter(context);
    std::vector<RecordId> references = currentEntities(context.drawing());
    if (visible.text != u"No") {
        const PromptReply chosen = co_await context.selection();
        references = chosen.entities;
    }
    co_await replaceStrings(context, matchingAttributes(context.drawing(), editable(context, references), filter));
}

} // namespace

std::vector<CommandRow> attributeCommands()
{
    return {{"-ATTEDIT", editAttributes, "Changes the values of attributes"},
            {"ATTSYNC", syncAttributes, "Gives references the attributes that their block defines"}};
}

} // namespace host::kernel
