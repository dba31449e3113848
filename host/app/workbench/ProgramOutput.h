#pragma once

#include <QString>

namespace host::app {

/// To standard output as it is, in UTF-8.
void writeResult(const QString &text);
/// Whether something of it was not taken, as on a full disk.
bool hasLostResults();
/// Lines on standard error as they are, in UTF-8.
void writeMessageLines(const QString &text);
/// A line on standard error, behind the program's name.
void writeMessage(const QString &text);

} // namespace host::app
