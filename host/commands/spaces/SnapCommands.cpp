#include "host/commands/Commands.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/SnapModes.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

// OSNAP, -OSNAP, DSETTINGS: which object snaps are always on, as a list of words. An empty answer leaves them, "none"
// and "off" end them.
CommandTask setSnapModes(CommandContext &context)
{
    SystemVariables &variables = context.document().variables();
    const int modes = variables.integer(u"OSMODE");
    context.print(Commands::tr("\nCurrent osnap modes: ") +
                  snapModeWords(modes & drawing::SnapsSwitchedOff ? 0 : modes));
    for (;;) {
        const PromptReply reply = co_await context.text(Commands::tr("Enter list of object snap modes: "));
        if (reply.isEmpty() || reply.text.trimmed().isEmpty())
            co_return;
        const QString word = reply.text.trimmed().toLower();
        const bool isOff = word == u"off" || word == u"_off";
        if (const std::optional<int> wanted = isOff ? 0 : parseSnapModes(reply.text)) {
            variables.set(u"OSMODE", *wanted);
            co_return;
        }
        if (context.refuse(Commands::tr("Invalid object snap mode.")))
            co_return;
    }
}

// APERTURE: how near the pointer an entity is snapped to, in pixels.
CommandTask setAperture(CommandContext &context)
{
    SystemVariables &variables = context.document().variables();
    for (;;) {
        const PromptReply reply = co_await context.integer(
            Commands::tr("Object snap target height (1-50 pixels) <%1>: ").arg(variables.integer(u"APERTURE")), {},
            variables.display(u"APERTURE"));
        if (reply.isEmpty() || variables.set(u"APERTURE", reply.integer) == SetOutcome::Done)
            co_return;
        if (context.refuse(Commands::tr("Value must be between 1 and 50.")))
            co_return;
    }
}

} // namespace

std::vector<CommandRow> snapCommands()
{
    return {
        {"OSNAP", setSnapModes, "Says which object snaps are always on", WhenCancelled::TakeBack, Interrupts::Prompts},
        {"-OSNAP", setSnapModes, "Says which object snaps are always on", WhenCancelled::TakeBack, Interrupts::Prompts},
        {"DSETTINGS", setSnapModes, "Says which object snaps are always on", WhenCancelled::TakeBack,
         Interrupts::Prompts},
        {"APERTURE", setAperture, "Says how near the pointer object snap looks", WhenCancelled::TakeBack,
         Interrupts::Prompts}};
}

} // namespace host::kernel
