// How a document runs commands, expressions and files.

#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/input/UserInput.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/platform/Editor.h"
#include "host/kernel/running/CommandRun.h"
#include "host/kernel/running/CommandStack.h"
#include "host/kernel/running/CommandTable.h"
#include "host/kernel/running/ModuleCommandRun.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Printer.h"

namespace host::kernel {

/// One run: an undo step when it is the outermost. Ends in order whatever happened inside.
class Document::Run
{
public:
    Run(Document &document, const QString &name) : m_document(document)
    {
        ++m_document.m_runs;
        m_document.m_undoSteps.beginRun(name);
    }
    ~Run()
    {
        if (m_document.m_runs == 1) {
            m_document.finishPendingCommand();
            m_document.m_variables->storeObjectSettings();
        }
        m_document.m_userInput->forgetOptions();
        m_document.m_undoSteps.endRun();
        if (--m_document.m_runs == 0) {
            m_document.followLayout();
            emit m_document.runEnded();
            emit m_document.titleChanged();
        }
    }
    Run(const Run &) = delete;
    Run &operator=(const Run &) = delete;

private:
    Document &m_document;
};

namespace {

/// The Lisp function that a command's name as typed stands for.
QString lispFunction(const QString &typed)
{
    return QStringLiteral("C:") + CommandTable::plainName(typed);
}

QString firstLine(const QString &text)
{
    return text.trimmed().section(u'\n', 0, 0);
}

RunResult failure(const QString &message)
{
    RunResult result;
    result.ok = false;
    result.error = result.report = message;
    return result;
}

RunResult nothingRun()
{
    RunResult result;
    result.hasRun = false;
    return result;
}

} // namespace

RunResult Document::run(const QString &text, const QString &sourceName)
{
    if (!m_interpreter)
        return failure(Kernel::tr("The document has no Lisp engine."));
    m_session.editor().lispWillStart(firstLine(text));
    const Run scope(*this, QStringLiteral("LISP"));
    return report(m_interpreter->run(text.toStdString(), sourceName.toStdString()));
}

RunResult Document::loadLisp(const QString &path)
{
    if (!m_interpreter)
        return failure(Kernel::tr("The document has no Lisp engine."));
    m_session.editor().lispWillStart(QStringLiteral("(load \"%1\")").arg(path));
    const Run scope(*this, QStringLiteral("LOAD"));
    return report(m_interpreter->loadFile(path.toStdString()));
}

RunResult Document::runCommand(const QString &name)
{
    m_lastCommand = name;
    const QString command = isCommand(name) ? name : commandOfAlias(name);
    if (!isLispCommand(command))
        return runBuiltIn(command);
    const QString function = lispFunction(command);
    m_session.editor().lispWillStart(u'(' + function + u')');
    const Run scope(*this, CommandTable::plainName(command));
    return report(m_interpreter->call(function.toStdString()));
}

bool Document::isLispCommand(const QString &typed) const
{
    // A point asks for the built-in command.
    return m_interpreter && !typed.startsWith(u'.') && m_interpreter->isDefined(lispFunction(typed).toStdString());
}

bool Document::isCommand(const QString &typed) const
{
    return isLispCommand(typed) || CommandTable::find(typed) || m_session.commandStack().find(typed);
}

QString Document::commandOfAlias(const QString &typed)
{
    CommandAliases &aliases = m_session.aliases();
    if (const QString problem = aliases.refresh(); !problem.isEmpty())
        print(u'\n' + problem + u'\n');
    const QString command = aliases.command(CommandTable::plainName(typed));
    return command.isEmpty() ? typed : command;
}

RunResult Document::runBuiltIn(const QString &typed)
{
    const QString name = CommandTable::plainName(typed);
    const Run scope(*this, name);
    const int start = m_undoSteps.checkpoint();
    const auto failed = [this](const QString &message) {
        print(u'\n' + message + u'\n');
        return failure(message);
    };
    try {
        if (OdEdCommand *brought = m_session.commandStack().find(typed)) {
            runModuleCommand(*this, *brought);
            return {};
        }
        const std::unique_ptr<CommandRun> command = CommandRun::start(*this, typed);
        if (!command)
            return failed(Kernel::tr("Unknown command \"%1\".").arg(name));
        command->runToEnd();
        if (!command->isCancelled())
            return {};
        RunResult cancelled = failure(Kernel::tr("%1 was cancelled.").arg(name));
        cancelled.wasCancelled = true;
        return cancelled;
    } catch (const std::exception &exception) {
        // Nobody further out could tell it: memory that was not to be had, above all.
        m_undoSteps.takeBackTo(start);
        return failed(
            Kernel::tr("%1: %2; nothing was changed.").arg(name, QString::fromStdString(lisp::messageOf(exception))));
    }
}

RunResult Document::runQueued()
{
    PromptRequest request;
    request.kind = PromptKind::Command;
    if (m_session.input().isEmpty())
        return nothingRun();
    const std::optional<InputAnswer> answer = m_session.input().take(request);
    if (!answer)
        return nothingRun();
    const TextAnswer *typed = std::get_if<TextAnswer>(&*answer);
    if (!typed)
        return {};
    print(QStringLiteral("\nCommand: ") + typed->text + u'\n');
    const bool isExpression = typed->text.startsWith(u'(') || typed->text.startsWith(u'!');
    if (!isExpression) {
        const QString name = typed->text.trimmed().isEmpty() ? m_lastCommand : typed->text.trimmed();
        return name.isEmpty() ? RunResult() : runCommand(name);
    }
    const RunResult result = run(typed->text.startsWith(u'!') ? typed->text.mid(1) : typed->text);
    if (result.ok && !result.value.isEmpty())
        print(u'\n' + result.value);
    return result;
}

void Document::runAs(const QString &name, const std::function<void()> &body)
{
    const Run scope(*this, name);
    body();
}

RunResult Document::report(const lisp::Outcome &outcome)
{
    RunResult result;
    result.ok = outcome.ok();
    if (outcome.ok()) {
        result.value = QString::fromStdString(lisp::toText(outcome.value));
        return result;
    }
    // A command that a failed program left waiting is nothing to ask the user about.
    if (m_runs == 1)
        m_pendingCommand.reset();
    const lisp::Error &error = *outcome.error;
    result.error = QString::fromStdString(error.summary());
    result.report = QString::fromStdString(error.report());
    result.handledByProgram = error.handledByProgram;
    if (!error.handledByProgram && error.kind() != lisp::ErrorKind::Quit)
        print(QStringLiteral("\n; error: ") + result.report + u'\n');
    return result;
}

void Document::setPendingCommand(std::unique_ptr<CommandRun> command)
{
    m_pendingCommand = std::move(command);
}

std::unique_ptr<CommandRun> Document::takePendingCommand()
{
    return std::move(m_pendingCommand);
}

void Document::finishPendingCommand()
{
    if (const std::unique_ptr<CommandRun> command = takePendingCommand())
        command->runToEnd();
}

} // namespace host::kernel
