#pragma once

#include "host/lisp/Console.h"
#include "host/lisp/Error.h"
#include "host/lisp/Native.h"
#include "host/lisp/SourceMap.h"
#include "host/lisp/Symbol.h"
#include "host/lisp/Value.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace host::lisp::compiled {
class Machine;
} // namespace host::lisp::compiled

namespace host::lisp {

/// What an engine may use; fixed from when it is made.
struct Settings
{
    /// Bytes of machine stack that an evaluation may use, counted from where the outermost run() or call() began.
    /// Deeper calls get the error "stack overflow". The default leaves natives a quarter of an 8 MB main stack.
    std::size_t stackBudget = 6 * 1024 * 1024;
    /// Evaluations between two calls of Console::poll(): how soon a loop notices that the user wants it to stop.
    std::uint32_t pollInterval = 10'000;
    /// The longest string, in bytes, that a program may make: a loop that doubles a string must not eat all memory.
    std::size_t longestString = 256 * 1024 * 1024;
};

/// What came of a run: either a value or an error.
struct Outcome
{
    /// The value of the last form; nil after an error.
    Value value;
    /// What went wrong. When `handledByProgram` is set, the program's own `*error*` already dealt with it and there is
    /// nothing to show.
    std::optional<Error> error;

    bool ok() const noexcept { return !error; }
};

struct Function;
class Interpreter;
class ListFunctions;

/// Hears of the calls of a program's functions, as a profiler does.
class CallObserver
{
public:
    virtual ~CallObserver() = default;
    /// A call begins. The function lives until left().
    virtual void entered(Interpreter &interpreter, const Function &function) = 0;
    /// The innermost call that was entered ended, with a value or an error.
    virtual void left() noexcept = 0;
};

/// A function that a symbol holds, for listings.
struct FunctionEntry
{
    enum class Kind : std::uint8_t
    {
        Builtin,     ///< of this engine
        SpecialForm, ///< gets its arguments unevaluated
        External,    ///< defined by whoever embeds the engine
        User         ///< of a program
    };

    std::string name; ///< upper case
    Kind kind = Kind::Builtin;
    std::string arity;      ///< "2", "1-3", "1+"; of user functions, how many parameters there are
    std::string parameters; ///< of a user function, as written: "(A B / C)"; empty for natives
    std::string usage;      ///< of a built-in, its arguments: "item list"
    std::string help;       ///< of a built-in, one line; empty when its table has none
    std::string file;       ///< where a user function was read; empty when unknown
    int line = 0;
};

/// One engine of the CAD Lisp dialect: all its state, and nothing outside. Engines live side by side, one a document.
///
/// Everything happens on one thread. Integers have 32 bits and wrap around on overflow in + - * 1+ 1- lsh, as the
/// dialect does. Strings are UTF-8; their functions count characters.
///
/// From outside an evaluation: run(), loadFile(), call(), evaluate(). These never throw and may also be called from
/// inside a native function, where they are an evaluation of their own: its errors end there. From inside native
/// functions: eval(), apply(), which throw Error; let it pass.
class Interpreter
{
public:
    /// Comes with all built-ins of the dialect, and 8 MB of address space for arguments. `console` must outlive the
    /// interpreter.
    explicit Interpreter(Console &console, Settings settings = {});
    ~Interpreter();
    Interpreter(const Interpreter &) = delete;
    Interpreter &operator=(const Interpreter &) = delete;

    /// Who prints, answers and says when to stop.
    Console &console() noexcept { return m_console; }
    /// As they were given.
    const Settings &settings() const noexcept { return m_settings; }

    // Whole evaluations.

    /// Evaluates all forms of `text` up to the first error. What the forms before it did stays done. `sourceName` is
    /// what messages call the text, usually a file's path; without one they name the line alone.
    Outcome run(std::string_view text, std::string_view sourceName = {});
    /// The same with a file, in what files::utf8Text() takes it for; a form that lacks a function is left out, see
    /// loadText(). `path` is a real path, not searched for.
    Outcome loadFile(const std::string &path);
    /// Calls the function that symbol `name` holds, in any mix of cases. The arguments are values, not forms: nothing
    /// evaluates them again. No function there is an error like any other.
    Outcome call(std::string_view name, std::span<const Value> arguments = {});
    /// Evaluates one form that was read already, by this interpreter.
    Outcome evaluate(const Value &form);
    /// True while any evaluation is under way, however deep inside natives.
    bool isRunning() const noexcept { return m_nesting > 0; }
    /// Whose wish the call under way is: the person's in the text of an outermost run(), outside of functions and of
    /// files that it loads.
    LoadedBy calledBy() const noexcept
    {
        return m_isTyped && m_textDepth == 1 && !m_frame ? LoadedBy::Person : LoadedBy::Program;
    }

