#pragma once

#include <QByteArray>
#include <QString>

namespace ortakit {

/// Replaces the file at `path`, or makes it. The content is written beside the file and takes its place when it is
/// complete, so that a full disk or a crash leaves the old one; where the folder takes no new file it is written in
/// place. False, and what happened in `error`, when it could not be written or something else than a regular file is
/// there.
bool replaceFile(const QString &path, const QByteArray &content, QString *error = nullptr);

/// Adds `content` to the end of the file at `path`, or makes it. When the disk takes only part of it, the file is cut
/// back to what it was. False, and what happened in `error`, as for replaceFile().
bool appendToFile(const QString &path, const QByteArray &content, QString *error = nullptr);

/// `text` with the platform's line ends in place of line feeds.
QByteArray withPlatformLineEnds(QByteArray text);

} // namespace ortakit
