#pragma once

#include "host/app/playback/PlaybackLine.h"
#include "host/app/playback/PlaybackOptions.h"
#include "host/kernel/documents/Document.h"

namespace host::app {

/// What the checks of a session compare with.
struct CheckedState
{
    kernel::Document &document;
    const PlaybackOptions &options;
    QString printed;          ///< since the run began
    const QByteArray &opened; ///< the drawing when the session began, where a line asks for it
    const QByteArray &before; ///< the drawing when the run began, where a line asks for it
};

/// Whether it is as the line says, of the lines that can be used anywhere but `screenshot`. Returns why it is not so,
/// else empty.
QString checkState(const Step &step, const CheckedState &state);

/// The run that ended last is one undo step: taken back, the drawing is byte for byte what it was before, and done
/// again, what it is now. Returns why it is not so, else empty.
QString checkUndo(const CheckedState &state);

/// What differs between two drawings, by its kinds; for messages, and never empty.
QString describeDifferences(const QByteArray &before, const QByteArray &after);

} // namespace host::app
