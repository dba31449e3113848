#pragma once

#include "host/app/playback/PlaybackScript.h"

class QWidget;

namespace host::app {

// What the lines of a session do with the modal window in front. Each returns why it could not be done, empty when it
// was; it may return late, when what it does opens a dialog that runs until it is closed.

/// Meets a window that has just opened with a line that expects one: greets a dialog, answers a message box, a file
/// dialog or a menu. Fails when the window is another one.
QString meet(QWidget &window, const Step &step);

/// Does in an open dialog what the line says.
QString workIn(QWidget &dialog, const Step &step);

/// Whether `part` occurs in `text`, line breaks and repeated blanks aside.
bool containsText(const QString &text, const QString &part);

/// Compares a yes or no with what it is; `description` says what it is.
QString expectState(bool is, const QString &expected, const QString &description);

} // namespace host::app
