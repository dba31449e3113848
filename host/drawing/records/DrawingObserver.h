#pragma once

#include "host/drawing/records/Record.h"

namespace host::drawing {

/// What happened to a record, as seen by somebody who looks at the drawing.
enum class RecordChange
{
    Appeared, ///< added, or an erased one brought back, or its adding redone, or its erasing undone
    Modified, ///< its tags are different now
    Vanished  ///< erased, or its adding undone
};

enum class ChangeCause
{
    Edit,
    Undo, ///< also what Journal::abandonGroup() takes back
    Redo
};

/// Told about every change of a drawing, after it happened. Must not change the drawing from inside these calls.
///
/// Not owned by the drawing: who adds one removes it again before it or the drawing is gone.
class DrawingObserver
{
public:
    virtual ~DrawingObserver() = default;
    /// One change of one record. Edits come one by one as they are made; of a step undone or redone all records are in
    /// their new state before the first call. A record changed there and back again is told both times.
    virtual void recordChanged(RecordId record, RecordChange change, ChangeCause cause) = 0;
    /// An outermost group was closed, or a step undone or redone: a good moment to draw again.
    virtual void changesDone() {}
};

} // namespace host::drawing
