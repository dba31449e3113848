#include "host/app/batch/Profile.h"

#include "host/lisp/Function.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// Ways to be called that are kept apart; programs that call each other in ever new orders have too many.
constexpr std::size_t mostNodes = 100'000;

double seconds(std::chrono::steady_clock::duration time)
{
    return std::chrono::duration<double>(time).count();
}

} // namespace

Profile::Profile() : m_booked(Clock::now())
{
    Entry &outside = m_entries.emplace_back();
    outside.name = "(outside of functions)";
    m_nodes.push_back({.entry = &outside, .caller = nullptr});
    m_calls.push_back({&outside, &m_nodes.front(), m_booked});
}

Profile::Entry &Profile::entryOf(lisp::Interpreter &interpreter, const lisp::Function &function)
{
    Known &known = m_known[&function];
    if (!known.entry || known.name != function.name || known.location != function.location)
        known = {function.name, function.location, &makeEntry(interpreter, function)};
    return *known.entry;
}

Profile::Entry &Profile::makeEntry(lisp::Interpreter &interpreter, const lisp::Function &function)
{
    std::string place;
    if (const auto source = interpreter.sources().place(function.location); source.line > 0)
        place = (source.file.empty() ? "line " : source.file + ':') + std::to_string(source.line);
    Entry *&entry = m_byName[{function.displayName(), place}];
    if (!entry) {
        entry = &m_entries.emplace_back();
        entry->name = function.displayName();
        entry->place = place;
    }
    return *entry;
}

Profile::Node &Profile::nodeOf(Node &caller, Entry &entry)
{
    const auto known = caller.called.find(&entry);
    if (known != caller.called.end())
        return *known->second;
    if (m_nodes.size() >= mostNodes)
        return caller;
    Node &node = m_nodes.emplace_back(Node{.entry = &entry, .caller = &caller});
    caller.called.emplace(&entry, &node);
    return node;
}

void Profile::book()
{
    const Clock::time_point now = Clock::now();
    m_calls.back().node->own += now - m_booked;
    m_calls.back().entry->own += now - m_booked;
    m_booked = now;
}

void Profile::entered(lisp::Interpreter &interpreter, const lisp::Function &function)
{
    book();
    Entry &entry = entryOf(interpreter, function);
    ++entry.calls;
    ++entry.depth;
    m_calls.push_back({&entry, &nodeOf(*m_calls.back().node, entry), m_booked});
}

void Profile::left() noexcept
{
    book();
    const Call call = m_calls.back();
    m_calls.pop_back();
    if (--call.entry->depth == 0)
        call.entry->total += m_booked - call.begin;
}

QString Profile::table() const
{
    std::vector<const Entry *> rows;
    for (const Entry &entry : m_entries)
        rows.push_back(&entry);
    std::ranges::stable_sort(rows, std::ranges::greater(), [](const Entry *entry) { return entry->own; });
    QString text = u"     calls    total s      own s  function\n"_s;
    for (const Entry *entry : rows) {
        const bool isOutside = entry == &m_entries.front();
        text += u"%1 %2 %3  %4"_s.arg(isOutside ? u"-"_s : QString::number(entry->calls), 10)
                    .arg(isOutside ? u"-"_s : QString::number(seconds(entry->total), 'f', 4), 10)
                    .arg(QString::number(seconds(entry->own), 'f', 4), 10)
                    .arg(QString::fromStdString(entry->name));
        text += entry->place.empty() ? u"\n"_s : u"  %1\n"_s.arg(QString::fromStdString(entry->place));
    }
    return text;
}

QByteArray Profile::foldedStacks() const
{
    QByteArray text;
    for (const Node &node : m_nodes) {
        const auto own = std::chrono::duration_cast<std::chrono::microseconds>(node.own).count();
        if (own <= 0)
            continue;
        std::string stack;
        for (const Node *at = &node; at; at = at->caller) {
            std::string name = at->entry->name;
            std::ranges::replace_if(
                name, [](char c) { return c == ';' || c == ' '; }, '_');
            stack.insert(0, at == &node ? name : name + ';');
        }
        text += QByteArray::fromStdString(stack) + ' ' + QByteArray::number(qlonglong(own)) + '\n';
    }
    return text;
}

} // namespace host::app
