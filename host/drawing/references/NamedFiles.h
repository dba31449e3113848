#pragma once

#include "host/drawing/records/Drawing.h"
#include "host/drawing/references/FolderNames.h"

#include <QStringList>

#include <functional>
#include <memory>

namespace host::drawing {

/// The path of a file by the name that a drawing has for it; empty when there is none, or none that may be read.
using FileFinder = std::function<QString(const QString &name)>;

/// What files that a drawing names may be read. A drawing from somebody else can name any file of the machine, and what
/// it shows of one goes to whoever gets the plot: only those in its own folder, those below, and in the folders given
/// here are. Symbolic links are followed first: one that leads elsewhere does not help.
struct ReadableFiles
{
    /// Searched behind the drawing's own folder; what is below them counts. Full paths.
    QStringList folders;
    /// Files by themselves, as QFileInfo::canonicalFilePath() gives them.
    QStringList files;
    /// Told the full path of a file that is there and is not read, and why; may be empty.
    std::function<void(const QString &path, const QString &reason)> refused;
    /// Told of a drawing that was read, with what of its file could not be or is doubtful; may be empty.
    std::function<void(const QString &path, const ReadingNotes &notes)> incomplete{};
    /// What is known of the folders' names. Whoever makes finders often shares one; missing, each finder has its own.
    std::shared_ptr<FolderNames> names{};
};

/// Looks by full paths, from the drawing's folder on (the working folder for a drawing without a path), and in the
/// readable folders, in this order, and in the working folder for one of `files`. Only regular files are found.
///
/// Where no file has the name as it is written, the one is found that has it but for the letters' case, in the name or
/// the folders in front of it: on the systems that drawings come from these are one name. The first folder in which
/// there is one counts; where it has several, none is guessed. So a file that has its exact name is never passed over
/// for another one.
///
/// Names of more than 4096 characters are none. A name that is not found costs a look at some folders' times, and the
/// folders' listing the first time (FolderNames). Valid while the drawing lives; for one thread at a time.
FileFinder namedFiles(const Drawing &drawing, ReadableFiles readable = {});

/// Names to look for a drawing by that another one refers to as `path`: as it stands, by its name alone, and as a DXF
/// file where it is a DWG file's or has no ending, as a DWG file where it has none. In this order.
QStringList externalNames(const QString &path);

/// Looks nearest to a drawing that is seen in another one first, then as `ofHost` does. Valid while the drawing lives.
FileFinder namedFilesWithin(const Drawing &drawing, FileFinder ofHost);

/// Whether `path`, behind all links, is `folder` or below it.
bool isBelow(const QString &path, const QString &folder);

} // namespace host::drawing
