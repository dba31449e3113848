#pragma once

#include "host/drawing/records/Drawing.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/RecordStore.h"

#include <QHash>

namespace host::drawing {

/// One undo step: for every record concerned its state before the step and after it.
struct JournalStep
{
    struct Change
    {
        RecordId id;
        RecordState before;
        RecordState after;
    };

    QString name;
    std::vector<Change> changes; ///< one a record, in the order of first change

    void note(RecordId id, const RecordState &before, const RecordState &after);
    /// Drops what came back to where it was.
    void close();

private:
    QHash<RecordId, size_t> m_places;
};

struct Journal::Private
{
    explicit Private(Drawing &owner) : drawing(owner) {}

    void note(RecordId id, const RecordState &before, const RecordState &after);
    void closeStep();
    void apply(Drawing::Private &target, const JournalStep &step, ChangeCause cause);

    Drawing &drawing;
    JournalStep open;
    int depth = 0;
    std::vector<JournalStep> undoSteps;
    std::vector<JournalStep> redoSteps;
    qint64 savedDepth = 0; ///< number of steps at which the drawing is as saved; -1: no number
};

} // namespace host::drawing
