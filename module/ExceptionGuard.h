#pragma once

#include "platform/kernel/CKvLispEngine.h"
#include "platform/rx/OdError.h"

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

/// Says on the command line of the active document what the drawing database refused; nowhere when no document is
/// active. Never throws, though it has to make a text: a message that cannot be made is dropped.
void tellError(const OdError &error) noexcept;

/// `handler` as the host may call it: an exception becomes the result code for an error, and what the drawing database
/// says about it is told. A template of its own for each handler, because the host takes plain functions:
///
///     lisp.defineFunction(name, guarded<dlgBreakLine>);
template <CKvLispEngine::Handler handler>
int guarded() noexcept
{
    int code = kRtError;
    runGuarded([&code] {
        try {
            code = handler();
        } catch (const OdError &error) {
            tellError(error);
        }
    });
    return code;
}

} // namespace ortakit
