#pragma once

#include "host/app/playback/PlaybackLine.h"
#include "host/app/playback/PlaybackOptions.h"

namespace host::app {

/// Where a file of a session is: a full path as it is, others in `folder`. `error` when there is no such folder.
QString placeOfFile(const QString &folder, const QString &name, QString &error);

/// Writes a text as UTF-8; folders that lack are made. Returns what went wrong, else empty.
QString writeText(const Step &step, const PlaybackOptions &options);

/// The `expect-` lines about files. Returns why it is not so, else empty.
QString checkFile(const Step &step, const PlaybackOptions &options);

} // namespace host::app
