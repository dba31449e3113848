#pragma once

#include "host/app/playback/SessionPlayer.h"
#include "host/app/window/AppStyle.h"
#include "host/app/window/FileActions.h"
#include "host/app/workbench/Workbench.h"
#include "host/view/display/AciColor.h"

#include <QAction>
#include <QDockWidget>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QTimer>

class QActionGroup;
class QTabWidget;

namespace host::app {

class CommandLine;
class CommandRunner;
class DrawingCanvas;
class DrawingStatus;
class DrawingTabs;

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
    QTabWidget &tabs();
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

    void connectRunner();
    void openAll(const QStringList &drawings);
    void addTab(kernel::Document *document);
    void activateTab(int index);
    void showActive(kernel::Document *document);
    /// Whether the user lets the tab's drawing go; it may have been saved for that.
    bool mayClose(int index);
    void closeTab(int index);
    bool closeAllTabs();

    void cancel();
    void tellProblems();
    void loadPreferences();
    void savePreferences() const;
    void updateState();
    void updateTitle(const kernel::Document &document);
    void updateWindowTitle();
    void updateReport();
    void setGround(view::Ground ground);

    // In DroppedFiles.cpp.
    void openDropped(const QStringList &paths);

    std::unique_ptr<Workbench> m_workbench;
    FileActions m_files;
    DrawingTabs *m_tabs;
    CommandLine *m_commandLine;
    QDockWidget *m_commandDock;
    std::unique_ptr<CommandRunner> m_runner;
    std::unique_ptr<DrawingStatus> m_status;
    QList<QAction *> m_idleActions; ///< disabled while something runs
    QAction *m_undo = nullptr;
    QAction *m_redo = nullptr;
    QAction *m_blackGround = nullptr;
    QAction *m_whiteGround = nullptr;
    QAction *m_lightStyle = nullptr;
    QAction *m_darkStyle = nullptr;
    QTimer m_reportTimer;
    qsizetype m_problemsTold = 0;
    bool m_isCloseWanted = false; ///< the window was to be closed while something ran
};

} // namespace host::app
