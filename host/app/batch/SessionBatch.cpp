#include "host/app/batch/BatchRuns.h"
#include "host/app/batch/BatchWork.h"
#include "host/app/batch/UnattendedFeeder.h"
#include "host/app/playback/DrawingAudit.h"
#include "host/app/playback/SessionPlayer.h"
#include "host/app/workbench/DrawingPicture.h"
#include "host/app/workbench/LimitWatch.h"
#include "host/app/workbench/ProgramOutput.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// One session over several drawings.
class SessionBatch
{
public:
    explicit SessionBatch(const ProgramOptions &options) : m_options(options) {}

    int run();

private:
    bool prepareFolders();
    bool hasClashingNames() const;
    bool findDrawings();
    int runOne(Workbench &workbench, const QString &path, const PlaybackCase &one);
    PlaybackOptions playbackOptions();
    int playOn(kernel::Document &document, const QString &path, const PlaybackCase &one);
    int writeOutcome(kernel::Document &document, const QString &path, const PlaybackResult &played,
                     const QString &title);
    QString writeResults(kernel::Document &document, const QString &path, QStringList &files, int &status);
    QString picturePath(const QString &drawing) const;

    const ProgramOptions &m_options;
    PlaybackScript m_script;
    QStringList m_drawings; ///< an empty path is a new drawing
    std::optional<DrawingAudit> m_audit;
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
    for (const QString &path : m_drawings) {
        const QString name = QFileInfo(path).completeBaseName().toLower();
        if (names.contains(name)) {
            writeMessage(u"two of the drawings are named %1: their results would have the same name"_s.arg(name));
            return true;
        }
        names.insert(name);
    }
    return false;
}

/// The drawings that were given, else the one that the session is for.
bool SessionBatch::findDrawings()
{
    m_drawings = m_options.drawings;
    // Other people's drawings are known to the tests alone.
    const bool isElsewhere = m_script.drawing.section(u' ', 0, 0) == "elsewhere"_L1;
    if (m_drawings.isEmpty() && m_script.drawing == "new"_L1)
        m_drawings.append(QString());
    else if (m_drawings.isEmpty() && !m_script.drawing.isEmpty() && !isElsewhere)
        m_drawings.append(QDir(QFileInfo(m_options.session).absolutePath()).filePath(m_script.drawing));
    if (m_drawings.isEmpty())
        writeMessage(
            u"%1: no drawing was given, and the session does not say which it is for"_s.arg(native(m_options.session)));
    return !m_drawings.isEmpty();
}

int SessionBatch::run()
{
    m_script = readPlayback(m_options.session);
    for (const ScriptError &error : m_script.errors)
        writeMessage(error.line > 0 ? u"%1:%2: %3"_s.arg(native(m_options.session)).arg(error.line).arg(error.message)
                                    : error.message);
    if (!m_script.errors.isEmpty())
        return m_script.errors.first().line > 0 ? ExitFailed : ExitFileError;
    if (!findDrawings() || hasClashingNames())
        return ExitUsage;
    if (!prepareFolders())
        return ExitFileError;
    QWidget parentOfDialogs;
    Workbench workbench(workbenchOptions(m_options), &parentOfDialogs);
    setForce(workbench, m_options);
    QList<int> statuses;
    for (const QString &path : m_drawings)
        for (const PlaybackCase &one : casesToPlay(m_script))
            statuses.append(runOne(workbench, path, one));
    const auto failed = statuses.size() - statuses.count(ExitDone);
    if (failed == 0)
        return ExitDone;
    if (failed < statuses.size())
        return ExitPartly;
    if (statuses.count(ExitCutShort) == failed)
        return ExitCutShort;
    return statuses.contains(ExitFailed) ? ExitFailed : ExitFileError;
}

/// The tools that a drawing loads when it opens have nobody to ask either.
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
    return opened;
}

/// What lines about a drawing begin with.
QString titleOf(const QString &path, const PlaybackCase &one)
{
    const QString drawing = path.isEmpty() ? u"new drawing"_s : native(path);
    return one.name.isEmpty() ? drawing : u"%1, case %2"_s.arg(drawing, one.name);
}

