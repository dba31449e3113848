#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <string>
#include <vector>

namespace host::lisp {

/// Why evaluation stopped.
enum class ErrorKind : std::uint8_t
{
    /// A wrong argument, an unknown function, ...: programs may catch it.
    Ordinary,
    /// A symbol that is called holds nothing: caught like an ordinary one, and a file goes on loading behind it.
    MissingFunction,
    /// Calls nested deeper than the stack allows; caught like an ordinary one.
    StackOverflow,
    /// The user declined a prompt (Esc); caught like an ordinary one. Message "Function cancelled".
    Cancelled,
    /// The embedder's poll() said stop. No program can catch it, so a runaway loop ends. Message "Function cancelled".
    Interrupted,
    /// (exit) or (quit); caught like an ordinary one. Message "quit / exit abort".
    Quit,
};

/// A call that was under way when the error happened.
struct CallSite
{
    std::string function; ///< as printed: upper case; "LAMBDA" for functions without a name
    std::string file;     ///< where the call is written; empty when unknown
    int line = 0;         ///< from 1; 0 when unknown
};

/// The one exception that evaluation throws.
///
/// Natives may throw it with kind and message alone, better through Arguments, which adds the argument's number: the
/// evaluator fills in function, place and chain, and calls `*error*` before any dynamic binding is undone.
class Error : public std::exception
{
public:
    explicit Error(std::string message) : m_message(std::move(message)) {}
    Error(ErrorKind kind, std::string message) : m_kind(kind), m_message(std::move(message)) {}

    static Error cancelled() { return {ErrorKind::Cancelled, "Function cancelled"}; }

    ErrorKind kind() const noexcept { return m_kind; }
    /// The dialect's message alone, as `*error*` and vl-catch-all-error-message give it.
    const std::string &message() const noexcept { return m_message; }
    const char *what() const noexcept override { return m_message.c_str(); }

    std::string function;          ///< the built-in that refused, upper case; empty for the evaluator itself
    int argument = 0;              ///< the refused argument, from 1; 0 when the error is about none
    std::string file;              ///< source of the form that failed; empty when unknown
    int line = 0;                  ///< from 1; 0 when unknown
    std::vector<CallSite> chain;   ///< user functions under way, innermost first, capped
    std::size_t callsLeftOut = 0;  ///< how many outer calls the cap dropped
    bool signalled = false;        ///< `*error*` and the chain are dealt with; only the evaluator sets it
    bool handledByProgram = false; ///< the program's own `*error*` took the message

    /// One line: `bad argument type: numberp: "a" in (+), argument 2 (plan.lsp:12)`.
    std::string summary() const;
    /// The summary and a line for each call under way.
    std::string report() const;

private:
    ErrorKind m_kind = ErrorKind::Ordinary;
    std::string m_message;
};

/// What any exception says to a program: the own message, and "out of memory" for what the allocator or a container
/// refused.
std::string messageOf(const std::exception &exception);

} // namespace host::lisp
