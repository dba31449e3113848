#pragma once

#include "host/app/playback/SessionPlayer.h"
#include "host/app/window/files/FileActions.h"
#include "host/app/window/frame/AppStyle.h"
#include "host/app/workbench/Workbench.h"
#include "host/view/display/AciColor.h"

#include <QDockWidget>
#include <QHash>
#include <QMainWindow>
#include <QPointer>
#include <QTimer>

class QMenu;
class QTabWidget;

namespace host::kernel {
class Autosave;
struct RecoveryFile;
} // namespace host::kernel

namespace host::app {

class AimTyping;
class CommandLine;
class CommandPalette;
class CommandRunner;
class DrawingCanvas;
class DrawingStatus;
class DrawingTabs;
struct HelpKeys;
class LayoutTabs;
class LispConsole;
class Menus;
class Panels;
class RecentFiles;
struct PaletteRow;
class RightButton;
class SessionRecorder;
class SettingsWindow;
class StartPage;
class StatusSwitches;
class WindowDialogs;
class WindowHelpViewer;
struct Suggestion;
class WindowServices;

/// The window: drawings in tabs, one command line for all, menus and a status bar.
///
/// One thing runs at a time. While a command or program runs, what is entered answers its prompts, and whatever would
/// start another one is disabled. Esc cancels the prompt or stops the program.
///
/// The window owns the workbench, and with it all documents: closing the window asks about each that was changed and
/// closes them. Runs process events, so every slot here may be called while a command is under way.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Loads module and tools, which takes the time that the program takes to start. Shows nothing yet and opens no
    /// drawing; what went wrong is told on the command line.
    explicit MainWindow(const WorkbenchOptions &options);
    ~MainWindow() override;

    // The parts, which live as long as the window.

    Workbench &workbench() { return *m_workbench; }
    CommandLine &commandLine() { return *m_commandLine; }
    LispConsole &console() { return *m_console; }
    /// One tab a document, whose widget is its DrawingCanvas.
    QTabWidget &tabs();
    /// Null when no drawing is open.
    DrawingCanvas *canvas() const;
    /// The active one; null likewise.
    kernel::Document *document() const;

    /// How drawings are opened: as far as they are sound, when they are damaged.
    enum class Opening
    {
        AsUsual,
        Recovering
    };
    /// What is there when no drawing is open.
    enum class WithoutDrawings
    {
        NewDrawing, ///< at the start
        StartPage   ///< then and later; or the drawings of last time, where the user's preferences say so
    };
    /// Opens the drawings in this order, the last one in front; `wish` counts when none of them could be and none is
    /// open. What cannot be read is told in a box each; of what another program has open the user says what to do.
    void start(const QStringList &drawings, Opening opening = Opening::AsUsual,
               WithoutDrawings wish = WithoutDrawings::NewDrawing);
    /// What becomes of drawings that a program which was killed left.
    enum class Recovery
    {
        Ask,
        OpenAll
    };
    /// Opens what a killed program left of its drawings, as far as the user wants it. To be called before start().
    void recover(Recovery wish);
    /// Runs a line as if it was entered at the command line: an answer where a prompt waits, else a command, expression
    /// or alias, an empty one repeating the last command. Refused with a line while something runs that asks nothing.
    /// Returns when what it started has ended.
    void enter(const QString &text);
    /// Of all windows of the program, those that are open included; kept for the next start when this one closes.
    void setStyleOfWindows(Style style);
    /// Records what the person does from now on, until stopRecording() or the window goes.
    void startRecording(const QString &file);
    /// Writes the session; a file that cannot be written is told.
    void stopRecording();
    /// Plays a recorded session on the active drawing; meanwhile the window takes no commands.
    PlaybackResult play(const PlaybackScript &script, PlaybackOptions options);

protected:
    /// Refused while something runs, which is asked to stop; the window closes when it has.
    void closeEvent(QCloseEvent *event) override;
    /// Esc that no part of the window has taken.
    void keyPressEvent(QKeyEvent *event) override;
    // Drawings are opened, Lisp files loaded after a question, in the order in which they were dropped.
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    // Menus, in MainMenus.cpp; their entries are rows of frame/MenuTable.
    void buildMenus();
    QHash<QString, std::function<void()>> menuBodies();
    /// The tools, grouped by what they work on.
    void addTools(Menus &menus, QMenu &menu);
    /// The entry that begins and ends recording.
    void toggleRecording();
    /// The active drawing was saved by a menu, or was not.
    void recordSaved(bool wasSaved);
    // In windows of their own.
    void buildHelp();
    void showHelp(const HelpKeys &keys);
    void showAbout();

