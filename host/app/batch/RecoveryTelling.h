#pragma once

#include "host/drawing/dwg/ReadingNotes.h"
#include "host/drawing/file/RecoveryReport.h"

class QJsonObject;

namespace host::app {

/// What recovering a drawing dropped, mended and added, on standard error: the first 200 steps, a line each, and the
/// sums.
void tellRecovery(const QString &path, const drawing::RecoveryReport &report);

/// What of a DWG file could not be read or is doubtful, on standard error: a sum, and the first 200, a line each.
void tellLost(const QString &path, const drawing::ReadingNotes &notes);

/// The numbers of objects and of parts of a DWG file that could not be read, as "unread" and "unreadParts"; neither
/// where there are none.
void addUnread(QJsonObject &object, const drawing::ReadingNotes &notes);

/// All of it: "dropped" with a number for each type, "mended", "added", and "steps" with what was done to what, why,
/// how often and in which lines ("tag" and "byte" for a binary file), and as "text" for people.
QJsonObject recoveryObject(const drawing::RecoveryReport &report);

} // namespace host::app
