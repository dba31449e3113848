#pragma once

#include "host/lisp/Error.h"
#include "host/lisp/Native.h"
#include "host/lisp/Value.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace host::lisp {

class Interpreter;

/// A point argument: two or three numbers.
struct Point
{
    double x = 0;
    double y = 0;
    double z = 0; ///< 0 when the list had two numbers
    bool hasZ = false;

    Value toValue() const { return hasZ ? Value::point(x, y, z) : Value::point(x, y); }
};

/// The evaluated arguments of one call of a native function. Indices run from 0; the arity is checked before the call.
/// The typed getters throw the dialect's error (`bad argument type: stringp 5`) with function and argument number. An
/// index behind the last argument reads as nil, so an optional argument may be left out or given as nil alike.
class Arguments
{
public:
    Arguments(Interpreter &interpreter, const NativeFunction &callee, const Value *values, std::size_t count)
        : m_interpreter(interpreter), m_callee(callee), m_values(values), m_count(count)
    {
    }

    Interpreter &interpreter() const noexcept { return m_interpreter; }
    const NativeFunction &callee() const noexcept { return m_callee; }
    std::size_t size() const noexcept { return m_count; }
    const Value &operator[](std::size_t index) const noexcept
    {
        return index < m_count ? m_values[index] : detail::nil;
    }
    const Value *begin() const noexcept { return m_values; }
    const Value *end() const noexcept { return m_values + m_count; }
    /// Given, and not nil.
    bool has(std::size_t index) const noexcept { return (*this)[index].isTrue(); }

    const std::string &string(std::size_t index) const;
    Symbol &symbol(std::size_t index) const;
    /// An integer; a real is refused.
    std::int32_t integer(std::size_t index) const;
    /// Either kind of number.
    double real(std::size_t index) const;
    /// The argument itself, after checking that it is a number.
    const Value &number(std::size_t index) const;
    /// nil or a cons.
    const Value &list(std::size_t index) const;
    Point point(std::size_t index) const;
    std::uint64_t entity(std::size_t index) const;
    SelectionSet &selectionSet(std::size_t index) const;
    /// An open file.
    File &file(std::size_t index) const;

    /// For optional arguments: `otherwise` when left out or nil.
    std::string stringOr(std::size_t index, std::string_view otherwise) const;
    std::int32_t integerOr(std::size_t index, std::int32_t otherwise) const;
    double realOr(std::size_t index, double otherwise) const;

    /// T or nil.
    Value boolean(bool truth) const noexcept;

    /// Throws `message`, naming the function.
    [[noreturn]] void fail(std::string message) const;
    /// Throws `bad argument type: <predicate> <argument>`. Predicates that end in a colon print as they are.
    [[noreturn]] void badType(std::size_t index, std::string_view predicate) const;
    /// Throws `bad argument value: <what> <argument>`.
    [[noreturn]] void badValue(std::size_t index, std::string_view what = {}) const;

private:
    Interpreter &m_interpreter;
    const NativeFunction &m_callee;
    const Value *m_values;
    std::size_t m_count;
};

} // namespace host::lisp
