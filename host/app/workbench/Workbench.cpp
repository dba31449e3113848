#include "host/app/workbench/Workbench.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// Where things lie from the program's folder: in an installation, then in the build.
const QStringList libraryPlaces = {u"" ORTAKIT_LIBDIR ""_s, u"../lib"_s};
const QStringList dataPlaces = {u"" ORTAKIT_DATADIR ""_s, u"../share/ortakit"_s};

QString besideProgram(const QString &path)
{
    return QDir::cleanPath(QDir(QCoreApplication::applicationDirPath()).filePath(path));
}

/// What is given, else what the variable says, else the first of the name in those places that is there.
QString firstOf(const QString &given, const char *variable, const QStringList &places, const QString &name)
{
    if (!given.isEmpty())
        return given;
    if (const QString value = qEnvironmentVariable(variable); !value.isEmpty())
        return value;
    for (const QString &place : places)
        if (const QString path = besideProgram(place + u'/' + name); QFileInfo::exists(path))
            return path;
    return {};
}

kernel::SessionOptions sessionOptions(const WorkbenchOptions &options, const ToolIndex &tools)
{
    kernel::SessionOptions session{.home = options.home, .supportFolders = {}, .helpFolder = {}};
    session.helpFolder = firstOf({}, "ORTAKIT_HELP", dataPlaces, u"help"_s);
    if (!tools.folder.isEmpty()) {
        const QDir folder(tools.folder);
        session.supportFolders = {tools.folder, folder.filePath(u"support"_s)};
    }
    return session;
}

} // namespace

QString findModuleFile(const QString &given)
{
    return firstOf(given, "ORTAKIT_MODULE", libraryPlaces, u"Ortakit.so"_s);
}

QString findToolsFolder(const QString &given)
{
    return firstOf(given, "ORTAKIT_TOOLS", dataPlaces, u"tools"_s);
}

QString findSamplesFolder()
{
    return firstOf({}, "ORTAKIT_SAMPLES", dataPlaces, u"samples"_s);
}

Workbench::Workbench(const WorkbenchOptions &options, QWidget *mainWindow)
    : m_tools(readTools(findToolsFolder(options.tools))), m_session(sessionOptions(options, m_tools))
{
    m_session.setMainWindow(mainWindow);
    if (options.memoryLimit)
        m_session.capLispHeap(*options.memoryLimit);
    for (const QString &folder : options.trustedFolders)
        m_session.trustedFolders().addForSession(folder);
    for (const QString &folder : options.readableFolders)
        m_session.trustedFolders().addForSession(folder, kernel::TrustedFolders::List::Read);
    loadModule(findModuleFile(options.module));
    if (m_tools.folder.isEmpty()) {
        const QString folder = findToolsFolder(options.tools);
        m_problems.append(folder.isEmpty()
                              ? tr("The folder of the Lisp tools was not found; there are no tools.")
                              : tr("There is no folder %1; there are no tools.").arg(QDir::toNativeSeparators(folder)));
    }
    m_problems += m_tools.problems;
    connect(&documents(), &kernel::DocumentManager::opened, this,
            [this](kernel::Document *document) { loadTools(*document); });
}

Workbench::~Workbench() = default;

void Workbench::loadModule(const QString &file)
{
    if (file.isEmpty()) {
        m_problems.append(tr("The plug-in module was not found; tools with dialogs will not work."));
        return;
    }
    if (const auto outcome = m_session.modules().load(file); !outcome)
        m_problems.append(tr("%1 Tools with dialogs will not work.").arg(outcome.error));
}

void Workbench::loadTools(kernel::Document &document)
{
    // What the person wants in every drawing comes behind the tools, which it may build upon.
    const QString own = m_session.settings().text(QStringLiteral("Programs"), QStringLiteral("load"));
    for (const QString &file : m_tools.files + own.split(u';', Qt::SkipEmptyParts))
        if (const kernel::RunResult result = document.loadLisp(file); !result.ok) {
            const QString problem = tr("%1: %2").arg(QDir::toNativeSeparators(file), result.error);
            if (!m_problems.contains(problem))
                m_problems.append(problem);
        }
}

} // namespace host::app
