#include "host/kernel/lisp/EntityList.h"

#include "host/drawing/math/Finite.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/selection/Wildcard.h"
#include "host/drawing/tags/GroupCodes.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/lisp/ParagraphSize.h"

#include <QStringList>
#include <QtMath>

#include <cmath>

namespace host::kernel {

namespace {

using drawing::applicationCode;
using drawing::Field;
using drawing::FieldList;
using drawing::Handle;
using drawing::RecordId;
using drawing::TagType;
using drawing::Vec2;
using drawing::Vec3;
using drawing::xdataCode;
using lisp::Value;

constexpr int nameCode = -1;
constexpr int relatedCode = -2;

/// Marks the entity name of a handle that leads nowhere, so that handing the list back keeps it.
constexpr std::uint64_t danglingBit = std::uint64_t(1) << 63;

/// Degrees that come out of radians as they went in: a number of few digits is meant where it lies within the error of
/// the two conversions.
double degreesFrom(double radians)
{
    const double degrees = qRadiansToDegrees(radians);
    const double meant = std::round(degrees * 1e9) / 1e9;
    constexpr double error = 4 * std::numeric_limits<double>::epsilon();
    return std::abs(degrees - meant) <= error * std::abs(degrees) ? meant : degrees;
}

Value nameFor(const Document &document, Handle handle)
{
    const RecordId record = document.drawing().find(handle);
    return isValid(record) ? toLisp(record) : Value::entityName(danglingBit | handle.value);
}

Handle handleFor(const Document &document, const Value &item, std::uint64_t name)
{
    if (name & danglingBit)
        return Handle{name & ~danglingBit};
    const RecordId record = recordFrom(document, name);
    if (!isValid(record))
        throw EntityListError{QStringLiteral("unknown entity name"), item};
    return document.drawing().handle(record);
}

Value number(qint64 value)
{
    const bool fits = value >= std::numeric_limits<qint32>::min() && value <= std::numeric_limits<qint32>::max();
    return fits ? Value::integer(static_cast<qint32>(value)) : Value::real(double(value));
}

Value valueOf(const Document &document, const Field &field, AngleForm angles)
{
    if (const auto *real = std::get_if<double>(&field.value)) {
        const bool isAngle = angles == AngleForm::Radians && isAngleCode(field.code);
        return Value::real(isAngle ? qDegreesToRadians(*real) : *real);
    }
    if (const auto *integer = std::get_if<qint64>(&field.value))
        return number(*integer);
    if (const auto *flat = std::get_if<Vec2>(&field.value))
        return Value::point(flat->x, flat->y);
    if (const auto *point = std::get_if<Vec3>(&field.value))
        return toLisp(*point);
    if (const auto *handle = std::get_if<Handle>(&field.value))
        return isEntityNameCode(field.code) ? nameFor(document, *handle) : toLisp(handle->toString());
    if (const auto *bytes = std::get_if<QByteArray>(&field.value))
        return Value::string(bytes->toHex().toUpper().toStdString());
    return toLisp(field.text());
}

drawing::FieldValue integerValue(const Value &item, const Value &value)
{
    if (value.isInteger())
        return qint64(value.asInteger());
    if (value.isReal() && std::abs(value.asReal()) < 9e15)
        return static_cast<qint64>(value.asReal());
    throw EntityListError{QStringLiteral("not a number"), item};
}

drawing::FieldValue realValue(const Value &item, int code, const Value &value, AngleForm angles)
{
    if (value.isNumber() && std::isfinite(value.asReal())) {
        const bool isAngle = angles == AngleForm::Radians && isAngleCode(code);
        return isAngle ? degreesFrom(value.asReal()) : value.asReal();
    }
    const std::optional<Vec3> point = drawing::isPointCode(code) ? pointFrom(value) : std::nullopt;
    if (!point || !isFinite(*point))
        throw EntityListError{QStringLiteral("not a number or point"), item};
    if (lisp::listLength(value) == 2)
        return point->xy();
    return *point;
}

drawing::FieldValue handleValue(const Document &document, const Value &item, const Value &value)
{
    if (value.isEntityName())
        return handleFor(document, item, value.asEntityName());
    const std::optional<Handle> handle =
        value.isString() ? Handle::fromText(QString::fromStdString(value.asString())) : std::nullopt;
    if (handle)
        return *handle;
    // A dimension style of an early version has the name of its arrow block where others have their handle.
    if (value.isString() && item.car().asInteger() == 5)
        return QString::fromStdString(value.asString());
    throw EntityListError{QStringLiteral("not an entity name or handle"), item};
}

drawing::FieldValue textValue(const Value &item, const Value &value)
{
    if (!value.isString())
        throw EntityListError{QStringLiteral("not a text"), item};
    return QString::fromStdString(value.asString());
}

} // namespace

bool isAngleCode(int code)
{
    return code >= 50 && code <= 58;
}

void appendXdata(const Document &document, const Value &application, FieldList &fields)
{
    if (!application.isCons() || !application.car().isString())
        throw EntityListError{QStringLiteral("bad extended data"), application};
    fields.push_back({applicationCode, QString::fromStdString(application.car().asString())});
    for (const Value &item : lisp::ListItems(application.cdr())) {
        fields.push_back(fromListItem(document, item, AngleForm::Degrees));
        if (fields.back().code < 1000 || fields.back().code == applicationCode)
            throw EntityListError{QStringLiteral("bad extended data"), item};
    }
}

std::vector<FieldList> applicationsOf(const FieldList &fields)
{
    std::vector<FieldList> applications;
    for (const Field &field : fields) {
        if (field.code == applicationCode)
            applications.emplace_back();
        if (!applications.empty())
            applications.back().push_back(field);
    }
    return applications;
}

Value applicationItem(const Document &document, const FieldList &application)
{
    lisp::ListBuilder items;
    items.append(toLisp(application.front().text()));
    for (const Field &field : application)
        if (field.code >= 1000 && field.code != applicationCode)
            items.append(toListItem(document, field, AngleForm::Degrees));
    return items.take();
}

namespace {

/// (-3 ("APP" ...) ...) of the applications that match; nil when there are none.
Value xdataItem(const Document &document, const FieldList &fields, const QStringList &applications)
{
    lisp::ListBuilder all;
    for (const FieldList &application : applicationsOf(fields))
        if (std::ranges::any_of(applications, [&](const QString &pattern) {
                return drawing::matchesWildcard(application.front().text(), pattern);
            }))
            all.append(applicationItem(document, application));
    return all.isEmpty() ? Value() : Value::cons(Value::integer(xdataCode), all.take());
}

/// Types whose points Lisp always sees with three coordinates.
bool hasSpacePoints(QStringView type)
{
    static const QStringList flat = {QStringLiteral("LWPOLYLINE"), QStringLiteral("HATCH"),
                                     QStringLiteral("VPORT"),      QStringLiteral("VIEW"),
                                     QStringLiteral("IMAGE"),      QStringLiteral("WIPEOUT"),
                                     QStringLiteral("VIEWPORT"),   QStringLiteral("MULTILEADER")};
    return !flat.contains(type.toString());
}

Field inSpace(const Field &field)
{
    const auto *flat = std::get_if<Vec2>(&field.value);
    return flat ? Field{field.code, Vec3{flat->x, flat->y, 0.0}} : field;
}

} // namespace

bool isEntityNameCode(int code)
{
    return (code >= 330 && code <= 369) || (code >= 390 && code <= 399) || code == 480 || code == 481;
}

bool isEntityKind(drawing::RecordKind kind)
{
    using drawing::RecordKind;
    return kind == RecordKind::Entity || kind == RecordKind::Child || kind == RecordKind::EndChildren;
}

RecordId entityBehind(const drawing::Drawing &drawing, RecordId entity)
{
    const RecordId next = drawing.next(entity);
    return isValid(next) && isEntityKind(drawing.kind(next)) ? next : drawing::noRecord;
}

AngleForm angleForm(const drawing::Drawing &drawing, RecordId record)
{
    return drawing.kind(record) == drawing::RecordKind::Object ? AngleForm::Degrees : AngleForm::Radians;
}

Value toListItem(const Document &document, const Field &field, AngleForm angles)
{
    return Value::cons(Value::integer(field.code), valueOf(document, field, angles));
}

Field fromListItem(const Document &document, const Value &item, AngleForm angles)
{
    if (!item.isCons() || !item.car().isInteger())
        throw EntityListError{QStringLiteral("not a dotted pair with a group code"), item};
    const int code = item.car().asInteger();
    const Value &value = item.cdr();
    if (!drawing::isRecordCode(code))
        throw EntityListError{QStringLiteral("not a group code of a record"), item};
    switch (drawing::tagType(code)) {
    case TagType::Int16:
    case TagType::Int32:
    case TagType::Int64:
    case TagType::Bool:
        return {code, integerValue(item, value)};
    case TagType::Real:
        return {code, realValue(item, code, value, angles)};
    case TagType::Handle:
        return {code, handleValue(document, item, value)};
    case TagType::Binary:
        return {code, QByteArray::fromHex(
                          QByteArray::fromStdString(std::get<QString>(textValue(item, value)).toStdString()))};
    case TagType::Text:
        break;
    }
    return {code, textValue(item, value)};
}

std::vector<drawing::ShownField> shownFields(const Document &document, RecordId record, const FieldList &fields)
{
    const drawing::Drawing &drawing = document.drawing();
    std::vector<drawing::ShownField> shown = drawing::shownFields(drawing, record, fields);
    if (drawing.isType(record, "MTEXT"))
        showParagraphSize(document, fields, shown);
    if (hasSpacePoints(QString::fromLatin1(drawing.typeName(record))))
        for (drawing::ShownField &each : shown)
            each.field = inSpace(each.field);
    return shown;
}

namespace {

/// What programs know by -2: of a SEQEND the entity that it ends, of a BLOCK the first entity within. noRecord for
/// others.
RecordId relatedTo(const drawing::Drawing &drawing, RecordId record)
{
    if (drawing.isType(record, "SEQEND"))
        return drawing.parent(record);
    return drawing.kind(record) == drawing::RecordKind::Block ? firstInBlock(drawing, record) : drawing::noRecord;
}

} // namespace

RecordId firstInBlock(const drawing::Drawing &drawing, RecordId block)
{
    const RecordId first = drawing.firstChild(block);
    return isValid(first) ? first : drawing.endOf(block);
}

Value entityList(const Document &document, RecordId record, const QStringList &applications)
{
    const AngleForm angles = angleForm(document.drawing(), record);
    const FieldList fields = document.drawing().fields(record);
    lisp::ListBuilder list;
    list.append(Value::cons(Value::integer(nameCode), toLisp(record)));
    for (const drawing::ShownField &shown : shownFields(document, record, fields))
        list.append(toListItem(document, shown.field, angles));
    if (const RecordId related = relatedTo(document.drawing(), record); isValid(related))
        list.append(Value::cons(Value::integer(relatedCode), toLisp(related)));
    if (const Value xdata = xdataItem(document, fields, applications); xdata.isTrue())
        list.append(xdata);
    return list.take();
}

FieldList fieldsFromList(const Document &document, const Value &list, AngleForm angles)
{
    FieldList fields;
    FieldList xdata;
    for (const Value &item : lisp::ListItems(list)) {
        const int code = item.car().isInteger() ? item.car().asInteger() : 0;
        if (code == xdataCode && item.car().isInteger()) {
            for (const Value &application : lisp::ListItems(item.cdr()))
                appendXdata(document, application, xdata);
        } else if (code >= 0 || !item.car().isInteger()) {
            fields.push_back(fromListItem(document, item, angles));
        }
    }
    fields.insert(fields.end(), xdata.begin(), xdata.end());
    return fields;
}

} // namespace host::kernel
