#pragma once

#include <QString>

class QWidget;

namespace ortakit {

/// The path checks with what the user is told: a warning over `parent` for what is refused. Each is true when the
/// dialog may go on.

/// A name for a new drawing file at `path`; asks whether a file that is there may be replaced.
bool acceptsNewDrawingName(QWidget *parent, const QString &name, const QString &path, const QString &title = {});

bool acceptsFolder(QWidget *parent, const QString &path, const QString &title = {});
bool acceptsFile(QWidget *parent, const QString &path, const QString &title = {});

} // namespace ortakit
