// Running commands from Lisp.

#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/input/AnswerFromValue.h"
#include "host/kernel/input/Keywords.h"
#include "host/kernel/input/SnapModes.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/running/CommandRun.h"
#include "host/kernel/running/CommandStack.h"
#include "host/kernel/running/ModuleCommandRun.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Printer.h"

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

/// An argument as the answer to a prompt; nothing for the one that has the user answer.
std::optional<InputAnswer> answerAt(Arguments &args, std::size_t index)
{
    if (args[index].isString() && stringAt(args, index) == pauseText)
        return std::nullopt;
    const std::optional<InputAnswer> answer = answerFromValue(documentOf(args), args[index]);
    if (!answer)
        args.badValue(index, "command argument");
    return answer;
}

/// Starts a built-in command. False when there is none of that name, which ends the call.
bool startCommand(Document &document, const QString &command)
{
    std::unique_ptr<CommandRun> started = CommandRun::start(document, command);
    if (!started) {
        document.print(Functions::tr("\nUnknown command \"%1\".\n").arg(CommandTable::plainName(command)));
        return false;
    }
    document.setPendingCommand(std::move(started));
    return true;
}

/// Hands an argument to the command under way. False when the command has ended without doing what it was asked for.
bool giveArgument(Arguments &args, std::size_t index)
{
    CommandRun &command = *documentOf(args).pendingCommand();
    if (const std::optional<InputAnswer> answer = answerAt(args, index))
        command.offer(*answer);
    else
        command.askUser();
    return !command.hasFailed();
}

GivenAnswers answersFrom(Arguments &args, std::size_t index)
{
    GivenAnswers answers;
    for (; index < args.size(); ++index)
        answers.push_back(answerAt(args, index));
    return answers;
}

/// Tells of the arguments from `index` on, which nothing asked for.
void tellLeftOver(Arguments &args, std::size_t index)
{
    QStringList texts;
    for (; index < args.size(); ++index)
        texts.append(QString::fromStdString(lisp::toText(args[index])));
    documentOf(args).print(Functions::tr("\nLeft over from (command): %1\n").arg(texts.join(u' ')));
}

/// Runs the command that the argument at `index` names; `index` moves on to the last argument that was used. False when
/// there is no such command.
bool runNamed(Arguments &args, std::size_t &index)
{
    Document &document = documentOf(args);
    const QString name = args[index].isNil() ? QString() : stringAt(args, index);
    // An empty answer too many at the end of a command does no harm.
    if (name.isEmpty())
        return true;
    const CommandStack &brought = document.session().commandStack();
    const bool isCommand = CommandTable::find(name) || brought.find(name);
    const QString command = isCommand ? name : document.commandOfAlias(name);
    if (OdEdCommand *found = brought.find(command)) {
        index += runModuleCommand(document, *found, answersFrom(args, index + 1));
        return true;
    }
    return startCommand(document, command);
}

/// Whether the argument can name a command; nil and "" may stand behind one that is complete.
bool mayBeName(const Value &argument)
{
    return argument.isString() || argument.isNil();
}

/// Whether a text that a program gives can be no answer to the prompt that still waits, but names a command: (command
/// "FILLET" "R" 2) leaves FILLET asking for entities, and programs begin it anew all the same.
bool beginsAnother(const CommandRun &waiting, const Value &argument, bool isFirst)
{
    const PromptRequest &request = waiting.request();
    if (!argument.isString() || request.kind == PromptKind::String || (request.bits & AnyText) != 0)
        return false;
    const QString text = fromUtf8(argument.asString());
    if (text.startsWith(u'\'') || !CommandTable::find(text))
        return false;
    // Behind a dot stands a command's name and nothing else; other words may be options, snaps or ways to choose, and
    // in the middle of a call they are meant for the prompt.
    const bool isNameAlone = text.startsWith(u'.') || text.startsWith(QStringLiteral("_."));
    return isNameAlone ||
           (isFirst && request.kind != PromptKind::Selection && !keywordFor(request, text) && !parseSnapModes(text));
}

