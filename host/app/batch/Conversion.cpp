// One file written as another.

#include "files/qt/VisibleText.h"
#include "host/app/batch/BatchJobs.h"
#include "host/app/batch/BatchRuns.h"
#include "host/app/batch/BatchWork.h"
#include "host/app/batch/RecoveryTelling.h"
#include "host/app/workbench/DrawingPicture.h"
#include "host/app/workbench/LimitWatch.h"
#include "host/app/workbench/ProgramOutput.h"
#include "host/drawing/file/Recovery.h"
#include "host/drawing/records/LayoutTabs.h"
#include "host/kernel/documents/ExpressionSurroundings.h"
#include "host/kernel/files/FileStamp.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>
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

void addReport(QJsonObject &object, const view::RenderReport &report)
{
    object.insert(u"complete"_s, report.isWhole());
    object.insert(u"drawn"_s, report.drawn);
    object.insert(u"invisible"_s, report.hidden);
    object.insert(u"inPart"_s, counts(report.simplified));
    object.insert(u"notDrawn"_s, counts(report.skipped));
    object.insert(u"cutShort"_s, report.isCutShort);
}

/// A file that a conversion writes, and the sheets in it.
struct PictureFile
{
    QString path;
    QStringList layouts{}; ///< none: all of model space
    view::ExportResult written{};
};

/// What is told of a conversion beside its files; `files` are none where nothing was drawn.
QJsonObject conversionReport(const ProgramOptions &options, const std::vector<PictureFile> &files,
                             const std::optional<drawing::RecoveryReport> &recovery)
{
    QJsonObject object;
    view::RenderReport whole;
    QJsonArray pages;
    for (const PictureFile &file : files) {
        whole.add(file.written.report);
        for (const view::PageReport &page : file.written.pages) {
            QJsonObject shown{{u"layout"_s, page.layout}, {u"output"_s, file.path}};
            addReport(shown, page.report);
            pages.append(shown);
        }
    }
    if (!files.empty())
        addReport(object, whole);
    if (!options.picture.layout.isEmpty())
        object.insert(u"pages"_s, pages);
    if (recovery)
        object.insert(u"recovered"_s, recoveryObject(*recovery));
    return object;
}

/// In the form that was asked for, whatever the input's is. Returns why not; empty when it was written.
QString writeDxf(drawing::Drawing &drawing, const ProgramOptions &options)
{
    drawing.setForm(options.isBinary ? drawing::FileForm::Binary : drawing::FileForm::Text);
    return drawing::saveCopy(drawing, options.output).error;
}

/// The drawing to convert, and what recovering it came to.
struct ConversionInput
{
    std::unique_ptr<drawing::Drawing> drawing; ///< null, and told, when there is none
    std::optional<drawing::RecoveryReport> report;
};

ConversionInput recoverInput(const ProgramOptions &options)
{
    const auto input = kernel::identityOf(options.input);
    if (input && input == kernel::identityOf(options.output)) {
        writeMessage(u"%1: what is recovered is not written over the damaged file; give it another name"_s.arg(
            native(options.output)));
        return {};
    }
    drawing::Recovered recovered = drawing::recoverFile(options.input);
    if (!recovered)
        writeMessage(native(options.input) + u": "_s + recovered.error.message());
    else
        tellRecovery(options.input, recovered.report);
    // What the drawing names is looked for beside the file; nothing is saved there.
    if (recovered)
        recovered.drawing->setPath(options.input);
    return {std::move(recovered.drawing), std::move(recovered.report)};
}

ConversionInput openInput(const ProgramOptions &options)
{
    if (options.isRecovering)
        return recoverInput(options);
    drawing::ReadResult read = drawing::Drawing::open(options.input);
    if (!read)
        writeMessage(drawing::openingError(native(options.input), read));
    else
        tellLost(options.input, read.drawing->readingNotes());
    return {std::move(read.drawing), std::nullopt};
}

