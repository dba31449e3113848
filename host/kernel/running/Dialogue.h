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
/// Its arguments must outlive it: the waiting body holds them. A cancelled prompt destroys it with the body.
template <typename Result>
class Dialogue
{
public:
    struct promise_type;
    using Handle = std::coroutine_handle<promise_type>;

    struct promise_type
    {
        struct GoBack
        {
            bool await_ready() const noexcept { return false; }
            std::coroutine_handle<> await_suspend(Handle ended) const noexcept { return ended.promise().caller; }
            void await_resume() const noexcept {}
        };

        Dialogue get_return_object() { return Dialogue(Handle::from_promise(*this)); }
        std::suspend_always initial_suspend() noexcept { return {}; }
        GoBack final_suspend() noexcept { return {}; }
        void return_value(Result given) { result = std::move(given); }
        void unhandled_exception() { failure = std::current_exception(); }

        std::optional<Result> result;
        std::exception_ptr failure;
        std::coroutine_handle<> caller;
    };

    explicit Dialogue(Handle handle) : m_handle(handle) {}
    Dialogue(Dialogue &&other) noexcept : m_handle(std::exchange(other.m_handle, {})) {}
    Dialogue(const Dialogue &) = delete;
    Dialogue &operator=(const Dialogue &) = delete;
    ~Dialogue()
    {
        if (m_handle)
            m_handle.destroy();
    }

    bool await_ready() const noexcept { return false; }
    std::coroutine_handle<> await_suspend(std::coroutine_handle<> caller) const noexcept
    {
        m_handle.promise().caller = caller;
        return m_handle;
    }
    Result await_resume() const
    {
        if (m_handle.promise().failure)
            std::rethrow_exception(m_handle.promise().failure);
        return std::move(*m_handle.promise().result);
    }

private:
    Handle m_handle;
};

} // namespace host::kernel
