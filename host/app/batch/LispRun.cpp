// Lisp files on one drawing.

#include "files/qt/Files.h"
#include "host/app/batch/BatchRuns.h"
#include "host/app/batch/BatchWork.h"
#include "host/app/batch/Profile.h"
#include "host/app/batch/UnattendedFeeder.h"
#include "host/app/workbench/LimitWatch.h"
#include "host/app/workbench/ProgramOutput.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Paths.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

kernel::RunResult loadLisp(kernel::Document &document, const QString &file)
{
    if (file != "-"_L1)
        return document.loadLisp(file);
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        return {.ok = false, .value = {}, .error = input.errorString(), .report = {}};
    return document.run(QString::fromUtf8(input.readAll()), u"standard input"_s);
}

/// A program before may have closed the drawing that it ran in.
kernel::Document *drawingToRunIn(Workbench &workbench)
{
    kernel::DocumentManager &documents = workbench.documents();
    return documents.active() ? documents.active() : documents.create();
}

bool isReadable(const QString &file)
{
    QFile probe;
    if (file == "-"_L1 || files::openRegular(probe, file, lisp::largestTextFile).isEmpty())
        return true;
    writeMessage(u"%1: the file cannot be read"_s.arg(native(file)));
    return false;
}

/// To standard error, which is no program's output, and where it is wanted to a file; false when that fails.
bool tellProfile(const Profile &profile, const QString &file)
{
    writeMessageLines(profile.table());
    if (file.isEmpty())
        return true;
    const QString reason = files::replaceFile(file, profile.foldedStacks());
    if (!reason.isEmpty())
        writeMessage(u"%1: %2"_s.arg(native(file), reason));
    return reason.isEmpty();
}

} // namespace

int runLispFiles(const ProgramOptions &options)
{
    if (!std::all_of(options.lispFiles.begin(), options.lispFiles.end(), isReadable))
        return ExitFileError;
    const std::chrono::milliseconds timeLimit = options.timeLimit.value_or(std::chrono::milliseconds());
    const LimitWatch watch(LimitWatch::withTimeToStop(timeLimit), options.lispFiles.join(", "_L1));
    Profile profile;
    Workbench workbench(workbenchOptions(options));
    setForce(workbench, options);
    UnattendedFeeder nobody(timeLimit);
    workbench.session().setFeeder(&nobody);
    kernel::Document *document = nullptr;
    if (options.drawing.isEmpty()) {
        document = workbench.documents().create();
    } else if (const auto opened = openToRead(workbench, options.drawing)) {
        document = opened.document;
    } else {
        writeMessage(opened.error);
        return ExitFileError;
    }
    qsizetype told = 0;
    tellProblems(workbench, told);
    const auto show = [&](kernel::Document *opened) {
        QObject::connect(opened, &kernel::Document::printed, opened, writeResult);
        if (options.isProfiled)
            opened->interpreter().setCallObserver(profile);
    };
    show(document);
    QObject::connect(&workbench.documents(), &kernel::DocumentManager::opened, show);
    int status = ExitDone;
    profile.start();
    for (const QString &file : options.lispFiles) {
        if (workbench.documents().wishes().isQuitWanted())
            break;
        kernel::RunResult result = loadLisp(*drawingToRunIn(workbench), file);
        if (result.ok)
            result = workbench.session().runQueue();
        if (result.ok && nobody.problem().isEmpty())
            continue;
        writeMessage(native(file) + u": "_s + (nobody.problem().isEmpty() ? result.error : nobody.problem()));
        status = ExitFailed;
        break;
    }
    if (options.isProfiled && !tellProfile(profile, options.profileFile))
        status = ExitFileError;
    workbench.session().setFeeder(nullptr);
    closeAll(workbench);
    return tellNotWritten(workbench.session()) && status == ExitDone ? ExitFileError : status;
}

} // namespace host::app
