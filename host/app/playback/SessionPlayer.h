#pragma once

#include "host/app/playback/DialogDriver.h"
#include "host/app/playback/PlaybackOptions.h"
#include "host/app/playback/PlaybackScript.h"
#include "host/kernel/documents/Document.h"

#include <QTimer>

namespace host::app {

struct CheckedState;

/// Plays recorded sessions: runs their commands on a document, answers prompts and drives dialogs. Everything that is
/// not as the session says, left-over lines included, ends it with a message; nothing waits for a person. When it
/// fails, open dialogs are rejected and the program under way is cancelled. The playing document is made the active
/// one.
///
/// A session without a main window gets a hidden one, so that programs show message boxes and file dialogs to it as
/// they would to a person.
///
/// A script with cases fails: each of casesToPlay() wants the drawing opened anew, which is the caller's.
PlaybackResult runSession(const PlaybackScript &script, kernel::Document &document,
                          const PlaybackOptions &options = {});
/// The same with the text of a session.
PlaybackResult runSession(const QString &text, kernel::Document &document, const PlaybackOptions &options = {});
/// The same with one of casesToPlay().
PlaybackResult runCase(const PlaybackCase &one, kernel::Document &document, const PlaybackOptions &options = {});

/// One session being played. Use runSession(). It is the driver of dialogs and the feeder of prompts at once, since
/// both take the next of the same lines; a line that does not fit what is open fails the session.
class SessionPlayer final : public DialogDriver, public kernel::InputFeeder
{
public:
    /// `document` must outlive it. Nothing is played yet.
    SessionPlayer(QList<Step> steps, kernel::Document &document, const PlaybackOptions &options);
    ~SessionPlayer() override;

    /// Once. Returns when the last line is done, when one fails, or when the time is up.
    PlaybackResult play();

    // What the host asks for meanwhile.
    kernel::FeedResult feed(const kernel::PromptRequest &request, kernel::InputQueue &queue) override;
    bool poll() override;

private:
    Reaction handleWindow(QWidget &window, Acquaintance acquaintance) override;

    /// The line that comes next; null behind the last one.
    const Step *next() const { return m_position < m_steps.size() ? &m_steps[m_position] : nullptr; }
    /// The next step with its values filled in; the session has failed when one is missing or wrong.
    Step take();
    /// What the options want between two lines.
    void rest();
    bool hasFailed() const { return !m_result.message.isEmpty(); }
    /// Ends the session; only the first message counts.
    void fail(const QString &message);
    /// The same, naming the line.
    void failAt(const Step &step, const QString &message);
    bool knowsAllNames();

    /// All lines that are left, until one fails.
    void playSteps();
    /// A line that is met while nothing is open.
    void runStart(const Step &step);
    void runProgram(const Step &step);
    /// The run of the next line, once cancelled at each prompt and window that it opens, at last as it is.
    void rehearse(const Step &step);
    /// To be asked once for each prompt and window that opens; `what` is named if it goes wrong.
    bool isCancelledHere(const QString &what);
    bool comparesRun() const;
    /// Plays what the run has left in the input queue; the outcome of both together.
    kernel::RunResult withScript(const kernel::RunResult &result);
    void finishRun(const Step &step, const kernel::RunResult &result);
    /// Fails unless the drawing has the bytes that it had before the run.
    void finishCancelled(const Step &step, const kernel::RunResult &result);
    QString undoOrRedo(Verb verb);
    QString save(const Step &step);
    /// The value of the expression; `error` says why there is none. What it prints counts with the run before.
    kernel::RunResult evaluate(const QString &expression, QString &error);
    QString expectLisp(const Step &step);
    QString let(const Step &step);
    QString onlyIf(const Step &step);
    /// Shows the panel or bar of the window, which the next lines work in.
    QString enterPanel(const Step &step);
    QString actInPanel(const Step &step);

    // What the lines do where something waits; a text that is not empty is what went wrong.
    kernel::FeedResult answerPrompt(const kernel::PromptRequest &request, kernel::InputQueue &queue);
    QString answer(const Step &step, kernel::InputQueue &queue);
    QString actOn(QWidget &window, Acquaintance acquaintance, const Step &step);
    CheckedState checkedState() const;
    QString check(const Step &step, QWidget *window);
    /// What the view is told to show.
    QString show(const Step &step);
    /// Of the window, of the main one, or of the drawing where none is to be seen.
    QString screenshot(const Step &step, QWidget *window);

    /// A run that is played several times, cancelled each time at another prompt or window.
    struct Rehearsal
    {
        qsizetype cancelAt = 0; ///< how many prompts and windows are answered before
        qsizetype opened = 0;   ///< prompts and windows so far, in this round
        QString cancelled;      ///< where it was; empty: not yet
    };

    QList<Step> m_steps;
    qsizetype m_position = 0; ///< of the line that comes next
    kernel::Document &m_document;
    const PlaybackOptions m_options;
    QHash<QString, QString> m_values; ///< of the ${NAME}s
    PlaybackResult m_result;
    qsizetype m_printedBefore = 0; ///< length of what was printed before the run under way
    QByteArray m_opened;           ///< the drawing when the session began, where a line asks for it
    QByteArray m_before;           ///< the drawing before the run under way, where a line asks for it
    bool m_wasCancelled = false;   ///< the session cancelled a prompt of the run under way
    bool m_isAbandoned = false;    ///< whatever opens until the run ends is cancelled
    std::optional<Rehearsal> m_rehearsal;
    QPointer<QWidget> m_panel; ///< of the window, that was entered last
    QTimer m_watchdog;         ///< of the time limit
};

} // namespace host::app