int SessionBatch::runOne(Workbench &workbench, const QString &path, const PlaybackCase &one)
{
    const kernel::OpenOutcome opened = openUnattended(workbench, path, m_options.isRecovering);
    tellProblems(workbench, m_told);
    if (!opened) {
        writeMessage(opened.error);
        writeResult(u"%1: not read\n"_s.arg(native(path)));
        return ExitFileError;
    }
    const int status = playOn(*opened.document, path, one);
    closeAll(workbench);
    return status;
}

PlaybackOptions SessionBatch::playbackOptions()
{
    PlaybackOptions playback;
    playback.variables.insert(u"SESSION_DIR"_s, QFileInfo(m_options.session).absolutePath());
    if (!m_options.outFolder.isEmpty())
        playback.outFolder = QFileInfo(m_options.outFolder).absoluteFilePath();
    if (!m_options.pictureFolder.isEmpty())
        playback.pictureFolder = QFileInfo(m_options.pictureFolder).absoluteFilePath();
    playback.timeLimit = m_options.timeLimit.value_or(playback.timeLimit);
    if (!m_audit && !m_options.audit.isEmpty())
        m_audit.emplace(m_options.audit);
    if (m_audit)
        playback.audit = [this](const QString &file) { return m_audit->complaints(file); };
    return playback;
}

int SessionBatch::playOn(kernel::Document &document, const QString &path, const PlaybackCase &one)
{
    const PlaybackOptions playback = playbackOptions();
    const QString title = titleOf(path, one);
    const PlaybackResult result = [&] {
        const LimitWatch watch(LimitWatch::withTimeToStop(playback.timeLimit), native(path));
        return runCase(one, document, playback);
    }();
    if (!result.ok) {
        writeMessage(u"%1: %2: %3"_s.arg(title, native(m_options.session), result.message));
        writeResult(u"%1: failed\n"_s.arg(title));
        // The next drawing has no part in it.
        tellNotWritten(document.session());
        return ExitFailed;
    }
    const int status = writeOutcome(document, path, result, title);
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

/// The drawing and its picture as they are in the end; of a session with cases nothing, each having its own end.
QString SessionBatch::writeResults(kernel::Document &document, const QString &path, QStringList &files, int &status)
{
    if (!m_script.cases.isEmpty())
        return {};
    const QString drawing = path.isEmpty() ? document.title() : path;
    if (!m_options.outFolder.isEmpty() && document.isModified()) {
        const QString target = QDir(m_options.outFolder).filePath(QFileInfo(drawing).completeBaseName() + u".dxf"_s);
        files.append(native(target));
        if (const QString error = document.saveCopy(target).error; !error.isEmpty())
            return error;
    }
    if (!m_options.withPictures)
        return {};
    const view::ExportResult picture = writeDrawingPicture(document, picturePath(drawing));
    status = std::max(status, tellMissing(picturePath(drawing), picture.report));
    files.append(native(picturePath(drawing)));
    return picture.error;
}

int SessionBatch::writeOutcome(kernel::Document &document, const QString &path, const PlaybackResult &played,
                               const QString &title)
{
    QStringList files;
    int status = ExitDone;
    for (const QString &file : played.files)
        files.append(native(file));
    for (const auto &[picture, report] : played.incomplete)
        status = std::max(status, tellMissing(picture, report));
    const QMetaObject::Connection told = QObject::connect(&document, &kernel::Document::printed, &document,
                                                          [](const QString &text) { writeMessage(text.trimmed()); });
    const QString error = writeResults(document, path, files, status);
    QObject::disconnect(told);
    if (!error.isEmpty()) {
        writeMessage(error);
        writeResult(u"%1: not written\n"_s.arg(title));
        return ExitFileError;
    }
    writeResult(files.isEmpty() ? u"%1: done\n"_s.arg(title) : u"%1: done, %2\n"_s.arg(title, files.join(", "_L1)));
    return status;
}

} // namespace

int runSessions(const ProgramOptions &options)
{
    return SessionBatch(options).run();
}

} // namespace host::app
