#pragma once

#include "host/kernel/documents/DocumentManager.h"
#include "host/kernel/files/TrustedFolders.h"
#include "host/kernel/files/UserFolders.h"
#include "host/kernel/input/InputFeeder.h"
#include "host/kernel/platform/ModuleLoader.h"
#include "host/kernel/platform/Services.h"
#include "host/kernel/running/CommandAliases.h"
#include "host/kernel/variables/SettingsStore.h"
#include "host/kernel/variables/UserVariables.h"

#include <QPointer>
#include <QSet>
#include <QWidget>

#include <memory>

namespace host::kernel {

class CommandStack;
class CustomBlocks;
class Editor;
class HelpService;
class SystemServices;

/// How a session is set up.
struct SessionOptions
{
    /// Folder of all that is the user's, as userFolders() takes it; that of the data (LOGFILEPATH) is made when it does
    /// not exist, with a folder "Template" for drawings to start from.
    QString home;
    /// The folders of the installation, in order: programs are looked for there first, other files after the drawing's
    /// own folder.
    QStringList supportFolders;
    /// Folder with the help pages, as HelpService shows them.
    QString helpFolder;
};

/// One running host: its documents, modules, reactors, help and input. Making one installs the platform's services;
/// destroying it unloads the modules, closes the documents and puts back what was installed before.
///
/// Everything happens on the thread of the user interface. There may be several, one inside the other's life, as tests
/// have them: the platform's services are those of the one made last.
class KV_EXPORT Session
{
public:
    /// Makes the home folder and clears away what writes of files that were cut off left behind there. Opens nothing.
    explicit Session(const SessionOptions &options = {});
    /// Documents are closed without asking and without saving.
    ~Session();
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    /// The folder of the user's data by what the options say of it, whether or not it is there.
    static QString homeFolder(const QString &wanted);

    // The parts, which live as long as the session.

    DocumentManager &documents() { return *m_documents; }
    ModuleLoader &modules() { return *m_modules; }
    /// Tells reactors of commands, programs, variables and saving.
    Editor &editor() { return *m_editor; }
    /// The commands that modules brought.
    CommandStack &commandStack() { return *m_commandStack; }
    /// What was typed ahead, by a person, a script or a recorded session, for whichever document is active.
    InputQueue &input() { return m_input; }
    /// The user's short names of commands, of home()/alias.xml.
    CommandAliases &aliases() { return m_aliases; }
    /// Built-in commands that a program has hidden, by their names: only a point in front ("_.LINE") runs them.
    QSet<QString> &undefinedCommands() { return m_undefinedCommands; }
    /// What is kept between sessions, in the file of settings settings.ini.
    SettingsStore &settings() { return m_settings; }
    /// The system variables among them.
    UserVariables &userVariables() { return m_userVariables; }
    /// Where programs are loaded from, and what drawings may read.
    TrustedFolders &trustedFolders() { return m_trustedFolders; }

    /// Runs what waits in the queue in the active document, one command or expression after the other, until nothing is
    /// left or only the beginning of an expression: what was typed, and what a script typed before its command ended.
    /// What came of the first that failed, else of the last. The user may stop it, which empties the queue. What the
    /// runs want of the documents is done between them, also what a run before this call wants: see DocumentWishes.
    /// When that cannot be done, the rest of the queue was meant for another drawing and is forgotten.
    RunResult runQueue();

    /// Lets events be processed and says whether the user wants what runs to end. For everything that may go on without
    /// asking: also what is typed ahead has no end when a script calls itself.
    bool isStopWanted() { return m_feeder && m_feeder->poll(); }

    /// The most memory, in MB, that Lisp programs may take: the user's setting LISPHEAPMAX, or less where this run has
    /// a limit of its own.
    int lispHeapLimit() const { return std::min(m_lispHeapSetting, m_lispHeapCap); }
    /// Changes and keeps the setting; `megabytes` between the two limits below, which the caller has checked.
    void setLispHeapLimit(int megabytes);
    /// A limit for this run, that no program can raise.
    void capLispHeap(int megabytes) { m_lispHeapCap = megabytes; }
    static constexpr int leastLispHeap = 16;            ///< MB; what settings, options and LISPHEAPMAX may say
    static constexpr int largestLispHeap = 1024 * 1024; ///< MB

