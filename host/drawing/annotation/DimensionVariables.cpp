#include "host/drawing/annotation/DimensionVariables.h"

#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/TableCodes.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/ExtendedData.h"
#include "host/drawing/tags/GroupCodes.h"

#include <algorithm>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

using enum DimensionValue;

constexpr DimensionVariable variableRows[] = {
    {"DIMPOST", 3, Text},
    {"DIMAPOST", 4, Text},
    {"DIMSCALE", 40, Real, 1.0},
    {"DIMASZ", 41, Real, 0.18},
    {"DIMEXO", 42, Real, 0.0625},
    {"DIMDLI", 43, Real, 0.38},
    {"DIMEXE", 44, Real, 0.18},
    {"DIMRND", 45, Real},
    {"DIMDLE", 46, Real},
    {"DIMTP", 47, Real},
    {"DIMTM", 48, Real},
    {"DIMFXL", 49, Real, 1.0},
    {"DIMTXT", 140, Real, 0.18},
    {"DIMCEN", 141, Real, 0.09},
    {"DIMTSZ", 142, Real},
    {"DIMALTF", 143, Real, 25.4},
    {"DIMLFAC", 144, Real, 1.0},
    {"DIMTVP", 145, Real},
    {"DIMTFAC", 146, Real, 1.0},
    {"DIMGAP", 147, Real, 0.09},
    {"DIMALTRND", 148, Real},
    {"DIMTFILL", 69, Integer},
    {"DIMTOL", 71, Integer},
    {"DIMLIM", 72, Integer},
    {"DIMTIH", 73, Integer, 1.0},
    {"DIMTOH", 74, Integer, 1.0},
    {"DIMSE1", 75, Integer},
    {"DIMSE2", 76, Integer},
    {"DIMTAD", 77, Integer},
    {"DIMZIN", 78, Integer},
    {"DIMAZIN", 79, Integer},
    {"DIMARCSYM", 90, Integer},
    {"DIMALT", 170, Integer},
    {"DIMALTD", 171, Integer, 2.0},
    {"DIMTOFL", 172, Integer},
    {"DIMSAH", 173, Integer},
    {"DIMTIX", 174, Integer},
    {"DIMSOXD", 175, Integer},
    {"DIMCLRD", 176, Integer},
    {"DIMCLRE", 177, Integer},
    {"DIMCLRT", 178, Integer},
    {"DIMADEC", 179, Integer},
    {"DIMDEC", 271, Integer, 4.0},
    {"DIMTDEC", 272, Integer, 4.0},
    {"DIMALTU", 273, Integer, 2.0},
    {"DIMALTTD", 274, Integer, 2.0},
    {"DIMAUNIT", 275, Integer},
    {"DIMFRAC", 276, Integer},
    {"DIMLUNIT", 277, Integer, 2.0},
    {"DIMDSEP", 278, Integer, 46.0},
    {"DIMTMOVE", 279, Integer},
    {"DIMJUST", 280, Integer},
    {"DIMSD1", 281, Integer},
    {"DIMSD2", 282, Integer},
    {"DIMTOLJ", 283, Integer, 1.0},
    {"DIMTZIN", 284, Integer},
    {"DIMALTZ", 285, Integer},
    {"DIMALTTZ", 286, Integer},
    {"DIMUPT", 288, Integer},
    {"DIMATFIT", 289, Integer, 3.0},
    {"DIMFXLON", 290, Integer},
    {"DIMTXSTY", 340, TextStyle},
    {"DIMLDRBLK", 341, Arrow},
    {"DIMBLK", 342, Arrow},
    {"DIMBLK1", 343, Arrow},
    {"DIMBLK2", 344, Arrow},
    {"DIMLTYPE", 345, Linetype},
    {"DIMLTEX1", 346, Linetype},
    {"DIMLTEX2", 347, Linetype},
    {"DIMLWD", 371, Integer, -2.0},
    {"DIMLWE", 372, Integer, -2.0},
};

bool isNamed(DimensionValue kind)
{
    return kind == Arrow || kind == TextStyle || kind == Linetype;
}

QString headerName(const DimensionVariable &variable)
{
    return u'$' + QString::fromLatin1(variable.name);
}

/// The group that the header keeps a variable under.
int headerCode(const DimensionVariable &variable)
{
    switch (variable.kind) {
    case Real:
        return 40;
    case Integer:
        return 70;
    case TextStyle:
        return 7;
    case Linetype:
        return 6;
    default:
        return 1;
    }
}

