#pragma once

#include "host/lisp/Value.h"

#include <cstdint>

namespace host::lisp {

/// Walks the pairs of a list, for what looks at many of them and does little with each:
/// `for (PairWalk at(list); at.isPair(); at.step())`. The list must stay referenced meanwhile.
///
/// A walk along pointers takes as long as memory needs to say, pair by pair, where the next one is. Pairs of a list
/// that was built in one go mostly lie at even distances, so step() guesses that the distance is that of the step
/// before: the processor goes on with the guess at once, and what memory says later is only compared with it. Where
/// pairs lie anywhere the guesses are soon not believed any more and it is a walk like others.
class PairWalk
{
public:
    /// Stands at the first pair of `list`, which is referred to, not copied.
    explicit PairWalk(const Value &list) noexcept : m_rest(&list), m_pair(list.isCons() ? &list.asCons() : nullptr) {}

    /// False behind the last pair, at nil or at what a dotted list ends in.
    bool isPair() const noexcept { return m_rest->isCons(); }
    /// The item of the pair.
    const Value &item() const noexcept { return m_pair->car; }
    /// The list from this pair on, or what is behind the last one.
    const Value &rest() const noexcept { return *m_rest; }

    void step() noexcept
    {
        m_rest = &m_pair->cdr;
        if (!m_rest->isCons()) [[unlikely]]
            return;
        const Cons *const next = &m_rest->asCons();
        const auto here = reinterpret_cast<std::uintptr_t>(m_pair);
        std::uintptr_t guess = here + m_distance;
        if (guess == reinterpret_cast<std::uintptr_t>(next)) [[likely]] {
            keepGuess(guess);
            m_pair = reinterpret_cast<const Cons *>(guess);
        } else {
            m_distance = reinterpret_cast<std::uintptr_t>(next) - here;
            m_pair = next;
        }
    }

private:
    /// Without this the compiler would see that both are the same pointer and take the one that was read.
    static void keepGuess(std::uintptr_t &guess) noexcept
    {
#if defined(__GNUC__)
        asm("" : "+r"(guess)); // NOLINT(hicpp-no-assembler): no instruction
#else
        static_cast<void>(guess);
#endif
    }

    const Value *m_rest;
    const Cons *m_pair;
    std::uintptr_t m_distance = 0; ///< of the step before, wrapping around where it went back
};

} // namespace host::lisp
