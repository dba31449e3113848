#pragma once

#include <QString>

namespace host::app {

/// To standard output as it is, in UTF-8.
void writeResult(const QString &text);
/// Whether something of it was not taken, as on a full disk.
bool hasLostResults();
/// A line on standard error, behind the program's name.
void writeMessage(const QString &text);

} // namespace host::app
