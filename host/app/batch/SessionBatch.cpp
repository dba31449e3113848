#include "host/app/batch/BatchJobs.h"
#include "host/app/batch/BatchRuns.h"
#include "host/app/batch/BatchWork.h"
#include "host/app/playback/DrawingAudit.h"
#include "host/app/playback/SessionPlayer.h"
#include "host/app/workbench/DrawingPicture.h"
#include "host/app/workbench/LimitWatch.h"
#include "host/app/workbench/ProgramOutput.h"

#include <QDir>
#include <QFileInfo>
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
    bool readScript(int &status);
    bool findDrawings();
    FileWork beginWork();
    FileResult runOne(Workbench &workbench, const QString &path, const PlaybackCase &one);
    PlaybackOptions playbackOptions();
    void playOn(kernel::Document &document, const QString &path, const PlaybackCase &one, FileResult &result);
    void writeOutcome(kernel::Document &document, const QString &path, const PlaybackResult &played,
                      FileResult &result);
    QString writeResults(kernel::Document &document, const QString &path, const IncompleteTold &told,
                         FileResult &result);
    QString picturePath(const QString &drawing) const;

    const ProgramOptions &m_options;
    PlaybackScript m_script;
    QStringList m_drawings; ///< an empty path is a new drawing
    std::optional<DrawingAudit> m_audit;
    qsizetype m_told = 0;
};

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

bool SessionBatch::readScript(int &status)
{
    m_script = readPlayback(m_options.session);
    for (const ScriptError &error : m_script.errors)
        writeMessage(error.line > 0 ? u"%1:%2: %3"_s.arg(native(m_options.session)).arg(error.line).arg(error.message)
                                    : error.message);
    if (!m_script.errors.isEmpty())
        status = m_script.errors.first().line > 0 ? ExitFailed : ExitFileError;
    return m_script.errors.isEmpty();
}

int SessionBatch::run()
{
    int status = ExitDone;
    if (!readScript(status))
        return status;
    const bool writesFiles = !m_options.outFolder.isEmpty() || !m_options.pictureFolder.isEmpty();
    if (!findDrawings() || (writesFiles && tellClashingNames(m_drawings)))
        return ExitUsage;
    if (!makeFolder(m_options.outFolder) || !makeFolder(m_options.pictureFolder))
        return ExitFileError;
    return workOnFiles(m_options, m_drawings, [this] { return beginWork(); });
}

FileWork SessionBatch::beginWork()
{
    const auto parentOfDialogs = std::make_shared<QWidget>();
    const auto workbench = std::make_shared<Workbench>(workbenchOptions(m_options), parentOfDialogs.get());
    setForce(*workbench, m_options);
    // The workbench goes before the parent of its dialogs does.
    return [this, parentOfDialogs, workbench](const QString &path) {
        QList<FileResult> results;
        for (const PlaybackCase &one : casesToPlay(m_script))
            results.append(runOne(*workbench, path, one));
        return results;
    };
}

/// What lines about a drawing begin with.
QString titleOf(const QString &path, const PlaybackCase &one)
{
    const QString drawing = path.isEmpty() ? u"new drawing"_s : native(path);
    return one.name.isEmpty() ? drawing : u"%1, case %2"_s.arg(drawing, one.name);
}

FileResult SessionBatch::runOne(Workbench &workbench, const QString &path, const PlaybackCase &one)
{
    FileResult result{.file = path.isEmpty() ? u"new drawing"_s : path, .part = one.name};
    const MessageKeeper keeper;
    const kernel::OpenOutcome opened = openUnattended(workbench, path, m_options.isRecovering);
    tellProblems(workbench, m_told);
    if (opened) {
        playOn(*opened.document, path, one, result);
        closeAll(workbench);
    } else {
        writeMessage(opened.error);
        result.outcome = Outcome::NotRead;
    }
    result.messages = keeper.messages();
    return result;
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

void SessionBatch::playOn(kernel::Document &document, const QString &path, const PlaybackCase &one, FileResult &result)
{
    const PlaybackOptions playback = playbackOptions();
    const PlaybackResult played = [&] {
        const LimitWatch watch(LimitWatch::withTimeToStop(playback.timeLimit), native(path));
        return runCase(one, document, playback);
    }();
    if (played.ok) {
        writeOutcome(document, path, played, result);
        if (tellNotWritten(document.session()))
            result.outcome = Outcome::NotWritten;
        return;
    }
    writeMessage(u"%1: %2: %3"_s.arg(titleOf(path, one), native(m_options.session), played.message));
    result.outcome = Outcome::Failed;
    // The next drawing has no part in it.
    tellNotWritten(document.session());
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
QString SessionBatch::writeResults(kernel::Document &document, const QString &path, const IncompleteTold &told,
                                   FileResult &result)
{
    if (!m_script.cases.isEmpty())
        return {};
    const QString drawing = path.isEmpty() ? document.title() : path;
    const bool isWritten = !m_options.outFolder.isEmpty() && document.isModified();
    const QString target = isWritten ? resultPath(m_options.outFolder, drawing, u"dxf"_s) : QString();
    const QString pictured = m_options.withPictures ? picturePath(drawing) : QString();
    for (const QString &file : {target, pictured})
        if (const QString obstacle = whyNotBeside(path, file, m_options.isForced); !obstacle.isEmpty())
            return obstacle;
    if (isWritten) {
        result.out.append(target);
        if (const QString error = document.saveCopy(target).error; !error.isEmpty())
            return error;
    }
    if (pictured.isEmpty())
        return {};
    const view::ExportResult picture = writeDrawingPicture(document, pictured, told);
    if (tellMissing(pictured, picture.report) != ExitDone)
        result.outcome = Outcome::CutShort;
    result.out.append(pictured);
    return picture.error;
}

void SessionBatch::writeOutcome(kernel::Document &document, const QString &path, const PlaybackResult &played,
                                FileResult &result)
{
    const IncompleteTold tellOnce = readableFor(m_options).incomplete;
    result.out = played.files;
    for (const auto &[reference, notes] : played.references)
        tellOnce(reference, notes);
    for (const auto &[picture, report] : played.incomplete)
        if (tellMissing(picture, report) != ExitDone)
            result.outcome = Outcome::CutShort;
    const QMetaObject::Connection told = QObject::connect(&document, &kernel::Document::printed, &document,
                                                          [](const QString &text) { writeMessage(text.trimmed()); });
    const QString error = writeResults(document, path, tellOnce, result);
    QObject::disconnect(told);
    if (error.isEmpty())
        return;
    writeMessage(error);
    result.outcome = Outcome::NotWritten;
}

} // namespace

int runSessions(const ProgramOptions &options)
{
    return SessionBatch(options).run();
}

} // namespace host::app
