#pragma once

#include "platform/kernel/CKvLispEngine.h"

namespace ortakit {

/// Runs `work` and swallows what it throws: nothing of ours may pass through the host's frames as an exception.
/// Whether `work` ran to its end.
template <class Work>
bool runGuarded(const Work &work) noexcept
{
    try {
        work();
        return true;
    } catch (...) {
        return false;
    }
}

/// `handler` as the host may call it: an exception becomes the result code for an error.
template <CKvLispEngine::Handler handler>
int guarded() noexcept
{
    int code = kRtError;
    runGuarded([&code] { code = handler(); });
    return code;
}

} // namespace ortakit
