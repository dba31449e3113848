#pragma once

#include <coroutine>
#include <exception>
#include <optional>
#include <utility>

namespace host::kernel {

/// A part of a command's dialogue that gives a value: a coroutine that asks as a command's body does and is waited for
/// by one, or by another part.
///
///     Dialogue<std::optional<double>> askFactor(CommandContext &context);
///     ...
///     const std::optional<double> factor = co_await askFactor(context);
///
/// A text that depends on a condition gets a name of its own first: GCC 12 destroys what `c ? a.text : b` makes twice
/// where it stands within the co_await expression itself.
///
/// Its arguments must outlive it: the waiting body holds them. A cancelled prompt destroys it with the body, so what it
/// holds is let go by destructors and nothing behind the co_await runs. What it throws arrives in the body that waits.
/// It is waited for once: nothing of it runs until then, and a second time there would be nothing left to take.
/// Parts may ask through other parts, as deep as they like.
template <typename Result>
class Dialogue
{
public:
    /// What the compiler asks a coroutine of this kind for; nothing that a command uses.
    struct promise_type;
    using Handle = std::coroutine_handle<promise_type>;

    struct promise_type
    {
        /// At its end the body that waits goes on, without a stack frame for each part that asks through others.
        struct GoBack
        {
            // Never ready, since the caller is told here who goes on; nothing comes back to a part that has ended.
            bool await_ready() const noexcept { return false; }
            std::coroutine_handle<> await_suspend(Handle ended) const noexcept { return ended.promise().caller; }
            void await_resume() const noexcept {}
        };

        // How the compiler makes it, stopped in front of its first line.
        Dialogue get_return_object() { return Dialogue(Handle::from_promise(*this)); }
        /// It starts when it is waited for, since its caller is known only then.
        std::suspend_always initial_suspend() noexcept { return {}; }
        GoBack final_suspend() noexcept { return {}; }
        // How it ended, kept until the body that waits takes it.
        void return_value(Result given) { result = std::move(given); }
        void unhandled_exception() { failure = std::current_exception(); }

        std::optional<Result> result;   ///< there when it ended well
        std::exception_ptr failure;     ///< there when it threw
        std::coroutine_handle<> caller; ///< who goes on at its end
    };

    /// Owns the coroutine; moving hands it over.
    explicit Dialogue(Handle handle) : m_handle(handle) {}
    /// The other one is empty then.
    Dialogue(Dialogue &&other) noexcept : m_handle(std::exchange(other.m_handle, {})) {}
    Dialogue(const Dialogue &) = delete;
    Dialogue &operator=(const Dialogue &) = delete;
    /// Ends the part where it stands, at its end or at a prompt.
    ~Dialogue()
    {
        if (m_handle)
            m_handle.destroy();
    }

    // What co_await calls: starts it, and hands its value over when it has ended.

    bool await_ready() const noexcept { return false; }
    /// Control goes straight to the part: no prompt is between.
    std::coroutine_handle<> await_suspend(std::coroutine_handle<> caller) const noexcept
    {
        m_handle.promise().caller = caller;
        return m_handle;
    }
    /// The value, moved out, or the exception that ended it.
    Result await_resume() const
    {
        if (m_handle.promise().failure)
            std::rethrow_exception(m_handle.promise().failure);
        return std::move(*m_handle.promise().result);
    }

private:
    Handle m_handle; ///< empty when it was moved from
};

} // namespace host::kernel
