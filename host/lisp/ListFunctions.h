#pragma once

#include "host/lisp/Value.h"

#include <array>

namespace host::lisp {

/// Functions made of lists that programs call as such: what defun-q makes, and quoted lambdas. A list cannot change, so
/// what was made of it is good for as long as there is the list; the last ones called are kept, with their code.
class ListFunctions
{
public:
    /// What was made of this very list; null when it is not kept.
    const Value *find(const Value &list) const
    {
        const Entry &entry = m_entries[placeOf(list)];
        return entry.list.isCons() && &entry.list.asCons() == &list.asCons() ? &entry.function : nullptr;
    }
    /// Keeps both in place of others.
    void keep(const Value &list, const Value &function) { m_entries[placeOf(list)] = {list, function}; }
    void clear() { m_entries = {}; }

private:
    struct Entry
    {
        Value list;
        Value function;
    };
    static constexpr std::size_t places = 64;

    static std::size_t placeOf(const Value &list)
    {
        return reinterpret_cast<std::uintptr_t>(&list.asCons()) / sizeof(Cons) % places;
    }

    std::array<Entry, places> m_entries;
};

} // namespace host::lisp
