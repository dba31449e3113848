#include "host/drawing/file/MendInPlace.h"

#include "host/drawing/file/Differences.h"
#include "host/drawing/file/Recovery.h"
#include "host/drawing/records/Journal.h"

#include <QHash>
#include <QSet>

namespace host::drawing {

namespace {

int countOf(const RecoveryReport &report)
{
    int count = 0;
    for (const RecoveryStep &step : report.steps())
        count += step.count;
    return count;
}

/// Gives the drawing the records of another one that is the same but for its faults.
void becomeLike(Drawing &drawing, const Drawing &sound)
{
    QHash<QString, RecordId> own;
    for (const auto &[name, id] : namedRecords(drawing))
        own.insert(name, id);
    QSet<RecordId> doomed(own.cbegin(), own.cend());
    QHash<RecordId, RecordId> copies;
    RecordId previous = noRecord;
    for (const auto &[name, id] : namedRecords(sound)) {
        const RecordId parent = copies.value(sound.parent(id), noRecord);
        RecordId copy = own.value(name, noRecord);
        if (!isValid(copy))
            copy = drawing.insert(previous, parent, sound.kind(id), sound.fields(id));
        else if (drawing.bytes(copy) != sound.bytes(id))
            drawing.setFields(copy, sound.fields(id));
        doomed.remove(copy);
        copies.insert(id, copy);
        previous = copy;
    }
    for (const RecordId id : doomed)
        if (drawing.isAlive(id))
            drawing.setErased(id, true);
}

} // namespace

MendedInPlace mendInPlace(Drawing &drawing, bool isMended)
{
    const Recovered sound = recoverDrawing(drawing.toBytes());
    if (!sound)
        return {.error = sound.error.message()};
    const int found = countOf(sound.report);
    MendedInPlace result{sound.report, found, found};
    if (!isMended || sound.report.isEmpty())
        return result;
    const JournalGroup group(drawing.journal(), {});
    becomeLike(drawing, *sound.drawing);
    result.left = countOf(recoverDrawing(drawing.toBytes()).report);
    return result;
}

} // namespace host::drawing
