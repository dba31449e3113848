#pragma once

#include "host/lisp/Error.h"
#include "host/lisp/Native.h"
#include "host/lisp/Value.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace host::lisp {

class Interpreter;

/// A point argument: two or three numbers, in whatever coordinates the function says it takes.
struct Point
{
    double x = 0;
    double y = 0;
    double z = 0; ///< 0 when the list had two numbers
    bool hasZ = false;

    /// A list of reals, of as many as there were: what came flat goes back flat.
    Value toValue() const { return hasZ ? Value::point(x, y, z) : Value::point(x, y); }
};

/// The evaluated arguments of one call of a native function. Indices run from 0; the arity is checked before the call.
/// The typed getters throw the dialect's error (`bad argument type: stringp 5`) with function and argument number. An
/// index behind the last argument reads as nil, so an optional argument may be left out or given as nil alike.
///
/// An object of this class lives as long as the call; so do the references that it gives, unless the function evaluates
/// something that could let go of the values. Copy a Value to keep it.
class Arguments
{
public:
    /// Made by the interpreter for each call: `values` are `count` values on its stack.
    Arguments(Interpreter &interpreter, const NativeFunction &callee, const Value *values, std::size_t count)
        : m_interpreter(interpreter), m_callee(callee), m_values(values), m_count(count)
    {
    }

    /// Whose program calls: for eval(), apply(), ticks, and what embeds it.
    Interpreter &interpreter() const noexcept { return m_interpreter; }
    /// The function that is called, by which one body may serve several rows of a table.
    const NativeFunction &callee() const noexcept { return m_callee; }
    std::size_t size() const noexcept { return m_count; }
    /// The argument as it came; nil behind the last one.
    const Value &operator[](std::size_t index) const noexcept
    {
        return index < m_count ? m_values[index] : detail::nil;
    }
    /// All of them in order, for functions of any number.
    const Value *begin() const noexcept { return m_values; }
    const Value *end() const noexcept { return m_values + m_count; }
    /// Given, and not nil.
    bool has(std::size_t index) const noexcept { return (*this)[index].isTrue(); }

    // Arguments of a kind; another one throws `bad argument type: <predicate> <argument>`.

    /// UTF-8. "stringp"
    const std::string &string(std::size_t index) const;
    /// The symbol itself; nil is none. "symbolp"
    Symbol &symbol(std::size_t index) const;
    /// An integer; what is none, whole reals among it, is refused as "fixnump:".
    std::int32_t integer(std::size_t index) const;
    /// Either kind of number. "numberp:"
    double real(std::size_t index) const;
    /// The argument itself, after checking that it is a number: where an integer stays one. "numberp:"
    const Value &number(std::size_t index) const;
    /// nil or a cons, which may be dotted: functions to which that matters look themselves. "listp"
    const Value &list(std::size_t index) const;
    /// A list of two or three numbers and nothing behind them. "2D/3D point:"
    Point point(std::size_t index) const;
    /// The embedder's number of an entity, which need not be there any more. "lentityp"
    std::uint64_t entity(std::size_t index) const;
    /// To be changed in place by whoever is called to do that. "lselsetp"
    SelectionSet &selectionSet(std::size_t index) const;
    /// An open file; a closed one is refused like something else. "streamp"
    File &file(std::size_t index) const;

    /// For optional arguments: `otherwise` when left out or nil; one that is there must be of the kind.
    /// A copy: `otherwise` may be a temporary.
    std::string stringOr(std::size_t index, std::string_view otherwise) const;
    std::int32_t integerOr(std::size_t index, std::int32_t otherwise) const;
    /// An integer counts as a real here too.
    double realOr(std::size_t index, double otherwise) const;

    /// T or nil, for predicates' results.
    Value boolean(bool truth) const noexcept;

    // Errors of the dialect, which programs may catch. Function and place are added on the way out.

    /// Throws `message`, naming the function.
    [[noreturn]] void fail(std::string message) const;
    /// Throws `bad argument type: <predicate> <argument>` with the argument's number; a long argument is shown short.
    /// The predicate is printed as it is: some of the dialect end in a colon.
    [[noreturn]] void badType(std::size_t index, std::string_view predicate) const;
    /// The same for an argument of the right kind that the function cannot use: `bad argument value: <what>
    /// <argument>`.
    [[noreturn]] void badValue(std::size_t index, std::string_view what = {}) const;

private:
    Interpreter &m_interpreter;
    const NativeFunction &m_callee;
    const Value *m_values;
    std::size_t m_count;
};

} // namespace host::lisp
