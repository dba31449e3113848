#pragma once

#include "host/app/playback/PlaybackLine.h"
#include "host/app/playback/PlaybackOptions.h"

namespace host::app {

/// Where a file of a session is: a full path as it is, others in `folder`. `error` when there is no such folder.
QString placeOfFile(const QString &folder, const QString &name, QString &error);

/// What is in a file of a session; `error` says why it cannot be read.
QByteArray bytesOfFile(const QString &name, const PlaybackOptions &options, QString &error);

/// Writes a text as UTF-8; folders that lack are made. Returns what went wrong, else empty.
QString writeText(const Step &step, const PlaybackOptions &options);

/// The `expect-` lines about files. Returns why it is not so, else empty.
QString checkFile(const Step &step, const PlaybackOptions &options);

} // namespace host::app
