#include "host/app/playback/SessionChecks.h"

#include "host/app/playback/DialogSteps.h"
#include "host/app/playback/PlaybackText.h"
#include "host/app/playback/SessionFiles.h"
#include "host/drawing/file/Differences.h"
#include "host/drawing/records/Entities.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QString expectPrinted(const Step &step, const QString &printed)
{
    if (containsText(printed, step.word(0)) == (step.verb == Verb::ExpectPrinted))
        return {};
    return tr("what was printed is \"%1\"").arg(printed.simplified());
}

QString expectCount(const Step &step, const drawing::Drawing &drawing)
{
    const QByteArray type = step.word(0).toUpper().toLatin1();
    const auto all = drawing.entities().all();
    const auto count = std::count_if(
        all.begin(), all.end(), [&](drawing::RecordId entity) { return type == "*" || drawing.isType(entity, type); });
    return count == step.word(1).toInt() ? QString() : tr("there are %1").arg(count);
}

/// The kinds of what differs, each with its number. An empty text when nothing does.
QString countedDifferences(const QByteArray &before, const QByteArray &after)
{
    const drawing::ReadResult old = drawing::Drawing::fromBytes(before);
    const drawing::ReadResult now = drawing::Drawing::fromBytes(after);
    if (!old || !now)
        return tr("what cannot be read again");
    QStringList changes = drawing::differences(*old.drawing, *now.drawing);
    // The next handle goes up with whatever is added.
    changes.removeAll(u"~$HANDSEED"_s);
    return drawing::counted(changes).join(u' ');
}

/// The text is the last argument; of a drawing file its place is in front.
QString expectChanges(const Step &step, const CheckedState &state)
{
    QByteArray bytes;
    if (step.verb == Verb::ExpectFileChanges) {
        QString error;
        bytes = bytesOfFile(step.word(0), state.options, error);
        if (!error.isEmpty())
            return error;
    } else {
        bytes = state.document.drawing().toBytes();
    }
    const QString changes = countedDifferences(state.opened, bytes);
    return changes == step.words.last().simplified() ? QString() : tr("the changes are \"%1\"").arg(changes);
}

QString expectUnchanged(const CheckedState &state)
{
    if (state.before.isEmpty())
        return tr("there was no run before it");
    const QByteArray bytes = state.document.drawing().toBytes();
    if (bytes == state.before)
        return {};
    return tr("the drawing differs from what it was: %1").arg(describeDifferences(state.before, bytes));
}

QString expectSound(const Step &step, const CheckedState &state)
{
    if (!state.options.audit)
        return tr("no program was given that reads drawings (--audit, or the environment's ORTAKIT_AUDIT)");
    QString error;
    const QTemporaryDir folder;
    QString path = folder.filePath(u"drawing.dxf"_s);
    if (step.words.isEmpty())
        error = drawing::saveCopy(state.document.drawing(), path).error;
    else
        path = placeOfFile(state.options.outFolder, step.word(0), error);
    if (!error.isEmpty() || !QFileInfo(path).isDir())
        return error.isEmpty() ? state.options.audit(path) : error;
    for (const QFileInfo &file : QDir(path).entryInfoList({u"*.dxf"_s, u"*.dwg"_s}, QDir::Files))
        if (const QString complaints = state.options.audit(file.filePath()); !complaints.isEmpty())
            return file.fileName() + u": "_s + complaints;
    return {};
}

} // namespace

QString describeDifferences(const QByteArray &before, const QByteArray &after)
{
    const QString counted = countedDifferences(before, after);
    return counted.isEmpty() ? tr("the order of its records") : counted;
}

QString checkUndo(const CheckedState &state)
{
    if (state.before.isEmpty())
        return tr("there was no run before it");
    const QByteArray after = state.document.drawing().toBytes();
    if (after == state.before)
        return tr("the run changed nothing");
    kernel::UndoSteps &steps = state.document.undoSteps();
    steps.undo();
    if (const QByteArray bytes = state.document.drawing().toBytes(); bytes != state.before)
        return tr("undone, the drawing differs from what it was: %1").arg(describeDifferences(state.before, bytes));
    steps.redo();
    if (const QByteArray bytes = state.document.drawing().toBytes(); bytes != after)
        return tr("done again, the drawing differs from what it was: %1").arg(describeDifferences(after, bytes));
    return {};
}

QString checkState(const Step &step, const CheckedState &state)
{
    const bool isModified = state.document.isModified();
    switch (step.verb) {
    case Verb::ExpectPrinted:
    case Verb::ExpectNotPrinted:
        return expectPrinted(step, state.printed);
    case Verb::ExpectModified:
        return expectState(isModified, step.word(0),
                           isModified ? tr("the drawing was changed") : tr("the drawing is unchanged"));
    case Verb::ExpectUnchanged:
        return expectUnchanged(state);
    case Verb::ExpectChanges:
    case Verb::ExpectFileChanges:
        return expectChanges(step, state);
    case Verb::ExpectCount:
        return expectCount(step, state.document.drawing());
    case Verb::ExpectSound:
        return expectSound(step, state);
    default:
        return checkFile(step, state.options);
    }
}

} // namespace host::app
