// Finding and replacing in strings. Places count characters from 0.

#include "host/lisp/Arguments.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/StringArgument.h"

namespace host::lisp {

/// An optional start argument; negative or behind the end: bad argument value.
static std::size_t startArgument(Arguments &args, std::size_t index, const StringArgument &text)
{
    const std::int32_t start = args.integerOr(index, 0);
    if (start < 0 || static_cast<std::size_t>(start) > text.length())
        args.badValue(index);
    return static_cast<std::size_t>(start);
}

// (vl-string-search pattern string [start]) -> where pattern occurs first from start on; nil when nowhere.
static Value search(Arguments &args)
{
    const StringArgument text(args, 1);
    const std::size_t start = text.offset(startArgument(args, 2, text));
    const std::size_t found = text.text().find(args.string(0), start);
    return found == std::string_view::npos ? Value() : Value::integer(static_cast<std::int32_t>(text.index(found)));
}

// (vl-string-subst new pattern string [start]) -> string with the first pattern from start on replaced.
static Value substitute(Arguments &args)
{
    const StringArgument text(args, 2);
    const std::size_t start = text.offset(startArgument(args, 3, text));
    const std::string &replacement = args.string(0);
    const std::string &pattern = args.string(1);
    const std::size_t found = text.text().find(pattern, start);
    if (found == std::string_view::npos)
        return args[2];
    args.interpreter().checkStringLength(text.text().size() + replacement.size());
    std::string result(text.text());
    result.replace(found, pattern.size(), replacement);
    return Value::string(std::move(result));
}

// (vl-string-position code string [start [from-end]]) -> where the character is first, or last with from-end;
// nil when nowhere.
static Value characterPosition(Arguments &args)
{
    std::string character;
    appendCharacter(character, static_cast<char32_t>(args.integer(0)));
    const StringArgument text(args, 1);
    const std::size_t start = startArgument(args, 2, text);
    if (character.empty())
        return {};
    // From the end, start counts from there as well: it says how many characters at the end are left out.
    const std::string_view part = args.has(3) ? text.part(0, text.length() - start) : text.text();
    const std::size_t found = args.has(3) ? part.rfind(character) : part.find(character, text.offset(start));
    return found == std::string_view::npos ? Value() : Value::integer(static_cast<std::int32_t>(text.index(found)));
}

// (vl-string-mismatch a b [a-start [b-start [ignore-case]]]) -> how many characters are the same from the starts on.
static Value mismatch(Arguments &args)
{
    const StringArgument left(args, 0);
    const StringArgument right(args, 1);
    const auto rest = [&](const StringArgument &text, std::size_t index) {
        const std::string_view part = text.text().substr(text.offset(startArgument(args, index, text)));
        return args.has(4) ? toUpperCase(part) : std::string(part);
    };
    const std::string a = rest(left, 2);
    const std::string b = rest(right, 3);
    std::size_t count = 0;
    for (std::size_t i = 0, j = 0; i < a.size() && j < b.size(); ++count) {
        if (takeCharacter(a, i) != takeCharacter(b, j))
            break;
    }
    return Value::integer(static_cast<std::int32_t>(count));
}

static constexpr NativeRow stringSearchRows[] = {
    {"vl-string-search", search, Arity::between(2, 3), "pattern text [start]",
     "where a text has a part, counted from 0"},
    {"vl-string-subst", substitute, Arity::between(3, 4), "new old text [start]",
     "a text with the first such part replaced"},
    {"vl-string-position", characterPosition, Arity::between(2, 4), "character text [start [backwards]]",
     "where a text has a character"},
    {"vl-string-mismatch", mismatch, Arity::between(2, 5), "a b [start-a [start-b [any-case]]]",
     "how many characters two texts begin with alike"},
};

void addStringSearchFunctions(Interpreter &interpreter)
{
    interpreter.define(stringSearchRows);
}

} // namespace host::lisp