/// The sheets that are asked for; nothing, and told, where there is no such layout.
std::optional<QStringList> chosenLayouts(const drawing::Drawing &drawing, const QString &wanted)
{
    if (wanted.isEmpty())
        return QStringList();
    QStringList known;
    QStringList sheets;
    for (const drawing::LayoutTab &tab : drawing::layoutTabs(drawing)) {
        known.append(tab.name);
        if (!tab.isModel())
            sheets.append(tab.name);
    }
    if (wanted.compare("all"_L1, Qt::CaseInsensitive) == 0 && !sheets.isEmpty())
        return sheets;
    if (known.contains(wanted, Qt::CaseInsensitive))
        return QStringList(wanted);
    writeMessage(u"There is no layout named %1; there are: %2"_s.arg(files::visibleText(wanted),
                                                                     files::visibleText(known.join(", "_L1))));
    return {};
}

/// A layout's name as a part of a file's name, on every system.
QString safeName(const QString &layout)
{
    static const QRegularExpression unsafe(u"[\\x00-\\x1f\\x7f<>:\"/\\\\|?*]"_s);
    QString name = layout.trimmed().left(100);
    name.replace(unsafe, u"_"_s);
    while (name.endsWith(u'.') || name.endsWith(u' '))
        name.chop(1);
    return name.isEmpty() ? u"_"_s : name;
}

/// Whether each sheet becomes a file, since the format has no pages.
bool isFileEach(const ProgramOptions &options)
{
    const QString extension = QFileInfo(options.output).suffix().toLower();
    return options.picture.layout.compare("all"_L1, Qt::CaseInsensitive) == 0 && extension != "pdf"_L1;
}

std::vector<PictureFile> pictureFiles(const ProgramOptions &options, const QStringList &layouts)
{
    const QFileInfo output(options.output);
    if (!isFileEach(options))
        return {{options.output, layouts}};
    const QString stem = options.output.chopped(output.suffix().size() + 1);
    std::vector<PictureFile> files;
    QSet<QString> taken;
    for (const QString &layout : layouts) {
        QString name = safeName(layout);
        for (int number = 2; taken.contains(name.toCaseFolded()); ++number)
            name = u"%1-%2"_s.arg(safeName(layout)).arg(number);
        taken.insert(name.toCaseFolded());
        files.push_back({u"%1-%2.%3"_s.arg(stem, name, output.suffix()), {layout}});
    }
    return files;
}

bool mayWrite(const ProgramOptions &options, const QString &path)
{
    QString obstacle = whyNotToWrite(path, options.isForced);
    const bool isNameMadeUp = !options.extension.isEmpty();
    if (obstacle.isEmpty() && isNameMadeUp)
        obstacle = whyNotBeside(options.input, path, options.isForced);
    if (!obstacle.isEmpty())
        writeMessage(obstacle);
    return obstacle.isEmpty();
}

/// What the option for plot styles says. False, and told, where there is no such table.
bool choosePlotStyles(view::ExportOptions &how, const QString &wanted)
{
    how.withPlotStyles = wanted.isEmpty();
    if (wanted.isEmpty() || wanted == "none"_L1)
        return true;
    drawing::PlotStyleReading reading;
    if (!QFileInfo::exists(wanted))
        reading.table = drawing::builtInPlotStyles(wanted);
    if (!reading.table)
        reading = drawing::readPlotStyleFile(wanted);
    if (!reading.table) {
        writeMessage(u"%1: %2"_s.arg(native(wanted), reading.error));
        return false;
    }
    how.plotStyles = std::make_shared<drawing::PlotStyleTable>(*std::move(reading.table));
    return true;
}

int writePictures(const ProgramOptions &options, const drawing::Drawing &drawing, std::vector<PictureFile> &files)
{
    view::ExportOptions how = options.picture.as;
    how.surroundings = kernel::expressionSurroundings(drawing, readableFor(options));
    if (!choosePlotStyles(how, options.picture.plotStyle))
        return ExitFileError;
    view::Exporter exporter(drawing, how);
    int status = ExitDone;
    for (PictureFile &file : files) {
        file.written = writePages(exporter, file.path, file.layouts);
        if (!file.written) {
            writeMessage(file.written.error);
            return ExitFileError;
        }
        for (const view::PageReport &page : file.written.pages) {
            const QString name = page.layout.isEmpty() ? options.input : options.input + u", "_s + page.layout;
            status = std::max(status, tellMissing(name, page.report));
            if (!page.lack.isEmpty())
                writeMessage(u"%1: %2"_s.arg(native(name), files::visibleText(page.lack)));
            if (status == ExitDone && options.isStrict && !page.report.isWhole())
                status = ExitPartly;
        }
    }
    return status;
}

