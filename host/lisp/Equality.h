#pragma once

#include "host/lisp/Value.h"

#include <cmath>
#include <vector>

namespace host::lisp {

inline bool isEqualAtom(const Value &left, const Value &right, double fuzz)
{
    if (left.isNumber() && right.isNumber()) {
        const double a = left.asReal();
        const double b = right.asReal();
        return a == b || std::fabs(a - b) <= fuzz;
    }
    return left.isSame(right);
}

/// isEqual() with `step` called for every pair of items compared, so that comparing two lists that hold other lists
/// many times over, which may take for ever, can be stopped: `step` may throw.
template <typename Step>
bool isEqual(const Value &left, const Value &right, double fuzz, Step step)
{
    struct Pair
    {
        const Value *left;
        const Value *right;
    };
    std::vector<Pair> waiting;
    const Value *a = &left;
    const Value *b = &right;
    while (true) {
        const bool bothPairs = a->isCons() && b->isCons();
        if (bothPairs && &a->asCons() != &b->asCons()) {
            step();
            waiting.push_back({&a->cdr(), &b->cdr()});
            a = &a->car();
            b = &b->car();
            continue;
        }
        if (!bothPairs && !isEqualAtom(*a, *b, fuzz))
            return false;
        if (waiting.empty())
            return true;
        a = waiting.back().left;
        b = waiting.back().right;
        waiting.pop_back();
    }
}

} // namespace host::lisp
