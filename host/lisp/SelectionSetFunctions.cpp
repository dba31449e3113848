// Selection sets as collections of entity names; choosing entities is the embedder's. A wrong argument: bad argument
// type: lselsetp or lentityp.

#include "host/lisp/Arguments.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/Interpreter.h"

#include <cmath>

namespace host::lisp {

// (sslength set) -> the number of entities.
static Value sslength(Arguments &args)
{
    return Value::integer(static_cast<std::int32_t>(args.selectionSet(0).entities.size()));
}

// (ssname set index) -> the entity, counted from 0; nil outside the set.
static Value ssname(Arguments &args)
{
    const auto &entities = args.selectionSet(0).entities;
    // Programs that count in reals are served as well.
    const double index = std::trunc(args.real(1));
    if (!(index >= 0 && index < static_cast<double>(entities.size())))
        return {};
    return Value::entityName(entities[static_cast<std::size_t>(index)]);
}

// (ssmemb entity set) -> entity when it is in the set, else nil.
static Value ssmemb(Arguments &args)
{
    const std::uint64_t entity = args.entity(0);
    return args.selectionSet(1).contains(entity) ? args[0] : Value();
}

// (ssadd) -> an empty set; (ssadd entity) -> a set of it; (ssadd entity set) -> the same set, with it at the end.
static Value ssadd(Arguments &args)
{
    if (args.size() == 0)
        return args.interpreter().makeSelectionSet({});
    const std::uint64_t entity = args.entity(0);
    if (args.size() == 1)
        return args.interpreter().makeSelectionSet({entity});
    args.selectionSet(1).add(entity);
    return args[1];
}

// (ssdel entity set) -> the same set without it; nil when it was not in.
static Value ssdel(Arguments &args)
{
    const std::uint64_t entity = args.entity(0);
    return args.selectionSet(1).remove(entity) ? args[1] : Value();
}

static constexpr NativeRow selectionSetRows[] = {
    {"sslength", sslength, Arity::exactly(1), "set", "how many entities a selection set has"},
    {"ssname", ssname, Arity::exactly(2), "set index", "an entity of a selection set, counted from 0"},
    {"ssmemb", ssmemb, Arity::exactly(2), "entity set", "the entity when it is in the set"},
    {"ssadd", ssadd, Arity::between(0, 2), "[entity [set]]", "a selection set with an entity put in"},
    {"ssdel", ssdel, Arity::exactly(2), "entity set", "takes an entity out of a set"},
};

void addSelectionSetFunctions(Interpreter &interpreter)
{
    interpreter.define(selectionSetRows);
}

} // namespace host::lisp
