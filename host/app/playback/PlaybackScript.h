#pragma once

#include "host/app/playback/PlaybackLine.h"

namespace host::app {

/// What is wrong with a line.
struct ScriptError
{
    int line = 0;
    QString message;
};

/// What is played over a drawing that is opened anew for it.
struct PlaybackCase
{
    int line = 0; ///< where it begins; 0 of a session without cases
    QString name; ///< empty of a session without cases
    QList<Step> steps;
};

/// A session, read and checked. Use it only when `errors` is empty.
struct PlaybackScript
{
    QString drawing;           ///< which one the session is for, as it says itself; empty when it does not
    QList<Step> steps;         ///< the lines in front of the first case; all lines where there is none
    QList<PlaybackCase> cases; ///< each with its own lines alone
    QList<ScriptError> errors;
};

/// Reads the text of a session; the grammar is in docs/playback.md. What parts write stands where they are played.
/// Every bad line is reported, not just the first.
PlaybackScript parsePlayback(const QString &text);

/// The same with a file, which must be UTF-8 and at most 16 MB. A file that cannot be read gives one error on line 0.
PlaybackScript readPlayback(const QString &path);

/// What is to be played one after the other: the cases, each with the lines in front of the first one, or all lines.
QList<PlaybackCase> casesToPlay(const PlaybackScript &script);

} // namespace host::app
