#include "host/app/batch/BatchWork.h"

#include "host/app/workbench/ProgramOutput.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace host::app {

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

void closeAll(Workbench &workbench)
{
    kernel::DocumentManager &documents = workbench.documents();
    while (documents.active() && documents.close(documents.documents().back().get()))
        continue;
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

} // namespace host::app
