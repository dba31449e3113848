#pragma once

#include "host/app/batch/BatchReport.h"

#include <functional>

namespace host::app {

/// Works on one file; a session with cases gives a result for each.
using FileWork = std::function<QList<FileResult>(const QString &file)>;

/// Works on the files in their order and tells of each. Without -j that is done here, one after the other. With -j N,
/// as many processes of this program as N work at a time, each on one file with the same options, so that limits hold
/// for each file, and one that crashes is one file that failed; what is told, and in which order, is the same for any
/// N. `begin` makes what works, and is called only where work is done.
///
/// Ctrl+C ends the workers and the work; files that were not begun have no result then. Returns the status to end
/// with. `text` is what BatchReport takes it for.
int workOnFiles(const ProgramOptions &options, const QStringList &files, const std::function<FileWork()> &begin,
                const ResultText &text = {});

} // namespace host::app
