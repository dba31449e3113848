#pragma once

#include "host/app/playback/PlaybackLine.h"
#include "host/drawing/records/Drawing.h"
#include "host/kernel/input/InputFeeder.h"

namespace host::app {

/// What the line of a session answers a prompt with; `error` says why it answers nothing.
kernel::InputAnswer answerFor(const Step &step, const drawing::Drawing &drawing, QString &error);

} // namespace host::app
