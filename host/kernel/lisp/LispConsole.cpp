#include "host/kernel/lisp/LispConsole.h"

#include "host/kernel/documents/Session.h"
#include "host/kernel/input/UserInput.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/variables/SystemVariables.h"

namespace host::kernel {

void LispConsole::write(std::string_view text)
{
    m_document.print(fromUtf8(text));
}

void LispConsole::tellLostText(std::string_view message)
{
    write(message);
    m_document.session().tellNotWritten(fromUtf8(message).trimmed());
}

void LispConsole::programFails()
{
    emit m_document.programFailed();
}

lisp::PollAnswer LispConsole::poll()
{
    return m_document.session().isStopWanted() ? lisp::PollAnswer::Stop : lisp::PollAnswer::Continue;
}

std::int64_t LispConsole::heapLimit()
{
    return std::int64_t(m_document.session().lispHeapLimit()) * 1024 * 1024;
}

bool LispConsole::isAttended()
{
    Session &session = m_document.session();
    return !session.input().isEmpty() || (session.feeder() && session.feeder()->isAttended());
}

std::string LispConsole::codePage()
{
    return m_document.variables().text(u"LISPCODEPAGE").toStdString();
}

std::optional<std::string> LispConsole::readLine()
{
    PromptRequest request;
    request.kind = PromptKind::String;
    request.allowSpaces = true;
    const PromptReply reply = m_document.prompts().ask(request);
    if (reply.kind == ReplyKind::Cancelled)
        return {};
    return reply.text.toStdString();
}

std::string LispConsole::findFile(const std::string &name)
{
    return m_document.findFile(QString::fromStdString(name)).toStdString();
}

std::string LispConsole::findTrustedFile(const std::string &name)
{
    return m_document.session().trustedFolders().findTrusted(m_document, fromUtf8(name)).toStdString();
}

std::string LispConsole::findProgram(std::span<const std::string> names, lisp::LoadedBy by)
{
    QStringList wanted;
    for (const std::string &name : names)
        wanted.append(fromUtf8(name));
    return m_document.session().trustedFolders().findProgram(m_document, wanted, by).toStdString();
}

lisp::Value LispConsole::systemVariable(std::string_view name)
{
    const std::optional<VariableValue> value = m_document.variables().get(fromUtf8(name));
    return value ? toLisp(*value) : lisp::Value();
}

} // namespace host::kernel
