// Running commands from Lisp.

#include "host/kernel/Document.h"
#include "host/kernel/commands/CommandRun.h"
#include "host/kernel/functions/AnswerFromValue.h"
#include "host/kernel/functions/LispConversion.h"
#include "host/kernel/functions/NativeFunctions.h"
#include "host/lisp/Interpreter.h"

namespace host::kernel {

namespace {

using lisp::Arguments;
using lisp::Value;

/// The argument that has the user answer: PAUSE.
const QString pauseText = QStringLiteral("\\");

void dropWhenDone(Document &document)
{
    if (const CommandRun *command = document.pendingCommand(); command && command->isDone())
        document.takePendingCommand();
}

/// Starts the command an argument names. False when there is none, which ends the call.
bool startCommand(Arguments &args, std::size_t index)
{
    Document &document = documentOf(args);
    if (args[index].isNil())
        return true;
    const QString name = stringAt(args, index);
    // An empty answer too many at the end of a command does no harm.
    if (name.isEmpty())
        return true;
    const QString command = CommandTable::find(name) ? name : document.commandOfAlias(name);
    std::unique_ptr<CommandRun> started = CommandRun::start(document, command);
    if (!started) {
        document.print(QStringLiteral("\nUnknown command \"%1\".\n").arg(CommandTable::plainName(command)));
        return false;
    }
    document.setPendingCommand(std::move(started));
    return true;
}

/// Hands an argument to the command under way.
void giveArgument(Arguments &args, std::size_t index)
{
    CommandRun &command = *documentOf(args).pendingCommand();
    if (args[index].isString() && stringAt(args, index) == pauseText) {
        command.askUser();
        return;
    }
    const std::optional<InputAnswer> answer = answerFromValue(documentOf(args), args[index]);
    if (!answer)
        args.badValue(index, "command argument");
    command.offer(*answer);
}

/// Runs the arguments; returns false when a name was no command.
bool runArguments(Arguments &args)
{
    Document &document = documentOf(args);
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (document.pendingCommand())
            giveArgument(args, i);
        else if (!startCommand(args, i))
            return false;
        dropWhenDone(document);
    }
    return true;
}

// (command argument ...) -> nil. Starts a built-in command, by its name or an alias, and answers its prompts: text,
// numbers, points in user coordinates, entity names, selection sets; "\\" has the user answer. A command that is not
// complete goes on with the next call. Without arguments, or with nil, the command under way is cancelled. A name that
// is no command is told to the user.
Value command(Arguments &args)
{
    if (args.size() == 0)
        documentOf(args).takePendingCommand();
    runArguments(args);
    return {};
}

// (vl-cmdf argument ...) -> T, nil when a name was no command. As (command).
Value vlCmdf(Arguments &args)
{
    if (args.size() == 0)
        documentOf(args).takePendingCommand();
    return args.boolean(runArguments(args));
}

// (command-s argument ...) -> nil. As (command), but the command must be complete: what is still asked is cancelled.
Value commandS(Arguments &args)
{
    runArguments(args);
    documentOf(args).takePendingCommand();
    return {};
}

} // namespace

void addCommandFunctions(lisp::Interpreter &interpreter)
{
    static constexpr lisp::NativeRow rows[] = {
        {"command", command, lisp::Arity::any()},
        {"command-s", commandS, lisp::Arity::atLeast(1)},
        {"vl-cmdf", vlCmdf, lisp::Arity::any()},
    };
    interpreter.define(rows);
    // The name that programs use for the argument that has the user answer.
    interpreter.setVariable("PAUSE", Value::string(pauseText.toStdString()));
}

} // namespace host::kernel
