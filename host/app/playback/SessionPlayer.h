#pragma once

#include "host/app/playback/DialogDriver.h"
#include "host/app/playback/PlaybackScript.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/InputFeeder.h"
#include "host/view/build/Scene.h"

#include <QHash>
#include <QTimer>

#include <chrono>
#include <functional>
#include <optional>

namespace host::app {

/// What a recorded session runs with.
struct PlaybackOptions
{
    /// What ${NAME} stands for in its lines. DRAWING (path of the drawing) and HOME_DIR are set by the player.
    QHash<QString, QString> variables;
    /// Where `save` writes, and ${OUT}. Empty: `save` fails.
    QString outFolder;
    /// Where `screenshot` writes; empty: the out folder.
    QString pictureFolder;
    /// The session fails when it takes longer.
    std::chrono::milliseconds timeLimit = std::chrono::seconds(120);
    /// Told of every prompt while it waits, and of none when it is answered: for a window that shows what is asked.
    std::function<void(const std::optional<kernel::PromptRequest> &request)> showPrompt;
};

/// What came of a session.
struct PlaybackResult
{
    bool ok = false;
    int line = 0;      ///< the session's line that failed; 0 when none did
    QString message;   ///< why it failed, naming the line and what was open
    QString printed;   ///< everything that was printed on the command line meanwhile
    QStringList files; ///< drawings and pictures that were written
    std::vector<std::pair<QString, view::RenderReport>> incomplete{}; ///< pictures that do not show all, by their path
};

/// Plays recorded sessions: runs their commands on a document, answers prompts and drives dialogs. Everything that is
/// not as the session says, left-over lines included, ends it with a message; nothing waits for a person. When it
/// fails, open dialogs are rejected and the program under way is cancelled. The playing document is made the active
/// one.
///
/// A session without a main window gets a hidden one, so that programs show message boxes and file dialogs to it as
/// they would to a person.
PlaybackResult runSession(const PlaybackScript &script, kernel::Document &document,
                          const PlaybackOptions &options = {});
/// The same with the text of a session.
PlaybackResult runSession(const QString &text, kernel::Document &document, const PlaybackOptions &options = {});

/// One session being played. Use runSession().
class SessionPlayer final : public DialogDriver, public kernel::InputFeeder
{
public:
    SessionPlayer(QList<Step> steps, kernel::Document &document, const PlaybackOptions &options);
    ~SessionPlayer() override;

    PlaybackResult play();

    kernel::FeedResult feed(const kernel::PromptRequest &request, kernel::InputQueue &queue) override;
    bool poll() override;

private:
    Reaction handleWindow(QWidget &window, Acquaintance acquaintance) override;

    const Step *next() const { return m_position < m_steps.size() ? &m_steps[m_position] : nullptr; }
    Step take() { return m_steps[m_position++]; }
    bool hasFailed() const { return !m_result.message.isEmpty(); }
    void fail(const QString &message);
    void failAt(const Step &step, const QString &message);
    void checkEnd(const QString &open);
    bool substituteVariables();

    void runStart(const Step &step);
    void runProgram(const Step &step);
    kernel::RunResult withScript(const kernel::RunResult &result);
    void finishRun(const Step &step, const kernel::RunResult &result);
    QString undoOrRedo(Verb verb);
    QString save(const Step &step);
    QString expectLisp(const Step &step);

    kernel::FeedResult answerPrompt(const kernel::PromptRequest &request, kernel::InputQueue &queue);
    kernel::InputAnswer answerFor(const Step &step, QString &error);
    QString check(const Step &step, QWidget *window);
    QString expectPrinted(const QString &text) const;
    QString expectCount(const Step &step) const;
    QString screenshot(const Step &step, QWidget *window);
    QString outputPath(const QString &folder, const QString &name, QString &error) const;

    QList<Step> m_steps;
    qsizetype m_position = 0;
    kernel::Document &m_document;
    const PlaybackOptions m_options;
    PlaybackResult m_result;
    qsizetype m_printedBefore = 0; ///< length of what was printed before the run under way
    bool m_wasCancelled = false;   ///< the session cancelled a prompt of the run under way
    QTimer m_watchdog;
};

} // namespace host::app
