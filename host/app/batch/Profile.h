#pragma once

#include "host/lisp/Interpreter.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <deque>
#include <map>
#include <unordered_map>
#include <vector>

namespace host::app {

/// Measures where programs spend their time, function by function. Built-in functions count for the function that
/// calls them. Observes any number of engines, as long as they take turns.
class Profile final : public lisp::CallObserver
{
public:
    Profile();
    /// What happened so far is not to be measured.
    void start() { m_booked = Clock::now(); }

    void entered(lisp::Interpreter &interpreter, const lisp::Function &function) override;
    void left() noexcept override;

    /// A table, the functions with the longest time of their own first: calls, seconds from call to return (of calls
    /// within calls of the same function the outermost counts), seconds without the functions that it called.
    QString table() const;
    /// A line for each way in which a function was called, "OUTER;INNER MICROSECONDS", with its own time: what programs
    /// that draw flame graphs take as folded stacks.
    QByteArray foldedStacks() const;

private:
    using Clock = std::chrono::steady_clock;

    /// A function as it shows in the results: those of a name and place are one.
    struct Entry
    {
        std::string name;
        std::string place; ///< "walls.lsp:12", empty when unknown
        std::uint64_t calls = 0;
        Clock::duration total{};
        Clock::duration own{};
        int depth = 0; ///< calls under way
    };
    /// A function as called by those above it.
    struct Node
    {
        Entry *entry;
        Node *caller;
        std::map<Entry *, Node *> called = {};
        Clock::duration own{};
    };
    struct Call
    {
        Entry *entry;
        Node *node; ///< that of a caller where there are too many
        Clock::time_point begin;
    };

    /// What is known of a function that is called again.
    struct Known
    {
        const lisp::Symbol *name;
        lisp::Location location;
        Entry *entry;
    };

    Entry &entryOf(lisp::Interpreter &interpreter, const lisp::Function &function);
    Entry &makeEntry(lisp::Interpreter &interpreter, const lisp::Function &function);
    Node &nodeOf(Node &caller, Entry &entry);
    /// Books the time since the last call or return.
    void book();

    std::deque<Entry> m_entries;
    std::map<std::pair<std::string, std::string>, Entry *> m_byName;
    std::unordered_map<const lisp::Function *, Known> m_known; ///< the address may be another one's meanwhile
    std::deque<Node> m_nodes;
    std::vector<Call> m_calls; ///< under way, the innermost last
    Clock::time_point m_booked;
};

} // namespace host::app
