#include "host/kernel/running/TransparentCall.h"

#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/variables/SystemVariables.h"

namespace host::kernel {

namespace {

bool isTransparent(const Document &document, const QString &name)
{
    const CommandRow *row = CommandTable::find(name);
    return row ? row->interrupts == Interrupts::Prompts
               : document.variables().get(CommandTable::plainName(name)).has_value();
}

} // namespace

std::optional<QString> transparentCall(const InputAnswer &answer, const PromptRequest &request)
{
    const auto *text = std::get_if<TextAnswer>(&answer);
    const bool takesText = request.kind == PromptKind::String || request.kind == PromptKind::Command;
    if (!text || takesText || !text->text.startsWith(u'\'') || text->text.size() < 2)
        return {};
    return text->text.trimmed();
}

std::unique_ptr<CommandRun> startTransparent(Document &document, const QString &name, const PromptRequest &request)
{
    const QString command = CommandTable::find(name) ? name : document.commandOfAlias(name);
    if (request.isTransparent || !isTransparent(document, command)) {
        document.print(Kernel::tr("\n** That command may not be invoked transparently **\n"));
        return nullptr;
    }
    return CommandRun::start(document, command, CommandRun::Manner::Transparent);
}

void runTransparent(Document &document, const QString &name, const PromptRequest &request)
{
    if (!request.isTransparent && document.isLispCommand(name))
        document.runCommand(name);
    else if (const std::unique_ptr<CommandRun> command = startTransparent(document, name, request))
        command->runToEnd();
    tellResumed(document);
}

void tellResumed(Document &document)
{
    if (const QString name = document.commandNames().section(u'\'', -1); !name.isEmpty())
        document.print(Kernel::tr("\nResuming %1 command.\n").arg(name));
}

} // namespace host::kernel
