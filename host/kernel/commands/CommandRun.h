#pragma once

#include "host/kernel/commands/CommandContext.h"
#include "host/kernel/commands/CommandTable.h"
#include "host/kernel/input/PromptDialogue.h"

namespace host::kernel {

/// A built-in command under way, from its start to its end.
class CommandRun
{
public:
    /// Starts the command that was typed; a system variable's name starts SETVAR on it. Null when it is neither.
    static std::unique_ptr<CommandRun> start(Document &document, const QString &typed);
    /// Starts the command: its reactors hear of it and it runs to its first prompt.
    CommandRun(Document &document, const CommandRow &row);
    /// Gives the command up where it waits.
    ~CommandRun();
    CommandRun(const CommandRun &) = delete;
    CommandRun &operator=(const CommandRun &) = delete;

    bool isDone() const { return !m_task; }
    bool isCancelled() const { return m_isCancelled; }
    /// An answer to the prompt it waits at, as a Lisp program gives it.
    void offer(const InputAnswer &answer);
    /// Has the user answer the prompt it waits at.
    void askUser();
    /// Has the user answer all that is still asked.
    void runToEnd();

private:
    void reply(PromptReply given);
    /// Puts a step of a selection in. True when it is complete; `reply` is all of it then.
    bool growSelection(PromptReply &reply);
    void resume();
    void finish();
    void echoPrompt();

    Document &m_document;
    CommandContext m_context;
    std::optional<CommandTask> m_task;
    std::optional<PromptDialogue> m_dialogue;
    bool m_isCancelled = false;
};

} // namespace host::kernel
