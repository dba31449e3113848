#include "host/commands/Commands.h"
#include "host/commands/annotate/TextPlacement.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

/// A mode of attributes by the option that switches it.
struct AttributeMode
{
    QStringView option;
    qint64 flag;
};

constexpr qint64 constantFlag = 2;
constexpr AttributeMode attributeModes[] = {
    {u"Invisible", 1},
    {u"Constant", constantFlag},
    {u"Verify", 4},
    {u"Preset", 8},
};

QString modesShown(qint64 flags)
{
    QStringList shown;
    for (const AttributeMode &mode : attributeModes)
        shown.append(u"%1=%2"_s.arg(mode.option, (flags & mode.flag) != 0 ? u"Y"_s : u"N"_s));
    return shown.join(u"  "_s);
}

/// Switches modes until an empty answer; they are kept for the next definition.
Dialogue<qint64> askModes(CommandContext &context)
{
    SystemVariables &variables = context.document().variables();
    qint64 flags = variables.integer(u"AFLAGS");
    for (;;) {
        context.print(Commands::tr("\nCurrent attribute modes:  ") + modesShown(flags));
        const PromptReply option = co_await context.keyword(
            Commands::tr("Enter an option to change [Invisible/Constant/Verify/Preset] <done>: "), {}, u"done"_s);
        if (!option.hasValue())
            break;
        for (const AttributeMode &mode : attributeModes)
            flags ^= option.text == mode.option ? mode.flag : 0;
    }
    if (variables.get(u"AFLAGS") && variables.integer(u"AFLAGS") != flags)
        variables.setInternally(u"AFLAGS", qint32(flags));
    co_return flags;
}

/// A tag: upper case, without blanks. Empty when the dialogue ended there.
Dialogue<QString> askTag(CommandContext &context)
{
    for (;;) {
        const PromptReply reply = co_await context.text(Commands::tr("Enter attribute tag name: "));
        const QString tag = reply.text.trimmed().toUpper();
        if (!tag.isEmpty() && !tag.contains(u' '))
            co_return tag;
        if (context.refuse(tag.isEmpty() ? Commands::tr("A tag is needed.") : Commands::tr("A tag has no blanks.")))
            co_return QString();
    }
}

// Modes, tag, prompt and default, then where it stands as of a text.
CommandTask defineAttribute(CommandContext &context)
{
    const qint64 flags = co_await askModes(context);
    const QString tag = co_await askTag(context);
    if (tag.isEmpty())
        co_return;
    const bool isConstant = (flags & constantFlag) != 0;
    QString prompt;
    if (!isConstant) {
        const PromptReply reply = co_await context.text(Commands::tr("Enter attribute prompt: "));
        prompt = reply.hasValue() && !reply.text.isEmpty() ? reply.text : tag;
    }
    const QString question =
        isConstant ? Commands::tr("Enter attribute value: ") : Commands::tr("Enter default attribute value: ");
    const PromptReply value = co_await context.text(question);
    const std::optional<TextPlace> start = co_await askTextStart(context);
    if (!start)
        co_return;
    TextPlace place = *start;
    if (!place.isBelow)
        place = co_await askTextSize(context, place);
    keepTextSize(context, place);
    const drawing::FieldList fields = placedText(
        context, {{0, u"ATTDEF"_s}, {1, value.hasValue() ? value.text : QString()}, {3, prompt}, {2, tag}, {70, flags}},
        place);
    if (!fields.empty())
        context.create(fields);
}

} // namespace

std::vector<CommandRow> attributeDefinitionCommands()
{
    constexpr const char *help = "Defines an attribute of a block";
    return {{"-ATTDEF", defineAttribute, help}, {"ATTDEF", defineAttribute, help}};
}

} // namespace host::kernel