    /// The source of the form under way: a file's path, or what run() was told; empty when it is unknown.
    std::string sourceOfCall() const { return m_sources.place(m_location).file; }

    // Functions and variables.

    /// Makes `function` callable as `name`, in any mix of cases, in place of what the symbol held.
    void define(std::string_view name, NativeClosure function, Arity arity, NativeKind kind = NativeKind::External);
    /// The same for a table of built-ins.
    void define(std::span<const NativeRow> rows);
    /// One that gets its arguments unevaluated; it fails by throwing Error, as natives do.
    void defineSpecialForm(const SpecialFormRow &row);
    /// Takes the function away; a symbol that holds something else than a native function is left alone.
    void undefine(std::string_view name);
    /// The symbol holds a function of any kind.
    bool isDefined(std::string_view name) const;
    /// All functions that symbols hold, sorted by name: the built-ins as well as what was defined since.
    std::vector<FunctionEntry> functions() const;

    /// The symbol of a name, in any mix of cases; made when there is none. Good as long as the interpreter.
    Symbol &intern(std::string_view name) { return m_symbols.intern(name); }
    /// All names that were ever read, defined or set.
    const SymbolTable &symbols() const noexcept { return m_symbols; }
    /// The value of a variable as it is bound now; nil when it has none.
    Value variable(std::string_view name) const;
    /// Sets the innermost binding, as setq does: during a call that may be a function's local.
    void setVariable(std::string_view name, Value value);

    /// The symbol T, which is true by custom.
    const Value &t() const noexcept { return m_t; }
    /// T or nil.
    Value boolean(bool truth) const noexcept { return truth ? m_t : Value(); }
    /// The symbol of a name as a value.
    Value symbol(std::string_view name) { return Value::symbol(intern(name)); }

    /// A new selection set with the next number, in the order given. Repeated entities are dropped.
    Value makeSelectionSet(const std::vector<std::uint64_t> &entities);

    /// Functions are compiled when they are called, and loops; programs do the same without, more slowly. On by
    /// default.
    void setCompiling(bool compiles) noexcept { m_isCompiling = compiles; }
    /// From now on `observer`, which must outlive the interpreter, hears of the calls of all functions that symbols
    /// hold and that are made later; calls are slower then. Without one they cost nothing.
    void setCallObserver(CallObserver &observer);

    // For native functions.

    /// Evaluates a form: a list calls, a symbol gives its value, everything else itself.
    Value eval(const Value &form);
    /// Evaluates the forms of a list in turn; the value of the last, nil when there is none.
    Value evalBody(const Value &forms);
    /// Calls a function value, a symbol that holds one, or a list (lambda (...) ...).
    Value apply(const Value &function, std::span<const Value> arguments);
    /// What apply() does first, to be done once before many calls: a symbol becomes the function it holds, a list
    /// (lambda (...) ...) or ((...) ...) a function. Fails with "no function definition" or "bad function".
    Value resolveFunction(const Value &function);
    /// A function made anew of such a list; fails likewise.
    Value makeFunction(const Value &list);
    /// A function of a parameter list, with "/" before the locals, and a body. `name` is null for a lambda.
    Value makeFunction(Symbol *name, const Value &parameters, const Value &body);
    /// Reads a whole text and evaluates it, throwing.
    Value evalText(std::string_view text, std::string_view sourceName);
    /// The same for a file's text, which is what `load` does: a form that fails because something it calls is not
    /// defined (yet), or because nobody is there to answer its prompt, is told and left out, and the forms behind it
    /// are evaluated all the same. `*error*` hears nothing of it.
    Value loadText(std::string_view text, std::string_view sourceName);
    /// Says that some work was done; every Settings::pollInterval of them the console is asked. For loops in natives.
    void tick()
    {
        if (--m_pollCountdown == 0)
            poll();
    }
    /// Lisp's `equal`, which the user can stop.
    bool equal(const Value &left, const Value &right, double fuzz = 0.0);
    /// apply() with `*error*` out of reach: an error that programs may catch comes back as a catch-all error object.
    Value catchAll(const Value &function, std::span<const Value> arguments);
    /// Throws "stack overflow" when the machine stack is used up: for natives that recurse by themselves.
    void checkStack()
    {
        if (reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)) < m_stackLimit)
            raiseStackOverflow();
    }
    /// Throws when a string of that many bytes may not be made: it would be too long, or the heap has no room for it.
    void checkStringLength(std::size_t bytes) const;

    /// Where forms were read, by the marks of their pairs.
    SourceMap &sources() noexcept { return m_sources; }
    /// Values that (vl-bb-set) keeps, by upper-case name.
    std::map<std::string, Value> &blackboard() noexcept { return m_blackboard; }
    /// What (setenv) keeps, by name; it comes before the environment of the process.
    const std::map<std::string, std::string> &environment() const noexcept { return m_environment; }
    /// The process keeps its own: programs of one drawing do not change it for others.
    void setEnvironment(const std::string &name, const std::string &value);
    /// Characters typed but not yet taken by (read-char).
    std::string &typedAhead() noexcept { return m_typedAhead; }

