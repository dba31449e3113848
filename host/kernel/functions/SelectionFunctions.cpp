// (ssget): selection sets chosen by the user, by place and by filter.

#include "host/drawing/Entities.h"
#include "host/drawing/SelectionFilter.h"
#include "host/drawing/Symbols.h"
#include "host/kernel/Document.h"
#include "host/kernel/SystemVariables.h"
#include "host/kernel/functions/EntityList.h"
#include "host/kernel/functions/LispConversion.h"
#include "host/kernel/functions/NativeFunctions.h"
#include "host/kernel/input/SelectionBuilder.h"
#include "host/kernel/input/UserInput.h"
#include "host/lisp/Interpreter.h"

#include <QSet>

namespace host::kernel {

namespace {

using drawing::RecordId;
using drawing::SelectionFilter;
using drawing::Vec3;
using lisp::Arguments;
using lisp::Value;

/// What a call asks for.
struct Request
{
    QString method;    ///< "X", "W", ...; empty for the user's choice
    QStringList flags; ///< behind a colon: "S" single, "L" no locked layers, ...
    std::vector<Vec3> points;
    std::optional<SelectionFilter> filter;
};

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

/// A filter's items: like those of an entity list, with operators under -4 and the applications of extended data
/// under -3.
drawing::FieldList conditionsOf(Arguments &args, std::size_t index)
{
    drawing::FieldList conditions;
    try {
        for (const Value &item : lisp::ListItems(args.list(index))) {
            const int code = item.car().isInteger() ? item.car().asInteger() : 0;
            if (code == -4 && item.cdr().isString()) {
                conditions.push_back({code, QString::fromStdString(item.cdr().asString())});
            } else if (code == -3) {
                for (const Value &application : lisp::ListItems(item.cdr()))
                    if (application.car().isString())
                        conditions.push_back({code, QString::fromStdString(application.car().asString())});
            } else {
                conditions.push_back(fromListItem(documentOf(args), item, AngleForm::Radians));
            }
        }
    } catch (const EntityListError &) {
        args.fail("bad SSGET list");
    }
    return conditions;
}

SelectionFilter filterOf(Arguments &args, std::size_t index)
{
    SelectionFilter::Outcome outcome = SelectionFilter::create(conditionsOf(args, index));
    if (!outcome.filter)
        args.fail(outcome.error.toStdString());
    return std::move(*outcome.filter);
}

/// "_:L" or "X" or "+.:E:S": the method in front, flags behind colons.
void readMethod(const QString &text, Request &request)
{
    const QStringList parts = text.toUpper().split(u':');
    request.method = parts.front();
    request.method.remove(u'_').remove(u'+').remove(u'.');
    request.flags = parts.mid(1);
}

Request readArguments(Arguments &args)
{
    Request request;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const Value &value = args[i];
        if (value.isNil())
            continue;
        if (value.isString() && i == 0)
            readMethod(QString::fromStdString(value.asString()), request);
        else if (const std::optional<Vec3> point = pointFrom(value))
            request.points.push_back(toWorld(documentOf(args), *point));
        else if (value.isCons() && isPointList(value))
            request.points = pointsOf(args, i);
        else
            request.filter = filterOf(args, i);
    }
    return request;
}

QSet<QString> lockedLayers(const drawing::Drawing &drawing)
{
    QSet<QString> names;
    for (const drawing::Layer &layer : drawing::allLayers(drawing))
        if (layer.isLocked)
            names.insert(layer.name.toUpper());
    return names;
}

/// Says of an entity whether filter and flags let it in.
std::function<bool(RecordId)> acceptance(Arguments &args, const Request &request)
{
    const drawing::Drawing &drawing = documentOf(args).drawing();
    const QSet<QString> locked = request.flags.contains(QStringLiteral("L")) ? lockedLayers(drawing) : QSet<QString>();
    return [&drawing, &request, locked](RecordId id) {
        if (!locked.isEmpty() && locked.contains(drawing.tags(id).text(8, QStringLiteral("0")).toUpper()))
            return false;
        return !request.filter || request.filter->matches(drawing, id);
    };
}

std::vector<RecordId> newestFirst(std::vector<RecordId> entities)
{
    std::reverse(entities.begin(), entities.end());
    return entities;
}

std::vector<RecordId> chosenByShape(Arguments &args, const Request &request, ShapeKind kind, std::size_t corners)
{
    if (request.points.size() < corners)
        args.fail("bad point argument");
    return newestFirst(Picker(documentOf(args)).inShape(kind, request.points));
}

std::vector<RecordId> chosenByMethod(Arguments &args, const Request &request)
{
    Document &document = documentOf(args);
    const Picker picker(document);
    const QString &method = request.method;
    if (method == QStringLiteral("X"))
        return newestFirst(document.drawing().entities().all());
    if (method == QStringLiteral("A"))
        return newestFirst(picker.thawed());
    if (method == QStringLiteral("P"))
        return document.previousSelection();
    if (method == QStringLiteral("I"))
        return document.impliedSelection();
    if (method == QStringLiteral("L")) {
        const std::vector<RecordId> all = picker.visible();
        return all.empty() ? all : std::vector<RecordId>{all.back()};
    }
    if (method == QStringLiteral("W"))
        return chosenByShape(args, request, ShapeKind::Window, 2);
    if (method == QStringLiteral("C"))
        return chosenByShape(args, request, ShapeKind::Crossing, 2);
    if (method == QStringLiteral("WP"))
        return chosenByShape(args, request, ShapeKind::WindowPolygon, 3);
    if (method == QStringLiteral("CP"))
        return chosenByShape(args, request, ShapeKind::CrossingPolygon, 3);
    if (method == QStringLiteral("F"))
        return chosenByShape(args, request, ShapeKind::Fence, 2);
    args.badValue(0, "SSGET mode string");
}

std::vector<RecordId> chosenByUser(Arguments &args, const Request &request)
{
    Document &document = documentOf(args);
    const bool isSingle = request.flags.contains(QStringLiteral("S"));
    SelectionBuilder builder(document, isSingle ? SelectionSize::Single : SelectionSize::Many,
                             acceptance(args, request));
    while (!builder.isDone())
        builder.add(document.prompts().ask(builder.request()));
    if (builder.isCancelled())
        throw lisp::Error::cancelled();
    return builder.entities();
}

std::vector<RecordId> chosenAtPoint(Arguments &args, const Request &request)
{
    if (request.points.size() > 1)
        args.badValue(0, "SSGET arguments");
    const RecordId entity = Picker(documentOf(args)).entityAt(request.points.front());
    return isValid(entity) ? std::vector<RecordId>{entity} : std::vector<RecordId>();
}

// (ssget [method] [point [point]] [points] [filter]) -> a selection set, nil when nothing was chosen. Without method
// and point the user chooses; Esc cancels the program. Methods: X the whole drawing, A all of the current space, P
// previous, L last, I what is chosen already, W and C with two corners, WP CP F with a list of points; flags behind a
// colon: S one step, L nothing on locked layers.
Value ssget(Arguments &args)
{
    Document &document = documentOf(args);
    const Request request = readArguments(args);
    const bool asksUser = request.method.isEmpty() && request.points.empty();
    std::vector<RecordId> chosen = asksUser                   ? chosenByUser(args, request)
                                   : request.method.isEmpty() ? chosenAtPoint(args, request)
                                                              : chosenByMethod(args, request);
    const auto accepts = acceptance(args, request);
    std::erase_if(chosen, [&](RecordId id) { return !document.drawing().isAlive(id) || !accepts(id); });
    if (chosen.empty())
        return {};
    if (request.method != QStringLiteral("X") && request.method != QStringLiteral("P"))
        document.setPreviousSelection(chosen);
    return toLisp(args.interpreter(), chosen);
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
        {"ssget", ssget, lisp::Arity::between(0, 4)},
        {"ssgetfirst", ssgetfirst, lisp::Arity::exactly(0)},
        {"sssetfirst", sssetfirst, lisp::Arity::between(1, 2)},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
