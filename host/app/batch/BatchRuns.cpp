#include "host/app/batch/BatchRuns.h"

#include "files/qt/Files.h"
#include "files/qt/VisibleText.h"
#include "host/app/batch/UnattendedFeeder.h"
#include "host/app/playback/SessionPlayer.h"
#include "host/app/workbench/DrawingPicture.h"
#include "host/app/workbench/LimitWatch.h"
#include "host/app/workbench/ProgramOutput.h"
#include "host/app/workbench/Workbench.h"
#include "host/kernel/documents/ExpressionSurroundings.h"
#include "host/lisp/Paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

WorkbenchOptions workbenchOptions(const ProgramOptions &options)
{
    return {.home = options.home,
            .module = options.module,
            .tools = options.tools,
            .trustedFolders = options.trustedFolders,
            .readableFolders = options.readableFolders,
            .memoryLimit = options.memoryLimit};
}

/// Tells the problems from `told` on.
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

QString native(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

/// Tells which files a session or program should have written and did not.
bool tellNotWritten(kernel::Session &session)
{
    const QStringList problems = session.takeNotWritten();
    for (const QString &problem : problems)
        writeMessage(problem);
    return !problems.isEmpty();
}

/// What is missing in a picture, and whether that is because there was too much.
int tellMissing(const QString &path, const view::RenderReport &report)
{
    if (!report.isWhole())
        writeMessage(u"%1: %2"_s.arg(native(path), report.missing()));
    return report.isCutShort ? ExitCutShort : ExitDone;
}

/// One session over several drawings.
class SessionBatch
{
public:
    explicit SessionBatch(const ProgramOptions &options) : m_options(options) {}

    int run();

private:
    bool prepareFolders();
    bool hasClashingNames() const;
    int runOne(Workbench &workbench, const QString &path);
    int playOn(kernel::Document &document, const QString &path);
    int writeOutcome(kernel::Document &document, const QString &path, const PlaybackResult &played);
    QString picturePath(const QString &drawing) const;

    const ProgramOptions &m_options;
    PlaybackScript m_script;
    qsizetype m_told = 0;
};

bool makeFolder(const QString &folder)
{
    if (folder.isEmpty() || QDir().mkpath(folder))
        return true;
    writeMessage(u"%1: the folder cannot be made"_s.arg(native(folder)));
    return false;
}

bool SessionBatch::prepareFolders()
{
    return makeFolder(m_options.outFolder) && makeFolder(m_options.pictureFolder);
}

/// Whether results of two drawings would go to the same file.
bool SessionBatch::hasClashingNames() const
{
    if (m_options.outFolder.isEmpty() && m_options.pictureFolder.isEmpty())
        return false;
    QSet<QString> names;
    for (const QString &path : m_options.drawings) {
        const QString name = QFileInfo(path).completeBaseName().toLower();
        if (names.contains(name)) {
            writeMessage(u"two of the drawings are named %1: their results would have the same name"_s.arg(name));
            return true;
        }
        names.insert(name);
    }
    return false;
}

int SessionBatch::run()
{
    m_script = readPlayback(m_options.session);
    for (const ScriptError &error : m_script.errors)
        writeMessage(error.line > 0 ? u"%1:%2: %3"_s.arg(native(m_options.session)).arg(error.line).arg(error.message)
                                    : error.message);
    if (!m_script.errors.isEmpty())
        return m_script.errors.first().line > 0 ? ExitFailed : ExitFileError;
    if (hasClashingNames())
        return ExitUsage;
    if (!prepareFolders())
        return ExitFileError;
    QWidget parentOfDialogs;
    Workbench workbench(workbenchOptions(m_options), &parentOfDialogs);
    setForce(workbench, m_options);
    QList<int> statuses;
    for (const QString &path : m_options.drawings)
        statuses.append(runOne(workbench, path));
    const auto failed = statuses.size() - statuses.count(ExitDone);
    if (failed == 0)
        return ExitDone;
    if (failed < statuses.size())
        return ExitPartly;
    if (statuses.count(ExitCutShort) == failed)
        return ExitCutShort;
    return statuses.contains(ExitFailed) ? ExitFailed : ExitFileError;
}

/// A drawing that another process has open is read as it was saved; its own file is not written then.
kernel::OpenOutcome openToRead(Workbench &workbench, const QString &path)
{
    const kernel::OpenOutcome opened = workbench.documents().open(path);
    if (!opened.holder)
        return opened;
    writeMessage(opened.error + u" It is opened for reading only."_s);
    return workbench.documents().open(path, kernel::OpenMode::ReadOnly);
}

/// The tools that a drawing loads when it opens have nobody to ask either.
kernel::OpenOutcome openUnattended(Workbench &workbench, const QString &path)
{
    UnattendedFeeder nobody;
    workbench.session().setFeeder(&nobody);
    const kernel::OpenOutcome opened = openToRead(workbench, path);
    workbench.session().setFeeder(nullptr);
    return opened;
}

int SessionBatch::runOne(Workbench &workbench, const QString &path)
{
    const kernel::OpenOutcome opened = openUnattended(workbench, path);
    tellProblems(workbench, m_told);
    if (!opened) {
        writeMessage(opened.error);
        writeResult(u"%1: not read\n"_s.arg(native(path)));
        return ExitFileError;
    }
    const int status = playOn(*opened.document, path);
    workbench.documents().close(opened.document);
    return status;
}

int SessionBatch::playOn(kernel::Document &document, const QString &path)
{
    PlaybackOptions playback;
    playback.variables.insert(u"SESSION_DIR"_s, QFileInfo(m_options.session).absolutePath());
    if (!m_options.outFolder.isEmpty())
        playback.outFolder = QFileInfo(m_options.outFolder).absoluteFilePath();
    if (!m_options.pictureFolder.isEmpty())
        playback.pictureFolder = QFileInfo(m_options.pictureFolder).absoluteFilePath();
    playback.timeLimit = m_options.timeLimit.value_or(playback.timeLimit);
    const PlaybackResult result = [&] {
        const LimitWatch watch(LimitWatch::withTimeToStop(playback.timeLimit), native(path));
        return runSession(m_script, document, playback);
    }();
    if (!result.ok) {
        writeMessage(u"%1: %2: %3"_s.arg(native(path), native(m_options.session), result.message));
        writeResult(u"%1: failed\n"_s.arg(native(path)));
        // The next drawing has no part in it.
        tellNotWritten(document.session());
        return ExitFailed;
    }
    const int status = writeOutcome(document, path, result);
    return tellNotWritten(document.session()) ? ExitFileError : status;
}

QString SessionBatch::picturePath(const QString &drawing) const
{
    const QFileInfo file(drawing);
    const QString folder = !m_options.pictureFolder.isEmpty() ? m_options.pictureFolder
                           : !m_options.outFolder.isEmpty()   ? m_options.outFolder
                                                              : file.path();
    return QDir(folder).filePath(file.completeBaseName() + u".png"_s);
}

int SessionBatch::writeOutcome(kernel::Document &document, const QString &path, const PlaybackResult &played)
{
    QStringList files;
    int status = ExitDone;
    for (const QString &file : played.files)
        files.append(native(file));
    for (const auto &[picture, report] : played.incomplete)
        status = std::max(status, tellMissing(picture, report));
    QString error;
    const QMetaObject::Connection told = QObject::connect(&document, &kernel::Document::printed, &document,
                                                          [](const QString &text) { writeMessage(text.trimmed()); });
    if (!m_options.outFolder.isEmpty() && document.isModified()) {
        const QString target = QDir(m_options.outFolder).filePath(QFileInfo(path).completeBaseName() + u".dxf"_s);
        error = document.saveCopy(target).error;
        files.append(native(target));
    }
    if (error.isEmpty() && m_options.withPictures) {
        const view::ExportResult picture = writeDrawingPicture(document, picturePath(path));
        error = picture.error;
        status = std::max(status, tellMissing(picturePath(path), picture.report));
        files.append(native(picturePath(path)));
    }
    QObject::disconnect(told);
    if (!error.isEmpty()) {
        writeMessage(error);
        writeResult(u"%1: not written\n"_s.arg(native(path)));
        return ExitFileError;
    }
    writeResult(files.isEmpty() ? u"%1: done\n"_s.arg(native(path))
                                : u"%1: done, %2\n"_s.arg(native(path), files.join(", "_L1)));
    return status;
}

kernel::RunResult loadLisp(kernel::Document &document, const QString &file)
{
    if (file != "-"_L1)
        return document.loadLisp(file);
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        return {.ok = false, .value = {}, .error = input.errorString(), .report = {}};
    return document.run(QString::fromUtf8(input.readAll()), u"standard input"_s);
}

bool isReadable(const QString &file)
{
    QFile probe;
    if (file == "-"_L1 || files::openRegular(probe, file, lisp::largestTextFile).isEmpty())
        return true;
    writeMessage(u"%1: the file cannot be read"_s.arg(native(file)));
    return false;
}

QJsonObject counts(const QMap<QString, qint64> &byType)
{
    QJsonObject object;
    for (auto it = byType.begin(); it != byType.end(); ++it)
        object.insert(it.key(), it.value());
    return object;
}

/// One line of JSON; `report` is null where nothing was drawn.
QByteArray conversionReport(const ProgramOptions &options, const view::RenderReport *report)
{
    QJsonObject object{{u"input"_s, options.input}, {u"output"_s, options.output}};
    if (report) {
        object.insert(u"complete"_s, report->isWhole());
        object.insert(u"drawn"_s, report->drawn);
        object.insert(u"invisible"_s, report->hidden);
        object.insert(u"inPart"_s, counts(report->simplified));
        object.insert(u"notDrawn"_s, counts(report->skipped));
        object.insert(u"cutShort"_s, report->isCutShort);
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

/// What is named outside is told once each.
drawing::ReadableFiles readableFor(const ProgramOptions &options)
{
    drawing::ReadableFiles readable;
    for (const QString &folder : options.readableFolders)
        readable.folders.append(QFileInfo(folder).absoluteFilePath());
    readable.refused = [told = std::make_shared<QSet<QString>>()](const QString &path, const QString &reason) {
        if (told->contains(path))
            return;
        told->insert(path);
        writeMessage(u"%1 was not read: %2"_s.arg(files::visibleText(native(path)), reason));
    };
    return readable;
}

} // namespace

int runSessions(const ProgramOptions &options)
{
    return SessionBatch(options).run();
}

int runLispFiles(const ProgramOptions &options)
{
    if (!std::all_of(options.lispFiles.begin(), options.lispFiles.end(), isReadable))
        return ExitFileError;
    const std::chrono::milliseconds timeLimit = options.timeLimit.value_or(std::chrono::milliseconds());
    const LimitWatch watch(LimitWatch::withTimeToStop(timeLimit), options.lispFiles.join(", "_L1));
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
    QObject::connect(document, &kernel::Document::printed, document, writeResult);
    int status = ExitDone;
    for (const QString &file : options.lispFiles) {
        kernel::RunResult result = loadLisp(*document, file);
        if (result.ok)
            result = workbench.session().runQueue();
        if (result.ok && nobody.problem().isEmpty())
            continue;
        writeMessage(native(file) + u": "_s + (nobody.problem().isEmpty() ? result.error : nobody.problem()));
        status = ExitFailed;
        break;
    }
    workbench.session().setFeeder(nullptr);
    workbench.documents().close(document);
    return tellNotWritten(workbench.session()) && status == ExitDone ? ExitFileError : status;
}

int convertDrawing(const ProgramOptions &options)
{
    const QString extension = QFileInfo(options.output).suffix().toLower();
    const bool isPicture = pictureExtensions().contains(extension);
    // Saving knows best why a name for a DWG file is refused.
    if (!isPicture && extension != "dxf"_L1 && extension != "dwg"_L1) {
        writeMessage(
            u"%1: the extension must be dxf, %2"_s.arg(native(options.output), pictureExtensions().join(", "_L1)));
        return ExitUsage;
    }
    const LimitWatch watch(options.timeLimit.value_or(std::chrono::milliseconds()), native(options.input));
    if (const auto obstacle = kernel::obstacleToWriting(options.output, nullptr); obstacle && !options.isForced) {
        writeMessage(obstacle->text);
        return ExitFileError;
    }
    const drawing::ReadResult read = drawing::Drawing::open(options.input);
    if (!read) {
        writeMessage(native(options.input) + u": "_s + read.error.message());
        return ExitFileError;
    }
    view::ExportResult written;
    if (isPicture)
        written = writeDrawingPicture(*read.drawing, options.output,
                                      kernel::expressionSurroundings(*read.drawing, readableFor(options)));
    else
        written.error = drawing::saveCopy(*read.drawing, options.output).error;
    if (!written) {
        writeMessage(written.error);
        return ExitFileError;
    }
    if (options.withJson)
        writeResult(QString::fromUtf8(conversionReport(options, isPicture ? &written.report : nullptr)));
    const int status = tellMissing(options.input, written.report);
    return status == ExitDone && options.isStrict && !written.report.isWhole() ? ExitPartly : status;
}

} // namespace host::app
