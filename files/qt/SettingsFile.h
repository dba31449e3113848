#pragma once

#include <QString>

#include <functional>

class QSettings;

namespace files {

/// Changes a file of settings in Qt's INI form: `change` works on a copy that holds what the file holds now, and the
/// copy takes the file's place when it was written whole. QSettings by itself would put an empty file in the place of
/// everything when the disk is full. Other programs that change the same file wait meanwhile. Empty, or for people why
/// the file stays as it was.
QString changeSettings(const QString &path, const std::function<void(QSettings &)> &change);

/// Whether settings may be read from there: QSettings would wait for a pipe for ever. True where there is nothing.
bool isSettingsFile(const QString &path);

} // namespace files
