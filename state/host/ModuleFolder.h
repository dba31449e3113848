#pragma once

#include <QString>

namespace ortakit {

/// Where the module keeps what belongs to the user: LOGFILEPATH of the active document and "Ortakit" right behind it.
/// Just "Ortakit" when no document is open. Has no separator at its end and need not exist.
QString moduleFolder();

/// The folder `name` in the module folder ("BreakLine", "Favorites"), made with all missing parents when it does not
/// exist. Without a document nothing is made: the path would lead to whatever folder the program was started in.
QString makeModuleFolder(const QString &name);

} // namespace ortakit
