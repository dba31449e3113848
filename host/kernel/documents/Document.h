#pragma once

#include "host/drawing/file/Save.h"
#include "host/drawing/math/Matrix.h"
#include "host/drawing/records/Drawing.h"
#include "host/kernel/documents/CommandMemory.h"
#include "host/kernel/documents/UndoSteps.h"
#include "host/kernel/files/DrawingClaim.h"
#include "host/kernel/files/KeptBack.h"
#include "host/kernel/files/WriteObstacle.h"
#include "platform/kernel/CKvDocument.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QSize>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace host::drawing {
class BoxCache;
}

namespace host::view {
class EntityExtents;
class Scene;
class TextMeasure;
} // namespace host::view

namespace host::lisp {
class Interpreter;
struct Outcome;
} // namespace host::lisp

namespace host::kernel {

// The parts of a document, which their own headers describe.
class CommandRun;
class DrawingDatabase;
class EntityMaker;
class LispConsole;
class LispEngine;
struct PointAim;
class Results;
class ScreenSketch;
class SelectionInput;
class Session;
class SystemVariables;
class UserInput;

/// What came of running a command, an expression or a file. The user has seen the error already: it is for whoever ran
/// it, who decides whether to go on.
struct RunResult
{
    bool ok = true;
    QString value;                 ///< the last value as Lisp prints it; empty for a built-in command
    QString error;                 ///< message, function and place in one line; empty when ok
    QString report;                ///< the same with the calls under way, a line each
    bool wasCancelled = false;     ///< a command, by the user or because nobody was there to answer
    bool handledByProgram = false; ///< the program's own *error* took the message
    bool hasRun = true;            ///< false: there was nothing to run

    /// Whether a command was cancelled or a program ended with an error that says so, which is English.
    bool isCancelled() const { return wasCancelled || error.contains(u"cancel", Qt::CaseInsensitive); }
};

/// What a window shows of the drawing: plan view of the current space.
struct ViewState
{
    drawing::Vec2 centre;       ///< world coordinates
    double height = 297.0;      ///< drawing units from bottom to top
    QSize pixels = {1280, 800}; ///< of the canvas

    /// How long a pixel is in drawing units; that of a canvas without pixels is never 0.
    double unitsPerPixel() const { return pixels.height() > 0 ? height / pixels.height() : height; }
};

/// An open drawing: its tags, its Lisp engine, its system variables, its prompts and its undo steps. Made and owned by
/// the DocumentManager, which does not close one while something runs in it. Used on the thread of the user interface
/// only; a run may process events while it asks or works long, so that any function of a window may be called inside
/// it: isBusy() says so.
class KV_EXPORT Document final : public QObject, public CKvDocument
{
    Q_OBJECT

public:
    /// `claim` is that of the drawing's file, with its content; `untitledName` what the drawing is called while it has
    /// none. Without Lisp until openLisp().
    Document(Session &session, std::unique_ptr<drawing::Drawing> drawing, DrawingClaim claim,
             const QString &untitledName);
    ~Document() override;

    // Its parts, which live as long as the document.

    Session &session() const { return m_session; }
    /// What is changed through it outside of a run becomes an undo step of its own.
    drawing::Drawing &drawing() { return *m_drawing; }
    const drawing::Drawing &drawing() const { return *m_drawing; }
    /// There from openLisp() to closeLisp() only.
    lisp::Interpreter &interpreter();
    /// By name, those of the drawing's header and objects and those of the host.
    SystemVariables &variables() { return *m_variables; }
    const SystemVariables &variables() const { return *m_variables; }
    /// What asks the user, for programs, commands and modules alike.
    UserInput &prompts() { return *m_userInput; }
    /// Undo, redo, groups and marks.
    UndoSteps &undoSteps() { return m_undoSteps; }
    const UndoSteps &undoSteps() const { return m_undoSteps; }

