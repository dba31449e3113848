#include "host/app/batch/BatchWork.h"

#include "files/qt/VisibleText.h"
#include "host/app/batch/RecoveryTelling.h"
#include "host/app/batch/UnattendedFeeder.h"
#include "host/app/workbench/ProgramOutput.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/files/FileStamp.h"
#include "host/kernel/files/WriteObstacle.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// The folder where a file is named, and the one where it is, behind a link.
QStringList foldersOf(const QString &path)
{
    return {QFileInfo(QFileInfo(path).path()).canonicalFilePath(), QFileInfo(kernel::canonicalFile(path)).path()};
}

} // namespace

WorkbenchOptions workbenchOptions(const ProgramOptions &options)
{
    return {.home = options.home,
            .module = options.module,
            .tools = options.tools,
            .trustedFolders = options.trustedFolders,
            .readableFolders = options.readableFolders,
            .memoryLimit = options.memoryLimit};
}

void tellProblems(const Workbench &workbench, qsizetype &told)
{
    for (; told < workbench.problems().size(); ++told)
        writeMessage(workbench.problems()[told]);
}

void setForce(Workbench &workbench, const ProgramOptions &options)
{
    if (options.isForced)
        workbench.session().setOverrule(kernel::Overrule::Obstacles);
}

QString whyNotToWrite(const QString &path, bool isForced)
{
    const auto obstacle = kernel::obstacleToWriting(path, nullptr);
    return obstacle && !(isForced && obstacle->mayBeOverruled()) ? obstacle->text : QString();
}

QString whyNotBeside(const QString &drawing, const QString &target, bool isForced)
{
    const auto present = kernel::identityOf(target);
    if (isForced || !present || present == kernel::identityOf(drawing))
        return {};
    const QStringList own = foldersOf(drawing);
    return std::ranges::none_of(foldersOf(target), [&own](const QString &folder) { return own.contains(folder); })
               ? QString()
               : QCoreApplication::translate("Batch",
                                             "%1 is there already, beside the drawing, and may be another one: "
                                             "name another folder, or --force to replace it")
                     .arg(files::visibleText(native(target)));
}

void closeAll(Workbench &workbench)
{
    kernel::DocumentManager &documents = workbench.documents();
    while (documents.active() && documents.close(documents.documents().back().get()))
        continue;
}

drawing::ReadableFiles readableFor(const ProgramOptions &options)
{
    drawing::ReadableFiles readable;
    for (const QString &folder : options.readableFolders)
        readable.folders.append(QFileInfo(folder).absoluteFilePath());
    readable.folders.append(kernel::Session::homeFolder(options.home) + u"/plotstyles"_s);
    readable.refused = [told = std::make_shared<QSet<QString>>()](const QString &path, const QString &reason) {
        if (told->contains(path))
            return;
        told->insert(path);
        writeMessage(u"%1 was not read: %2"_s.arg(files::visibleText(native(path)), reason));
    };
    readable.incomplete = [told = std::make_shared<QSet<QString>>()](const QString &path,
                                                                     const drawing::ReadingNotes &notes) {
        if (told->contains(path))
            return;
        told->insert(path);
        tellLost(path, notes);
    };
    return readable;
}

QString native(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

bool tellNotWritten(kernel::Session &session)
{
    const QStringList problems = session.takeNotWritten();
    for (const QString &problem : problems)
        writeMessage(problem);
    return !problems.isEmpty();
}

int tellMissing(const QString &path, const view::RenderReport &report)
{
    if (!report.isWhole())
        writeMessage(u"%1: %2"_s.arg(native(path), report.missing()));
    return report.isCutShort ? ExitCutShort : ExitDone;
}

kernel::OpenOutcome openToRead(Workbench &workbench, const QString &path)
{
    const kernel::OpenOutcome opened = workbench.documents().open(path);
    if (!opened.holder)
        return opened;
    writeMessage(opened.error + u" It is opened for reading only."_s);
    return workbench.documents().open(path, kernel::OpenMode::ReadOnly);
}

kernel::OpenOutcome recoverToRead(Workbench &workbench, const QString &path)
{
    const kernel::OpenOutcome opened = workbench.documents().openRecovered(path);
    for (const QString &line : opened.recovered)
        writeMessage(u"%1: %2"_s.arg(native(path), line));
    return opened;
}

kernel::OpenOutcome openUnattended(Workbench &workbench, const QString &path, bool isRecovering)
{
    UnattendedFeeder nobody;
    workbench.session().setFeeder(&nobody);
    kernel::OpenOutcome opened;
    if (path.isEmpty())
        opened.document = workbench.documents().create();
    else if (isRecovering)
        opened = recoverToRead(workbench, path);
    else
        opened = openToRead(workbench, path);
    workbench.session().setFeeder(nullptr);
    for (const QString &line : std::as_const(opened.lost))
        writeMessage(u"%1: %2"_s.arg(native(path), line));
    return opened;
}

bool makeFolder(const QString &folder)
{
    if (folder.isEmpty() || QDir().mkpath(folder))
        return true;
    writeMessage(QCoreApplication::translate("Batch", "%1: the folder cannot be made").arg(native(folder)));
    return false;
}

bool tellClashingNames(const QStringList &files)
{
    QSet<QString> names;
    for (const QString &path : files) {
        const QString name = QFileInfo(path).completeBaseName().toLower();
        if (names.contains(name)) {
            writeMessage(QCoreApplication::translate(
                             "Batch", "two of the drawings are named %1: their results would have the same name")
                             .arg(name));
            return true;
        }
        names.insert(name);
    }
    return false;
}

QString resultPath(const QString &folder, const QString &file, const QString &extension)
{
    return QDir(folder).filePath(QFileInfo(file).completeBaseName() + u'.' + extension);
}

} // namespace host::app
