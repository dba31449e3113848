#pragma once

#include <QtGlobal>

class OdDbDatabase;

namespace ortakit {

/// Milliseconds since the epoch.
using Clock = qint64 (*)();

qint64 systemClock();

/// The time that a user has worked on one document.
struct EditingTime
{
    bool isTracked = false;
    /// A longer pause between two activities is not counted; 0 or less counts every pause.
    qint32 idleLimitMinutes = 0;
    double hours = 0;
    /// Milliseconds since the epoch.
    qint64 lastActivity = 0;

    /// The user did something now: counts the time since the last activity unless it was a pause.
    void advance(Clock clock);
};

/// Writes `time` into the drawing, in place of what was there: an extension record "KORA_TRACKTIME" in the named-object
/// dictionary, found without regard to case, of four links:
///
/// | code | value |
/// |---|---|
/// | 280 | 1 when the time is tracked, else 0 |
/// | 90 | idle limit in minutes |
/// | 40 | hours worked |
/// | 1 | last activity, milliseconds since the epoch, as decimal text: wider than the file's integers |
///
/// A null database and a drawing that has no room for such records are left alone.
void writeEditingTime(const EditingTime &time, OdDbDatabase *database);

} // namespace ortakit
