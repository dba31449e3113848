#pragma once

#include <QString>

class QWidget;

namespace ortakit {

/// Lets the user choose a folder; empty when cancelled. An empty or missing `start` is replaced by the host's default
/// folder, an empty `title` by "Select folder", an empty `acceptText` for the button by what the system says there.
///
/// The dialog has the object name "folderDialog". It is the system's own unless Qt::AA_DontUseNativeDialogs is set.
QString pickFolder(QWidget *parent, const QString &start, const QString &title = {}, const QString &acceptText = {});

/// `folder` when it exists, otherwise the host's default folder.
QString existingFolder(const QString &folder);

} // namespace ortakit
