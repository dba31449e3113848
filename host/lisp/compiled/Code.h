#pragma once

#include "host/lisp/SourceMap.h"
#include "host/lisp/Symbol.h"
#include "host/lisp/Value.h"

#include <cstdint>
#include <deque>
#include <vector>

namespace host::lisp::compiled {

class Machine;
union Word;

/// One instruction at work. `at` is its first word, `top` the first free place of the machine's stack. Gives the
/// instruction to go on with, null where the code ends, and has told the machine the stack's top by then.
using Operation = const Word *(*)(Machine &machine, const Word *at, Value *top);

/// Where a built-in is called in a source, for what an instruction cannot do by itself: errors, and unusual arguments.
struct Site
{
    const NativeFunction *native = nullptr;
    Location location = 0;
    std::size_t count = 0; ///< of its arguments
};

/// What code is made of: the operation of an instruction, or one of its operands behind it.
union Word {
    Operation operation;
    Symbol *symbol;
    Value *cell;        ///< where a symbol keeps its value
    const Value *value; ///< the same to be read, or a constant
    const Word *target; ///< where to go on
    const Site *site;
    const NativeFunction *native;
    std::size_t number;
};
static_assert(sizeof(Word) == 8);

/// A list of forms as instructions. Its operands point into the list that it was made from, which is immutable and
/// which whoever owns the code keeps, and to symbols. Good for as long as the interpreter and never changed: built-ins
/// that it was made for are asked for again where it runs, and where a symbol holds something else by then, the
/// evaluator does the form.
struct Code
{
    std::vector<Word> words;
    std::deque<Site> sites; ///< that words point to
    std::deque<Value> kept; ///< built-ins that it was made for, and functions made of literal lambdas
    Value *onlyVariable =
        nullptr;               ///< of a function whose one variable is a parameter: where its symbol keeps its value
    std::size_t stackNeed = 0; ///< the most places of the stack that it uses besides the arguments of its function
    HeapShare share;           ///< what all this takes

    const Word *begin() const noexcept { return words.data(); }
};

} // namespace host::lisp::compiled
