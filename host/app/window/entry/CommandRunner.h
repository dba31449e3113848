#pragma once

#include "host/app/playback/SessionPlayer.h"
#include "host/app/window/entry/WindowFeeder.h"
#include "host/kernel/documents/Session.h"

#include <functional>

namespace host::app {

class CommandLine;

/// What runs in the window: one line, program or recorded session at a time, on the active drawing. While one runs,
/// what is entered answers its prompts. The command line shows the prompt, and what cannot be done is told there.
class CommandRunner final : public QObject
{
    Q_OBJECT

public:
    /// Feeds the session's prompts as long as it lives; session and command line must outlive it.
    CommandRunner(kernel::Session &session, CommandLine &commandLine);
    ~CommandRunner() override;

    /// Whether anything runs, in any of the drawings.
    bool isBusy() const;
    /// Answers the prompt that waits, else runs the line.
    void enter(const QString &text);
    /// The prompt that waits for an answer.
    const std::optional<kernel::PromptRequest> &request() const { return m_feeder.request(); }
    /// The last command that was run by its name, as it was typed; empty before the first.
    const QString &lastCommand() const { return m_lastCommand; }
    /// Whether a prompt waits that takes a command in the middle: it asks for no text, and for a command's sake is not
    /// one itself that was called there.
    bool takesCommand() const;
    /// Runs a line in place of what was begun at the command line. At a prompt that takesCommand() it is called in the
    /// middle of it, which commands other than those that may be tell; nothing while something else runs.
    void start(const QString &line);
    /// Runs Lisp text as a whole, in place of what was begun at the command line. Only while a drawing is open and
    /// nothing runs. What it prints and its error are printed in the drawing.
    kernel::RunResult evaluate(const QString &text);
    /// Runs a line in place of what was begun at the command line, with answers to its first prompts; nothing while
    /// something else runs.
    void startWith(const QString &line, const std::vector<kernel::InputAnswer> &answers);
    /// Answers the prompt that waits; nothing when there is none.
    void answer(const kernel::InputAnswer &answer);
    /// Stops what runs; else gives up what was begun or chosen.
    void cancel();
    /// Stops what runs.
    void stop() { m_feeder.cancel(); }
    PlaybackResult play(const PlaybackScript &script, PlaybackOptions options);

signals:
    /// What the pointer may answer from now on; nothing between prompts.
    void requestChanged(const std::optional<host::kernel::PromptRequest> &request);
    /// What can be done now may be another.
    void stateChanged();
    void ended();
    /// A panel of this name was asked for by a command that a person entered.
    void panelWanted(const QString &name);
    /// What was entered has run; what was chosen for it may still be.
    void ranTo(const host::kernel::RunResult &result);

private:
    kernel::Document *document() const { return m_session.documents().active(); }
    /// `begin`, which may run something, and what the queue holds then.
    void run(const std::function<kernel::RunResult()> &begin);
    void rememberCommand(const kernel::PromptRequest &request, const kernel::InputAnswer &answer);
    void showRequest(const std::optional<kernel::PromptRequest> &request);

    kernel::Session &m_session;
    CommandLine &m_commandLine;
    WindowFeeder m_feeder;
    QString m_lastCommand;
    bool m_isRunning = false; ///< the queue is being worked off, or a session played
};

} // namespace host::app
