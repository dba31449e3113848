#pragma once

#include <QString>

namespace host::app {

/// To standard output as it is, in UTF-8.
void writeResult(const QString &text);
/// A line on standard error, behind the program's name.
void writeMessage(const QString &text);

} // namespace host::app