    /// Full path of the file; empty for a drawing that was never saved.
    QString path() const { return m_drawing->path(); }
    /// The damaged file that the drawing was recovered from, which it does not replace; empty for other drawings.
    const QString &damagedFile() const { return m_damagedFile; }
    void setDamagedFile(const QString &path) { m_damagedFile = path; }
    /// It was recovered after a crash, and was not saved since.
    bool isRecovered() const { return m_isRecovered; }
    void setRecovered() { m_isRecovered = true; }
    /// The copy that is kept for after a crash; empty while there is none. See Autosave.
    const QString &copyFile() const { return m_copyFile; }
    void setCopyFile(const QString &path) { m_copyFile = path; }
    /// File name, or "Drawing1" for a new one.
    QString title() const;
    /// Whether it differs from what was opened or saved last; undone changes do not count.
    bool isModified() const;
    /// Its own file is not written, because another process has it open.
    bool isReadOnly() const { return m_claim.isReadOnly(); }

    // Running. A whole run is one undo step. Errors are printed on the command line. Output, prompts and reactors of
    // the run happen during these calls.

    /// Evaluates all forms of `text`. `sourceName` is what errors name.
    RunResult run(const QString &text, const QString &sourceName = {});
    /// Loads a Lisp file of this very path, trusted or not: whoever calls has asked.
    RunResult loadLisp(const QString &path);
    /// A Lisp command (C:NAME), else a built-in one or one that a module brought, by its name as typed or by an alias
    /// that is no command's name. What it asks is taken from the queue.
    RunResult runCommand(const QString &name);
    /// Whether a program has defined a command of this name (as typed, with its prefixes).
    bool isLispCommand(const QString &typed) const;
    /// The command that `typed` is an alias for, as the user's alias file has it; `typed` itself when it is none.
    /// Prints when the file cannot be read. Commands come first: this is for what is the name of none.
    QString commandOfAlias(const QString &typed);
    /// Takes the next command, expression or variable from the queue and runs it; an empty line repeats the last
    /// command. Nothing has run when the queue is empty or holds but the beginning of an expression.
    RunResult runQueued();
    /// Runs `body` as a run of its own, for changes that the window makes. `name` is what the undo step is called.
    void runAs(const QString &name, const std::function<void()> &body);
    /// A program or command is under way.
    bool isBusy() const { return m_runs > 0; }
    /// A dialog that a Lisp program made is on the screen: until it is gone the program may neither ask nor run
    /// commands, see UserInput::refuseInDialog().
    bool isDialogOpen() const { return m_isDialogOpen; }
    void setDialogOpen(bool open) { m_isDialogOpen = open; }
    /// Names of the commands under way as CMDNAMES has them: "LINE'ZOOM".
    QString commandNames() const { return m_commandNames.join(u'\''); }
    /// The innermost of them; empty when nothing runs.
    QString commandName() const { return m_commandNames.isEmpty() ? QString() : m_commandNames.last(); }

    /// Writes the drawing; the reactors hear of it first. Of a drawing without a path, save() fails. A file that is
    /// replaced goes into the user's backup folder, where there is one; when it cannot, that is printed and the drawing
    /// is saved all the same. What obstacleToWriting() finds makes them fail.
    drawing::SaveResult save(Overrule overrule = Overrule::Nothing);
    drawing::SaveResult saveAs(const QString &path, Overrule overrule = Overrule::Nothing);
    /// As saveAs(), but the drawing stays what it is, with its path and its changes; the reactors hear nothing.
    drawing::SaveResult saveCopy(const QString &path);
    /// What this process holds of the drawing's file: its lock, and how the file was when it was read or written last.
    DrawingClaim &claim() { return m_claim; }
    const DrawingClaim &claim() const { return m_claim; }

    // What is shown and chosen. None of it is a change of the drawing, or undone; a window listens to the signals.

    const ViewState &view() const { return m_view; }
    /// Only tells the window; it does not remember the view before.
    void setView(const ViewState &view);
    /// Shows a box of world coordinates with a margin; an empty box does nothing.
    void zoomTo(const drawing::Box &box);
    /// Sees to the view when another layout has become current: the one that was shown of it before, otherwise all of
    /// it. Runs end with this.
    void followLayout();
    /// Keeps a view for showEarlierView(), as one of the last ten.
    void rememberView(const ViewState &view);
    /// Shows the view that was remembered last, and forgets it. False when there is none.
    bool showEarlierView();
    /// Entities shown highlighted; dead ones may be among them.
    const std::vector<drawing::RecordId> &highlighted() const { return m_highlighted; }
    /// In place of those before; none: nothing is highlighted.
    void setHighlighted(std::vector<drawing::RecordId> entities);
    /// What the last selection chose, for "Previous".
    const std::vector<drawing::RecordId> &previousSelection() const { return m_previousSelection; }
    /// In place of the one before, by whatever has selected.
    void setPreviousSelection(std::vector<drawing::RecordId> entities);
    /// What is chosen while no command runs, for commands that take what is chosen already.
    const std::vector<drawing::RecordId> &impliedSelection() const { return m_impliedSelection; }
    /// A command that takes them empties it.
    void setImpliedSelection(std::vector<drawing::RecordId> entities);

