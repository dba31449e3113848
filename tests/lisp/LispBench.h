#pragma once

#include "host/lisp/Arguments.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Printer.h"

#include <deque>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

namespace host::lisp::test {

/// A console that remembers what it was told and answers what the test put in.
class TestConsole : public Console
{
public:
    void write(std::string_view text) override { output += text; }
    PollAnswer poll() override
    {
        ++polls;
        return polls >= stopAtPoll ? PollAnswer::Stop : PollAnswer::Continue;
    }
    std::optional<std::string> readLine() override
    {
        if (typed.empty())
            return std::nullopt;
        std::string line = typed.front();
        typed.pop_front();
        return line;
    }
    Value systemVariable(std::string_view name) override
    {
        const auto found = variables.find(std::string(name));
        return found == variables.end() ? Value() : found->second;
    }

    std::int64_t heapLimit() override { return heap; }

    std::int64_t heap = Heap::unlimited;
    std::string output;
    std::deque<std::string> typed;
    std::map<std::string, Value> variables;
    int polls = 0;
    int stopAtPoll = 1'000'000'000;
};

struct Row
{
    const char *source;
    const char *expected;
};

/// An interpreter with such a console.
struct Bench
{
    explicit Bench(const Settings &settings = {}) : interpreter(console, settings) {}

    TestConsole console;
    Interpreter interpreter;

    /// The printed result, or "! " and the error without its place; "!! " when `*error*` dealt with it.
    std::string operator()(std::string_view source)
    {
        const Outcome outcome = interpreter.run(source);
        if (outcome.ok())
            return toText(outcome.value);
        std::string text = (outcome.error->handledByProgram ? "!! " : "! ") + outcome.error->message();
        if (!outcome.error->function.empty())
            text += " in (" + outcome.error->function + ")";
        if (outcome.error->argument > 0)
            text += ", argument " + std::to_string(outcome.error->argument);
        return text;
    }
    /// One behind the other.
    void check(const std::vector<Row> &rows)
    {
        for (const Row &row : rows)
            EXPECT_EQ((*this)(row.source), row.expected) << row.source;
    }
};

} // namespace host::lisp::test
