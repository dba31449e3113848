// (ssget): selection sets chosen by the user, by place and by filter.

#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/SelectionQuery.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/lisp/SelectionFilterList.h"
#include "host/lisp/Interpreter.h"

namespace host::kernel {

namespace {

using drawing::RecordId;
using drawing::Vec3;
using lisp::Arguments;
using lisp::Value;

bool isPointList(const Value &value)
{
    return pointFrom(value.car()).has_value();
}

/// Points in world coordinates.
std::vector<Vec3> pointsOf(Arguments &args, std::size_t index)
{
    std::vector<Vec3> points;
    for (const Value &item : lisp::ListItems(args.list(index))) {
        const std::optional<Vec3> point = pointFrom(item);
        if (!point)
            args.badType(index, "point");
        points.push_back(toWorld(documentOf(args), *point));
    }
    return points;
}

drawing::SelectionFilter filterOf(Arguments &args, std::size_t index)
{
    drawing::SelectionFilter::Outcome outcome = filterFromList(documentOf(args), args.list(index));
    if (!outcome.filter)
        args.fail(outcome.error.toStdString());
    return std::move(*outcome.filter);
}

SelectionQuery readArguments(Arguments &args)
{
    SelectionQuery query;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const Value &value = args[i];
        if (value.isNil())
            continue;
        if (value.isString() && i == 0)
            query.setMode(QString::fromStdString(value.asString()));
        else if (const std::optional<Vec3> point = pointFrom(value))
            query.points.push_back(toWorld(documentOf(args), *point));
        else if (value.isCons() && isPointList(value))
            query.points = pointsOf(args, i);
        else
            query.filter = filterOf(args, i);
    }
    return query;
}

void check(Arguments &args, const SelectionQuery &query)
{
    switch (query.fault()) {
    case QueryFault::UnknownMethod:
        args.badValue(0, "SSGET mode string");
    case QueryFault::TooManyPoints:
        args.badValue(0, "SSGET arguments");
    case QueryFault::TooFewPoints:
        args.fail("bad point argument");
    case QueryFault::None:
        break;
    }
}

// (ssget [method] [point [point]] [points] [filter]) -> a selection set, nil when nothing was chosen. Esc cancels the
// program. Methods and flags are those of SelectionQuery.
Value ssget(Arguments &args)
{
    const SelectionQuery query = readArguments(args);
    check(args, query);
    const SelectionOutcome chosen = select(documentOf(args), query);
    if (chosen.isCancelled)
        throw lisp::Error::cancelled();
    return chosen.entities.empty() ? Value() : toLisp(args.interpreter(), chosen.entities);
}

// (sssetfirst grips [set]) -> (nil set). What is chosen without a command is the set from now on; nil clears it.
Value sssetfirst(Arguments &args)
{
    std::vector<RecordId> entities;
    if (args.has(1))
        for (std::uint64_t name : args.selectionSet(1).entities)
            if (const RecordId id = recordFrom(documentOf(args), name); isValid(id))
                entities.push_back(id);
    documentOf(args).setImpliedSelection(std::move(entities));
    return Value::list({Value(), args[1]});
}

// (ssgetfirst) -> (nil set): what is chosen without a command, nil for nothing.
Value ssgetfirst(Arguments &args)
{
    const std::vector<RecordId> &chosen = documentOf(args).impliedSelection();
    return Value::list({Value(), chosen.empty() ? Value() : toLisp(args.interpreter(), chosen)});
}

} // namespace

void addSelectionFunctions(lisp::Interpreter &interpreter)
{
    static constexpr lisp::NativeRow rows[] = {
        {"ssget", ssget, lisp::Arity::between(0, 4), "[method] [points] [filter]",
         "a selection set: asked for, or by method, points and filter"},
        {"ssgetfirst", ssgetfirst, lisp::Arity::exactly(0), "", "what is chosen before a command"},
        {"sssetfirst", sssetfirst, lisp::Arity::between(1, 2), "[grips] [chosen]", "chooses entities before a command"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
