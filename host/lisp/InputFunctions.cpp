// Reading text from files and from the user, and loading programs.

#include "files/TextEncoding.h"
#include "host/lisp/Arguments.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/File.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Paths.h"
#include "host/lisp/Printer.h"
#include "host/lisp/Text.h"

namespace host::lisp {

// (open path mode [encoding]) -> the file; nil when it cannot be opened. Mode "r", "w" or "a"; another one: bad
// argument value. Encoding "utf8-bom" begins a new file with a byte-order mark; "bytes" reads a file without decoding
// it and without taking carriage returns off.
static Value open(Arguments &args)
{
    static constexpr std::string_view modes = "rwa";
    const std::string mode = toLowerCase(args.string(1));
    const std::size_t which = mode.size() == 1 ? modes.find(mode[0]) : std::string_view::npos;
    if (which == std::string_view::npos)
        args.badValue(1);
    const std::string name = toLowerCase(args.stringOr(2, {}));
    const File::Encoding encoding = name == "bytes"      ? File::Encoding::Bytes
                                    : name == "utf8-bom" ? File::Encoding::TextWithMark
                                                         : File::Encoding::Text;
    std::unique_ptr<File> file =
        File::open(args.interpreter().console(), args.string(0), static_cast<File::Mode>(which), encoding);
    return file ? Value::adopt(Tag::File, file.release()) : Value();
}

// (close file) -> nil. A file that is closed already: bad argument type: streamp. One that the disk did not take: an
// error that says so.
static Value close(Arguments &args)
{
    File &file = args.file(0);
    if (!file.close())
        args.fail(file.problem());
    return {};
}

static File &readableFile(Arguments &args)
{
    File &file = args.file(0);
    if (!file.isReading())
        args.badType(0, "streamp");
    return file;
}

// (read-line [file]) -> the next line without its end; nil after the last. Without file, a line that the user types.
static Value readLine(Arguments &args)
{
    std::optional<std::string> line;
    if (args.has(0))
        line = readableFile(args).readLine();
    else
        line = args.interpreter().console().readLine();
    return line ? Value::string(std::move(*line)) : Value();
}

// (read-char [file]) -> the code of the next character; nil after the last. Without file, of what the user types.
static Value readChar(Arguments &args)
{
    if (args.has(0)) {
        const std::optional<char32_t> character = readableFile(args).readCharacter();
        return character ? Value::integer(static_cast<std::int32_t>(*character)) : Value();
    }
    std::string &typed = args.interpreter().typedAhead();
    if (typed.empty()) {
        std::optional<std::string> line = args.interpreter().console().readLine();
        if (!line)
            return {};
        typed = *line + "\n";
    }
    std::size_t behind = 0;
    const char32_t character = takeCharacter(typed, behind);
    typed.erase(0, behind);
    return Value::integer(static_cast<std::int32_t>(character));
}

// (findfile name) -> the full path of the file where the embedder finds it; nil when it does not.
static Value findFile(Arguments &args)
{
    std::string path = args.interpreter().console().findFile(args.string(0));
    return path.empty() ? Value() : Value::string(std::move(path));
}

// (findtrustedfile name) -> the same, only where programs may be loaded from.
static Value findTrustedFile(Arguments &args)
{
    std::string path = args.interpreter().console().findTrustedFile(args.string(0));
    return path.empty() ? Value() : Value::string(std::move(path));
}

static std::string programPath(Interpreter &interpreter, const std::string &name)
{
    std::vector<std::string> names = {name};
    if (!toPath(name).has_extension())
        names.insert(names.begin(), name + ".lsp");
    return interpreter.console().findProgram(names, interpreter.calledBy());
}

// (load name [onfailure]) -> the last value of the program; ".lsp" may be left out. Not found, not readable, or not to
// be loaded: onfailure, called when it is a function, or without it the error LOAD failed.
static Value load(Arguments &args)
{
    Interpreter &interpreter = args.interpreter();
    // What (findfile) did not find is nil.
    const bool isFound = args.has(0) || args.size() < 2;
    const std::string path = isFound ? programPath(interpreter, args.string(0)) : std::string();
    std::optional<std::string> bytes;
    if (!path.empty())
        bytes = readWholeFile(toPath(path), largestTextFile);
    if (bytes)
        return interpreter.loadText(files::utf8Text(std::move(*bytes), interpreter.console().codePage()), path);
    if (args.size() < 2)
        args.fail("LOAD failed: " + toText(args[0]));
    const bool isCallable = args[1].isFunction() || (args[1].isSymbol() && args[1].asSymbol().value().isFunction());
    return isCallable ? interpreter.apply(args[1], {}) : args[1];
}

// (autoload name commands) -> nil. Each command becomes a function C:<command> that first loads the program.
static Value autoload(Arguments &args)
{
    for (const Value &command : ListItems(args.list(1))) {
        if (!command.isString())
            args.badType(1, "stringp");
        const std::string function = "C:" + command.asString();
        if (args.interpreter().isDefined(function))
            continue;
        const auto loadThenCall = [function, program = args[0]](Arguments &call) {
            Interpreter &interpreter = call.interpreter();
            const Value self = interpreter.variable(function);
            interpreter.apply(interpreter.symbol("LOAD"), {&program, 1});
            if (interpreter.variable(function).isSame(self))
                call.fail("no function definition: " + function);
            return interpreter.apply(interpreter.symbol(function), {});
        };
        args.interpreter().define(function, loadThenCall, Arity::exactly(0), NativeKind::Builtin);
    }
    return {};
}

static constexpr NativeRow inputRows[] = {
    {"open", open, Arity::between(2, 3), "file mode [encoding]",
     "opens a file for \"r\", \"w\" or \"a\"; nil when that fails"},
    {"close", close, Arity::exactly(1), "file", "closes a file"},
    {"read-line", readLine, Arity::between(0, 1), "[file]", "the next line of a file or of the keyboard"},
    {"read-char", readChar, Arity::between(0, 1), "[file]", "the next character, as its number"},
    {"findfile", findFile, Arity::exactly(1), "name",
     "the path of a file that is found in the search path; nil when none"},
    {"findtrustedfile", findTrustedFile, Arity::exactly(1), "name", "the same in trusted folders alone"},
    {"load", load, Arity::between(1, 2), "file [otherwise]", "reads and evaluates a Lisp file"},
    {"autoload", autoload, Arity::exactly(2), "file commands", "loads a file when one of its commands is called first"},
};

void addInputFunctions(Interpreter &interpreter)
{
    interpreter.define(inputRows);
}

} // namespace host::lisp