/// What makes no sense whatever is in the drawing; empty when it does.
QString wrongConversion(const ProgramOptions &options, const QString &extension)
{
    const bool isPicture = pictureExtensions().contains(extension);
    // Saving knows best why a name for a DWG file is refused.
    if (!isPicture && extension != "dxf"_L1 && extension != "dwg"_L1)
        return QCoreApplication::translate("Batch", "%1: the extension must be dxf, %2")
            .arg(native(options.output.isEmpty() ? extension : options.output), pictureExtensions().join(", "_L1));
    if (isPicture && options.isBinary)
        return QCoreApplication::translate("Batch", "--binary is for DXF files");
    return pictureConflict(options.picture, extension);
}

/// Opens the input and writes the output, as long as nothing speaks against it; `result` has what is told.
int convertOpened(const ProgramOptions &options, FileResult &result)
{
    const ConversionInput input = openInput(options);
    result.outcome = input.drawing ? Outcome::Done : Outcome::NotRead;
    if (!input.drawing)
        return ExitFileError;
    std::vector<PictureFile> pictures;
    int status = ExitDone;
    if (pictureExtensions().contains(QFileInfo(options.output).suffix().toLower())) {
        const auto layouts = chosenLayouts(*input.drawing, options.picture.layout);
        if (!layouts)
            return ExitUsage;
        pictures = pictureFiles(options, *layouts);
        for (const PictureFile &file : pictures)
            if (!mayWrite(options, file.path))
                return ExitFileError;
        status = writePictures(options, *input.drawing, pictures);
    } else if (const QString error = writeDxf(*input.drawing, options); !error.isEmpty()) {
        writeMessage(error);
        status = ExitFileError;
    }
    if (status != ExitFileError) {
        result.more = conversionReport(options, pictures, input.report);
        addUnread(result.more, input.drawing->readingNotes());
        if (status == ExitDone && options.isStrict && input.drawing->readingNotes().hasLost())
            status = ExitPartly;
        for (const PictureFile &picture : pictures)
            result.out.append(picture.path);
        if (pictures.empty())
            result.out.append(options.output);
    }
    return status;
}

Outcome outcomeOf(int status, Outcome reading)
{
    switch (status) {
    case ExitDone:
        return Outcome::Done;
    case ExitPartly:
        return Outcome::Incomplete;
    case ExitCutShort:
        return Outcome::CutShort;
    case ExitFileError:
        return reading == Outcome::NotRead ? Outcome::NotRead : Outcome::NotWritten;
    default:
        return Outcome::Failed;
    }
}

/// Returns the status, which says more of a single conversion than the outcome does.
int convertOne(const ProgramOptions &options, FileResult &result)
{
    const MessageKeeper keeper;
    const LimitWatch watch(options.timeLimit.value_or(std::chrono::milliseconds()), native(options.input));
    result.outcome = Outcome::Done;
    // Looked at first where the name is known: reading may take long.
    const bool may = isFileEach(options) || mayWrite(options, options.output);
    const int status = may ? convertOpened(options, result) : int(ExitFileError);
    result.outcome = outcomeOf(status, result.outcome);
    result.messages = keeper.messages();
    return status;
}

/// Each to a file of its name in the folder.
int convertMany(const ProgramOptions &options)
{
    if (!options.isWorker && tellClashingNames(options.drawings))
        return ExitUsage;
    if (!makeFolder(options.outFolder))
        return ExitFileError;
    return workOnFiles(options, options.drawings, [&options] {
        return [&options](const QString &file) {
            ProgramOptions one = options;
            one.input = file;
            one.output = resultPath(options.outFolder, file, options.extension);
            FileResult result{.file = file};
            convertOne(one, result);
            return QList<FileResult>{result};
        };
    });
}

} // namespace

int convertDrawing(const ProgramOptions &options)
{
    const bool isMany = !options.extension.isEmpty();
    const QString extension = isMany ? options.extension : QFileInfo(options.output).suffix().toLower();
    if (const QString wrong = wrongConversion(options, extension); !wrong.isEmpty()) {
        writeMessage(wrong);
        return ExitUsage;
    }
    if (isMany)
        return convertMany(options);
    FileResult result{.file = options.input};
    const int status = convertOne(options, result);
    if (options.withJson) {
        BatchReport report(options);
        report.add(result);
        report.finish();
    }
    return status;
}

} // namespace host::app
