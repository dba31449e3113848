#pragma once

#include <QList>
#include <QString>

namespace host::app {

/// A tool as the Tools menu shows it.
struct ToolEntry
{
    QString caption; ///< "Break line"
    QString command; ///< "BREAKLINE"
    QString tip;     ///< what it does, in a sentence
    QString subject; ///< what it works on, which its menu is called by: "Lines and hatches"; may be empty
    QString file;    ///< absolute path
};

/// The Lisp tools of a folder.
struct ToolIndex
{
    QString folder;           ///< absolute; empty when there is none
    QStringList files;        ///< what every document loads at its start: the support library, then the tools by name
    QList<ToolEntry> entries; ///< by caption
    QStringList problems;     ///< sentences about files that could not be read
};

/// Reads the folder's *.lsp files. A tool has a line at its begin for each of its commands that says what the menu
/// shows:
///     ;;; menu: Break line | BREAKLINE | Cuts a line open and draws a break symbol in the gap | Lines and hatches
/// The last part may be left out.
/// The support library is the file ortakit.lsp. What people read of an entry is in the current language, as far as the
/// catalogue of the tools has it (languages/<code>.lsp in the folder; see tools/support/language.lsp).
ToolIndex readTools(const QString &folder);

} // namespace host::app
