// One file written as another.

#include "files/qt/VisibleText.h"
#include "host/app/batch/BatchRuns.h"
#include "host/app/batch/BatchWork.h"
#include "host/app/workbench/DrawingPicture.h"
#include "host/app/workbench/LimitWatch.h"
#include "host/app/workbench/ProgramOutput.h"
#include "host/kernel/documents/ExpressionSurroundings.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

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

/// In the form that was asked for, whatever the input's is. Returns why not; empty when it was written.
QString writeDxf(drawing::Drawing &drawing, const ProgramOptions &options)
{
    drawing.setForm(options.isBinary ? drawing::FileForm::Binary : drawing::FileForm::Text);
    return drawing::saveCopy(drawing, options.output).error;
}

} // namespace

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
    if (isPicture && options.isBinary) {
        writeMessage(u"--binary is for DXF files"_s);
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
        written.error = writeDxf(*read.drawing, options);
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
