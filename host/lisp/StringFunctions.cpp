// Strings as a whole. They count characters, not bytes. Something else than a string: bad argument type: stringp.

#include "host/lisp/Arguments.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/CaseTable.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/StringArgument.h"
#include "host/lisp/Text.h"
#include "host/lisp/WildcardMatch.h"

namespace host::lisp {

// (strcat string...) -> all of them in one. Longer than the interpreter allows: string too long.
static Value strcat(Arguments &args)
{
    std::size_t length = 0;
    for (std::size_t i = 0; i < args.size(); ++i)
        length += args.string(i).size();
    args.interpreter().checkStringLength(length);
    std::string text;
    text.reserve(length);
    for (std::size_t i = 0; i < args.size(); ++i)
        text += args.string(i);
    return Value::string(std::move(text));
}

// (strlen string...) -> the number of characters in all of them.
static Value strlen(Arguments &args)
{
    std::size_t length = 0;
    for (std::size_t i = 0; i < args.size(); ++i)
        length += StringArgument(args, i).length();
    return Value::integer(static_cast<std::int32_t>(length));
}

// (substr string start [length]) -> length characters from the start, counted from 1; up to the end without length. A
// start below 1 or a negative length: bad argument value.
static Value substr(Arguments &args)
{
    const StringArgument text(args, 0);
    const std::int32_t start = args.integer(1);
    if (start < 1)
        args.badValue(1);
    const std::int32_t length = args.integerOr(2, std::numeric_limits<std::int32_t>::max());
    if (length < 0)
        args.badValue(2);
    return Value::string(std::string(text.part(static_cast<std::size_t>(start) - 1, static_cast<std::size_t>(length))));
}

// (strcase string [lower]) -> in upper case, in lower case when lower is not nil.
static Value strcase(Arguments &args)
{
    const std::string &text = args.string(0);
    return Value::string(toFullCase(text, args.has(1) ? lowerTable : upperTable));
}

// (ascii string) -> the code of its first character, 0 for an empty one.
static Value ascii(Arguments &args)
{
    const std::string &text = args.string(0);
    std::size_t position = 0;
    return Value::integer(text.empty() ? 0 : static_cast<std::int32_t>(takeCharacter(text, position)));
}

/// The character of a code argument; 0 gives the empty string. No such character: bad argument value.
static std::string characterText(Arguments &args, const Value &code)
{
    std::string text;
    if (code.asInteger() > 0)
        appendCharacter(text, static_cast<char32_t>(code.asInteger()));
    if (text.empty() && code.asInteger() != 0)
        args.badValue(0);
    return text;
}

// (chr code) -> the character. No such character: bad argument value.
static Value chr(Arguments &args)
{
    args.integer(0);
    return Value::string(characterText(args, args[0]));
}

// (vl-string->list string) -> the codes of its characters.
static Value stringToList(Arguments &args)
{
    ListBuilder codes;
    for (const char32_t character : toCharacters(args.string(0)))
        codes.append(Value::integer(static_cast<std::int32_t>(character)));
    return codes.take();
}

// (vl-list->string codes) -> the characters in one string. No such character: bad argument value.
static Value listToString(Arguments &args)
{
    std::string text;
    for (const Value &code : ListItems(args.list(0))) {
        if (!code.isInteger())
            args.badType(0, "fixnump:");
        text += characterText(args, code);
    }
    return Value::string(std::move(text));
}

// (vl-string-elt string index) -> the code of a character, counted from 0. Outside: bad argument value.
static Value stringElt(Arguments &args)
{
    const StringArgument text(args, 0);
    const std::int32_t index = args.integer(1);
    if (index < 0 || static_cast<std::size_t>(index) >= text.length())
        args.badValue(1);
    std::size_t position = 0;
    return Value::integer(
        static_cast<std::int32_t>(takeCharacter(text.part(static_cast<std::size_t>(index), 1), position)));
}

// (wcmatch string patterns) -> T when the string fits one of the patterns (see wildcardMatch).
static Value wcmatch(Arguments &args)
{
    return args.boolean(wildcardMatch(args.string(0), args.string(1)));
}

static bool isTrimmed(std::string_view character, const std::vector<char32_t> &set)
{
    std::size_t position = 0;
    return std::find(set.begin(), set.end(), takeCharacter(character, position)) != set.end();
}

enum class Side : std::uint8_t
{
    Left,
    Right,
    Both
};

// (vl-string-trim set string), (vl-string-left-trim ...), (vl-string-right-trim ...) -> the string without characters
// of set at both ends, its beginning, its end.
template <Side Which>
static Value trim(Arguments &args)
{
    const std::vector<char32_t> set = toCharacters(args.string(0));
    std::string_view text = args.string(1);
    while (Which != Side::Right && !text.empty() && isTrimmed(text, set))
        text.remove_prefix(byteOffset(text, 1));
    while (Which != Side::Left && !text.empty()) {
        std::size_t begin = text.size() - 1;
        while (begin > 0 && (static_cast<unsigned char>(text[begin]) & 0xC0U) == 0x80U)
            --begin;
        if (!isTrimmed(text.substr(begin), set))
            break;
        text = text.substr(0, begin);
    }
    return Value::string(std::string(text));
}

// (vl-string-translate from to string) -> each character that is in from replaced by the one at the same place of to.
static Value translate(Arguments &args)
{
    const std::vector<char32_t> from = toCharacters(args.string(0));
    const std::vector<char32_t> to = toCharacters(args.string(1));
    std::vector<char32_t> text = toCharacters(args.string(2));
    for (char32_t &character : text) {
        const auto place = static_cast<std::size_t>(std::find(from.begin(), from.end(), character) - from.begin());
        if (place < from.size() && place < to.size())
            character = to[place];
    }
    return Value::string(fromCharacters(text));
}

static constexpr NativeRow stringRows[] = {
    {"strcat", strcat, Arity::any(), "text...", "texts behind each other"},
    {"strlen", strlen, Arity::any(), "text...", "how many characters texts have"},
    {"substr", substr, Arity::between(2, 3), "text start [length]", "a part of a text, counted from 1"},
    {"strcase", strcase, Arity::between(1, 2), "text [lower]", "a text in upper or lower case"},
    {"xstrcase", strcase, Arity::between(1, 2), "text", "a text in upper case"},
    {"ascii", ascii, Arity::exactly(1), "text", "the number of a text's first character"},
    {"chr", chr, Arity::exactly(1), "number", "the character of a number, as text"},
    {"vl-string->list", stringToList, Arity::exactly(1), "text", "the numbers of a text's characters"},
    {"vl-list->string", listToString, Arity::exactly(1), "numbers", "the text of such a list"},
    {"vl-string-elt", stringElt, Arity::exactly(2), "text index", "the number of a character, counted from 0"},
    {"wcmatch", wcmatch, Arity::exactly(2), "text pattern", "T when a text fits a pattern of wildcards"},
    {"vl-string-trim", trim<Side::Both>, Arity::exactly(2), "characters text",
     "a text without such characters at both ends"},
    {"vl-string-left-trim", trim<Side::Left>, Arity::exactly(2), "characters text",
     "a text without such characters at its start"},
    {"vl-string-right-trim", trim<Side::Right>, Arity::exactly(2), "characters text",
     "a text without such characters at its end"},
    {"vl-string-translate", translate, Arity::exactly(3), "from to text",
     "a text with characters replaced, each by its counterpart"},
};

void addStringFunctions(Interpreter &interpreter)
{
    interpreter.define(stringRows);
}

} // namespace host::lisp
