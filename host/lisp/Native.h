#pragma once

#include "host/lisp/Value.h"

#include <functional>
#include <string>

namespace host::lisp {

class Arguments;
class Interpreter;

/// How many arguments a function takes.
struct Arity
{
    int least = 0;
    int most = 0; ///< -1: any number

    static constexpr Arity exactly(int count) { return {count, count}; }
    static constexpr Arity atLeast(int count) { return {count, -1}; }
    static constexpr Arity between(int least, int most) { return {least, most}; }
    static constexpr Arity any() { return {0, -1}; }

    constexpr bool accepts(std::size_t count) const
    {
        return count >= static_cast<std::size_t>(least) && (most < 0 || count <= static_cast<std::size_t>(most));
    }
    /// "2", "1-3" or "1+".
    std::string text() const;
};

enum class NativeKind : std::uint8_t
{
    Builtin,     ///< part of the language: type SUBR
    SpecialForm, ///< gets its arguments unevaluated: type SUBR
    External,    ///< comes and goes at run time: type EXRXSUBR
};

/// A function written in C++. It gets evaluated arguments whose number fits its arity and returns the result; it fails
/// by throwing Error, best through Arguments.
using NativePointer = Value (*)(Arguments &);
/// The same with state of its own.
using NativeClosure = std::function<Value(Arguments &)>;
/// Gets the list of its argument forms, unevaluated.
using SpecialFormPointer = Value (*)(Interpreter &, const Value &forms);

/// One row of a table of built-ins. Documents and help are made from its texts.
struct NativeRow
{
    const char *name;
    NativePointer function;
    Arity arity;
    const char *usage = ""; ///< its arguments: "item list", "[point] mode", "text..."
    const char *help = "";  ///< one line: what it gives, or does
};

/// One row of a table of special forms, whose texts serve as those of a NativeRow.
struct SpecialFormRow
{
    const char *name;
    SpecialFormPointer function;
    const char *usage = "";
    const char *help = "";
    NativePointer applied = nullptr; ///< what (apply) and the like call with values; null: they refuse the form
};

/// A native function as a value.
struct NativeFunction : Object
{
    NativePointer function = nullptr; ///< of a special form: what it is to (apply); null there for none
    SpecialFormPointer specialForm = nullptr;
    NativeKind kind = NativeKind::Builtin;
    Arity arity;
    std::string name;       ///< upper case
    const char *usage = ""; ///< as in NativeRow; static
    const char *help = "";  ///< likewise
    NativeClosure closure;
};

inline NativeFunction &Value::asNative() const noexcept
{
    assert(tag() == Tag::Native);
    return *static_cast<NativeFunction *>(m_object);
}

} // namespace host::lisp
