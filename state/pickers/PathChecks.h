#pragma once

#include <QString>

namespace ortakit {

/// What is wrong with a name for a new drawing file.
enum class NameProblem
{
    None,
    Empty,
    ForbiddenCharacters,
    FileExists, ///< the user may agree to replace it
};

/// Checks `name`, a file name without folder and extension, for the drawing file that is to be made at `path`. A name
/// must not hold any of < > / \ " : ; ? * | , = ' so that it can travel through state files, Lisp and every file
/// system.
NameProblem checkNewDrawingName(const QString &name, const QString &path);

/// What is wrong with a path that must lead to something.
enum class PathProblem
{
    None,
    Empty,
    Missing, ///< nothing there, or something of the other kind
};

PathProblem checkFolder(const QString &path);
/// A folder is no file.
PathProblem checkFile(const QString &path);

/// What to tell the user about a problem; empty for none.
QString nameProblemText(NameProblem problem, const QString &name);
QString folderProblemText(PathProblem problem);
QString fileProblemText(PathProblem problem);

} // namespace ortakit