    /// Who answers when the queue is empty; null (as in the beginning) for nobody. Not owned.
    void setFeeder(InputFeeder *feeder) { m_feeder = feeder; }
    /// Null while nobody answers.
    InputFeeder *feeder() const { return m_feeder; }

    /// Parent of tool dialogs; null in a run without a window, when nothing is ever shown: alerts are printed and files
    /// asked for on the command line. The session must be destroyed before the window.
    void setMainWindow(QWidget *window) { m_mainWindow = window; }
    /// Null as well when the window has gone before.
    QWidget *mainWindow() const { return m_mainWindow; }

    /// What stands against writing files counts for nothing that may be overruled, for runs that nobody can be asked
    /// in.
    void setOverrule(Overrule overrule) { m_overrule = overrule; }
    Overrule overrule() const { return m_overrule; }

    /// Absolute, without a separator at the end.
    QString home() const { return m_home; }
    /// The user's folders; that of the data is home().
    const UserFolders &folders() const { return m_folders; }
    /// The file of settings of that name, as settingsFile() of UserFolders says.
    QString settingsFile(const QString &name) const;
    /// In the order in which they are looked through. A change counts from the next search on.
    const QStringList &supportFolders() const { return m_supportFolders; }
    void setSupportFolders(const QStringList &folders) { m_supportFolders = folders; }
    QString helpFolder() const { return m_helpFolder; }
    HelpService &help() { return *m_help; }

    /// What was cut or copied last, in a drawing of its own, whose insertion base is the base point; null for nothing.
    const drawing::Drawing *clipboard() const { return m_clipboard.get(); }
    /// The same for who shows it while it may be replaced.
    std::shared_ptr<const drawing::Drawing> heldClipboard() const { return m_clipboard; }
    void setClipboard(std::unique_ptr<drawing::Drawing> drawing) { m_clipboard = std::move(drawing); }

    /// A file that should have been written was not, or not whole. The user has been told; a run without one ends with
    /// that.
    void tellNotWritten(const QString &problem) { m_notWritten.append(problem); }
    /// It was written after all.
    void forgetNotWritten(const QString &problem) { m_notWritten.removeOne(problem); }
    /// All that was told since the last call, oldest first.
    QStringList takeNotWritten() { return std::exchange(m_notWritten, {}); }

private:
    RunResult grantWishes();

    std::shared_ptr<drawing::Drawing> m_clipboard;
    QSet<QString> m_undefinedCommands;
    QStringList m_notWritten; ///< told since takeNotWritten()
    UserFolders m_folders;
    QString m_home;
    QStringList m_supportFolders;
    QString m_helpFolder;
    CommandAliases m_aliases;
    SettingsStore m_settings;
    UserVariables m_userVariables{m_settings};
    int m_lispHeapSetting;               ///< MB, between leastLispHeap and largestLispHeap
    int m_lispHeapCap = largestLispHeap; ///< MB, for this run
    TrustedFolders m_trustedFolders{*this};
    InputQueue m_input;
    InputFeeder *m_feeder = nullptr;
    Overrule m_overrule = Overrule::Nothing;
    QPointer<QWidget> m_mainWindow;
    std::unique_ptr<Editor> m_editor;
    std::unique_ptr<CommandStack> m_commandStack;
    std::unique_ptr<HelpService> m_help;
    std::unique_ptr<CustomBlocks> m_customBlocks;
    std::unique_ptr<SystemServices> m_services;
    std::unique_ptr<DocumentManager> m_documents;
    std::unique_ptr<ModuleLoader> m_modules;
    Services m_servicesBefore; ///< put back at the end
};

} // namespace host::kernel
