#include "host/lisp/Arguments.h"
#include "host/lisp/Equality.h"
#include "host/lisp/Function.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/ListFunctions.h"
#include "host/lisp/Printer.h"
#include "host/lisp/ValueFrame.h"
#include "host/lisp/compiled/Machine.h"

namespace host::lisp {

/// The variables of one call of a user function: their new values are in the symbols, the old ones in the value frame.
class Interpreter::Binding
{
public:
    Binding(Interpreter &interpreter, const Function &function, ValueFrame &values, Location location)
        : m_interpreter(interpreter), m_function(function),
          m_values(values.values()), m_frame{interpreter.m_frame, &function, location}
    {
        for (std::size_t i = values.size(); i < function.variables.size(); ++i)
            values.push(Value());
        for (std::size_t i = 0; i < function.variables.size(); ++i)
            function.variables[i]->value().swap(m_values[i]);
        interpreter.m_frame = &m_frame;
    }
    ~Binding()
    {
        // Backwards, so that a name that occurs twice gets its first value back.
        for (std::size_t i = m_function.variables.size(); i-- > 0;)
            m_function.variables[i]->value().swap(m_values[i]);
        m_interpreter.m_frame = m_frame.outer;
        m_interpreter.m_location = m_frame.location;
    }
    Binding(const Binding &) = delete;
    Binding &operator=(const Binding &) = delete;

private:
    Interpreter &m_interpreter;
    const Function &m_function;
    Value *m_values;
    CallFrame m_frame;
};

Value Interpreter::eval(const Value &form)
{
    switch (form.tag()) {
    case Tag::Symbol:
        return form.asSymbol().value();
    case Tag::Cons:
        return evalList(form);
    default:
        return form;
    }
}

Value Interpreter::evalBody(const Value &forms)
{
    const Value *rest = &forms;
    if (!rest->isCons())
        return {};
    for (; rest->cdr().isCons(); rest = &rest->cdr())
        eval(rest->car());
    return eval(rest->car());
}

void Interpreter::evalArguments(const Value &forms, ValueFrame &values)
{
    for (const Value *rest = &forms; rest->isCons(); rest = &rest->cdr()) {
        const Value &form = rest->car();
        if (form.isCons())
            values.push(evalList(form));
        else
            values.push(form.isSymbol() ? form.asSymbol().value() : form);
    }
}

Value Interpreter::evalList(const Value &form)
{
    tick();
    checkStack();
    const Cons &cell = form.asCons();
    const Location location = cell.mark() ? cell.mark() : m_location;
    m_location = location;
    // A copy: the program may give the symbol another value while its function runs.
    Value function = cell.car.isSymbol() ? cell.car.asSymbol().value() : Value();
    if (!function.isFunction()) [[unlikely]]
        function = headFunction(cell.car);
    if (function.tag() == Tag::Native) {
        const NativeFunction &native = function.asNative();
        if (native.specialForm)
            return callSpecialForm(native, cell.cdr, location);
        ValueFrame values(*this);
        evalArguments(cell.cdr, values);
        m_location = location;
        return callNative(native, values.values(), values.size());
    }
    ValueFrame values(*this);
    evalArguments(cell.cdr, values);
    m_location = location;
    return callUser(function.asFunction(), values, location);
}

Value Interpreter::headFunction(const Value &head)
{
    const bool isForm = head.car().isSymbol() && &head.car().asSymbol() != m_lambdaSymbol;
    try {
        return resolveFunction(isForm ? evalList(head) : head);
    } catch (Error &error) {
        signal(error, nullptr);
        throw;
    }
}

Value Interpreter::callNative(const NativeFunction &native, const Value *values, std::size_t count)
{
    try {
        if (!native.arity.accepts(count)) [[unlikely]]
            throw Error(count < static_cast<std::size_t>(native.arity.least) ? "too few arguments"
                                                                             : "too many arguments");
        Arguments arguments(*this, native, values, count);
        return native.function(arguments);
    } catch (...) {
        rethrowSignalled(native);
    }
}

Value Interpreter::callSpecialForm(const NativeFunction &form, const Value &arguments, Location location)
{
    try {
        return form.specialForm(*this, arguments);
    } catch (...) {
        // What the form evaluated before it failed may lie elsewhere.
        m_location = location;
        rethrowSignalled(form);
    }
}

Value Interpreter::callUser(const Function &function, ValueFrame &values, Location location)
{
    if (values.size() != function.parameterCount) [[unlikely]]
        raiseArgumentCount(function, values.size());
    if (function.mark != 0) [[unlikely]]
        return callWatched(function, values, location);
    if (m_isCompiling && m_machine->takes(function))
        return m_machine->callTaking(function, {values.values(), values.size()}, location);
    Binding binding(*this, function, values, location);
    return evalBody(function.body);
}

/// Tells the observer of a call, and of its end whatever that is.
class ObservedCall
{
public:
    ObservedCall(Interpreter &interpreter, CallObserver *observer, const Function &function) : m_observer(observer)
    {
        if (m_observer)
            m_observer->entered(interpreter, function);
    }
    ~ObservedCall()
    {
        if (m_observer)
            m_observer->left();
    }
    ObservedCall(const ObservedCall &) = delete;
    ObservedCall &operator=(const ObservedCall &) = delete;

private:
    CallObserver *m_observer;
};

Value Interpreter::callWatched(const Function &function, ValueFrame &values, Location location)
{
    const ObservedCall call(*this, (function.mark & CallWatch::Observed) ? m_callObserver : nullptr, function);
    if (function.mark & CallWatch::Traced)
        return callTraced(function, values, location);
    Binding binding(*this, function, values, location);
    return evalBody(function.body);
}

void Interpreter::setCallObserver(CallObserver &observer)
{
    m_callObserver = &observer;
    m_listFunctions->clear();
    for (Symbol *symbol : m_symbols.all()) {
        if (symbol->value().tag() == Tag::Function)
            symbol->value().asFunction().mark |= CallWatch::Observed;
    }
}

Value Interpreter::callTraced(const Function &function, ValueFrame &values, Location location)
{
    std::string call = "(" + function.displayName();
    for (std::size_t i = 0; i < values.size(); ++i)
        call += " " + toShortText(values.values()[i]);
    m_console.write("Entering " + call + ")\n");
    Value result;
    {
        Binding binding(*this, function, values, location);
        result = evalBody(function.body);
    }
    m_console.write("Result: " + toShortText(result) + "\n");
    return result;
}

Value Interpreter::apply(const Value &function, std::span<const Value> arguments)
{
    tick();
    checkStack();
    const Value callee = resolveFunction(function);
    if (callee.tag() == Tag::Native) {
        const NativeFunction &native = callee.asNative();
        if (native.specialForm && !native.function)
            throw Error("bad function: " + native.name);
        return callNative(native, arguments.data(), arguments.size());
    }
    const Function &called = callee.asFunction();
    if (arguments.size() != called.parameterCount)
        raiseArgumentCount(called, arguments.size());
    if (called.mark == 0 && m_isCompiling && m_machine->takes(called))
        return m_machine->call(called, arguments, m_location);
    ValueFrame values(*this);
    for (const Value &argument : arguments)
        values.push(argument);
    return callUser(called, values, m_location);
}

Value Interpreter::resolveFunction(const Value &function)
{
    if (function.isFunction())
        return function;
    if (function.isSymbol()) {
        const Value &held = function.asSymbol().value();
        if (held.isFunction())
            return held;
        if (held.isNil())
            throw Error(ErrorKind::MissingFunction, "no function definition: " + toShortText(function));
        if (!held.isCons())
            throw Error("bad function: " + toShortText(held));
        return resolveFunction(held);
    }
    if (!function.isCons())
        throw Error("bad function: " + toShortText(function));
    if (const Value *made = m_listFunctions->find(function))
        return *made;
    Value made = makeFunction(function);
    m_listFunctions->keep(function, made);
    return made;
}

Value Interpreter::makeFunction(const Value &list)
{
    const bool isLambda = list.car().isSymbol() && &list.car().asSymbol() == m_lambdaSymbol;
    if (isLambda)
        return makeFunction(nullptr, list.cdr().car(), list.cdr().cdr());
    // A list of parameters and forms is what defun-q makes.
    if (list.car().isList())
        return makeFunction(nullptr, list.car(), list.cdr());
    throw Error("bad function: " + toShortText(list));
}

Value Interpreter::makeFunction(Symbol *name, const Value &parameters, const Value &body)
{
    auto *function = new Function;
    Value value = Value::adopt(Tag::Function, function);
    function->name = name;
    function->parameters = parameters;
    function->body = body;
    function->location = body.car().isCons() ? body.car().asCons().mark() : 0;
    if (m_callObserver)
        function->mark = CallWatch::Observed;
    bool isLocal = false;
    const Value *rest = &parameters;
    for (; rest->isCons(); rest = &rest->cdr()) {
        const Value &variable = rest->car();
        if (!variable.isSymbol())
            throw Error("bad argument type: symbolp " + toShortText(variable));
        if (&variable.asSymbol() == m_slashSymbol && !isLocal) {
            isLocal = true;
            continue;
        }
        function->variables.push_back(&variable.asSymbol());
        function->parameterCount += isLocal ? 0 : 1;
    }
    if (rest->isTrue())
        throw Error("bad argument type: listp " + toShortText(parameters));
    return value;
}

bool Interpreter::equal(const Value &left, const Value &right, double fuzz)
{
    return isEqual(left, right, fuzz, [this] { tick(); });
}

/// Also where the heap is full: a program that catches errors can give up what fills it.
static Value caughtError(std::string message)
{
    constexpr std::int64_t enough = 4096;
    const Heap::Limit limit(Heap::limit() + enough);
    auto *caught = new CaughtError;
    Value value = Value::adopt(Tag::CaughtError, caught);
    caught->message = std::move(message);
    return value;
}

Value Interpreter::catchAll(const Value &function, std::span<const Value> arguments)
{
    struct Guard
    {
        explicit Guard(int &catchDepth) : depth(catchDepth) { ++depth; }
        ~Guard() { --depth; }
        int &depth;
    };
    try {
        Guard guard(m_catchDepth);
        try {
            return apply(function, arguments);
        } catch (Error &error) {
            // One that apply() itself threw: seen from here it is caught, too.
            signal(error, nullptr);
            throw;
        }
    } catch (const Error &error) {
        if (error.kind() == ErrorKind::Interrupted)
            throw;
        return caughtError(error.message());
    } catch (const std::exception &foreign) {
        return caughtError(messageOf(foreign));
    }
}

} // namespace host::lisp
