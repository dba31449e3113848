#include "host/kernel/lisp/LispConversion.h"

#include "host/kernel/documents/Document.h"
#include "host/kernel/lisp/LispConsole.h"
#include "host/lisp/Interpreter.h"

namespace host::kernel {

using drawing::RecordId;
using drawing::Vec2;
using drawing::Vec3;
using lisp::Value;

QString fromUtf8(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

Value toLisp(const QString &text)
{
    return Value::string(text.toStdString());
}

Value toLisp(const Vec3 &point)
{
    return Value::point(point.x, point.y, point.z);
}

Value toLisp(const VariableValue &value)
{
    struct Converter
    {
        Value operator()(qint32 number) const { return Value::integer(number); }
        Value operator()(double number) const { return Value::real(number); }
        Value operator()(const QString &text) const { return toLisp(text); }
        Value operator()(const Vec2 &point) const { return Value::point(point.x, point.y); }
        Value operator()(const Vec3 &point) const { return toLisp(point); }
    };
    return std::visit(Converter{}, value);
}

Value toLisp(RecordId entity)
{
    return Value::entityName(static_cast<std::uint64_t>(entity));
}

Value toLisp(lisp::Interpreter &interpreter, const std::vector<RecordId> &entities)
{
    std::vector<std::uint64_t> names(entities.size());
    std::transform(entities.begin(), entities.end(), names.begin(),
                   [](RecordId id) { return static_cast<std::uint64_t>(id); });
    return interpreter.makeSelectionSet(names);
}

std::optional<Vec3> pointFrom(const Value &value)
{
    double numbers[3] = {};
    int count = 0;
    for (const Value &item : lisp::ListItems(value)) {
        if (count == 3 || !item.isNumber())
            return {};
        numbers[count++] = item.asReal();
    }
    if (count < 2)
        return {};
    return Vec3{numbers[0], numbers[1], numbers[2]};
}

RecordId recordFrom(const Document &document, std::uint64_t entityName)
{
    return entityName < document.drawing().idLimit() ? RecordId{static_cast<quint32>(entityName)} : drawing::noRecord;
}

Document &documentOf(lisp::Arguments &args)
{
    return static_cast<LispConsole &>(args.interpreter().console()).document();
}

QString stringAt(lisp::Arguments &args, std::size_t index)
{
    return QString::fromStdString(args.string(index));
}

RecordId recordAt(lisp::Arguments &args, std::size_t index)
{
    const RecordId record = recordFrom(documentOf(args), args.entity(index));
    if (!isValid(record))
        args.badValue(index, "entity name");
    return record;
}

Vec3 pointAt(lisp::Arguments &args, std::size_t index)
{
    const lisp::Point point = args.point(index);
    return {point.x, point.y, point.z};
}

Vec3 toWorld(const Document &document, const Vec3 &user)
{
    const OdGePoint3d world = document.userToWorld({user.x, user.y, user.z});
    return {world.x, world.y, world.z};
}

Vec3 toUser(const Document &document, const Vec3 &world)
{
    const OdGePoint3d user = document.worldToUser({world.x, world.y, world.z});
    return {user.x, user.y, user.z};
}

} // namespace host::kernel
