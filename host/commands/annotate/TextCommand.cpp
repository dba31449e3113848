#include "host/commands/Commands.h"
#include "host/commands/annotate/TextPlacement.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

// Start point or justification and style, height, rotation, text.
CommandTask text(CommandContext &context)
{
    const SystemVariables &variables = context.document().variables();
    context.print(Commands::tr("\nCurrent text style:  \"%1\"  Text height:  %2")
                      .arg(variables.text(u"TEXTSTYLE"), context.shownLength(variables.real(u"TEXTSIZE"))));
    const std::optional<TextPlace> start = co_await askTextStart(context);
    if (!start)
        co_return;
    TextPlace place = *start;
    if (!place.isBelow)
        place = co_await askTextSize(context, place);
    const PromptReply content = co_await context.text(Commands::tr("Enter text: "));
    if (!content.hasValue() || content.text.isEmpty())
        co_return;
    keepTextSize(context, place);
    const drawing::FieldList fields = placedText(context, {{0, u"TEXT"_s}, {1, content.text}}, place);
    if (!fields.empty())
        context.create(fields);
}

} // namespace

std::vector<CommandRow> textCommands()
{
    return {{"-TEXT", text, "Writes one line of text"},
            {"DTEXT", text, "Writes one line of text"},
            {"TEXT", text, "Writes one line of text"}};
}

} // namespace host::kernel
