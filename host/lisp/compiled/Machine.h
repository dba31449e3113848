#pragma once

#include "host/lisp/Function.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/compiled/Code.h"

#include <deque>
#include <memory>
#include <optional>
#include <span>

namespace host::lisp::compiled {

class Compiler;

/// Runs compiled code of one interpreter, with a stack of its own: calls of Lisp functions by Lisp functions take
/// nothing of the machine's stack.
///
/// On the stack lie, for each function under way: the function; the values that its variables had before (until the
/// call its arguments, which are in the variables since); whatever its instructions put there. All variables are in
/// their symbols, as everywhere.
///
/// What operations may do here is public. The rule for them: whoever may throw or run other code sets `top` before, to
/// behind the last value that is alive.
class Machine
{
public:
    explicit Machine(Interpreter &interpreter);
    ~Machine();
    Machine(const Machine &) = delete;
    Machine &operator=(const Machine &) = delete;

    // For the interpreter.

    /// Whether the function has code by now. It gets its code at the first call, a function without name at the second;
    /// never when it has forms that only the evaluator does as they are meant.
    bool takes(const Function &function);
    /// Calls a function that it takes, with as many arguments as it has parameters. `location` is the calling form's.
    Value call(const Function &function, std::span<const Value> arguments, Location location);
    /// The same with arguments that are moved away.
    Value callTaking(const Function &function, std::span<Value> arguments, Location location);
    /// Evaluates a form of the top level when it has loops; nothing when that is left to the evaluator.
    std::optional<Value> evaluate(const Value &form);

    // For operations.

    /// A function under way.
    struct Frame
    {
        Interpreter::CallFrame call; ///< as messages about errors show it
        const Word *resume;          ///< of the caller; where code ends when C++ called
        Value *values;               ///< behind the function: what the variables held before
        std::size_t loops;           ///< how many loops were under way
    };

    /// A loop over a list under way. What it holds is given back when it ends, by an error too.
    struct Loop
    {
        Symbol *variable = nullptr; ///< of foreach
        Value saved;                ///< what the variable held before
        Value list;                 ///< to be held
        const Value *rest = nullptr;
        ListBuilder results; ///< of mapcar
    };

    Interpreter &interpreter() noexcept { return m_interpreter; }
    Location &location() noexcept { return m_interpreter.m_location; }
    const Value &t() const noexcept { return m_interpreter.m_t; }
    Frame &frame() noexcept { return m_frame[-1]; }

    /// One of the steps that are counted until the console is asked.
    void tick(Location location, Value *alive)
    {
        if (--m_interpreter.m_pollCountdown == 0) [[unlikely]]
            poll(location, alive);
    }

    /// A tick like the other, which leaves it to the caller to poll() when it says that it is time for it.
    bool isPollDue() noexcept { return --m_interpreter.m_pollCountdown == 0; }
    void poll(Location location, Value *alive);

    /// Whether there is room for one more call, of that code.
    bool hasRoomFor(const Code &code, const Value *alive) const noexcept
    {
        return m_frame < m_frameEnd && m_end - alive >= static_cast<std::ptrdiff_t>(code.stackNeed);
    }
    /// Begins a call of the function at top[-count - 1], which takes that many arguments: gives its variables their
    /// values, the arguments and nil; what they had before lies in the place of these. Gives its first instruction.
    const Word *enter(const Function &function, std::size_t count, Location location, const Word *resume, Value *alive);
    /// The first part of that, where there is room.
    void pushFrame(const Function &function, std::size_t count, Location location, const Word *resume, Value *alive)
    {
        Frame *const frame =
            new (m_frame++) Frame{{m_interpreter.m_frame, &function, location}, resume, alive - count, m_loopCount};
        m_interpreter.m_frame = &frame->call;
    }
    /// Ends the innermost call, when its variables have their values back.
    void popFrame() noexcept
    {
        const Frame &ended = *--m_frame;
        m_interpreter.m_frame = ended.call.outer;
        m_interpreter.m_location = ended.call.location;
    }
    void restoreVariables() noexcept;

    // What is done in more steps than an instruction should have. All give the new top.

    /// Calls a built-in with the topmost values, whose place its result takes.
    Value *callNative(const Site &site, Value *alive);
    /// The same with operands from anywhere.
    Value callNative(const Site &site, Value *alive, const Value &left, const Value &right);
    /// Calls whatever lies below the topmost `count` values.
    const Word *callValue(std::size_t count, Location location, const Word *resume, Value *alive);
    /// Puts on the stack what the head of a form calls; false for a special form.
    bool pushHead(Symbol &head, Location location, Value *alive);
    /// Has the evaluator do a form, whose value goes onto the stack.
    Value *evaluateForm(const Value &form, Value *alive);
    /// Fails as the built-in does.
    [[noreturn]] void refuse(const Site &site, Value *alive, int argument, const char *what, const Value &value);
    /// Fails as a built-in does that finds no room for a pair.
    void refuseMemory(const Site &site, Value *alive);
    /// The innermost loop; a new one within it; its end.
    Loop &loop() noexcept { return m_loops.back(); }
    Loop &beginLoop()
    {
        ++m_loopCount;
        return m_loops.emplace_back();
    }
    void endLoop();

    Value *top = nullptr; ///< the first free place of the stack

private:
    template <typename Put>
    Value callWith(const Function &function, std::size_t count, Location location, Put put);
    Value run(const Code &code);
    Value runUntilEnd(const Word *at);
    void unwind(const Frame *outermost, const Value *lowest, std::size_t loops) noexcept;
    static Value *bindVariables(const Function &function, Value *values, Value *alive);
    void reserveMemory();
    void checkRoom(std::size_t places, Location location, Value *alive);

    Interpreter &m_interpreter;
    std::unique_ptr<Compiler> m_compiler;
    std::unique_ptr<std::byte[]> m_stackMemory;
    std::unique_ptr<std::byte[]> m_frameMemory;
    Value *m_end = nullptr;      ///< of the stack, less what `*error*` has for itself
    Frame *m_frame = nullptr;    ///< behind the innermost
    Frame *m_frameEnd = nullptr; ///< likewise
    std::deque<Loop> m_loops;    ///< whose places stay
    std::size_t m_loopCount = 0; ///< how many these are, which takes the queue some reckoning
};

} // namespace host::lisp::compiled