/// Files before R2000 name the arrow heads of a style under these groups.
int earlyCode(const DimensionVariable &variable)
{
    return variable.code >= 342 && variable.code <= 344 ? variable.code - 337 : 0;
}

FieldValue usualValue(const DimensionVariable &variable)
{
    switch (variable.kind) {
    case Real:
        return variable.usual;
    case Integer:
        return static_cast<qint64>(variable.usual);
    case TextStyle:
        return u"Standard"_s;
    default:
        return QString();
    }
}

/// Names of arrow heads and tables go by without their underscore and letter case; a dot stands for none.
QString comparable(const DimensionVariable &variable, const QString &name)
{
    QString plain = name.trimmed().toLower();
    if (variable.kind == Arrow && (plain == u"." || plain == u"_closedfilled" || plain == u"closedfilled"))
        return {};
    if (variable.kind == Arrow && plain.startsWith(u'_'))
        plain.remove(0, 1);
    return plain;
}

bool areSame(const DimensionVariable &variable, const Field &a, const Field &b)
{
    if (variable.kind == Real)
        return std::abs(a.real() - b.real()) <= 1e-12 * std::max(1.0, std::abs(a.real()));
    if (variable.kind == Integer)
        return a.integer() == b.integer();
    return comparable(variable, a.text()) == comparable(variable, b.text());
}

QString nameOfRecord(const Drawing &drawing, Handle handle)
{
    const RecordId record = drawing.find(handle);
    return drawing.isAlive(record) ? drawing.tables().name(record) : QString();
}

TableKind tableOf(const DimensionVariable &variable)
{
    return variable.kind == Arrow       ? TableKind::BlockRecord
           : variable.kind == TextStyle ? TableKind::Style
                                        : TableKind::Linetype;
}

/// Which fields of `entity` are the overrides: from the word DSTYLE up to behind its closing brace; both at the end
/// when there are none.
std::pair<std::size_t, std::size_t> overrideRange(const FieldList &entity)
{
    bool isOurs = false;
    for (std::size_t i = 0; i < entity.size(); ++i) {
        if (entity[i].code == applicationCode)
            isOurs = entity[i].text() == u"ACAD";
        if (!isOurs || entity[i].code != 1000 || entity[i].text() != u"DSTYLE")
            continue;
        std::size_t end = i + 1;
        while (end < entity.size() && entity[end].code >= 1000 && entity[end].code != applicationCode &&
               !(entity[end].code == 1002 && entity[end].text() == u"}"))
            ++end;
        const bool isClosed = end < entity.size() && entity[end].code == 1002;
        return {i, isClosed ? end + 1 : end};
    }
    return {entity.size(), entity.size()};
}

} // namespace

std::span<const DimensionVariable> dimensionVariables()
{
    return variableRows;
}

const DimensionVariable *dimensionVariable(QStringView name)
{
    const auto found = std::ranges::find_if(variableRows, [name](const DimensionVariable &row) {
        return name.compare(QLatin1StringView(row.name), Qt::CaseInsensitive) == 0;
    });
    return found == std::end(variableRows) ? nullptr : found;
}

Field valueInStyle(const Drawing &drawing, const FieldList &style, const DimensionVariable &variable)
{
    const int code = headerCode(variable);
    if (const Field *early = findField(style, earlyCode(variable)); early && earlyCode(variable) != 0)
        return {code, early->text()};
    const Field *found = findField(style, variable.code);
    if (!found)
        return {code, usualValue(variable)};
    if (isNamed(variable.kind))
        return {code, nameOfRecord(drawing, found->handle())};
    if (variable.kind == Real)
        return {code, found->real()};
    return variable.kind == Integer ? Field{code, found->integer()} : Field{code, found->text()};
}

std::optional<Field> valueInHeader(const Drawing &drawing, const DimensionVariable &variable)
{
    return drawing.header().get(headerName(variable));
}

Field fieldOfStyle(Drawing &drawing, const DimensionVariable &variable, const Field &value)
{
    if (variable.kind == Real)
        return {variable.code, value.real()};
    if (variable.kind == Integer)
        return {variable.code, value.integer()};
    if (variable.kind == Text)
        return {variable.code, value.text()};
    const QString name = variable.kind == Arrow ? ensureArrowBlock(drawing, value.text()) : value.text();
    if (variable.kind == Arrow && drawing.version() < Version::R2000)
        return {earlyCode(variable) != 0 ? earlyCode(variable) : variable.code, name};
    const RecordId record = name.isEmpty() ? noRecord : drawing.tables().find(tableOf(variable), name);
    return {variable.code, isValid(record) ? drawing.handle(record) : Handle{}};
}

