#pragma once

#include "host/lisp/compiled/Code.h"
#include "host/lisp/compiled/Step.h"

// The instructions. Each comment says what stands behind the operation; `-` is a word that is not used.

namespace host::lisp::compiled {

enum class Arithmetic : std::uint8_t
{
    Add,
    Subtract,
    Multiply,
    Divide
};

enum class Comparison : std::uint8_t
{
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual,
    Equal,     ///< =
    NotEqual,  ///< /=
    Same,      ///< eq
    LookAlike, ///< equal
};

enum class Predicate : std::uint8_t
{
    IsTrue,
    IsAtom,
    IsList,
    IsPair,
    IsNumber,
    IsSymbol,
    IsZero,
    IsNegative
};

/// Built-ins that call a function for the items of lists.
enum class Walk : std::uint8_t
{
    All,         ///< mapcar
    Some,        ///< vl-some
    Every,       ///< vl-every
    Without,     ///< vl-remove-if
    Only,        ///< vl-remove-if-not
    FromFirst,   ///< vl-member-if
    FromFirstNot ///< vl-member-if-not
};

/// How many words an instruction has that takes operands and gives a result or jumps.
inline constexpr std::size_t operandWords = 5;

/// left, right, symbol's cell, site: a result to the stack or into the cell.
Operation arithmeticOperation(Arithmetic kind, From left, From right, To result);
Operation consOperation(From left, From right, To result);
/// operand, -, symbol's cell, site. `path` is that of a function like cadr, as PairFunctions.cpp has it; null for those
/// that go further than three steps.
Operation partOperation(std::size_t length, unsigned path, From operand, To result);
/// left, right, target, site: jumps when the comparison holds, or when it does not.
Operation comparisonOperation(Comparison kind, From left, From right, bool jumpsWhen);
/// operand, -, target, site
Operation predicateOperation(Predicate kind, From operand, bool jumpsWhen);

/// value or cell: puts it onto the stack.
extern const Operation pushOperation;
/// cell: takes it from the stack.
extern const Operation storeOperation;
/// value, cell
extern const Operation copyOperation;
/// Takes the topmost value away.
extern const Operation dropOperation;
/// number: the topmost value takes the place of one so far below it.
extern const Operation keepOperation;
/// number, value: a copy of the value takes the place of the one so far below the first free place.
extern const Operation keepValueOperation;
/// target: a step forward, without condition.
extern const Operation jumpOperation;
/// target: goes there with the topmost value, if it is true; else takes it away.
extern const Operation jumpKeepingOperation;
/// target, location: a step back.
extern const Operation loopOperation;
/// target, number, as many pairs of a symbol and a native: goes to the target when one of the symbols holds something
/// else.
Operation guardOperation(std::size_t pairs);
/// form: has the evaluator do it; puts its value onto the stack.
extern const Operation evaluateOperation;
/// list of forms, to be evaluated in turn.
extern const Operation evaluateBodyOperation;
/// The instructions of a walk, which follow each other in this order.
struct WalkOperations
{
    Operation begin; ///< site, target: with the function and the lists on the stack; has the value there at the target
    Operation next;  ///< the same: calls the function with the next items
    Operation
        take; ///< site, target, target: takes what it gave; to the second target, where the next items are, or the end
};
const WalkOperations &walkOperations(Walk kind);
/// The most arguments that applyOperation hands over by itself.
inline constexpr std::size_t mostApplied = 8;
/// site: calls a function with the items of a list, both on the stack.
extern const Operation applyOperation;
/// The end of code that is no function's.
extern const Operation endOperation;

/// site: that the topmost value is an integer.
extern const Operation repeatOperation;
/// target, location: a round less; behind the last the count goes and the step is to the target.
extern const Operation repeatNextOperation;
/// symbol, site: takes a list from the stack.
extern const Operation foreachOperation;
/// target, location
extern const Operation foreachNextOperation;

/// symbol, form, target, location: puts what the symbol calls onto the stack; the value of the form, and on to the
/// target, when it is a special form.
extern const Operation headOperation;
/// number, location: calls what lies below so many arguments.
extern const Operation callOperation;
/// 1, location: the same.
extern const Operation callWithOneOperation;
/// site
extern const Operation callNativeOperation;
/// site: a list of as many values.
extern const Operation listOperation;
/// symbol's cell: ends a function of one variable, a parameter.
extern const Operation returnOneOperation;
/// Ends any function.
extern const Operation returnOperation;

} // namespace host::lisp::compiled
