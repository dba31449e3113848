// Two drawings compared.

#include "files/qt/VisibleText.h"
#include "host/app/batch/BatchReport.h"
#include "host/app/batch/BatchRuns.h"
#include "host/app/batch/BatchWork.h"
#include "host/app/batch/inspecting/DifferenceObject.h"
#include "host/app/batch/inspecting/InputDrawing.h"
#include "host/app/workbench/DrawingPicture.h"
#include "host/app/workbench/LimitWatch.h"
#include "host/app/workbench/ProgramOutput.h"
#include "host/kernel/documents/ExpressionSurroundings.h"
#include "host/kernel/files/FileStamp.h"
#include "host/view/paint/DifferencePicture.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QString diffText(const char *text)
{
    return QCoreApplication::translate("Comparing", text);
}

/// One of the two drawings. What a version control system has for a file that is not there is an empty drawing.
InputDrawing openVersion(const QString &path, const ProgramOptions &options)
{
    if (options.diff.changedPath.isEmpty() || path != "/dev/null"_L1)
        return openToInspect(path, options);
    return {.drawing = drawing::Drawing::fromBytes("  0\nEOF\n").drawing};
}

QString sumsOf(const QString &heading, const QMap<QString, drawing::Tally> &tallies)
{
    QStringList parts;
    for (const auto &[name, tally] : tallies.asKeyValueRange()) {
        QString part = files::visibleText(name);
        for (const auto &[sign, count] : {std::pair(u'+', tally.added), {u'-', tally.removed}, {u'~', tally.changed}})
            if (count > 0)
                part += u' ' + QString(sign) + QString::number(count);
        parts.append(part);
    }
    return parts.isEmpty() ? QString() : heading + u' ' + parts.join(", "_L1) + u'\n';
}

void printText(const drawing::Comparison &comparison, const drawing::DifferenceText &text,
               const ProgramOptions &options)
{
    if (comparison.differences.empty())
        return;
    const bool isOfGit = !options.diff.changedPath.isEmpty();
    const QString before = isOfGit ? u"a/"_s + options.diff.changedPath : native(options.drawings[0]);
    const QString after = isOfGit ? u"b/"_s + options.diff.changedPath : native(options.drawings[1]);
    QString lines = u"--- %1\n+++ %2\n"_s.arg(files::visibleText(before), files::visibleText(after));
    if (comparison.pairs.matching() == drawing::Matching::ByContent)
        lines += u"= "_s + diffText(QT_TRANSLATE_NOOP("Comparing", "matched by content, not by handles")) + u'\n';
    if (!options.diff.isBrief)
        for (const drawing::Difference &difference : comparison.differences)
            lines += text.line(difference) + u'\n';
    const drawing::Tallies tallies = drawing::tallied(comparison);
    lines += diffText(QT_TRANSLATE_NOOP("Comparing", "= %1 added, %2 removed, %3 changed, %4 the same"))
                 .arg(tallies.all.added)
                 .arg(tallies.all.removed)
                 .arg(tallies.all.changed)
                 .arg(comparison.same) +
             u'\n';
    lines += sumsOf(diffText(QT_TRANSLATE_NOOP("Comparing", "= by type:")), tallies.byType) +
             sumsOf(diffText(QT_TRANSLATE_NOOP("Comparing", "= by layer:")), tallies.byLayer);
    writeResult(lines);
}

int drawPicture(const drawing::Comparison &comparison, const ProgramOptions &options)
{
    const drawing::ReadableFiles readable = readableFor(options);
    const view::ExportResult written =
        view::exportDifferences(comparison, options.diff.picture,
                                {.layout = options.diff.layout,
                                 .before = kernel::expressionSurroundings(comparison.pairs.before(), readable),
                                 .after = kernel::expressionSurroundings(comparison.pairs.after(), readable)});
    if (!written) {
        writeMessage(written.error);
        return ExitFileError;
    }
    return tellMissing(options.diff.picture, written.report);
}

/// Why no picture can be drawn, before anything is read; told.
int refusePicture(const ProgramOptions &options)
{
    const QString &path = options.diff.picture;
    if (path.isEmpty())
        return ExitDone;
    if (!pictureExtensions().contains(QFileInfo(path).suffix().toLower())) {
        writeMessage(diffText(QT_TRANSLATE_NOOP("Comparing", "%1: the extension must be %2"))
                         .arg(native(path), pictureExtensions().join(", "_L1)));
        return ExitUsage;
    }
    if (const QString obstacle = whyNotToWrite(path, options.isForced); !obstacle.isEmpty()) {
        writeMessage(obstacle);
        return ExitFileError;
    }
    return ExitDone;
}

/// Opens both, compares and tells; what is to be told as JSON goes into the result.
int compareAndTell(const ProgramOptions &options, FileResult &result)
{
    const InputDrawing before = openVersion(options.drawings[0], options);
    const InputDrawing after = openVersion(options.drawings[1], options);
    for (const InputDrawing *input : {&before, &after})
        if (!input->drawing)
            writeMessage(input->error);
    if (!before.drawing || !after.drawing)
        return ExitFileError;
    const drawing::Comparison comparison =
        drawing::compareDrawings(*before.drawing, *after.drawing, options.diff.rules);
    const drawing::DifferenceText text(comparison);
    if (options.withJson)
        result.more = comparisonObject(comparison, text, options.diff.isBrief);
    else
        printText(comparison, text, options);
    if (!options.diff.picture.isEmpty()) {
        if (const int drawn = drawPicture(comparison, options); drawn != ExitDone)
            return drawn;
        result.out.append(options.diff.picture);
    }
    return comparison.differences.empty() || !options.diff.changedPath.isEmpty() ? ExitDone : ExitFailed;
}

Outcome outcomeOfDiff(int status)
{
    return status == ExitDone       ? Outcome::Done
           : status == ExitFailed   ? Outcome::Failed
           : status == ExitCutShort ? Outcome::CutShort
                                    : Outcome::NotRead;
}

} // namespace

int diffDrawings(const ProgramOptions &options)
{
    if (const int refused = refusePicture(options); refused != ExitDone)
        return refused;
    const LimitWatch watch(options.timeLimit.value_or(std::chrono::milliseconds()), native(options.drawings[0]));
    FileResult result{.file = options.drawings[0]};
    const MessageKeeper keeper;
    const int status = compareAndTell(options, result);
    if (!options.withJson)
        return status;
    result.outcome = outcomeOfDiff(status);
    result.messages = keeper.messages();
    result.more.insert(u"with"_s, options.drawings[1]);
    BatchReport report(options);
    report.add(result);
    return report.finish();
}

} // namespace host::app