    /// Prints on the command line as it is.
    /// Where nobody listens to printed(), the text is lost.
    void print(const QString &text);
    /// Prints what is said by the way: what was found, why an answer is refused. NOMUTT silences it, and prompts.
    void mutter(const QString &text);
    /// Prints a prompt and keeps it as LASTPROMPT.
    void printPrompt(const QString &text);

    // For the rooms inside: pieces of a run.

    /// Where a file that Lisp names is: the path itself, the working folder, the drawing's folder, the support folders;
    /// a program by a name that is no full path in the trusted folders only. Empty when nowhere.
    QString findFile(const QString &name) const;
    /// Where a file that the drawing names is: see drawing::namedFiles(). Empty when nowhere, or when it may not be
    /// read.
    QString findNamedFile(const QString &name);
    /// What the user named by hand may be read while the document is open.
    void allowReading(const QString &path);
    /// Those, as full paths.
    const QStringList &readableFiles() const { return m_readableFiles; }
    /// Says once that a file which the drawing names was not read.
    void tellUnread(const QString &path, const QString &reason);
    /// Says once of a drawing which this one names that not all of its file could be read.
    void tellIncomplete(const QString &path, const drawing::ReadingNotes &notes);
    /// Whoever read the file has said so.
    void countIncompleteAsTold(const QString &path);
    /// What the drawing and programs in it were kept from doing.
    const KeptBackList &keptBack() const { return m_keptBack; }
    /// One more, which is told by whoever adds it.
    void addKeptBack(const KeptBack &item);
    /// It was allowed, or is none of the person's business any more; told anew when it comes again.
    void removeKeptBack(const KeptBack &item);
    /// The command that waits for input from a Lisp program's next (command ...); null when none does.
    CommandRun *pendingCommand() { return m_pendingCommand.get(); }
    /// In place of the one before, which is given up.
    void setPendingCommand(std::unique_ptr<CommandRun> command);
    /// None waits afterwards; null when none did.
    std::unique_ptr<CommandRun> takePendingCommand();
    /// One name of commandNames() more, one less.
    void pushCommandName(const QString &name) { m_commandNames.append(name); }
    void popCommandName() { m_commandNames.removeLast(); }
    /// From the current user coordinate system to world coordinates.
    drawing::Matrix userAxes() const;
    /// What commands remember from one run to the next.
    CommandMemory &memory() { return m_memory; }
    /// Boxes of entities, for picking; kept from one pick to the next while the drawing stays as it is.
    drawing::BoxCache &boxes() { return *m_boxes; }
    /// How much room texts take, in the fonts that were found. Making it costs the first caller the reading of fonts.
    view::TextMeasure &textMeasure() const;
    /// Boxes of what entities draw.
    view::EntityExtents &entityExtents();
    /// What a distance alone at a prompt for points counts towards.
    PointAim &aim() { return *m_aim; }
    /// What the last tool that lists it did and left alone.
    Results &results() { return *m_results; }
    const Results &results() const { return *m_results; }
    /// What programs show for the moment; who changes it emits sketchChanged().
    ScreenSketch &sketch() { return *m_sketch; }
    /// A redraw: what was drawn for the moment is gone.
    void clearSketch();
    /// What is looked through for what is near a place: the scene of the window, which shows the document, or one of
    /// its own, made by the first call.
    view::Scene &scene();
    /// The window has one, until it says null.
    void lendScene(view::Scene *scene) { m_lentScene = scene; }
    /// What (entmake) has collected of an entity or block that is made in pieces.
    EntityMaker &entityMaker() { return *m_entityMaker; }
    /// Where (tblnext) and (dictnext) stand, by table name or the dictionary's handle.
    QHash<QString, drawing::RecordId> &cursors() { return m_cursors; }
    /// The interpreter is made when the document is announced and gone after LispDocumentClosing.
    /// Defines all functions of the host in it.
    void openLisp();
    void closeLisp();

