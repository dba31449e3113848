#pragma once

#include <QString>

namespace ortakit {

/// Where the module keeps what belongs to the user: LOGFILEPATH of the active document and "Ortakit" right behind it.
/// Just "Ortakit" when no document is open. Has no separator at its end and need not exist.
QString moduleFolder();

} // namespace ortakit
