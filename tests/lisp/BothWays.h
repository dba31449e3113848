#pragma once

#include "host/lisp/Console.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Printer.h"

#include <optional>
#include <string>
#include <vector>

namespace host::lisp::test {

/// What came of running texts in turn: values, output, errors with their places and calls. Nothing when a program was
/// ended from outside, which happens after more or fewer steps.
inline std::optional<std::string> resultOf(const std::vector<std::string> &texts, bool isCompiled)
{
    struct RecordingConsole final : Console
    {
        void write(std::string_view text) override
        {
            if (output.size() < 200'000)
                output += text;
        }
        PollAnswer poll() override { return ++polls > 40 ? PollAnswer::Stop : PollAnswer::Continue; }
        std::int64_t heapLimit() override { return Heap::used() + 16 * 1024 * 1024; }
        std::string output;
        int polls = 0;
    };
    RecordingConsole console;
    Settings settings;
    settings.pollInterval = 500;
    settings.longestString = 10'000;
    Interpreter interpreter(console, settings);
    interpreter.setCompiling(isCompiled);
    for (const std::string &text : texts) {
        const Outcome outcome = interpreter.run(text, "program");
        const bool isEnded = console.polls > 40 ||
                             (outcome.error && outcome.error->kind() == ErrorKind::StackOverflow) ||
                             (outcome.error && outcome.error->message().starts_with("out of memory"));
        if (isEnded)
            return std::nullopt;
        console.output +=
            "\n" + (outcome.ok() ? toText(outcome.value, PrintStyle::Readable, 2000) : "! " + outcome.error->report()) +
            "\n";
    }
    return console.output;
}

} // namespace host::lisp::test