    // As CKvDocument says; the objects are this document's and go with it.

    CKvLispEngine *lispEngine() override;
    CKvUserInput *userInput() override;
    CKvSelectionInput *selectionInput() override;
    OdDbDatabase *database() override;
    OdString systemVariable(const OdString &name) const override;
    OdGePoint3d userToWorld(const OdGePoint3d &point) const override;
    OdGePoint3d worldToUser(const OdGePoint3d &point) const override;

signals:
    /// Text for the command line, with its own line feeds.
    void printed(const QString &text);
    /// view() is another.
    void viewChanged();
    /// Another layout is current.
    void layoutChanged();
    /// What is shown is to be made anew, with what it takes from outside the drawing.
    void regenerated();
    // Whether or not the entities are others than before.
    void highlightChanged();
    void sketchChanged();
    /// A system variable was set, by whoever.
    void variableChanged(const QString &name);
    void impliedSelectionChanged();
    /// keptBack() is another.
    void keptBackChanged();
    /// The path or the modified mark may be another now.
    void titleChanged();
    /// A Lisp program ends with an error that it does not catch; its *error* has not been called yet.
    void programFailed();
    /// A run ended: a good moment to update what depends on the drawing or on variables.
    void runEnded();

private:
    /// One run from its start to its end, with the undo step and the reactors that belong to it.
    class Run;
    drawing::SaveResult notWritten(const QString &reason);
    drawing::SaveResult saveUnder(const QString &path, DrawingClaim &claim);
    drawing::SaveResult write(const QString &path, const std::function<drawing::SaveResult()> &writeFile);
    bool isCommand(const QString &typed) const;
    RunResult runBuiltIn(const QString &typed);
    void finishPendingCommand();
    /// Prints an error that the program itself did not take, and makes a result of it.
    RunResult report(const lisp::Outcome &outcome);

    Session &m_session;
    std::unique_ptr<drawing::Drawing> m_drawing;
    DrawingClaim m_claim;
    QString m_untitledName;
    QString m_damagedFile;
    QString m_copyFile;
    bool m_isRecovered = false;
    UndoSteps m_undoSteps;
    std::unique_ptr<SystemVariables> m_variables;
    std::unique_ptr<UserInput> m_userInput;
    std::unique_ptr<SelectionInput> m_selectionInput;
    std::unique_ptr<DrawingDatabase> m_database;
    std::unique_ptr<LispConsole> m_console;
    std::unique_ptr<lisp::Interpreter> m_interpreter;
    std::unique_ptr<LispEngine> m_lispEngine;
    std::unique_ptr<CommandRun> m_pendingCommand;
    std::unique_ptr<drawing::BoxCache> m_boxes;
    std::unique_ptr<EntityMaker> m_entityMaker;
    std::unique_ptr<PointAim> m_aim;
    std::unique_ptr<ScreenSketch> m_sketch;
    std::unique_ptr<Results> m_results;
    mutable std::unique_ptr<view::TextMeasure> m_textMeasure; ///< made when it is first asked for
    std::unique_ptr<view::EntityExtents> m_entityExtents;     ///< likewise
    std::unique_ptr<view::Scene> m_scene;                     ///< likewise
    view::Scene *m_lentScene = nullptr;
    QHash<QString, drawing::RecordId> m_cursors;
    CommandMemory m_memory;
    QStringList m_commandNames; ///< outermost first
    QStringList m_readableFiles;
    QSet<QString> m_unread;     ///< what was told
    QSet<QString> m_incomplete; ///< likewise
    KeptBackList m_keptBack;
    QString m_lastCommand; ///< for an empty line
    bool m_isDialogOpen = false;
    int m_runs = 0; ///< under way, one inside the other
    ViewState m_view;
    std::vector<ViewState> m_earlierViews;   ///< oldest first
    QString m_shownLayout;                   ///< whose view m_view is
    QHash<QString, ViewState> m_layoutViews; ///< of the layouts that were shown before
    std::vector<drawing::RecordId> m_highlighted;
    std::vector<drawing::RecordId> m_previousSelection;
    std::vector<drawing::RecordId> m_impliedSelection;
};

} // namespace host::kernel
