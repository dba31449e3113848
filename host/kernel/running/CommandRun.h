#pragma once

#include "host/kernel/input/PromptDialogue.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/CommandTable.h"

namespace host::kernel {

/// A built-in command under way, from its start to its end. It stands at a prompt or is done; whoever has it says who
/// answers next: a program's offer(), or the user. It belongs to one document, where it changes CMDNAMES while it is
/// there, and to one run: a command that waits for a program's next (command ...) is the document's pending one.
class CommandRun
{
public:
    /// How it was called.
    enum class Manner
    {
        Usual,
        Transparent ///< in the middle of another prompt, so that its own ones look like that
    };
    /// Starts the command that was typed; a system variable's name starts SETVAR on it. Null when it is neither.
    static std::unique_ptr<CommandRun> start(Document &document, const QString &typed, Manner manner = Manner::Usual);
    /// Starts the command: its reactors hear of it and it runs to its first prompt.
    CommandRun(Document &document, const CommandRow &row, Manner manner = Manner::Usual);
    /// Gives the command up where it waits.
    ~CommandRun();
    CommandRun(const CommandRun &) = delete;
    CommandRun &operator=(const CommandRun &) = delete;

    /// At its end, however it came there.
    bool isDone() const { return !m_task; }
    /// Ended by Esc, or because nobody was there to answer.
    bool isCancelled() const { return m_isCancelled; }
    /// Ended without having done what it was asked for: it did not take an answer, or said why it cannot.
    bool hasFailed() const { return m_context.hasFailed(); }
    /// The prompt it waits at, or that of a command in the middle of it. Not to be asked when it is done.
    const PromptRequest &request() const { return m_inside ? m_inside->request() : m_dialogue->request(); }
    /// An answer to the prompt it waits at, as a Lisp program gives it. One that is not taken is told, and the prompt
    /// waits for the next. One that calls another command in the middle of the prompt has the
    /// answers behind it go there until that has ended.
    void offer(const InputAnswer &answer);
    /// Whether the answer that it got last was not taken, so that it still asks.
    bool wasRefused() const;
    /// Ends it because of an answer that was not taken: all that it did is taken back.
    void refuse();
    /// Has the user answer the prompt it waits at. Blocks until there is an answer; a refused one is asked for again.
    void askUser();
    /// Has the user answer all that is still asked. Afterwards it is done.
    void runToEnd();

private:
    /// Goes on with a reply that the prompt takes; a cancelled one ends the command.
    void reply(PromptReply given);
    /// Puts a step of a selection in. True when it is complete; `reply` is all of it then.
    bool growSelection(PromptReply &reply);
    /// Begins or answers a command in the middle of the prompt. False when there is none and `answer` calls none.
    bool offerInside(const InputAnswer &answer);
    /// Goes back to the prompt when that command has ended.
    void leaveInside();
    /// Waits at a prompt.
    void standAt(PromptRequest request);
    /// Starts the body of the row, whose undo step begins here.
    void begin();
    /// Starts the command that is to follow this one, where there is one; see CommandContext::repeat().
    void repeat();
    /// Runs the body to its next prompt or its end.
    void resume();
    /// Lets the body go, and its name from CMDNAMES; what it did stays and ends its undo step.
    void finish();
    /// Ends it at a prompt; what stays says its row.
    void cancel();
    void echoPrompt();
    bool isEchoing() const;

    Document &m_document;
    const CommandRow *m_row; ///< another one once a command is repeated
    int m_start = 0;         ///< of the undo steps, where it began
    CommandContext m_context;
    std::optional<CommandTask> m_task;        ///< the body; none when it has ended
    std::optional<PromptDialogue> m_dialogue; ///< the prompt it waits at
    std::unique_ptr<CommandRun> m_inside;     ///< a command in the middle of that prompt
    Manner m_manner;
    bool m_isCancelled = false;
    bool m_hasAsked = false; ///< since its body started
};

} // namespace host::kernel
