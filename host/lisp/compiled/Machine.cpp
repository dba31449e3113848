#include "host/lisp/compiled/Machine.h"

#include "host/lisp/Printer.h"
#include "host/lisp/ValueFrame.h"
#include "host/lisp/compiled/Compiler.h"
#include "host/lisp/compiled/Operations.h"

namespace host::lisp::compiled {

/// Memory that nobody touches costs nothing: room for the deepest recursion is there from the first call on.
static constexpr std::size_t stackPlaces = 4U * 1024U * 1024U;
static constexpr std::size_t mostFrames = 250'000;

/// What of that is kept for `*error*`, so that it can also run after a stack overflow.
static constexpr std::size_t reservedPlaces = 64U * 1024U;
static constexpr std::size_t reservedFrames = 5'000;

Machine::Machine(Interpreter &interpreter) : m_interpreter(interpreter), m_compiler(new Compiler(interpreter)) {}

Machine::~Machine() = default;

void Machine::reserveMemory()
{
    if (top)
        return;
    m_stackMemory.reset(new std::byte[stackPlaces * sizeof(Value)]);
    m_frameMemory.reset(new std::byte[mostFrames * sizeof(Frame)]);
    top = reinterpret_cast<Value *>(m_stackMemory.get());
    m_end = top + stackPlaces - reservedPlaces;
    m_frame = reinterpret_cast<Frame *>(m_frameMemory.get());
    m_frameEnd = m_frame + mostFrames - reservedFrames;
}

void Machine::checkRoom(std::size_t places, Location location, Value *alive)
{
    const bool hasReserve = m_interpreter.m_inErrorHandler;
    const Frame *const frameEnd = m_frameEnd + (hasReserve ? reservedFrames : 0);
    const Value *const end = m_end + (hasReserve ? reservedPlaces : 0);
    if (m_frame < frameEnd && static_cast<std::size_t>(end - alive) >= places)
        return;
    top = alive;
    m_interpreter.m_location = location;
    m_interpreter.raiseStackOverflow();
}

bool Machine::takes(const Function &function)
{
    using Compiling = Function::Compiling;
    if (function.code)
        return true;
    if (function.compiling == Compiling::Never)
        return false;
    if (!function.name && function.compiling == Compiling::NotYet) {
        function.compiling = Compiling::AtNextCall;
        return false;
    }
    function.code = m_compiler->compile(function);
    if (!function.code)
        function.compiling = Compiling::Never;
    return function.code != nullptr;
}

/// Where calls by C++ come back to.
static const Word *endOfRun()
{
    static const Word end = {endOperation};
    return &end;
}

/// `put` makes the arguments on the stack.
template <typename Put>
Value Machine::callWith(const Function &function, std::size_t count, Location location, Put put)
{
    m_interpreter.checkStack();
    reserveMemory();
    checkRoom(count + 1, location, top);
    const Frame *const frame = m_frame;
    Value *const lowest = top;
    const std::size_t loops = m_loopCount;
    // The stack holds functions that run as values do, so that a program may define them anew.
    auto &held = const_cast<Function &>(function);
    ++held.references;
    new (top++) Value(Value::adopt(Tag::Function, &held));
    put();
    try {
        return runUntilEnd(enter(function, count, location, endOfRun(), top));
    } catch (...) {
        unwind(frame, lowest, loops);
        throw;
    }
}

Value Machine::call(const Function &function, std::span<const Value> arguments, Location location)
{
    return callWith(function, arguments.size(), location, [&] {
        for (const Value &argument : arguments)
            new (top++) Value(argument);
    });
}

Value Machine::callTaking(const Function &function, std::span<Value> arguments, Location location)
{
    return callWith(function, arguments.size(), location, [&] {
        for (Value &argument : arguments)
            new (top++) Value(std::move(argument));
    });
}

std::optional<Value> Machine::evaluate(const Value &form)
{
    if (!m_compiler->hasLoop(form))
        return std::nullopt;
    const std::unique_ptr<const Code> code = m_compiler->compile(form);
    if (!code)
        return std::nullopt;
    m_interpreter.checkStack();
    return run(*code);
}

Value Machine::run(const Code &code)
{
    reserveMemory();
    checkRoom(code.stackNeed, m_interpreter.m_location, top);
    const Frame *const frame = m_frame;
    Value *const lowest = top;
    const std::size_t loops = m_loopCount;
    try {
        return runUntilEnd(code.begin());
    } catch (...) {
        unwind(frame, lowest, loops);
        throw;
    }
}

Value Machine::runUntilEnd(const Word *at)
{
    while (at)
        at = at->operation(*this, at, top);
    Value result(std::move(top[-1]));
    --top;
    return result;
}

const Word *Machine::enter(const Function &function, std::size_t count, Location location, const Word *resume,
                           Value *alive)
{
    const Code &code = *function.code;
    if (!hasRoomFor(code, alive)) [[unlikely]]
        checkRoom(code.stackNeed, location, alive);
    pushFrame(function, count, location, resume, alive);
    if (code.onlyVariable)
        code.onlyVariable->swap(alive[-1]);
    top = code.onlyVariable ? alive : bindVariables(function, alive - count, alive);
    return code.begin();
}

/// Not by way of the frame, which was written a moment ago.
Value *Machine::bindVariables(const Function &function, Value *values, Value *alive)
{
    for (Value *const end = values + function.variables.size(); alive != end;)
        new (alive++) Value();
    for (Symbol *const variable : function.variables)
        variable->value().swap(*values++);
    return alive;
}

void Machine::restoreVariables() noexcept
{
    const Frame &current = frame();
    const std::vector<Symbol *> &variables = current.call.function->variables;
    // Backwards, so that a name that occurs twice gets its first value back.
    for (std::size_t i = variables.size(); i-- > 0;) {
        variables[i]->value().swap(current.values[i]);
        current.values[i].~Value();
    }
}

void Machine::unwind(const Frame *outermost, const Value *lowest, std::size_t loops) noexcept
{
    while (m_frame != outermost) {
        const Value *const values = frame().values + frame().call.function->variables.size();
        while (top > values)
            (--top)->~Value();
        while (m_loopCount > frame().loops)
            endLoop();
        restoreVariables();
        top = frame().values - 1;
        popFrame();
        top->~Value();
    }
    while (top > lowest)
        (--top)->~Value();
    while (m_loopCount > loops)
        endLoop();
}

void Machine::endLoop()
{
    Loop &ended = loop();
    if (ended.variable)
        ended.variable->value().swap(ended.saved);
    m_loops.pop_back();
    --m_loopCount;
}

void Machine::poll(Location location, Value *alive)
{
    top = alive;
    m_interpreter.m_location = location;
    m_interpreter.poll();
}

Value *Machine::callNative(const Site &site, Value *alive)
{
    top = alive;
    m_interpreter.m_location = site.location;
    Value *const arguments = alive - site.count;
    Value result = m_interpreter.callNative(*site.native, arguments, site.count);
    while (alive != arguments)
        (--alive)->~Value();
    new (alive) Value(std::move(result));
    return alive + 1;
}

Value Machine::callNative(const Site &site, Value *alive, const Value &left, const Value &right)
{
    top = alive;
    m_interpreter.m_location = site.location;
    const Value operands[] = {left, right};
    return m_interpreter.callNative(*site.native, operands, site.count);
}

bool Machine::pushHead(Symbol &head, Location location, Value *alive)
{
    const Value &held = head.value();
    top = alive;
    m_interpreter.m_location = location;
    if (held.tag() == Tag::Native && held.asNative().specialForm)
        return false;
    Value function = held.isFunction() ? held : m_interpreter.headFunction(Value::symbol(head));
    new (alive) Value(std::move(function));
    return true;
}

const Word *Machine::callValue(std::size_t count, Location location, const Word *resume, Value *alive)
{
    top = alive;
    m_interpreter.m_location = location;
    Value *const arguments = alive - count;
    const Value &callee = arguments[-1];
    Value result;
    if (callee.tag() == Tag::Native) {
        result = m_interpreter.callNative(callee.asNative(), arguments, count);
    } else {
        const Function &function = callee.asFunction();
        if (count != function.parameterCount)
            m_interpreter.raiseArgumentCount(function, count);
        // Of others, callUser() counts the calls.
        const bool isCounted = function.name || function.compiling != Function::Compiling::NotYet;
        if (function.mark == 0 && isCounted && takes(function))
            return enter(function, count, location, resume, alive);
        Interpreter::ValueFrame values(m_interpreter);
        for (std::size_t i = 0; i < count; ++i)
            values.push(arguments[i]);
        result = m_interpreter.callUser(function, values, location);
    }
    while (alive != arguments - 1)
        (--alive)->~Value();
    new (alive) Value(std::move(result));
    top = alive + 1;
    return resume;
}

Value *Machine::evaluateForm(const Value &form, Value *alive)
{
    top = alive;
    // Not made in its place at once, which is free for others while the form is under way.
    Value value = m_interpreter.evalList(form);
    new (alive) Value(std::move(value));
    return alive + 1;
}

void Machine::refuseMemory(const Site &site, Value *alive)
{
    top = alive;
    m_interpreter.m_location = site.location;
    try {
        Heap::check(Heap::blockOf(sizeof(Cons)));
    } catch (Error &error) {
        error.function = site.native->name;
        m_interpreter.raise(std::move(error));
    }
}

void Machine::refuse(const Site &site, Value *alive, int argument, const char *what, const Value &value)
{
    top = alive;
    m_interpreter.m_location = site.location;
    Error error("bad argument type: " + std::string(what) + toShortText(value));
    error.function = site.native->name;
    error.argument = argument;
    m_interpreter.raise(std::move(error));
}

} // namespace host::lisp::compiled
