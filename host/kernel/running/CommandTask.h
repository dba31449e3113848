#pragma once

#include "host/kernel/input/PromptReply.h"
#include "host/kernel/input/PromptRequest.h"

#include <coroutine>
#include <exception>

namespace host::kernel {

class CommandContext;

/// The body of a command: a coroutine that stops at every prompt until its answer is there, be it from the user or
/// from a Lisp program that hands the answers over in pieces.
///
///     CommandTask circle(CommandContext &context)
///     {
///         const PromptReply centre = co_await context.point(u"Specify center point for circle: "_s);
///         ...
///     }
///
/// A cancelled prompt does not come back: the body is destroyed where it waits.
class CommandTask
{
public:
    struct promise_type
    {
        CommandTask get_return_object() { return CommandTask(Handle::from_promise(*this)); }
        std::suspend_always initial_suspend() noexcept { return {}; }
        std::suspend_always final_suspend() noexcept { return {}; }
        void return_void() {}
        void unhandled_exception() { failure = std::current_exception(); }

        std::exception_ptr failure;
    };
    using Handle = std::coroutine_handle<promise_type>;

    explicit CommandTask(Handle handle) : m_handle(handle) {}
    CommandTask(CommandTask &&other) noexcept : m_handle(std::exchange(other.m_handle, {})) {}
    CommandTask(const CommandTask &) = delete;
    CommandTask &operator=(const CommandTask &) = delete;
    ~CommandTask()
    {
        if (m_handle)
            m_handle.destroy();
    }

    bool isDone() const { return m_handle.done(); }
    /// Runs on to the next prompt or to the end: from `waiting`, where a part of the body (see Dialogue) stopped, else
    /// from where the body itself did. Rethrows what the body threw.
    void resume(std::coroutine_handle<> waiting)
    {
        (waiting ? waiting : m_handle).resume();
        if (m_handle.done() && m_handle.promise().failure)
            std::rethrow_exception(m_handle.promise().failure);
    }

private:
    Handle m_handle;
};

} // namespace host::kernel
