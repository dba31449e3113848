// (ssget): selection sets chosen by the user, by place and by filter.

#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/SelectionQuery.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/lisp/SelectionFilterList.h"
#include "host/lisp/Interpreter.h"

#include <unordered_map>

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
    if (chosen.entities.empty())
        return {};
    Value set = toLisp(args.interpreter(), chosen.entities);
    if (!chosen.steps.empty())
        set.asSelectionSet().details = std::make_shared<const SelectionSteps>(chosen.steps);
    return set;
}

/// A point as (ssnamex) gives it: how it was given, and user coordinates.
Value markedPoint(const Document &document, const Vec3 &point)
{
    return Value::list({Value::integer(0), toLisp(toUser(document, point))});
}

/// How each entity came in: its step, by the entity's name.
std::unordered_map<std::uint64_t, std::size_t> stepsByEntity(const SelectionSteps &steps)
{
    std::unordered_map<std::uint64_t, std::size_t> all;
    for (std::size_t i = 0; i < steps.size(); ++i)
        for (const RecordId entity : steps[i].entities)
            all[toLisp(entity).asEntityName()] = i;
    return all;
}

/// What (ssnamex) tells of one entity: (way entity mark point...). Of a window the mark leads to its corners, which
/// stand behind all entities under the same negative number.
Value chosenEntity(const Document &document, std::uint64_t entity, const SelectionStep *step, std::size_t number)
{
    using Way = SelectionStep::Way;
    const Way way = step ? step->way : Way::Other;
    const bool isInShape = way == Way::Window || way == Way::Crossing;
    lisp::ListBuilder list;
    list.append(Value::integer(static_cast<std::int32_t>(way)));
    list.append(Value::entityName(entity));
    list.append(Value::integer(isInShape ? -static_cast<std::int32_t>(number) - 1 : 0));
    if (way == Way::Pick || way == Way::Fence)
        for (const Vec3 &point : step->points)
            list.append(markedPoint(document, point));
    return list.take();
}

// (ssnamex set [index]) -> how the entities were chosen, a list each: 0 by all, last and the like, 1 picked, 2 in a
// window, 3 crossing one, 4 by a fence. A set to which entities were added later tells 0 of all.
Value ssnamex(Arguments &args)
{
    const Document &document = documentOf(args);
    const lisp::SelectionSet &set = args.selectionSet(0);
    const auto *steps = static_cast<const SelectionSteps *>(set.details.get());
    const auto byEntity = steps ? stepsByEntity(*steps) : std::unordered_map<std::uint64_t, std::size_t>();
    std::vector<bool> isTold(steps ? steps->size() : 0);
    lisp::ListBuilder list;
    for (std::size_t i = 0; i < set.entities.size(); ++i) {
        if (args.has(1) && args.integer(1) != static_cast<std::int32_t>(i))
            continue;
        const auto found = byEntity.find(set.entities[i]);
        const SelectionStep *step = found == byEntity.end() ? nullptr : &(*steps)[found->second];
        list.append(chosenEntity(document, set.entities[i], step, step ? found->second : 0));
        if (step)
            isTold[found->second] =
                step->way == SelectionStep::Way::Window || step->way == SelectionStep::Way::Crossing;
    }
    for (std::size_t i = 0; i < isTold.size(); ++i) {
        if (!isTold[i])
            continue;
        lisp::ListBuilder corners;
        corners.append(Value::integer(-static_cast<std::int32_t>(i) - 1));
        for (const Vec3 &corner : (*steps)[i].points)
            corners.append(markedPoint(document, corner));
        list.append(corners.take());
    }
    return list.take();
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
        {"ssnamex", ssnamex, lisp::Arity::between(1, 2), "set [index]", "how the entities of a set were chosen"},
        {"ssgetfirst", ssgetfirst, lisp::Arity::exactly(0), "", "what is chosen before a command"},
        {"sssetfirst", sssetfirst, lisp::Arity::between(1, 2), "[grips] [chosen]", "chooses entities before a command"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
