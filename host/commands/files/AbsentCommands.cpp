// Commands that programs call on their way and that have nothing to do here: what they ask is taken, so that programs
// and scripts go on in step.

#include "host/commands/Commands.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/input/InputFeeder.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

#include <QThread>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

CommandTask loadMenu(CommandContext &context)
{
    const PromptReply file = co_await context.text(Commands::tr("Enter name of customization file to load: "));
    context.print(Commands::tr("\n\"%1\" was not loaded: there are no menu files here.").arg(file.text));
}

CommandTask unloadMenu(CommandContext &context)
{
    const PromptReply name = co_await context.text(Commands::tr("Enter name of customization group to unload: "));
    context.print(Commands::tr("\nThere is no customization group \"%1\".").arg(name.text));
}

CommandTask loadAssembly(CommandContext &context)
{
    const PromptReply file = co_await context.text(Commands::tr("Enter name of assembly to load: "));
    context.print(Commands::tr("\n\"%1\" was not loaded: programs for other hosts do not run here.").arg(file.text));
}

CommandTask loadRuntime(CommandContext &context)
{
    const PromptReply what =
        co_await context.keyword(Commands::tr("Enter an option [?/Load/Unload/Commands/Options]: "));
    if (what.text == u"Load"_s || what.text == u"Unload"_s)
        co_await context.text(Commands::tr("Enter name of application file: "));
    context.print(Commands::tr("\nPrograms for other hosts do not run here."));
}

CommandTask nothing(CommandContext &)
{
    co_return;
}

/// Milliseconds, in pieces between which the user may stop the run. Where nobody watches there is nothing to wait for.
CommandTask delay(CommandContext &context)
{
    const PromptReply time = co_await context.integer(Commands::tr("Enter delay time (in milliseconds): "), {}, {},
                                                      NoEmptyAnswer | NoNegative);
    const InputFeeder *watcher = context.document().session().feeder();
    if (!watcher || !watcher->isAttended())
        co_return;
    constexpr int longest = 32767;
    constexpr int piece = 50;
    for (int left = std::min(time.integer, longest); left > 0; left -= piece) {
        QThread::msleep(static_cast<unsigned long>(std::min(left, piece)));
        if (context.document().session().isStopWanted())
            break;
    }
}

} // namespace

std::vector<CommandRow> absentCommands()
{
    return {{"ARX", loadRuntime, "Takes what programs ask of it; programs for other hosts do not run here"},
            {"CUILOAD", loadMenu, "Takes the name of a menu file; there are none here"},
            {"CUIUNLOAD", unloadMenu, "Takes the name of a menu; there are none here"},
            {"DELAY", delay, "Waits for so many milliseconds", WhenCancelled::TakeBack, Interrupts::Prompts},
            {"GRAPHSCR", nothing, "The drawing is always in sight", WhenCancelled::TakeBack, Interrupts::Prompts},
            {"MENU", loadMenu, "Takes the name of a menu file; there are none here"},
            {"MENULOAD", loadMenu, "Takes the name of a menu file; there are none here"},
            {"MENUUNLOAD", unloadMenu, "Takes the name of a menu; there are none here"},
            {"NETLOAD", loadAssembly, "Takes a file's name; programs for other hosts do not run here"},
            {"PROPERTIES", nothing, "Shows the properties panel where it is entered by hand in the window"},
            {"RESUME", nothing, "Scripts go on by themselves", WhenCancelled::TakeBack, Interrupts::Prompts},
            {"TEXTSCR", nothing, "The command line is always in sight", WhenCancelled::TakeBack, Interrupts::Prompts}};
}

} // namespace host::kernel
