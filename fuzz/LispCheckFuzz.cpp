// Any bytes as a program to be checked: it ends, and the engine's reader takes and refuses the same texts.

#include "fuzz/Require.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Reader.h"
#include "host/lisp/checking/Checker.h"
#include "host/lisp/checking/SyntaxTree.h"

using namespace host::lisp;
using checking::FindingKind;

namespace {

class UnusedConsole final : public Console
{
public:
    void write(std::string_view) override {}
    std::string findFile(const std::string &) override { return {}; }
};

bool isRead(Interpreter &interpreter, std::string_view text)
{
    Reader reader(interpreter, "fuzz");
    try {
        reader.feed(text);
        reader.finish();
        while (reader.next()) {
        }
        return true;
    } catch (const Error &) {
        return false;
    }
}

/// A comment without an end is told, but read; lists too deep for the check are not.
bool isSound(const checking::SyntaxTree &tree)
{
    for (const checking::Finding &finding : tree.findings) {
        const bool isComment =
            finding.kind == FindingKind::Unterminated && finding.message.find("comment") != std::string::npos;
        if (!isComment)
            return false;
    }
    return true;
}

bool isDeep(const checking::SyntaxTree &tree)
{
    return !tree.findings.empty() && tree.findings.back().message.find("deeper") != std::string::npos;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static UnusedConsole console;
    static Interpreter interpreter(console);
    static const checking::NativeArities natives = checking::nativeArities(interpreter);
    const std::string text(reinterpret_cast<const char *>(data), size);
    const checking::SyntaxTree tree = checking::syntaxTreeOf(text);
    require(isDeep(tree) || isSound(tree) == isRead(interpreter, text));
    for (const checking::Finding &finding : checking::check({{"fuzz", text}}, natives))
        require(finding.at.line >= 1 && finding.at.column >= 1 && finding.file == "fuzz");
    return 0;
}