enum class Ending
{
    Done,          ///< or the command waits for more
    NoSuchCommand, ///< a name was none
    Failed         ///< a command did not take an answer, or said why it cannot
};

/// An answer that is not taken is told, and the next one answers the same prompt: programs answer questions that are
/// not asked everywhere. When it is the last one, nobody knows what the program is about, and the command ends.
bool endsRefused(Document &document)
{
    CommandRun *command = document.pendingCommand();
    if (!command || !command->wasRefused())
        return false;
    command->refuse();
    return true;
}

/// Runs the arguments. What is left over behind a command, because it asked for less or has failed, is told.
Ending runArguments(Arguments &args)
{
    Document &document = documentOf(args);
    document.prompts().refuseInDialog();
    Ending ending = Ending::Done;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (document.pendingCommand() && beginsAnother(*document.pendingCommand(), args[i], i == 0))
            document.takePendingCommand();
        bool isLost = false;
        if (document.pendingCommand())
            isLost = !giveArgument(args, i);
        else if (!mayBeName(args[i]))
            tellLeftOver(args, std::exchange(i, args.size()));
        else if (!runNamed(args, i)) {
            if (i + 1 < args.size())
                tellLeftOver(args, i + 1);
            return Ending::NoSuchCommand;
        }
        isLost = isLost || (i + 1 == args.size() && endsRefused(document));
        dropWhenDone(document);
        ending = isLost ? Ending::Failed : ending;
        if (isLost && i + 1 < args.size())
            tellLeftOver(args, std::exchange(i, args.size()) + 1);
    }
    return ending;
}

// (command argument ...) -> nil. Starts a command, by its name or an alias, and answers its prompts: text,
// numbers, points in user coordinates, entity names, selection sets; "\\" has the user answer. A built-in command that
// is not complete goes on with the next call; one that a module brought asks the user for what is missing. Without
// arguments, or with nil, the command under way is cancelled. An answer that a prompt does not take is told, and the
// next one answers the same prompt; behind the last one the command ends with nothing done. A name that is no command
// is told to the user, and so are arguments that nothing asked for: those behind a complete command that are no
// command's name.
Value command(Arguments &args)
{
    if (args.size() == 0)
        documentOf(args).takePendingCommand();
    runArguments(args);
    return {};
}

// (vl-cmdf argument ...) -> T, nil when a name was no command or the last answer was not taken. As (command).
Value vlCmdf(Arguments &args)
{
    if (args.size() == 0)
        documentOf(args).takePendingCommand();
    return args.boolean(runArguments(args) == Ending::Done);
}

// (command-s argument ...) -> nil. As (command), but the whole of one or more commands: the user is not asked. It is an
// error when an argument is to be answered by the user, when a name is no command, and when a command fails or still
// asks for something; that one is cancelled then.
Value commandS(Arguments &args)
{
    Document &document = documentOf(args);
    for (std::size_t i = 0; i < args.size(); ++i)
        if (args[i].isString() && stringAt(args, i) == pauseText)
            args.fail("the user cannot be asked here");
    document.takePendingCommand();
    const Ending ending = runArguments(args);
    const bool isComplete = !document.takePendingCommand();
    if (ending == Ending::NoSuchCommand)
        args.fail("unknown command");
    if (ending == Ending::Failed)
        args.fail("the command has failed");
    if (!isComplete)
        args.fail("the command asks for more");
    return {};
}

} // namespace

void addCommandFunctions(lisp::Interpreter &interpreter)
{
    static constexpr lisp::NativeRow rows[] = {
        {"command", command, lisp::Arity::any(), "[answer...]",
         "runs commands with these answers; without any, cancels"},
        {"command-s", commandS, lisp::Arity::atLeast(1), "command answer...",
         "runs one command that these answers bring to its end"},
        {"vl-cmdf", vlCmdf, lisp::Arity::any(), "[answer...]", "as command; T"},
    };
    interpreter.define(rows);
    // The name that programs use for the argument that has the user answer.
    interpreter.setVariable("PAUSE", Value::string(pauseText.toStdString()));
}

} // namespace host::kernel
