#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace host::app {

/// How a drafting tool is driven without a person in front of its dialog. Where keys are named, they are object names
/// of the dialog's widgets in lower case, as in its state file.
struct ToolRow
{
    const char *name;    ///< of its command, in lower case
    const char *purpose; ///< one line, in English; see usesText()
    /// What is to be known beside the keys, in paragraphs; empty where there is nothing.
    const char *notes = "";
    const char *dialog = nullptr; ///< class of the dialog; null: the tool opens none
    const char *accept = "";      ///< name of the button that has it go on
    bool selects = false;         ///< works on entities that are chosen before it starts
    bool changes = true;          ///< changes the drawing
    bool staysOpen = false;       ///< the dialog is still there when the work is done
    bool asks = false;            ///< wants points or entities shown: it needs a session
    const char *fileKey = "";     ///< the key of the file that it asks for in a dialog for files; empty: none
    bool writesFile = false;      ///< that file is written, not read
    const char *pathKeys = "";    ///< keys of files and folders, with blanks between
    const char *drawingKeys = ""; ///< keys whose choices are in the drawing or in a file
    const char *allOf = "";       ///< the list, or the box for it, by which all rows are chosen unless some are named
    const char *stateKeys = "";   ///< keys whose values the state file has when the dialog opens: no hand can give them
    const char *buttons = "";     ///< what --press is for, with blanks between
    bool passesOver = false;      ///< a button that is disabled has nothing to do in this drawing, which is no error
    const char *state = nullptr;  ///< name of its state file where it is not the tool's
    const char *example = "";     ///< of a command line, behind "ortakit "

    bool hasPath(const QString &key) const;
    bool dependsOnDrawing(const QString &key) const;
    bool isOfState(const QString &key) const;
    QString stateName() const { return QString::fromLatin1(state ? state : name); }
};

/// All tools, by their names.
const QList<ToolRow> &toolRows();
/// The tool of this name; null when there is none.
const ToolRow *findTool(const QString &name);

} // namespace host::app
