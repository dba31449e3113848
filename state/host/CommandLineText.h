#pragma once

#include <QByteArray>
#include <QString>

namespace ortakit {

/// Prints a sentence on the active document's command line, on a line of its own; nothing without a document.
void tellOnCommandLine(const QString &sentence);

/// Prints which file could not be written and why; nothing for an empty reason. Gives whether it is empty.
bool tellNotWritten(const QString &path, const QString &reason);

// For files whose writing fails without a message box: as replaceFile() and appendToFile(), and the command line tells
// what could not be written and why.
bool replaceFileOrTell(const QString &path, const QByteArray &content);
bool appendToFileOrTell(const QString &path, const QByteArray &content);

} // namespace ortakit
