#pragma once

#include "host/app/workbench/ProgramOptions.h"
#include "host/app/workbench/Workbench.h"
#include "host/drawing/references/NamedFiles.h"
#include "host/kernel/documents/DocumentManager.h"
#include "host/view/display/RenderReport.h"

namespace host::app {

// What runs over sessions and over programs share. Who tells writes to standard error.

/// What of the options concerns the workbench.
WorkbenchOptions workbenchOptions(const ProgramOptions &options);
/// With the option for it, obstacles to writing a file that a person may overrule count as overruled.
void setForce(Workbench &workbench, const ProgramOptions &options);

/// Why a file is not to be written, as obstacleToWriting() has it without a session; empty when it may be. What may be
/// overruled stands against it only as long as nobody forces it.
QString whyNotToWrite(const QString &path, bool isForced);

/// Why the result of a drawing is not to be written as `target`, whose name the run made up: a file that is there
/// beside the drawing, and is not the drawing itself, may be another one. Where one of both is a link, it is beside the
/// other by either of its places. Empty when it may be, and when it is forced.
QString whyNotBeside(const QString &drawing, const QString &target, bool isForced);

/// Tells the problems from `told` on.
void tellProblems(const Workbench &workbench, qsizetype &told);
/// Tells which files a session or program should have written and did not.
bool tellNotWritten(kernel::Session &session);
/// What is missing in a picture, and whether that is because there was too much.
int tellMissing(const QString &path, const view::RenderReport &report);

/// Closes all drawings without saving, those that programs opened too.
void closeAll(Workbench &workbench);

/// What files drawings may name; what is refused is told once each, and what of a drawing among them could not be read.
drawing::ReadableFiles readableFor(const ProgramOptions &options);

/// A path as people write it on this system.
QString native(const QString &path);

/// Makes the folder where it is missing; an empty name is none. False, and told, when it cannot be made.
bool makeFolder(const QString &folder);

/// Whether results of two files would go to the same one, as their names differ in folder, extension or case only;
/// tells so.
bool tellClashingNames(const QStringList &files);

/// Where the result of a file goes: its name in the folder, with this extension.
QString resultPath(const QString &folder, const QString &file, const QString &extension);

/// A drawing that another process has open is read as it was saved; its own file is not written then.
kernel::OpenOutcome openToRead(Workbench &workbench, const QString &path);

/// What is sound of a damaged drawing; tells what was dropped.
kernel::OpenOutcome recoverToRead(Workbench &workbench, const QString &path);

/// A drawing to work on with nobody there, whom the programs that it loads could ask; an empty path is a new one.
kernel::OpenOutcome openUnattended(Workbench &workbench, const QString &path, bool isRecovering);

} // namespace host::app
