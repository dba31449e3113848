#pragma once

#include "host/kernel/input/InputQueue.h"

namespace host::kernel {

enum class FeedResult
{
    Supplied,   ///< something was pushed, if only a CancelAnswer
    NobodyThere ///< there is no more input and there will be none: the prompt is cancelled
};

/// Somebody who answers prompts when the queue is empty: a window (which runs an event loop until the user answered),
/// a recorded session, or a batch run that has nobody.
class InputFeeder
{
public:
    virtual ~InputFeeder() = default;

    /// Asked when a prompt finds the queue empty. May show the request; the prompt's text was printed already. Must
    /// not throw.
    virtual FeedResult feed(const PromptRequest &request, InputQueue &queue) = 0;

    /// Whether somebody may answer: batch runs have nobody, and their prompts are cancelled.
    virtual bool isAttended() const { return true; }

    /// Called now and then while a program runs: the time to process events. True when the user wants to stop it.
    virtual bool poll() { return false; }
};

} // namespace host::kernel
