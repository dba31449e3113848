#include "host/commands/common/ObjectChoice.h"

#include "host/kernel/documents/Document.h"
#include "host/kernel/running/CommandContext.h"

namespace host::kernel {

Dialogue<ObjectChoice> askObjects(CommandContext &context, QString prompt, QStringList options, ChoiceEnd end,
                                  PickReach reach)
{
    // What was chosen before does not count, and must not look chosen.
    if (!context.document().impliedSelection().empty())
        context.document().setImpliedSelection({});
    SelectionBuilder builder(context.document());
    builder.setPrompt(u'\n' + prompt);
    if (reach == PickReach::Alone)
        builder.setAlone();
    builder.setOptions(options);
    while (!builder.isDone()) {
        const PromptReply reply = co_await context.ask(builder.request());
        builder.setAnsweredByProgram(context.isAnsweredByProgram());
        builder.add(reply);
        const bool isBetween = builder.request().kind == PromptKind::Selection;
        if (end == ChoiceEnd::FirstOfProgram && context.isAnsweredByProgram() && isBetween &&
            !builder.entities().empty())
            break;
    }
    context.document().setPreviousSelection(builder.entities());
    co_return ObjectChoice{builder.entities(), builder.steps(), builder.option()};
}

} // namespace host::kernel
