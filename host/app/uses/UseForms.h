#pragma once

#include "host/app/uses/Use.h"

namespace host::app {

// The table of uses as manual pages, completions and a document. All of them are English, and need an application: the
// keys of tools are read off their dialogs.

/// The source of ortakit(1), of a command ortakit-COMMAND(1).
QString manPage(const UseRow &use, const QString &version);

/// The script by which bash completes command lines; of zsh and fish likewise.
QString bashCompletion();
QString zshCompletion();
QString fishCompletion();

/// Sections of docs/cli.md.
QString usesDocument();

/// Writes what the words say: "man DIR", "completions DIR" (the folders below are those of share/), or the document
/// to standard output. Returns the status to end with.
int writeUses(const ProgramOptions &options);

/// What the entries of a use are; see UseRow.
QList<std::pair<QString, QString>> entriesOf(const UseRow &use);

} // namespace host::app