FieldList currentOverrides(Drawing &drawing, const QString &style)
{
    const RecordId record = drawing.tables().find(TableKind::DimStyle, style);
    FieldList result;
    if (!isValid(record))
        return result;
    const FieldList fields = drawing.fields(record);
    for (const DimensionVariable &variable : variableRows) {
        const std::optional<Field> value = valueInHeader(drawing, variable);
        const bool isKnown = hasCode(TableKind::DimStyle, variable.code, drawing.version());
        if (value && isKnown && !areSame(variable, *value, valueInStyle(drawing, fields, variable)))
            result.push_back(fieldOfStyle(drawing, variable, *value));
    }
    return result;
}

void makeStyleCurrent(Drawing &drawing, RecordId style)
{
    const FieldList fields = drawing.fields(style);
    for (const DimensionVariable &variable : variableRows) {
        const Field value = valueInStyle(drawing, fields, variable);
        // What the header leaves out is what a style leaves out.
        const std::optional<Field> present = valueInHeader(drawing, variable);
        const bool isNeeded = present || !areSame(variable, value, {value.code, usualValue(variable)});
        if (isNeeded && !(present && areSame(variable, *present, value)))
            drawing.header().set(headerName(variable), value);
    }
    drawing.header().set(u"$DIMSTYLE", {2, drawing.tables().name(style)});
}

RecordId saveStyle(Drawing &drawing, const QString &name)
{
    const RecordId current = drawing.tables().find(TableKind::DimStyle, drawing.header().text(u"$DIMSTYLE"));
    const FieldList base = isValid(current) ? drawing.fields(current) : FieldList{};
    FieldList fields = {{70, qint64(0)}};
    for (const DimensionVariable &variable : variableRows) {
        const Field value = valueInHeader(drawing, variable).value_or(valueInStyle(drawing, base, variable));
        const bool isUsual = areSame(variable, value, {value.code, usualValue(variable)});
        const bool isKnown = hasCode(TableKind::DimStyle, variable.code, drawing.version());
        if (isKnown && (!isUsual || findField(base, variable.code)))
            fields.push_back(fieldOfStyle(drawing, variable, value));
    }
    const RecordId there = drawing.tables().find(TableKind::DimStyle, name);
    if (!isValid(there))
        return drawing.tables().add(TableKind::DimStyle, name, fields);
    FieldList own = drawing.fields(there);
    for (const Field &field : fields)
        if (field.code != 70)
            setField(own, field.code, field.value);
    drawing.tables().modify(there, own);
    return there;
}

FieldList overridesOf(const FieldList &entity)
{
    const auto [begin, end] = overrideRange(entity);
    FieldList result;
    for (std::size_t i = begin; i + 1 < end; ++i) {
        if (entity[i].code != 1070)
            continue;
        result.push_back({static_cast<int>(entity[i].integer()), entity[i + 1].value});
        ++i;
    }
    return result;
}

void setOverrides(FieldList &entity, const FieldList &overrides)
{
    FieldList data;
    const auto [begin, end] = overrideRange(entity);
    bool isOurs = false;
    for (std::size_t i = 0; i < entity.size(); ++i) {
        const bool isName = entity[i].code == applicationCode;
        isOurs = isName ? entity[i].text() == u"ACAD" : isOurs;
        if (isOurs && !isName && (i < begin || i >= end))
            data.push_back(entity[i]);
    }
    if (!overrides.empty()) {
        data.push_back({1000, u"DSTYLE"_s});
        data.push_back({1002, u"{"_s});
        for (const Field &field : overrides) {
            const TagType type = tagType(field.code);
            const int code = type == TagType::Real     ? 1040
                             : type == TagType::Handle ? 1005
                             : type == TagType::Text   ? 1000
                                                       : 1070;
            data.push_back({1070, qint64(field.code)});
            data.push_back({code, field.value});
        }
        data.push_back({1002, u"}"_s});
    }
    setExtendedData(entity, u"ACAD"_s, data);
}

} // namespace host::drawing
