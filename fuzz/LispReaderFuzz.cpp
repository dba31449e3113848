// Any bytes as a Lisp program: read in pieces, printed and read again, evaluated.

#include "host/lisp/Interpreter.h"
#include "host/lisp/Printer.h"
#include "host/lisp/Reader.h"

#include <cstdlib>

using namespace host::lisp;

namespace {

class SilentConsole final : public Console
{
public:
    void write(std::string_view) override {}
    PollAnswer poll() override { return ++m_polls > 20 ? PollAnswer::Stop : PollAnswer::Continue; }
    std::string findFile(const std::string &) override { return {}; }

private:
    int m_polls = 0;
};

/// All forms of a text, printed; empty when it has an error.
std::string formsOf(std::string_view text, std::size_t pieceSize)
{
    SilentConsole console;
    Interpreter interpreter(console);
    Reader reader(interpreter, "fuzz");
    std::string forms;
    try {
        const auto takeForms = [&] {
            while (const std::optional<Value> form = reader.next())
                forms += toText(*form) + "\n";
        };
        for (; !text.empty(); text.remove_prefix(std::min(pieceSize, text.size()))) {
            reader.feed(text.substr(0, pieceSize));
            takeForms();
        }
        reader.finish();
        takeForms();
    } catch (const Error &) {
        return {};
    }
    return forms;
}

void evaluate(std::string_view text)
{
    SilentConsole console;
    Settings settings;
    settings.pollInterval = 500;
    settings.longestString = 100'000;
    settings.stackBudget = 256 * 1024;
    Interpreter interpreter(console, settings);
    // A program made of random bytes must not touch the disk.
    for (const FunctionEntry &function : interpreter.functions()) {
        if (function.name.starts_with("VL-FILE") || function.name == "OPEN" || function.name == "VL-MKDIR")
            interpreter.undefine(function.name);
    }
    interpreter.run(text, "fuzz");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    const std::string whole = formsOf(text, size + 1);
    if (formsOf(text, 1) != whole)
        std::abort();
    // Infinity is the one value that does not print as what it reads from.
    if (whole.find("inf") == std::string::npos && !whole.empty() && formsOf(whole, 7) != whole)
        std::abort();
    evaluate(text);
    return 0;
}
