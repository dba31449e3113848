#include "host/lisp/Interpreter.h"

#include "files/TextEncoding.h"
#include "host/lisp/Arguments.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/Function.h"
#include "host/lisp/ListFunctions.h"
#include "host/lisp/Paths.h"
#include "host/lisp/Printer.h"
#include "host/lisp/Reader.h"
#include "host/lisp/Text.h"
#include "host/lisp/compiled/Machine.h"

#include <numbers>

namespace host::lisp {

/// Values that the arguments and saved variables of all calls under way may take.
static constexpr std::size_t valueStackSize = 512U * 1024U;

std::string Arity::text() const
{
    if (most < 0)
        return std::to_string(least) + "+";
    return least == most ? std::to_string(least) : std::to_string(least) + "-" + std::to_string(most);
}

Interpreter::Interpreter(Console &console, Settings settings)
    : m_console(console), m_settings(settings), m_stackMemory(new std::byte[valueStackSize * sizeof(Value)]),
      m_pollCountdown(std::max(1U, settings.pollInterval)), m_listFunctions(new ListFunctions)
{
    static_assert(alignof(Value) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__);
    m_stackTop = reinterpret_cast<Value *>(m_stackMemory.get());
    m_stackEnd = m_stackTop + valueStackSize;
    m_t = symbol("T");
    setVariable("T", m_t);
    setVariable("PI", Value::real(std::numbers::pi));
    setVariable("PAUSE", Value::string("\\"));
    m_errorSymbol = &intern("*ERROR*");
    m_lambdaSymbol = &intern("LAMBDA");
    m_slashSymbol = &intern("/");
    addBuiltins(*this);
    m_machine = std::make_unique<compiled::Machine>(*this);
}

Interpreter::~Interpreter() = default;

/// When earlier evaluations left the heap all but full, a little more may be taken, so that what fills it can be given
/// up; not so often that the limit means nothing.
static std::int64_t heapLimitFor(std::int64_t wanted)
{
    constexpr std::int64_t atLeastLeft = 1024L * 1024;
    constexpr std::int64_t mostBeyond = 64L * 1024 * 1024;
    return std::max(wanted, std::min(Heap::used() + atLeastLeft, wanted + mostBeyond));
}

/// One evaluation begun from outside: its errors, catches and calls are apart from those of the evaluation around it,
/// the machine stack is shared.
class Interpreter::TopLevel
{
public:
    explicit TopLevel(Interpreter &interpreter)
        : m_interpreter(interpreter), m_catchDepth(std::exchange(interpreter.m_catchDepth, 0)),
          m_frame(std::exchange(interpreter.m_frame, nullptr)), m_location(std::exchange(interpreter.m_location, 0)),
          m_textDepth(std::exchange(interpreter.m_textDepth, 0)), m_isTyped(std::exchange(interpreter.m_isTyped, false))
    {
        if (interpreter.m_nesting++ == 0) {
            m_heapLimit.emplace(heapLimitFor(interpreter.m_console.heapLimit()));
            const auto here = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
            interpreter.m_stackLimit = here - std::min<std::uintptr_t>(here, interpreter.m_settings.stackBudget);
        }
    }
    ~TopLevel()
    {
        --m_interpreter.m_nesting;
        m_interpreter.m_catchDepth = m_catchDepth;
        m_interpreter.m_frame = m_frame;
        m_interpreter.m_location = m_location;
        m_interpreter.m_textDepth = m_textDepth;
        m_interpreter.m_isTyped = m_isTyped;
    }
    TopLevel(const TopLevel &) = delete;
    TopLevel &operator=(const TopLevel &) = delete;

private:
    Interpreter &m_interpreter;
    int m_catchDepth;
    CallFrame *m_frame;
    Location m_location;
    std::optional<Heap::Limit> m_heapLimit;
    int m_textDepth;
    bool m_isTyped;
};

/// One text under way.
class Interpreter::TextScope
{
public:
    explicit TextScope(int &depth) : m_depth(depth) { ++m_depth; }
    ~TextScope() { --m_depth; }
    TextScope(const TextScope &) = delete;
    TextScope &operator=(const TextScope &) = delete;

private:
    int &m_depth;
};

template <typename Body>
Outcome Interpreter::topLevel(Body &&body)
{
    TopLevel scope(*this);
    Outcome outcome;
    try {
        outcome.value = body();
    } catch (Error &error) {
        signal(error, nullptr);
        outcome.error = std::move(error);
    } catch (const std::exception &foreign) {
        Error error(messageOf(foreign));
        signal(error, nullptr);
        outcome.error = std::move(error);
    }
    return outcome;
}

Outcome Interpreter::run(std::string_view text, std::string_view sourceName)
{
    return topLevel([&] {
        m_isTyped = m_nesting == 1;
        return evalText(text, sourceName);
    });
}

Outcome Interpreter::loadFile(const std::string &path)
{
    return topLevel([&] {
        std::optional<std::string> bytes = readWholeFile(toPath(path), largestTextFile);
        if (!bytes)
            throw Error("LOAD failed: " + toText(Value::string(path)));
        return loadText(files::utf8Text(std::move(*bytes), m_console.codePage()), path);
    });
}

Outcome Interpreter::call(std::string_view name, std::span<const Value> arguments)
{
    return topLevel([&] { return apply(symbol(name), arguments); });
}

Outcome Interpreter::evaluate(const Value &form)
{
    return topLevel([&] { return evalTopForm(form); });
}

Value Interpreter::evalText(std::string_view text, std::string_view sourceName)
{
    return evalForms(text, sourceName, false);
}

Value Interpreter::loadText(std::string_view text, std::string_view sourceName)
{
    return evalForms(text, sourceName, true);
}

Value Interpreter::evalForms(std::string_view text, std::string_view sourceName, bool isLoading)
{
    const TextScope scope(m_textDepth);
    Reader reader(*this, sourceName);
    reader.feed(text);
    reader.finish();
    Value last;
    // Also what is to give up what fills the heap has to be read.
    constexpr std::int64_t roomToRead = 256L * 1024;
    const auto readForm = [&reader] {
        const Heap::Limit limit(Heap::limit() + roomToRead);
        return reader.next();
    };
    while (std::optional<Value> form = readForm())
        last = evalForm(*form, isLoading);
    return last;
}

Value Interpreter::evalTopForm(const Value &form)
{
    if (m_isCompiling) {
        if (std::optional<Value> value = m_machine->evaluate(form))
            return std::move(*value);
    }
    return eval(form);
}

Value Interpreter::evalForm(const Value &form, bool isLoading)
{
    if (!isLoading)
        return evalTopForm(form);
    const TextScope scope(m_loadDepth);
    try {
        return evalTopForm(form);
    } catch (const Error &error) {
        if (!isLeftOutWhileLoading(error))
            throw;
        m_console.write("\n" + error.summary() + "; this form of the file is left out.\n");
    }
    return {};
}

bool Interpreter::isLeftOutWhileLoading(const Error &error)
{
    if (m_loadDepth == 0)
        return false;
    return error.kind() == ErrorKind::MissingFunction ||
           (error.kind() == ErrorKind::Cancelled && !m_console.isAttended());
}

void Interpreter::define(std::string_view name, NativeClosure function, Arity arity, NativeKind kind)
{
    auto *native = new NativeFunction;
    Value value = Value::adopt(Tag::Native, native);
    native->function = [](Arguments &arguments) { return arguments.callee().closure(arguments); };
    native->closure = std::move(function);
    native->arity = arity;
    native->kind = kind;
    native->name = toUpperCase(name);
    setVariable(name, std::move(value));
}

void Interpreter::define(std::span<const NativeRow> rows)
{
    for (const NativeRow &row : rows) {
        auto *native = new NativeFunction;
        Value value = Value::adopt(Tag::Native, native);
        native->function = row.function;
        native->arity = row.arity;
        native->name = toUpperCase(row.name);
        native->usage = row.usage;
        native->help = row.help;
        setVariable(row.name, std::move(value));
    }
}

void Interpreter::defineSpecialForm(const SpecialFormRow &row)
{
    auto *native = new NativeFunction;
    Value value = Value::adopt(Tag::Native, native);
    native->specialForm = row.function;
    native->function = row.applied;
    native->kind = NativeKind::SpecialForm;
    native->arity = Arity::any();
    native->name = toUpperCase(row.name);
    native->usage = row.usage;
    native->help = row.help;
    setVariable(row.name, std::move(value));
}

void Interpreter::undefine(std::string_view name)
{
    Symbol *symbol = m_symbols.find(name);
    if (symbol && symbol->value().tag() == Tag::Native)
        symbol->value() = Value();
}

bool Interpreter::isDefined(std::string_view name) const
{
    const Symbol *symbol = m_symbols.find(name);
    return symbol && symbol->value().isFunction();
}

static FunctionEntry::Kind entryKind(NativeKind kind)
{
    switch (kind) {
    case NativeKind::SpecialForm:
        return FunctionEntry::Kind::SpecialForm;
    case NativeKind::External:
        return FunctionEntry::Kind::External;
    default:
        return FunctionEntry::Kind::Builtin;
    }
}

std::vector<FunctionEntry> Interpreter::functions() const
{
    std::vector<FunctionEntry> entries;
    for (const Symbol *symbol : m_symbols.all()) {
        FunctionEntry entry;
        entry.name = symbol->name();
        if (symbol->value().tag() == Tag::Native) {
            const NativeFunction &native = symbol->value().asNative();
            entry.kind = entryKind(native.kind);
            entry.arity = native.arity.text();
            entry.usage = native.usage;
            entry.help = native.help;
        } else if (symbol->value().tag() == Tag::Function) {
            const Function &function = symbol->value().asFunction();
            SourceMap::Place place = m_sources.place(function.location);
            entry.kind = FunctionEntry::Kind::User;
            entry.arity = std::to_string(function.parameterCount);
            entry.parameters = function.parameters.isNil() ? "()" : toText(function.parameters);
            entry.file = std::move(place.file);
            entry.line = place.line;
        } else {
            continue;
        }
        entries.push_back(std::move(entry));
    }
    return entries;
}

Value Interpreter::variable(std::string_view name) const
{
    const Symbol *symbol = m_symbols.find(name);
    return symbol ? symbol->value() : Value();
}

void Interpreter::setVariable(std::string_view name, Value value)
{
    intern(name).value() = std::move(value);
}

void Interpreter::setEnvironment(const std::string &name, const std::string &value)
{
    // What is replaced is not given back: nobody sets the same thing often enough to matter.
    constexpr std::size_t node = 128;
    m_environmentShare.grow(node + name.size() + value.size());
    m_environment[name] = value;
}

Value Interpreter::makeSelectionSet(const std::vector<std::uint64_t> &entities)
{
    auto *set = new SelectionSet;
    Value value = Value::adopt(Tag::SelectionSet, set);
    set->add(entities);
    set->mark = ++m_selectionSets;
    return value;
}

} // namespace host::lisp
