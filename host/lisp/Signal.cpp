// How errors become known: place, chain of calls, *error*.

#include "host/lisp/Function.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Native.h"

#include <new>

namespace host::lisp {

/// Calls that an error remembers.
static constexpr std::size_t longestChain = 32;

/// Heap that `*error*` may use beyond the limit: what filled it is there still.
static constexpr std::int64_t handlerHeap = 4L * 1024 * 1024;

/// Stack that `*error*` may use beyond the limit, so that it can also run after a stack overflow.
static constexpr std::uintptr_t handlerReserve = 512U * 1024U;

void Interpreter::raise(Error error)
{
    signal(error, nullptr);
    throw error;
}

void Interpreter::raiseStackOverflow()
{
    raise(Error(ErrorKind::StackOverflow, "stack overflow"));
}

void Interpreter::raiseArgumentCount(const Function &function, std::size_t given)
{
    Error error(given < function.parameterCount ? "too few arguments" : "too many arguments");
    error.function = function.displayName();
    raise(std::move(error));
}

void Interpreter::rethrowSignalled(const NativeFunction &native)
{
    try {
        throw;
    } catch (Error &error) {
        signal(error, &native);
        throw;
    } catch (const std::exception &foreign) {
        Error error(messageOf(foreign));
        signal(error, &native);
        throw error;
    }
}

void Interpreter::signal(Error &error, const NativeFunction *native)
{
    if (error.signalled)
        return;
    error.signalled = true;
    try {
        fillPlace(error, native);
        fillChain(error);
    } catch (const std::bad_alloc &) {
        // The message alone is better than none.
        error.chain.clear();
    }
    const bool isCaught = m_catchDepth > 0 && error.kind() != ErrorKind::Interrupted;
    if (isCaught || isLeftOutWhileLoading(error))
        return;
    m_console.programFails();
    callErrorHandler(error);
}

void Interpreter::fillPlace(Error &error, const NativeFunction *native) const
{
    if (native && error.function.empty())
        error.function = native->name;
    // What the reader refused has its place already.
    if (error.line > 0)
        return;
    SourceMap::Place place = m_sources.place(m_location);
    error.file = std::move(place.file);
    error.line = place.line;
}

void Interpreter::fillChain(Error &error) const
{
    for (const CallFrame *frame = m_frame; frame; frame = frame->outer) {
        if (error.chain.size() == longestChain) {
            ++error.callsLeftOut;
            continue;
        }
        SourceMap::Place place = m_sources.place(frame->location);
        error.chain.push_back({frame->function->displayName(), std::move(place.file), place.line});
    }
}

void Interpreter::callErrorHandler(Error &error)
{
    const Value handler = m_errorSymbol->value();
    if (handler.isNil() || m_inErrorHandler)
        return;
    struct Scope
    {
        explicit Scope(Interpreter &owner)
            : interpreter(owner), catchDepth(std::exchange(owner.m_catchDepth, 0)), location(owner.m_location),
              heapLimit(Heap::limit() + handlerHeap)
        {
            interpreter.m_inErrorHandler = true;
            interpreter.m_stackLimit -= handlerReserve;
        }
        ~Scope()
        {
            interpreter.m_inErrorHandler = false;
            interpreter.m_stackLimit += handlerReserve;
            interpreter.m_catchDepth = catchDepth;
            interpreter.m_location = location;
        }
        Interpreter &interpreter;
        int catchDepth;
        Location location;
        Heap::Limit heapLimit;
    };
    Scope scope(*this);
    error.handledByProgram = true;
    try {
        const Value message = Value::string(error.message());
        apply(handler, {&message, 1});
    } catch (const Error &inner) {
        // Handlers often end in (exit); anything else is a fault of the handler, which the user should see.
        if (inner.kind() != ErrorKind::Quit)
            m_console.write("\nerror in *error*: " + inner.summary() + "\n");
    } catch (const std::exception &inner) {
        m_console.write("\nerror in *error*: " + messageOf(inner) + "\n");
    }
}

void Interpreter::poll()
{
    m_pollCountdown = std::max(1U, m_settings.pollInterval);
    if (m_console.poll() == PollAnswer::Stop)
        raise(Error(ErrorKind::Interrupted, "Function cancelled"));
}

void Interpreter::checkStringLength(std::size_t bytes) const
{
    if (bytes > m_settings.longestString)
        throw Error("string too long");
    Heap::check(bytes);
}

} // namespace host::lisp
