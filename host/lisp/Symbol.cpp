#include "host/lisp/Symbol.h"

#include "host/lisp/Text.h"

namespace host::lisp {

Symbol *SymbolTable::find(std::string_view name) const
{
    const auto found = m_symbols.find(toUpperCase(name));
    return found == m_symbols.end() ? nullptr : found->second.get();
}

Symbol &SymbolTable::intern(std::string_view name)
{
    std::string upper = toUpperCase(name);
    if (const auto found = m_symbols.find(upper); found != m_symbols.end())
        return *found->second;
    // With its node and bucket in the table.
    constexpr std::size_t memory = Heap::blockOf(sizeof(Symbol)) + 64;
    m_share.grow(memory + upper.capacity());
    auto symbol = std::make_unique<Symbol>(std::move(upper));
    Symbol &made = *symbol;
    m_symbols.emplace(made.name(), std::move(symbol));
    return made;
}

std::vector<Symbol *> SymbolTable::all() const
{
    std::vector<Symbol *> symbols;
    symbols.reserve(m_symbols.size());
    for (const auto &[name, symbol] : m_symbols)
        symbols.push_back(symbol.get());
    std::sort(symbols.begin(), symbols.end(),
              [](const Symbol *left, const Symbol *right) { return left->name() < right->name(); });
    return symbols;
}

} // namespace host::lisp
