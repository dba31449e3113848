// (getpropertyvalue) and its like: groups of entities by the names that their properties have for people.

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

/// One property: what kind of entity has it, and the group that holds it. Points have three further ones, "/X" to "/Z".
struct PropertyRow
{
    const char *type; ///< empty for all entities
    const char *name;
    int code;
    Value (*usual)(); ///< what an entity without the group has
};

Value none()
{
    return {};
}

Value zero()
{
    return Value::integer(0);
}

Value nought()
{
    return Value::real(0.0);
}

Value one()
{
    return Value::real(1.0);
}

Value byLayerColour()
{
    return Value::integer(256);
}

Value byLayerWeight()
{
    return Value::integer(-1);
}

Value byLayerName()
{
    return Value::string("ByLayer");
}

Value standardName()
{
    return Value::string("Standard");
}

constexpr PropertyRow propertyRows[] = {
    {"", "Color", 62, byLayerColour},
    {"", "Layer", 8, none},
    {"", "LayerId", 8, none},
    {"", "Linetype", 6, byLayerName},
    {"", "LinetypeScale", 48, one},
    {"", "LineWeight", 370, byLayerWeight},
    {"", "Thickness", 39, nought},
    {"", "Normal", 210, none},
    {"ARC", "Center", 10, none},
    {"ARC", "EndAngle", 51, none},
    {"ARC", "Radius", 40, none},
    {"ARC", "StartAngle", 50, none},
    {"ATTDEF", "Height", 40, none},
    {"ATTDEF", "Prompt", 3, none},
    {"ATTDEF", "Tag", 2, none},
    {"ATTDEF", "TextString", 1, none},
    {"ATTRIB", "Height", 40, none},
    {"ATTRIB", "Position", 10, none},
    {"ATTRIB", "Rotation", 50, nought},
    {"ATTRIB", "Tag", 2, none},
    {"ATTRIB", "TextString", 1, none},
    {"CIRCLE", "Center", 10, none},
    {"CIRCLE", "Radius", 40, none},
    {"DIMENSION", "DimensionStyleName", 3, standardName},
    {"DIMENSION", "DimensionText", 1, none},
    {"DIMENSION", "Measurement", 42, none},
    {"ELLIPSE", "Center", 10, none},
    {"ELLIPSE", "EndParam", 42, none},
    {"ELLIPSE", "MajorAxis", 11, none},
    {"ELLIPSE", "RadiusRatio", 40, none},
    {"ELLIPSE", "StartParam", 41, none},
    {"HATCH", "Elevation", 10, none},
    {"HATCH", "PatternAngle", 52, nought},
    {"HATCH", "PatternName", 2, none},
    {"HATCH", "PatternScale", 41, one},
    {"INSERT", "BlockName", 2, none},
    {"INSERT", "Position", 10, none},
    {"INSERT", "Rotation", 50, nought},
    {"INSERT", "ScaleFactorX", 41, one},
    {"INSERT", "ScaleFactorY", 42, one},
    {"INSERT", "ScaleFactorZ", 43, one},
    {"LINE", "EndPoint", 11, none},
    {"LINE", "StartPoint", 10, none},
    {"LWPOLYLINE", "ConstantWidth", 43, nought},
    {"LWPOLYLINE", "Elevation", 38, nought},
    {"MTEXT", "Attachment", 71, none},
    {"MTEXT", "Contents", 1, none},
    {"MTEXT", "Location", 10, none},
    {"MTEXT", "Rotation", 50, nought},
    {"MTEXT", "Text", 1, none},
    {"MTEXT", "TextHeight", 40, none},
    {"MTEXT", "TextStyleName", 7, standardName},
    {"MTEXT", "Width", 41, nought},
    {"POINT", "Position", 10, none},
    {"TEXT", "AlignmentPoint", 11, none},
    {"TEXT", "Height", 40, none},
    {"TEXT", "HorizontalMode", 72, zero},
    {"TEXT", "Oblique", 51, nought},
    {"TEXT", "Position", 10, none},
    {"TEXT", "Rotation", 50, nought},
    {"TEXT", "TextString", 1, none},
    {"TEXT", "TextStyleName", 7, standardName},
    {"TEXT", "VerticalMode", 73, zero},
    {"TEXT", "WidthFactor", 41, one},
};

/// What is measured and worked out; nobody sets it.
bool isTold(const PropertyRow &row)
{
    return std::string_view(row.name) == "Measurement" || std::string_view(row.name) == "BlockName";
}

/// A property as it was asked for: its row, and which coordinate of it.
struct Wanted
{
    const PropertyRow *row = nullptr;
    int axis = -1; ///< -1 for the whole value
};

Wanted findWanted(std::string_view type, const std::string &asked)
{
    const std::string name = units::lowered(asked);
    const bool isCoordinate =
        name.size() > 2 && name[name.size() - 2] == '/' && name.back() >= 'x' && name.back() <= 'z';
    const std::string plain = isCoordinate ? name.substr(0, name.size() - 2) : name;
    for (const PropertyRow &row : propertyRows)
        if ((row.type[0] == '\0' || type == row.type) && units::lowered(row.name) == plain)
            return {&row, isCoordinate ? name.back() - 'x' : -1};
    return {};
}

/// The entity of argument 0 with its list.
struct ListedEntity
{
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
    return {record, document.drawing().typeName(record).toByteArray().toUpper().toStdString(),
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

Value presentValue(const ListedEntity &entity, const Wanted &wanted)
{
    const Value held = valueOfGroup(entity.list, wanted.row->code);
    const Value whole = held.isNil() ? wanted.row->usual() : held;
    return wanted.axis < 0 ? whole : coordinate(whole, wanted.axis);
}

Wanted wantedAt(Arguments &args, const ListedEntity &entity)
{
    const Wanted wanted = findWanted(entity.type, args.string(1));
    if (!wanted.row)
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

// (setpropertyvalue entity name value) -> nil. A property that cannot be set, or not so: an error.
Value setPropertyValue(Arguments &args)
{
    const ListedEntity entity = entityAt(args);
    const Wanted wanted = wantedAt(args, entity);
    if (isTold(*wanted.row))
        args.badValue(1, "read-only property");
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
    return Value::integer(isTold(*wantedAt(args, entity).row) ? 1 : 0);
}

// (dumpallproperties entity [context]) -> nil. Prints the properties that the entity has, with their values.
Value dumpAllProperties(Arguments &args)
{
    const ListedEntity entity = entityAt(args);
    QString text;
    for (const PropertyRow &row : propertyRows) {
        if (row.type[0] != '\0' && entity.type != row.type)
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
