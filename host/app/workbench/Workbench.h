#pragma once

#include "host/app/workbench/ToolIndex.h"
#include "host/kernel/documents/Session.h"

#include <QObject>

#include <optional>

namespace host::app {

/// What the program works with besides its own files.
struct WorkbenchOptions
{
    QString home;   ///< folder of the user's data; empty: the session's own choice
    QString module; ///< file of the plug-in module; empty: $ORTAKIT_MODULE, else the one installed with the program
    QString tools;  ///< folder of the Lisp tools; empty: $ORTAKIT_TOOLS, else the one installed with the program
    QStringList trustedFolders = {};     ///< whose programs may run too, with those below
    QStringList readableFolders = {};    ///< whose files drawings may name too, with those below
    std::optional<int> memoryLimit = {}; ///< of Lisp, in MB; nothing: the user's setting alone
};

/// A running host with the plug-in module and the Lisp tools: what window and batch runs share. Every document that
/// opens gets the tools loaded. A missing module or tools folder is a problem to be told, no reason to stop.
class Workbench : public QObject
{
    Q_OBJECT

public:
    /// `mainWindow` becomes the parent of tool dialogs and must outlive the workbench; null without a window.
    /// Makes the session and loads the module; opens no drawing.
    explicit Workbench(const WorkbenchOptions &options, QWidget *mainWindow = nullptr);
    /// Closes the documents without asking.
    ~Workbench() override;

    kernel::Session &session() { return m_session; }
    /// The session's; empty until someone opens a drawing.
    kernel::DocumentManager &documents() { return m_session.documents(); }
    /// As found when it was made: a tool that comes into the folder later counts from the next start.
    const ToolIndex &tools() const { return m_tools; }
    /// What went wrong so far, a sentence each, oldest first. Grows when a document's tools cannot be loaded.
    const QStringList &problems() const { return m_problems; }

private:
    void loadModule(const QString &file);
    void loadTools(kernel::Document &document);

    ToolIndex m_tools;
    kernel::Session m_session;
    QStringList m_problems;
};

/// The first of these that exists: `given`, the environment variable's value, the places beside the program. A `given`
/// one is taken whether or not it exists.
QString findModuleFile(const QString &given);
QString findToolsFolder(const QString &given);
/// The folder of the samples, of the installation or the source tree; empty where there is none.
QString findSamplesFolder();

} // namespace host::app