    /// What is entered, answered and cancelled goes to the runner, and its prompts to the canvas in front.
    void connectRunner();
    // What the parts ask of the window, in MainServices.cpp.
    class Services;
    void buildServices();
    /// With one change of the tab in front for all of them.
    void openAll(const QStringList &drawings);
    // Tabs follow the documents, whoever opened them: a menu, a drop, a command, a module.
    void addTab(kernel::Document *document);
    void enterFromCanvas(const QString &text);
    /// Edits what is chosen by its grips; it stays chosen for the next one, also when the edit is cancelled.
    void moveGrips(const std::vector<kernel::InputAnswer> &answers);
    /// The user chose the tab: its document becomes the active one.
    void activateTab(int index);
    /// The document became the active one: its tab is shown.
    void showActive(kernel::Document *document);
    /// What is being written over the drawing is in it before another space is shown, a file written, a drawing closed.
    void takeOpenText();
    /// The user chose the layout, as CTAB would.
    void showLayout(const QString &name);
    /// Whether the user lets the tab's drawing go; it may have been saved for that.
    bool mayClose(int index);
    void closeTab(int index);
    /// Whether the user lets all drawings go, in one question where several were changed.
    bool mayCloseAll();
    /// False when the user keeps one of them: then all stay.
    bool closeAllTabs();

    /// Esc: a box that was begun on the canvas, else the prompt or program under way; where nothing runs, the
    /// unfinished line and what is chosen.
    void cancel();
    /// Those of the workbench that were not told yet.
    void tellProblems();
    void loadPreferences();
    /// Style, ground, place of the window, and what was entered.
    void savePreferences() const;
    /// What is enabled, after anything that may change it.
    void updateState();
    /// Of its tab.
    void updateTitle(const kernel::Document &document);
    /// Names the active drawing, with the mark of a changed one.
    void updateWindowTitle();
    /// What of the drawing is not drawn, in the status bar.
    void updateReport();
    /// Made when it is first wanted.
    void showSettings();
    /// What all drawings lie on.
    void setGround(view::Ground ground);

    // The Lisp console, in Console.cpp.
    void buildConsole();
    /// Shows it, with the keyboard; hides it when it has that.
    void toggleConsole();
    /// Runs in the active drawing what was entered there.
    void evaluate(const QString &text);

    // Drawings of lately and the page that shows them, in RecentDrawings.cpp.
    void connectRecent();
    void addRecent(QMenu &menu);
    void fillRecentMenu(QMenu &menu);
    void openLastTime();
    void showStartPage();
    void connectStartPage(StartPage &page);
    void hideStartPage();
    /// Shows it again when no drawing is left.
    void missDrawings();

    // Copies for after a crash, in Recovery.cpp.
    void startAutosave();
    void openCopy(const kernel::RecoveryFile &copy);

    // Names, palette and long history, in Palette.cpp.
    /// What may be meant at the command line, or as an answer of the prompt that waits.
    QList<Suggestion> namesThatFit(const QString &typed);
    void showPalette();
    void addLines(QList<PaletteRow> &rows);
    /// Gives what was printed most of the window, and back.
    void toggleLongHistory();

    // The right button on the drawing, in ShortcutMenu.cpp.
    /// Enter or a menu, as SHORTCUTMENU has it.
    void pressRightButton();
    void showShortcutMenu();
    void addPromptEntries(QMenu &menu);
    void addRestEntries(QMenu &menu);

    // In DroppedFiles.cpp.
    void openDropped(const QStringList &paths);

    std::unique_ptr<Workbench> m_workbench;
    FileActions m_files; ///< opening and saving, with their questions
    DrawingTabs *m_tabs;
    LayoutTabs *m_layouts;      ///< of the drawing in front, below it
    CommandLine *m_commandLine; ///< owned by the dock, that by the window
    QDockWidget *m_commandDock;
    LispConsole *m_console = nullptr; ///< owned by its dock
    QDockWidget *m_consoleDock = nullptr;
    std::unique_ptr<CommandRunner> m_runner;
    std::unique_ptr<SessionRecorder> m_recorder; ///< null while nothing is recorded
    std::unique_ptr<DrawingStatus> m_status;
    std::unique_ptr<WindowServices> m_services;
    std::unique_ptr<Panels> m_panels;
    SettingsWindow *m_settings = nullptr; ///< owned by this
    std::unique_ptr<RecentFiles> m_recent;
    QPointer<StartPage> m_startPage; ///< null while it is not shown
    QStringList m_lastDrawings;      ///< those of last time; when the window closes, those that were open
    bool m_reopensDrawings = false;
    bool m_hasStartPage = false; ///< it is shown while no drawing is open
    std::unique_ptr<Menus> m_menus;
    std::unique_ptr<StatusSwitches> m_switches;
    std::unique_ptr<AimTyping> m_typing;
    std::unique_ptr<kernel::Autosave> m_autosave;
    std::unique_ptr<WindowDialogs> m_dialogs;
    std::unique_ptr<WindowHelpViewer> m_helpViewer;
    RightButton *m_rightButton;
    CommandPalette *m_palette = nullptr; ///< made when it is first wanted
    QStringList m_recentlyRun;           ///< from it, as kept
    int m_shortHistory = 150;            ///< height of the command line's dock before it was made long
    QTimer m_reportTimer;                ///< the report is made once for changes that come together
    qsizetype m_problemsTold = 0;        ///< of those of the workbench, from the first on
    bool m_wasConsoleShown = false;
    bool m_isCloseWanted = false; ///< the window was to be closed while something ran
    bool m_isInCanvas = false;    ///< what is entered comes out of an event of a canvas
};

} // namespace host::app