private:
    friend class compiled::Machine;

    /// A user function under way. Lives on the machine stack, or in the machine of compiled code.
    struct CallFrame
    {
        CallFrame *outer;
        const Function *function;
        Location location; ///< of the calling form
    };
    // What lives on the machine stack and takes things back when it goes.
    class ValueFrame;
    class Binding;
    class TopLevel;
    class TextScope;

    Value evalList(const Value &form);
    void evalArguments(const Value &forms, ValueFrame &values);
    Value headFunction(const Value &head);
    Value callNative(const NativeFunction &native, const Value *values, std::size_t count);
    Value callUser(const Function &function, ValueFrame &values, Location location);
    Value callWatched(const Function &function, ValueFrame &values, Location location);
    Value callTraced(const Function &function, ValueFrame &values, Location location);
    Value callSpecialForm(const NativeFunction &form, const Value &arguments, Location location);
    /// Throws `error` with place and chain, after calling `*error*`.
    [[noreturn]] void raise(Error error);
    [[noreturn]] void raiseArgumentCount(const Function &function, std::size_t given);
    [[noreturn]] void raiseStackOverflow();
    void signal(Error &error, const NativeFunction *native);
    [[noreturn]] void rethrowSignalled(const NativeFunction &native);
    void fillPlace(Error &error, const NativeFunction *native) const;
    void fillChain(Error &error) const;
    void callErrorHandler(Error &error);
    bool isLeftOutWhileLoading(const Error &error);
    Value evalForm(const Value &form, bool isLoading);
    Value evalTopForm(const Value &form);
    Value evalForms(std::string_view text, std::string_view sourceName, bool isLoading);
    void poll();

    template <typename Body>
    Outcome topLevel(Body &&body);

    Console &m_console;
    Settings m_settings;
    SymbolTable m_symbols; ///< the values of all variables are in them
    Value m_t;
    Symbol *m_errorSymbol = nullptr;
    Symbol *m_lambdaSymbol = nullptr;
    Symbol *m_slashSymbol = nullptr;

    std::unique_ptr<std::byte[]> m_stackMemory; ///< for arguments and saved values of variables
    Value *m_stackTop = nullptr;
    Value *m_stackEnd = nullptr;

    std::uintptr_t m_stackLimit = 0;        ///< lowest address that the machine stack may reach
    std::uint32_t m_pollCountdown = 1;      ///< ticks until the console is asked
    int m_nesting = 0;                      ///< whole evaluations under way, one inside the other
    int m_textDepth = 0;                    ///< texts under way, one loading the other
    bool m_isTyped = false;                 ///< the outermost of them is no file
    int m_loadDepth = 0;                    ///< forms of files under way, one loading the other
    int m_catchDepth = 0;                   ///< catchAll() under way: errors are theirs, not `*error*`'s
    bool m_inErrorHandler = false;          ///< an error in `*error*` calls none
    CallObserver *m_callObserver = nullptr; ///< hears of calls of functions with its mark; null for none
    CallFrame *m_frame = nullptr;           ///< the innermost user function under way
    Location m_location = 0;                ///< of the list form evaluated last

    std::unique_ptr<compiled::Machine> m_machine;
    std::unique_ptr<ListFunctions> m_listFunctions;
    bool m_isCompiling = true;

    SourceMap m_sources;
    std::map<std::string, Value> m_blackboard;
    std::map<std::string, std::string> m_environment;
    HeapShare m_environmentShare;
    std::string m_typedAhead;
    std::uint32_t m_selectionSets = 0;
};

} // namespace host::lisp
