// What is wrong with drawings.

#include "files/qt/VisibleText.h"
#include "host/app/batch/BatchJobs.h"
#include "host/app/batch/BatchRuns.h"
#include "host/app/batch/BatchWork.h"
#include "host/app/batch/RecoveryTelling.h"
#include "host/app/workbench/LimitWatch.h"
#include "host/app/workbench/ProgramOutput.h"
#include "host/drawing/file/Recovery.h"
#include "host/drawing/file/Save.h"
#include "host/kernel/files/FileStamp.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

constexpr qsizetype mostFaultsTold = 100; ///< of one drawing; with --json all are

int faultsIn(const drawing::RecoveryReport &report)
{
    int count = 0;
    for (const drawing::RecoveryStep &step : report.steps())
        count += step.count;
    return count;
}

/// Why the drawing was not written under this name; empty when it was.
QString writeMended(const drawing::Drawing &mended, const QString &input, const QString &output, bool isForced)
{
    const auto source = kernel::identityOf(input);
    if (source && source == kernel::identityOf(output))
        return QCoreApplication::translate("Inspecting", "%1: what is mended is not written over the drawing")
            .arg(native(output));
    QString obstacle = whyNotToWrite(output, isForced);
    if (obstacle.isEmpty())
        obstacle = whyNotBeside(input, output, isForced);
    return obstacle.isEmpty() ? drawing::saveCopy(mended, output).error : obstacle;
}

FileResult auditDrawing(const QString &path, const ProgramOptions &options)
{
    const LimitWatch watch(options.timeLimit.value_or(std::chrono::milliseconds()), native(path));
    FileResult result{.file = path};
    const drawing::Recovered recovered = drawing::recoverFile(path);
    if (!recovered) {
        result.outcome = Outcome::NotRead;
        result.messages = {u"%1: %2"_s.arg(native(path), recovered.error.message())};
        return result;
    }
    const int faults = faultsIn(recovered.report);
    result.more = {{u"opens"_s, faults == 0 || bool(drawing::Drawing::open(path))},
                   {u"faults"_s, faults},
                   {u"found"_s, recoveryObject(recovered.report)}};
    if (!options.isFixing) {
        result.outcome = faults == 0 ? Outcome::Done : Outcome::Failed;
        return result;
    }
    const bool isDwg = path.endsWith(u".dwg", Qt::CaseInsensitive);
    const QString output = resultPath(options.outFolder, path, isDwg ? u"dxf"_s : QFileInfo(path).suffix());
    const QString error = writeMended(*recovered.drawing, path, output, options.isForced);
    (error.isEmpty() ? result.out : result.messages).append(error.isEmpty() ? output : error);
    result.outcome = error.isEmpty() ? Outcome::Done : Outcome::NotWritten;
    return result;
}

QString auditText(const FileResult &result)
{
    const auto text = [](const char *words) { return QCoreApplication::translate("Inspecting", words); };
    QString line = files::visibleText(native(result.file)) + u": "_s;
    if (result.outcome == Outcome::NotRead)
        return line + text(QT_TRANSLATE_NOOP("Inspecting", "not read"));
    const qint64 faults = result.more[u"faults"].toInteger();
    line += faults == 0 ? text(QT_TRANSLATE_NOOP("Inspecting", "sound"))
                        : text(QT_TRANSLATE_NOOP("Inspecting", "faults: %1")).arg(faults);
    if (!result.more[u"opens"].toBool())
        line += text(QT_TRANSLATE_NOOP("Inspecting", ", opens with --recover alone"));
    if (!result.out.isEmpty())
        line += u", "_s + files::visibleText(native(result.out.first()));
    const QJsonArray steps = result.more[u"found"][u"steps"].toArray();
    for (qsizetype i = 0; i < std::min(steps.size(), mostFaultsTold); ++i)
        line += u"\n  "_s + files::visibleText(steps[i][u"text"].toString());
    if (steps.size() > mostFaultsTold)
        line += u"\n  "_s + text(QT_TRANSLATE_NOOP("Inspecting", "and %1 more")).arg(steps.size() - mostFaultsTold);
    return line;
}

} // namespace

int auditDrawings(const ProgramOptions &options)
{
    if (options.isFixing && tellClashingNames(options.drawings))
        return ExitUsage;
    if (options.isFixing && !makeFolder(options.outFolder))
        return ExitFileError;
    const auto begin = [&options] {
        return [&options](const QString &path) {
            FileResult result = auditDrawing(path, options);
            for (const QString &message : result.messages)
                writeMessage(message);
            return QList<FileResult>{std::move(result)};
        };
    };
    return workOnFiles(options, options.drawings, begin, auditText);
}

} // namespace host::app
