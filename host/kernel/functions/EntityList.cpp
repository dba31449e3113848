#include "host/kernel/functions/EntityList.h"

#include "host/drawing/Wildcard.h"
#include "host/kernel/Document.h"
#include "host/kernel/functions/ImpliedFields.h"
#include "host/kernel/functions/LispConversion.h"
#include "host/kernel/functions/ParagraphSize.h"

#include <QHash>
#include <QStringList>
#include <QtMath>

#include <cmath>

namespace host::kernel {

namespace {

using drawing::Field;
using drawing::FieldList;
using drawing::Handle;
using drawing::RecordId;
using drawing::TagType;
using drawing::Vec2;
using drawing::Vec3;
using lisp::Value;

constexpr int nameCode = -1;
constexpr int xdataCode = -3;
constexpr int applicationCode = 1001;

/// Marks the entity name of a handle that leads nowhere, so that handing the list back keeps it.
constexpr std::uint64_t danglingBit = std::uint64_t(1) << 63;

bool isXdata(const Field &field)
{
    return field.code >= 1000;
}

bool isAngleCode(int code)
{
    return code >= 50 && code <= 58;
}

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
    if (!point || !std::isfinite(point->x) || !std::isfinite(point->y) || !std::isfinite(point->z))
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

/// The items of one application: ("APP" (1000 . "text") ...).
void appendXdata(const Document &document, const Value &application, FieldList &fields)
{
    if (!application.isCons() || !application.car().isString())
        throw EntityListError{QStringLiteral("bad extended data"), application};
    fields.push_back({applicationCode, QString::fromStdString(application.car().asString())});
    for (const Value &item : lisp::ListItems(application.cdr()))
        fields.push_back(fromListItem(document, item, AngleForm::Degrees));
}

/// (-3 ("APP" ...) ...) of the applications that match; nil when there are none.
Value xdataItem(const Document &document, const FieldList &fields, const QStringList &applications)
{
    lisp::ListBuilder all;
    lisp::ListBuilder one;
    bool isWanted = false;
    const auto endApplication = [&] {
        if (isWanted && !one.isEmpty())
            all.append(one.take());
    };
    for (const Field &field : fields) {
        if (field.code == applicationCode) {
            endApplication();
            isWanted = std::any_of(applications.begin(), applications.end(), [&](const QString &pattern) {
                return drawing::matchesWildcard(field.text(), pattern);
            });
            if (isWanted)
                one.append(toLisp(field.text()));
        } else if (isXdata(field) && isWanted) {
            one.append(toListItem(document, field, AngleForm::Degrees));
        }
    }
    endApplication();
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

/// How often each code occurs.
QHash<int, int> codeCounts(const FieldList &fields)
{
    QHash<int, int> counts;
    for (const Field &field : fields)
        ++counts[field.code];
    return counts;
}

bool isSameValue(const Field &present, const Field &given)
{
    const auto isNear = [](double a, double b) { return a == b || std::abs(a - b) <= 1e-13 * std::abs(a); };
    if (present.code != given.code)
        return false;
    if (isAngleCode(present.code))
        return isNear(present.real(), given.real());
    if (std::holds_alternative<Vec2>(present.value) && std::holds_alternative<Vec3>(given.value))
        return inSpace(present).value == given.value;
    return present.value == given.value;
}

/// `present` with the values of `given` in the places of their codes; nothing when a code occurs more or less often.
std::optional<FieldList> substituted(const FieldList &present, const FieldList &given)
{
    const QHash<int, int> counts = codeCounts(present);
    const QHash<int, int> givenCounts = codeCounts(given);
    for (auto count = givenCounts.begin(); count != givenCounts.end(); ++count)
        if (counts.value(count.key()) != count.value())
            return {};
    QHash<int, std::vector<const Field *>> byCode;
    for (auto field = given.rbegin(); field != given.rend(); ++field)
        byCode[field->code].push_back(&*field);
    FieldList result = present;
    for (Field &field : result) {
        const auto values = byCode.find(field.code);
        if (values == byCode.end())
            continue;
        // An equal value keeps the spelling of the file.
        if (!isSameValue(field, *values->back()))
            field = *values->back();
        values->pop_back();
    }
    return result;
}

/// Types whose groups mean something by their order: a code that is left out cannot be put back from the old list.
bool isOrdered(const QString &type)
{
    static const QStringList types = {QStringLiteral("LWPOLYLINE"), QStringLiteral("SPLINE"),  QStringLiteral("HATCH"),
                                      QStringLiteral("MLINE"),      QStringLiteral("LEADER"),  QStringLiteral("LTYPE"),
                                      QStringLiteral("DICTIONARY"), QStringLiteral("XRECORD"), QStringLiteral("GROUP")};
    return types.contains(type);
}

FieldList withoutXdata(const FieldList &fields)
{
    FieldList rest;
    std::copy_if(fields.begin(), fields.end(), std::back_inserter(rest), std::not_fn(isXdata));
    return rest;
}

/// Extended data of `present`, with the applications that `given` names replaced, or taken out where it has nothing
/// for them.
FieldList mergedXdata(const FieldList &present, const FieldList &given)
{
    QStringList named;
    for (const Field &field : given)
        if (field.code == applicationCode)
            named.append(field.text().toUpper());
    FieldList result;
    bool isReplaced = false;
    for (const Field &field : present) {
        if (field.code == applicationCode)
            isReplaced = named.contains(field.text().toUpper());
        if (isXdata(field) && !isReplaced)
            result.push_back(field);
    }
    for (size_t i = 0; i < given.size(); ++i) {
        const bool isEmptyApplication =
            given[i].code == applicationCode && (i + 1 == given.size() || given[i + 1].code == applicationCode);
        if (isXdata(given[i]) && !isEmptyApplication)
            result.push_back(given[i]);
    }
    return result;
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

Value entityList(const Document &document, RecordId record, const QStringList &applications)
{
    const drawing::Drawing &drawing = document.drawing();
    const AngleForm angles = angleForm(drawing, record);
    FieldList fields = withImpliedFields(drawing, record, drawing.fields(record));
    if (drawing.isType(record, "MTEXT"))
        fields = withParagraphSize(document, std::move(fields));
    const bool isSpace = hasSpacePoints(QString::fromLatin1(drawing.typeName(record)));
    lisp::ListBuilder list;
    list.append(Value::cons(Value::integer(nameCode), toLisp(record)));
    // Programs see the owner in front of the handle.
    const bool hasOwner = !drawing.owner(record).isNull();
    bool isOwnerDone = !hasOwner;
    const auto owner = std::find_if(fields.begin(), fields.end(), [&](const Field &field) {
        return field.code == 330 && field.handle() == drawing.owner(record);
    });
    for (auto field = fields.begin(); field != fields.end(); ++field) {
        if (isXdata(*field) || (hasOwner && field == owner))
            continue;
        list.append(toListItem(document, isSpace ? inSpace(*field) : *field, angles));
        if (!isOwnerDone && field->code == 0 && owner != fields.end())
            list.append(toListItem(document, *owner, angles));
        isOwnerDone = true;
    }
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

FieldList mergedFields(const FieldList &present, const FieldList &given)
{
    const Field *type = drawing::findField(present, 0);
    const QString typeName = type ? type->text().trimmed() : QString();
    const FieldList body = withoutXdata(present);
    FieldList wanted = withoutXdata(given);
    const bool isParagraph = typeName == QStringLiteral("MTEXT");
    if (isParagraph)
        keepParagraphSize(wanted, body);
    // What the list got for the program's convenience and still has its usual value stays out of the file.
    const FieldList &implied = impliedFields(typeName);
    std::erase_if(wanted, [&](const Field &field) {
        const bool isUsual =
            field.code == 67
                ? field.integer() == 0
                : field.code == 410 || std::any_of(implied.begin(), implied.end(),
                                                   [&](const Field &usual) { return isSameValue(usual, field); });
        return isUsual && !drawing::findField(body, field.code);
    });
    FieldList result;
    if (std::optional<FieldList> same = substituted(body, wanted)) {
        result = std::move(*same);
    } else {
        result = wanted;
        const QHash<int, int> counts = codeCounts(wanted);
        for (const Field &field : body) {
            const bool isProperty = field.code < 10 || (field.code >= 48 && field.code <= 67 && field.code != 50);
            if (!counts.contains(field.code) && (isProperty || !isOrdered(typeName)))
                result.push_back(field);
        }
    }
    if (isParagraph)
        dropOldParagraphSize(result, body);
    const FieldList xdata = mergedXdata(present, given);
    result.insert(result.end(), xdata.begin(), xdata.end());
    return result;
}

} // namespace host::kernel
