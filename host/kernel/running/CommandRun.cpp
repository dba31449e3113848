#include "host/kernel/running/CommandRun.h"

#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/input/UserInput.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/platform/Editor.h"
#include "host/kernel/running/TransparentCall.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/lisp/Error.h"

namespace host::kernel {

std::unique_ptr<CommandRun> CommandRun::start(Document &document, const QString &typed, Manner manner)
{
    const QString name = CommandTable::plainName(typed);
    // A point asks for the built-in command whatever programs have hidden.
    const bool isAskedFor = QStringView(typed).trimmed().chopped(name.size()).contains(u'.');
    const bool isHidden = !isAskedFor && document.session().undefinedCommands().contains(name);
    if (const CommandRow *row = isHidden ? nullptr : CommandTable::find(typed))
        return std::make_unique<CommandRun>(document, *row, manner);
    if (!document.variables().get(name))
        return nullptr;
    auto command = std::make_unique<CommandRun>(document, *CommandTable::find(u"SETVAR"), manner);
    command->offer(TextAnswer{name, false});
    return command;
}

CommandRun::CommandRun(Document &document, const CommandRow &row, Manner manner)
    : m_document(document), m_row(&row), m_context(document), m_manner(manner)
{
    begin();
}

CommandRun::~CommandRun()
{
    m_inside.reset();
    if (m_task)
        cancel();
}

void CommandRun::offer(const InputAnswer &answer)
{
    if (offerInside(answer))
        return;
    echoPrompt();
    m_context.m_isRefused = false;
    m_context.m_isAnsweredAhead = false;
    m_context.m_isAnsweredByProgram = true;
    if (std::optional<PromptReply> given = m_dialogue->offer(answer))
        reply(std::move(*given));
}

bool CommandRun::wasRefused() const
{
    if (isDone())
        return false;
    return m_inside ? m_inside->wasRefused() : m_context.m_isRefused || m_dialogue->wasRefused();
}

bool CommandRun::offerInside(const InputAnswer &answer)
{
    const std::optional<QString> called = transparentCall(answer, m_dialogue->request());
    if (!m_inside && !called)
        return false;
    if (m_inside)
        m_inside->offer(answer);
    else
        m_inside = startTransparent(m_document, *called, m_dialogue->request());
    leaveInside();
    return true;
}

void CommandRun::leaveInside()
{
    if (m_inside && !m_inside->isDone())
        return;
    m_inside.reset();
    tellResumed(m_document);
}

void CommandRun::askUser()
{
    if (m_inside) {
        m_inside->askUser();
        return leaveInside();
    }
    PromptReply given = m_document.prompts().ask(*m_dialogue, UserInput::WhenRefused::EndBeforeMore);
    m_context.m_isRefused = false;
    m_context.m_isAnsweredByProgram = false;
    m_context.m_isAnsweredAhead = !m_document.session().input().isEmpty();
    reply(std::move(given));
    if (hasFailed())
        m_document.prompts().dropTypedAhead();
}

void CommandRun::runToEnd()
{
    while (!isDone())
        askUser();
}

void CommandRun::reply(PromptReply given)
{
    if (given.kind == ReplyKind::Cancelled) {
        m_isCancelled = true;
        return given.isRefused ? refuse() : cancel();
    }
    if (m_context.m_selection && !growSelection(given))
        return;
    m_context.m_reply = std::move(given);
    resume();
}

bool CommandRun::growSelection(PromptReply &reply)
{
    std::optional<SelectionBuilder> &selection = m_context.m_selection;
    selection->setAnsweredByProgram(m_context.m_isAnsweredByProgram);
    selection->add(reply);
    if (!selection->isDone()) {
        standAt(selection->request());
        return false;
    }
    reply = {};
    reply.entities = selection->entities();
    reply.text = selection->option();
    if (!reply.text.isEmpty())
        reply.kind = ReplyKind::Keyword;
    m_document.setPreviousSelection(reply.entities);
    selection.reset();
    return true;
}

void CommandRun::begin()
{
    m_document.session().editor().commandWillStart();
    m_start = m_document.undoSteps().checkpoint();
    m_document.pushCommandName(QString::fromLatin1(m_row->name));
    m_hasAsked = false;
    m_task.emplace(m_row->body(m_context));
    resume();
}

void CommandRun::repeat()
{
    const CommandRow *wanted = m_context.m_repeated;
    // What asks for nothing would go on for ever: it is done once.
    const bool isEndless = wanted == m_row && !m_hasAsked;
    if (!wanted || isEndless)
        return;
    m_row = wanted;
    begin();
}

void CommandRun::resume()
{
    m_dialogue.reset();
    try {
        m_task->resume(std::exchange(m_context.m_waiting, {}));
    } catch (const lisp::Error &) {
        finish();
        throw;
    } catch (const std::exception &failure) {
        m_context.fail(QString::fromStdString(lisp::messageOf(failure)));
    } catch (...) {
        finish();
        throw;
    }
    if (m_task->isDone() && hasFailed())
        refuse();
    else if (m_task->isDone()) {
        finish();
        repeat();
    } else
        standAt(m_context.m_request);
}

void CommandRun::standAt(PromptRequest request)
{
    m_hasAsked = true;
    request.isTransparent = m_manner == Manner::Transparent;
    if (request.isTransparent)
        request.prompt.insert(request.prompt.startsWith(u'\n') ? 1 : 0, QStringLiteral(">>"));
    m_dialogue.emplace(m_document, std::move(request));
}

void CommandRun::finish()
{
    if (!m_task)
        return;
    m_task.reset();
    m_dialogue.reset();
    m_document.popCommandName();
    m_document.undoSteps().boundary();
}

void CommandRun::cancel()
{
    m_isCancelled = true;
    finish();
    if (m_row->whenCancelled == WhenCancelled::TakeBack)
        m_document.undoSteps().takeBackTo(m_start);
}

void CommandRun::refuse()
{
    m_inside.reset();
    m_context.m_hasFailed = true;
    finish();
    m_document.undoSteps().takeBackTo(m_start);
    m_document.print(Kernel::tr("\n%1 has ended, nothing was changed.").arg(QLatin1String(m_row->name)));
}

void CommandRun::echoPrompt()
{
    if (isEchoing())
        m_document.printPrompt(m_dialogue->request().prompt);
}

bool CommandRun::isEchoing() const
{
    return m_document.variables().integer(u"CMDECHO", 1) != 0;
}

} // namespace host::kernel
