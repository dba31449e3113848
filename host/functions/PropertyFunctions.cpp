// (getpropertyvalue) and its like: groups of entities by the names that their properties have for people.

#include "host/drawing/editing/TextContent.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/properties/EntityProperties.h"
#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/lisp/EntityList.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Printer.h"
#include "host/units/AsciiText.h"

namespace host::kernel {

namespace {

using drawing::RecordId;
using lisp::Arguments;
using lisp::Value;

using drawing::EntityProperty;

Value valueOf(const EntityProperty &row, const std::optional<drawing::FieldValue> &value)
{
    if (!value)
        return {};
    const bool isAngle = row.kind == drawing::PropertyKind::Angle || row.kind == drawing::PropertyKind::Direction;
    if (const auto *number = std::get_if<double>(&*value))
        return Value::real(isAngle ? *number * drawing::radians : *number);
    if (const auto *point = std::get_if<drawing::Vec3>(&*value))
        return toLisp(*point);
    if (const auto *text = std::get_if<QString>(&*value))
        return Value::string(text->toStdString());
    return Value::integer(std::get<qint64>(*value));
}

/// A property as it was asked for: its row, and which coordinate of it.
struct Wanted
{
    const EntityProperty *row = nullptr;
    int axis = -1; ///< -1 for the whole value
};

Wanted findWanted(std::string_view type, const std::string &asked)
{
    const std::string name = units::lowered(asked);
    const bool isCoordinate =
        name.size() > 2 && name[name.size() - 2] == '/' && name.back() >= 'x' && name.back() <= 'z';
    const std::string plain = isCoordinate ? name.substr(0, name.size() - 2) : name;
    for (const EntityProperty &row : drawing::entityProperties())
        if (drawing::hasProperty(type, row) && units::lowered(row.name) == plain)
            return {&row, isCoordinate ? name.back() - 'x' : -1};
    return {};
}

/// The entity of argument 0 with its list.
struct ListedEntity
{
    drawing::Drawing *drawing;
    RecordId record;
    std::string type;
    Value list;
};

ListedEntity entityAt(Arguments &args)
{
    Document &document = documentOf(args);
    const RecordId record = recordAt(args, 0);
    if (!document.drawing().isAlive(record))
        args.badValue(0, "entity");
    return {&document.drawing(), record, document.drawing().typeName(record).toByteArray().toUpper().toStdString(),
            entityList(document, record, {})};
}

Value valueOfGroup(const Value &list, int code)
{
    for (const Value &item : lisp::ListItems(list))
        if (item.car().isInteger() && item.car().asInteger() == code)
            return item.cdr();
    return {};
}

Value coordinate(const Value &point, int axis)
{
    const Value *rest = &point;
    for (; axis > 0; --axis)
        rest = &rest->cdr();
    return rest->car();
}

Value wholeValue(const ListedEntity &entity, const EntityProperty &row)
{
    if (row.derived)
        return valueOf(row, row.derived(*entity.drawing, entity.record));
    const Value held = valueOfGroup(entity.list, row.code);
    // What an entity without the group has.
    return held.isNil() && row.usual ? valueOf(row, row.usual()) : held;
}

Value presentValue(const ListedEntity &entity, const Wanted &wanted)
{
    const Value whole = wholeValue(entity, *wanted.row);
    return wanted.axis < 0 || whole.isNil() ? whole : coordinate(whole, wanted.axis);
}

Wanted wantedAt(Arguments &args, const ListedEntity &entity)
{
    const Wanted wanted = findWanted(entity.type, args.string(1));
    if (!wanted.row || !drawing::isInVersion(entity.drawing->version(), *wanted.row))
        args.badValue(1, "property of " + entity.type);
    return wanted;
}

// (getpropertyvalue entity name) -> the value of a property. One that the entity does not have: bad argument value.
Value getPropertyValue(Arguments &args)
{
    const ListedEntity entity = entityAt(args);
    return presentValue(entity, wantedAt(args, entity));
}

/// The point with one coordinate of it changed.
Value withCoordinate(const Value &point, int axis, double value)
{
    const std::optional<drawing::Vec3> present = pointFrom(point);
    drawing::Vec3 changed = present.value_or(drawing::Vec3{});
    (axis == 0 ? changed.x : axis == 1 ? changed.y : changed.z) = value;
    return lisp::listLength(point) == 2 ? Value::point(changed.x, changed.y) : toLisp(changed);
}

/// What a paragraph says, in as many pieces as it takes. One that says it already stays as it is.
void setContent(const ListedEntity &entity, const QString &content)
{
    drawing::Drawing &drawing = *entity.drawing;
    if (drawing::contentOf(drawing, entity.record) != content)
        drawing.setFields(entity.record, drawing::withContent(drawing.fields(entity.record), content));
}

// (setpropertyvalue entity name value) -> nil. A property that cannot be set, or not so: an error.
Value setPropertyValue(Arguments &args)
{
    const ListedEntity entity = entityAt(args);
    const Wanted wanted = wantedAt(args, entity);
    if (wanted.row->isTold)
        args.badValue(1, "read-only property");
    if (wanted.row->derived) {
        setContent(entity, stringAt(args, 2));
        return {};
    }
    const Value value =
        wanted.axis < 0 ? args[2] : withCoordinate(presentValue(entity, {wanted.row, -1}), wanted.axis, args.real(2));
    const Value changes =
        Value::list({Value::cons(Value::integer(-1), args[0]), Value::cons(Value::integer(wanted.row->code), value)});
    if (args.interpreter().apply(args.interpreter().symbol("ENTMOD"), {&changes, 1}).isNil())
        args.badValue(2, "property value");
    return {};
}

// (ispropertyreadonly entity name) -> 1 when nobody sets the property, else 0.
Value isPropertyReadOnly(Arguments &args)
{
    const ListedEntity entity = entityAt(args);
    return Value::integer(wantedAt(args, entity).row->isTold ? 1 : 0);
}

// (dumpallproperties entity [context]) -> nil. Prints the properties that the entity has, with their values.
Value dumpAllProperties(Arguments &args)
{
    const ListedEntity entity = entityAt(args);
    QString text;
    for (const EntityProperty &row : drawing::entityProperties()) {
        if (!drawing::hasProperty(entity.type, row) || !drawing::isInVersion(entity.drawing->version(), row))
            continue;
        const Value value = presentValue(entity, {&row, -1});
        if (value.isTrue())
            text +=
                QStringLiteral("\n%1 = %2").arg(QLatin1String(row.name), QString::fromStdString(lisp::toText(value)));
    }
    documentOf(args).print(text + u'\n');
    return {};
}

} // namespace

void addPropertyFunctions(lisp::Interpreter &interpreter)
{
    using lisp::Arity;
    static constexpr lisp::NativeRow rows[] = {
        {"getpropertyvalue", getPropertyValue, Arity::exactly(2), "entity name", "the value of an entity's property"},
        {"setpropertyvalue", setPropertyValue, Arity::exactly(3), "entity name value", "changes an entity's property"},
        {"ispropertyreadonly", isPropertyReadOnly, Arity::exactly(2), "entity name",
         "1 for a property that nobody sets, else 0"},
        {"dumpallproperties", dumpAllProperties, Arity::between(1, 2), "entity [context]",
         "prints the properties of an entity"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
