#include "host/kernel/running/ModuleCommandRun.h"

#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/platform/Editor.h"
#include "host/kernel/platform/Services.h"
#include "host/kernel/running/CommandTable.h"
#include "platform/ed/OdEdCommand.h"

namespace host::kernel {

namespace {

/// One run of a command, in order whatever the command does. It works on its own document even when that is not the
/// active one.
class CommandScope
{
public:
    CommandScope(Document &document, OdEdCommand &command, GivenAnswers given)
        : m_document(document), m_before(document.prompts().give(std::move(given)))
    {
        setActiveDocument(&document);
        document.session().editor().commandWillStart();
        document.pushCommandName(CommandTable::plainName(command.globalName()));
    }
    ~CommandScope()
    {
        m_document.popCommandName();
        m_document.prompts().give(std::move(m_before));
        m_document.undoSteps().boundary();
        setActiveDocument(m_document.session().documents().active());
    }
    CommandScope(const CommandScope &) = delete;
    CommandScope &operator=(const CommandScope &) = delete;

private:
    Document &m_document;
    GivenAnswers m_before;
};

} // namespace

std::size_t runModuleCommand(Document &document, OdEdCommand &command, GivenAnswers given)
{
    const std::size_t count = given.size();
    const CommandScope scope(document, command, std::move(given));
    command.execute(nullptr);
    return count - document.prompts().given().size();
}

} // namespace host::kernel
