#pragma once

#include "state/host/EditingTimeRecord.h"

class OdDbDatabase;

namespace ortakit {

/// Milliseconds since the epoch.
using Clock = qint64 (*)();

/// By the system's clock, or by the one that a test has put in its place.
qint64 currentTime();
/// Null for the system's.
void setClock(Clock clock);

/// The user did something now: counts the time since the last activity unless it was a pause.
void advance(EditingTime &time);

/// Writes `time` into the drawing, in place of the record that was there (see editingTimeRecordName()). False, and the
/// drawing is as it was, when it has no room for such records; so for a null database.
bool writeEditingTime(const EditingTime &time, OdDbDatabase *database);

/// The time that the drawing holds, with its last activity now: what passed while it was closed is not work. A drawing
/// without a record, and one whose record is damaged, counts as not tracked; the record stays as it is.
EditingTime readEditingTime(OdDbDatabase *database);

} // namespace ortakit
