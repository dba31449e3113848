#pragma once

#include "host/lisp/Value.h"

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace host::lisp {
class Interpreter;
} // namespace host::lisp

namespace host::lisp::compiled {

/// How a call of a built-in becomes code.
enum class Shape : std::uint8_t
{
    Quote,
    Setq,
    If,
    Cond,
    While,
    Repeat,
    Foreach,
    Progn,
    And,
    Or,
    Lambda,   ///< a special form that evaluates nothing
    Function, ///< likewise
    Not,
    Arithmetic, ///< `detail` is an Arithmetic
    Increment,  ///< likewise, with 1
    Comparison, ///< `detail` is a Comparison
    Predicate,  ///< `detail` is a Predicate
    Part,       ///< `detail` is the number of steps and, shifted left by 4, their path
    Cons,
    List,
    Plain,    ///< neither calls functions nor changes variables
    Callback, ///< calls an argument and may do so with anything
    Walk,     ///< likewise, with items of lists; `detail` is a Walk
    Apply,    ///< likewise
};

/// A built-in that the compiler knows.
struct KnownBuiltin
{
    Shape shape;
    unsigned detail = 0;
    const NativeFunction *native = nullptr;
};

/// The built-ins that become more than a call, by what they are, not by what they are called.
class Shapes
{
public:
    explicit Shapes(Interpreter &interpreter);
    /// Null for whatever else a symbol may hold.
    const KnownBuiltin *find(const Value &held) const;

private:
    void add(Interpreter &interpreter, const char *name, Shape shape, unsigned detail);

    std::unordered_map<const NativeFunction *, KnownBuiltin> m_known;
    std::vector<Value> m_held; ///< so that none of them goes and another one takes its place
};

} // namespace host::lisp::compiled
