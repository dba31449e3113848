#pragma once

#include "host/kernel/input/InputFeeder.h"
#include "host/view/build/Scene.h"

#include <QHash>
#include <QStringList>

#include <chrono>
#include <functional>
#include <map>
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
    /// How long each line waits, so that a person can watch: the window lives meanwhile.
    std::chrono::milliseconds pace{0};
    /// Told of every prompt while it waits, and of none when it is answered: for a window that shows what is asked.
    std::function<void(const std::optional<kernel::PromptRequest> &request)> showPrompt;
    /// What a line does in a panel of the window is called through this, so that the window takes it as a person's.
    std::function<void(const std::function<void()> &work)> workInPanel;
    /// What an independent reader complains about in a drawing file, empty when it is sound. Without it `expect-sound`
    /// fails. See DrawingAudit.
    std::function<QString(const QString &path)> audit;
};

/// What came of a session.
struct PlaybackResult
{
    bool ok = false;
    int line = 0;         ///< the session's line that failed; 0 when none did
    QString message;      ///< why it failed, naming the line and what was open
    QString printed;      ///< everything that was printed on the command line meanwhile
    QStringList files;    ///< drawings and pictures that were written
    bool wasLeft = false; ///< an `only-if` ended it
    std::vector<std::pair<QString, view::RenderReport>> incomplete{}; ///< pictures that do not show all, by their path
    std::map<QString, drawing::ReadingNotes> references{}; ///< files seen in pictures that could not be read whole
};

} // namespace host::app
