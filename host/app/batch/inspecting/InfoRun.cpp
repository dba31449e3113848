// What drawings are and hold.

#include "files/qt/VisibleText.h"
#include "host/app/batch/BatchJobs.h"
#include "host/app/batch/BatchRuns.h"
#include "host/app/batch/BatchWork.h"
#include "host/app/batch/RecoveryTelling.h"
#include "host/app/batch/inspecting/DrawingFacts.h"
#include "host/app/batch/inspecting/InputDrawing.h"
#include "host/app/workbench/LimitWatch.h"
#include "host/app/workbench/ProgramOutput.h"
#include "host/drawing/comparing/Comparison.h"
#include "host/drawing/comparing/RecordTitles.h"

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// A line for each record that comparing drawings looks at: programs for differences of texts are given this.
QString recordLines(const drawing::Drawing &drawing)
{
    const drawing::RecordTitles titles(drawing);
    const drawing::IgnoredKinds ignored = drawing::usuallyIgnored();
    QString lines;
    for (drawing::RecordId id = drawing.first(); isValid(id); id = drawing.next(id))
        if (drawing::isCompared(drawing, id, ignored))
            lines += titles.line(id, ignored) + u'\n';
    return lines;
}

/// Prints the records of each drawing, one after the other.
int listRecords(const ProgramOptions &options)
{
    qsizetype failed = 0;
    for (const QString &path : options.drawings) {
        const InputDrawing input = openToInspect(path, options);
        if (input.drawing)
            writeResult(recordLines(*input.drawing));
        else
            writeMessage(input.error);
        failed += input.drawing ? 0 : 1;
    }
    return failed == 0 ? ExitDone : failed < options.drawings.size() ? ExitPartly : ExitFileError;
}

FileResult factsOf(const QString &path, const ProgramOptions &options)
{
    const LimitWatch watch(options.timeLimit.value_or(std::chrono::milliseconds()), native(path));
    const MessageKeeper keeper;
    FileResult result{.file = path};
    const InputDrawing input = openToInspect(path, options);
    if (input.drawing) {
        result.more = drawingFacts(*input.drawing, readableFor(options));
        if (input.recovery)
            result.more.insert(u"recovered"_s, recoveryObject(*input.recovery));
        addUnread(result.more, input.drawing->readingNotes());
    } else {
        writeMessage(input.error);
        result.outcome = Outcome::NotRead;
    }
    result.messages = keeper.messages();
    return result;
}

QString infoText(const FileResult &result)
{
    const QString name = files::visibleText(native(result.file));
    return result.isDone() ? name + u'\n' + factsText(result.more) : name + u": "_s + shownOf(result.outcome);
}

} // namespace

int tellDrawings(const ProgramOptions &options)
{
    if (options.listsRecords)
        return listRecords(options);
    const auto begin = [&options] {
        return [&options](const QString &path) { return QList<FileResult>{factsOf(path, options)}; };
    };
    return workOnFiles(options, options.drawings, begin, infoText);
}

} // namespace host::app
