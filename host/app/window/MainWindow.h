#pragma once

#include "host/app/playback/SessionPlayer.h"
#include "host/app/window/AppStyle.h"
#include "host/app/window/FileActions.h"
#include "host/app/workbench/Workbench.h"
#include "host/kernel/input/PromptRequest.h"
#include "host/view/display/AciColor.h"

#include <QAction>
#include <QDockWidget>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QTimer>

class QActionGroup;
class QLabel;
class QTabWidget;

namespace host::app {

class CommandLine;
class DrawingCanvas;
class WindowFeeder;

/// The window: drawings in tabs, one command line for all, menus and a status bar.
///
/// One thing runs at a time. While a command or program runs, what is entered answers its prompts, and whatever would
/// start another one is disabled. Esc cancels the prompt or stops the program.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(const WorkbenchOptions &options);
    ~MainWindow() override;

    Workbench &workbench() { return *m_workbench; }
    CommandLine &commandLine() { return *m_commandLine; }
    QTabWidget &tabs() { return *m_tabs; }
    /// Null when no drawing is open.
    DrawingCanvas *canvas() const;
    kernel::Document *document() const;

    /// Opens the drawings, or a new one when none of them could be.
    void start(const QStringList &drawings);
    /// Runs a line as if it was entered at the command line.
    void enter(const QString &text);
    void setStyleOfWindows(Style style);
    /// Plays a recorded session on the active drawing; meanwhile the window takes no commands.
    PlaybackResult play(const PlaybackScript &script, PlaybackOptions options);

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    enum class WhenBusy
    {
        Disabled,
        Enabled
    };

    // Menus, in MainMenus.cpp.
    void buildMenus();
    void buildFileMenu();
    void buildEditMenu();
    void buildViewMenu();
    void buildToolsMenu();
    void buildHelpMenu();
    QAction *addAction(QMenu &menu, const QString &text, const QKeySequence &shortcut, WhenBusy whenBusy,
                       const std::function<void()> &body);
    QAction *addChoice(QMenu &menu, QActionGroup &group, const QString &text, const std::function<void()> &body);
    void showHelp();
    void showAbout();

    class ManyTabs;

    void buildStatusBar();
    void connectCommandLine();
    void openAll(const QStringList &drawings);
    void addTab(kernel::Document *document);
    void removeTab(kernel::Document *document);
    void activateTab(int index);
    void showActive(kernel::Document *document);
    /// Whether the user lets the tab's drawing go; it may have been saved for that.
    bool mayClose(int index);
    void closeTab(int index);
    bool closeAllTabs();
    int tabOf(const kernel::Document *document) const;

    bool isBusy() const;
    void runQueue();
    /// The window was to be closed while something ran.
    void closeIfWanted();
    void answer(const kernel::InputAnswer &answer);
    void cancel();
    void runFromMenu(const QString &command);
    void showRequest(const std::optional<kernel::PromptRequest> &request);
    void tellProblems();
    void loadPreferences();
    void savePreferences() const;
    void updateState();
    void updateTitle(const kernel::Document &document);
    void updateWindowTitle();
    void updateReport();
    void setGround(view::Ground ground);
    void openDropped(const QStringList &paths);

    std::unique_ptr<Workbench> m_workbench;
    std::unique_ptr<WindowFeeder> m_feeder;
    FileActions m_files;
    QTabWidget *m_tabs;
    CommandLine *m_commandLine;
    QDockWidget *m_commandDock;
    QLabel *m_coordinates;
    QLabel *m_status;
    QLabel *m_notDrawn;
    QList<QAction *> m_idleActions; ///< disabled while something runs
    QAction *m_undo = nullptr;
    QAction *m_redo = nullptr;
    QAction *m_blackGround = nullptr;
    QAction *m_whiteGround = nullptr;
    QAction *m_lightStyle = nullptr;
    QAction *m_darkStyle = nullptr;
    view::Ground m_ground = view::Ground::Black;
    QTimer m_reportTimer;
    qsizetype m_problemsTold = 0;
    int m_manyTabs = 0;       ///< ManyTabs that there are
    bool m_isRunning = false; ///< the queue is being worked off
    bool m_isCloseWanted = false;
};

} // namespace host::app
