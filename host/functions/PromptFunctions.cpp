// Asking the user for values.

#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/UserInput.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/lisp/Interpreter.h"

namespace host::kernel {

namespace {

using lisp::Arguments;
using lisp::Value;

// (initget [bits] [keywords]) -> nil. Bits and keywords, with a blank between, for the next request only.
Value initget(Arguments &args)
{
    const bool hasBits = args.size() > 1 || args[0].isInteger();
    const int bits = args.has(0) && hasBits ? args.integer(0) : 0;
    const std::size_t keywordIndex = hasBits ? 1 : 0;
    const QString keywords = args.has(keywordIndex) ? stringAt(args, keywordIndex) : QString();
    documentOf(args).prompts().initget(bits, keywords.split(u' ', Qt::SkipEmptyParts));
    return {};
}

/// A request with prompt and base point from the arguments, in whatever order they come.
PromptRequest requestFor(Arguments &args, PromptKind kind)
{
    PromptRequest request;
    request.kind = kind;
    documentOf(args).prompts().applyOptions(request);
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i].isNil())
            continue;
        if (args[i].isString())
            request.prompt = stringAt(args, i);
        else
            request.base = toWorld(documentOf(args), pointAt(args, i));
    }
    return request;
}

/// Asks; a keyword comes back as its text, an empty answer as nil.
template <typename Convert>
Value answer(Arguments &args, const PromptRequest &request, Convert &&convert)
{
    const PromptReply reply = documentOf(args).prompts().ask(request);
    switch (reply.kind) {
    case ReplyKind::Value:
        return convert(reply);
    case ReplyKind::Keyword:
        return toLisp(reply.text);
    case ReplyKind::Empty:
        return {};
    case ReplyKind::Cancelled:
        break;
    }
    throw lisp::Error::cancelled();
}

Value realOf(const PromptReply &reply)
{
    return Value::real(reply.real);
}

// (getint [prompt]) -> an integer; nil for an empty answer, a keyword of (initget) as text. Esc cancels the program.
Value getint(Arguments &args)
{
    return answer(args, requestFor(args, PromptKind::Integer),
                  [](const PromptReply &reply) { return Value::integer(reply.integer); });
}

// (getreal [prompt]) -> a real. As getint.
Value getreal(Arguments &args)
{
    return answer(args, requestFor(args, PromptKind::Real), realOf);
}

// (getdist [point] [prompt]) -> a distance, typed or shown by points. As getint.
Value getdist(Arguments &args)
{
    return answer(args, requestFor(args, PromptKind::Distance), realOf);
}

// (getangle [point] [prompt]) -> an angle in radians, counted from the direction in ANGBASE. As getint.
Value getangle(Arguments &args)
{
    return answer(args, requestFor(args, PromptKind::Angle), realOf);
}

// (getorient [point] [prompt]) -> an angle in radians, counted from the x axis. As getint.
Value getorient(Arguments &args)
{
    return answer(args, requestFor(args, PromptKind::Orientation), realOf);
}

Value askPoint(Arguments &args, PromptKind kind)
{
    return answer(args, requestFor(args, kind),
                  [&](const PromptReply &reply) { return toLisp(toUser(documentOf(args), reply.point)); });
}

// (getpoint [point] [prompt]) -> a point in user coordinates. As getint.
Value getpoint(Arguments &args)
{
    return askPoint(args, PromptKind::Point);
}

// (getcorner point [prompt]) -> the corner opposite to point. As getint.
Value getcorner(Arguments &args)
{
    return askPoint(args, PromptKind::Corner);
}

// (getstring [blanks] [prompt]) -> text, "" for an empty answer. With blanks not nil the answer may have some.
Value getstring(Arguments &args)
{
    PromptRequest request;
    request.kind = PromptKind::String;
    documentOf(args).prompts().forgetOptions();
    const bool hasFlag = args.size() == 2 || (args.size() == 1 && !args[0].isString());
    request.allowSpaces = hasFlag && args.has(0);
    const std::size_t promptIndex = hasFlag ? 1 : 0;
    request.prompt = args.has(promptIndex) ? stringAt(args, promptIndex) : QString();
    const Value text = answer(args, request, [](const PromptReply &reply) { return toLisp(reply.text); });
    return text.isNil() ? Value::string({}) : text;
}

// (getkword [prompt]) -> a keyword of (initget) as it was given there, nil for an empty answer.
Value getkword(Arguments &args)
{
    const PromptRequest request = requestFor(args, PromptKind::Keyword);
    if (request.keywords.isEmpty() && !(request.bits & AnyText))
        args.fail("no keywords: (initget) comes first");
    return answer(args, request, [](const PromptReply &reply) { return toLisp(reply.text); });
}

} // namespace

void addPromptFunctions(lisp::Interpreter &interpreter)
{
    static constexpr lisp::NativeRow rows[] = {
        {"initget", initget, lisp::Arity::between(0, 2), "[bits] [keywords]", "says what the next prompt takes"},
        {"getint", getint, lisp::Arity::between(0, 1), "[prompt]", "asks for an integer"},
        {"getreal", getreal, lisp::Arity::between(0, 1), "[prompt]", "asks for a real"},
        {"getdist", getdist, lisp::Arity::between(0, 2), "[base] [prompt]", "asks for a length, typed or by points"},
        {"getangle", getangle, lisp::Arity::between(0, 2), "[base] [prompt]",
         "asks for an angle, counted from ANGBASE"},
        {"getorient", getorient, lisp::Arity::between(0, 2), "[base] [prompt]",
         "asks for an angle, counted from the x axis"},
        {"getpoint", getpoint, lisp::Arity::between(0, 2), "[base] [prompt]", "asks for a point"},
        {"getcorner", getcorner, lisp::Arity::between(1, 2), "base [prompt]",
         "asks for the corner opposite to a point"},
        {"getstring", getstring, lisp::Arity::between(0, 2), "[blanks] [prompt]", "asks for a text"},
        {"getkword", getkword, lisp::Arity::between(0, 1), "[prompt]", "asks for one of the keywords of initget"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
