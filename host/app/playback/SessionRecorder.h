#pragma once

#include "host/app/playback/WidgetRecorder.h"
#include "host/kernel/input/PromptRequest.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <optional>

namespace host::kernel {
class Document;
class Session;
struct RunResult;
} // namespace host::kernel

namespace host::app {

/// Writes down what a person does in a window, as a recorded session that plays: commands and expressions, answers to
/// prompts, points as they came to be after snaps, entities by their handles, and what is done in dialogs that a run
/// opens. What sessions cannot say becomes a comment: whatever is done in another drawing than the one that was in
/// front at the start, presses of the right button that a program waits for, and that a program was stopped which asks
/// nothing; and that drawings are opened and closed. What scripts and programs answer is no person's and is left out,
/// as are the window's own dialogs.
class SessionRecorder final : public QObject
{
    Q_OBJECT

public:
    /// From now on. Each line is written when it is known, so that what a crash leaves plays up to there; `session`
    /// must outlive the recorder.
    SessionRecorder(kernel::Session &session, const QString &file);
    ~SessionRecorder() override;

    const QString &file() const { return m_file; }
    /// What was recorded so far, a line each.
    QString text() const;
    /// Writes the whole file once more; why it could not be written, empty when it was.
    QString save();

    /// A Lisp text that is about to run without having been typed at a prompt.
    void takeExpression(const QString &text);
    /// What came of the run under way, before what was chosen for it is forgotten: an error is expected then, and what
    /// it has left chosen is no more.
    void takeOutcome(const kernel::RunResult &result);
    /// A line for what the window does by itself, without a prompt.
    void add(const QString &line);
    /// What is shown was chosen by hand: a line with the last of it, when something else follows.
    void takeView();

private:
    void take(const kernel::PromptRequest &request, const kernel::InputAnswer &answer);
    void takeCommand(const kernel::InputAnswer &answer);
    QString lineFor(const kernel::PromptRequest &request, const kernel::InputAnswer &answer);
    QString lineForPoint(const kernel::PromptRequest &request, const kernel::PointAnswer &answer);
    /// What was chosen before a command began.
    void addChosen();
    /// A point shown by hand is known when the prompt made of it what snaps and ORTHOMODE say.
    void settlePoint(const drawing::Vec3 &world);
    bool isRunning() const;
    /// A line as it is, in the file as well.
    void append(const QString &line);
    /// Another drawing was opened or one closed, which sessions are not about.
    void takeDocument(const QString &what, const kernel::Document &document);
    /// The line, or a comment where it is about another drawing.
    QString placed(const QString &line) const;
    kernel::Document *document() const;

    kernel::Session &m_session;
    QString m_file;
    QStringList m_lines;
    QPointer<kernel::Document> m_recorded; ///< which the session plays over
    qsizetype m_runStart = 0;              ///< in m_lines: of the run under way, or the last one
    QString m_lastCommand;
    QString m_view;              ///< the line of a view that nothing followed yet
    bool m_hasOpenPoint = false; ///< the last line is a point that is not settled
    WidgetRecorder m_widgets;
};

} // namespace host::app
