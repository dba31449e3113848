// Writing to the user and to files. A file argument that is not open: bad argument type: streamp.

#include "host/lisp/Arguments.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/File.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Printer.h"
#include "host/lisp/Text.h"

namespace host::lisp {

static void writeTo(Arguments &args, std::size_t fileIndex, std::string_view text)
{
    if (!args.has(fileIndex)) {
        args.interpreter().console().write(text);
        return;
    }
    File &file = args.file(fileIndex);
    if (file.isReading())
        args.badType(fileIndex, "streamp");
    if (!file.write(text))
        args.fail(file.problem());
}

/// The printed value. One too long to print: string too long.
static std::string printed(Arguments &args, const Value &value, PrintStyle style)
{
    std::string text = toText(value, style);
    if (text.size() > longestPrintedText)
        args.fail("string too long");
    return text;
}

/// What (princ) without arguments gives: a symbol without a name, so that a prompt that shows results shows nothing.
static Value nothingToShow(Arguments &args)
{
    return args.interpreter().symbol({});
}

// (prin1 [value [file]]), (princ [value [file]]) -> value, written so that it can be read again, or plainly.
template <PrintStyle Style>
static Value write(Arguments &args)
{
    if (args.size() == 0)
        return nothingToShow(args);
    writeTo(args, 1, printed(args, args[0], Style));
    return args[0];
}

// (print [value [file]]) -> value, written after a line feed and before a blank, so that it can be read again.
static Value print(Arguments &args)
{
    if (args.size() == 0)
        return nothingToShow(args);
    writeTo(args, 1, "\n" + printed(args, args[0], PrintStyle::Readable) + " ");
    return args[0];
}

// (prompt string) -> nil; writes it to the user.
static Value prompt(Arguments &args)
{
    args.interpreter().console().write(args.string(0));
    return {};
}

// (terpri) -> nil; a line feed for the user.
static Value terpri(Arguments &args)
{
    args.interpreter().console().write("\n");
    return {};
}

// (write-line string [file]) -> string, written with a line feed.
static Value writeLine(Arguments &args)
{
    writeTo(args, 1, args.string(0) + "\n");
    return args[0];
}

// (write-char code [file]) -> code, its character written.
static Value writeChar(Arguments &args)
{
    std::string text;
    const std::int32_t code = args.integer(0);
    if (code >= 0)
        appendCharacter(text, static_cast<char32_t>(code));
    if (text.empty())
        args.badValue(0);
    writeTo(args, 1, text);
    return args[0];
}

// (vl-princ-to-string value), (vl-prin1-to-string value) -> what princ and prin1 write.
template <PrintStyle Style>
static Value toString(Arguments &args)
{
    return Value::string(printed(args, args[0], Style));
}

static constexpr NativeRow outputRows[] = {
    {"prin1", write<PrintStyle::Readable>, Arity::between(0, 2), "[value [file]]",
     "prints a value as it is read; without one, nothing, quietly"},
    {"princ", write<PrintStyle::Plain>, Arity::between(0, 2), "[value [file]]",
     "prints a value as people read it; without one, nothing, quietly"},
    {"print", print, Arity::between(0, 2), "[value [file]]", "prints a value on a line of its own"},
    {"prompt", prompt, Arity::exactly(1), "text", "prints a text on the command line"},
    {"terpri", terpri, Arity::exactly(0), "", "prints a line feed"},
    {"write-line", writeLine, Arity::between(1, 2), "text [file]", "writes a text and a line feed"},
    {"write-char", writeChar, Arity::between(1, 2), "number [file]", "writes a character"},
    {"vl-princ-to-string", toString<PrintStyle::Plain>, Arity::exactly(1), "value", "what princ prints, as text"},
    {"vl-prin1-to-string", toString<PrintStyle::Readable>, Arity::exactly(1), "value", "what prin1 prints, as text"},
};

void addOutputFunctions(Interpreter &interpreter)
{
    interpreter.define(outputRows);
}

} // namespace host::lisp
