#pragma once

#include "host/lisp/Value.h"

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace host::lisp {

/// A name and the value it has now. Functions and variables share the one value; a function call saves the values of
/// its parameters and locals and puts them back when it ends.
class Symbol
{
public:
    explicit Symbol(std::string name) : m_name(std::move(name)) {}
    Symbol(const Symbol &) = delete;
    Symbol &operator=(const Symbol &) = delete;

    /// In upper case, as it prints.
    const std::string &name() const noexcept { return m_name; }
    const Value &value() const noexcept { return m_value; }
    Value &value() noexcept { return m_value; }

private:
    std::string m_name;
    Value m_value;
};

/// All symbols of one interpreter. A symbol lives as long as the table.
class SymbolTable
{
public:
    /// The symbol of that name, in any mix of cases, made if there is none. "nil" is no symbol: callers treat it first.
    Symbol &intern(std::string_view name);
    /// The same without making one; null when there is none.
    Symbol *find(std::string_view name) const;
    /// All of them, sorted by name.
    std::vector<Symbol *> all() const;

private:
    std::unordered_map<std::string_view, std::unique_ptr<Symbol>> m_symbols;
    HeapShare m_share;
};

} // namespace host::lisp
