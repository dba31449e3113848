#include "host/drawing/annotation/StyleValues.h"

#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/TableCodes.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/ExtendedData.h"
#include "host/drawing/tags/GroupCodes.h"

#include <algorithm>
#include <iterator>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

using enum DimensionValue;

bool isNamed(DimensionValue kind)
{
    return kind == Arrow || kind == DimensionValue::TextStyle || kind == DimensionValue::Linetype;
}

QString headerName(const DimensionVariable &variable)
{
    return u'$' + QString::fromLatin1(variable.name);
}

/// Files before R2000 name the arrow heads of a style under these groups.
int earlyCode(const DimensionVariable &variable)
{
    return variable.styleCode >= 342 && variable.styleCode <= 344 ? variable.styleCode - 337 : 0;
}

/// What counts where a style does not say it, in inches as in millimetres.
FieldValue usualInStyle(const DimensionVariable &variable)
{
    if (const auto *number = std::get_if<int>(&variable.imperial))
        return qint64(*number);
    if (const auto *real = std::get_if<double>(&variable.imperial))
        return *real;
    return QString::fromLatin1(std::get<const char *>(variable.imperial));
}

/// Names of arrow heads and tables go by without their underscore and letter case; a dot stands for none.
QString comparable(const DimensionVariable &variable, const QString &name)
{
    QString plain = name.trimmed().toLower();
    if (kindOf(variable) == Arrow && (plain == u"." || plain == u"_closedfilled" || plain == u"closedfilled"))
        return {};
    if (kindOf(variable) == Arrow && plain.startsWith(u'_'))
        plain.remove(0, 1);
    return plain;
}

bool areSame(const DimensionVariable &variable, const Field &a, const Field &b)
{
    if (kindOf(variable) == Real)
        return std::abs(a.real() - b.real()) <= 1e-12 * std::max(1.0, std::abs(a.real()));
    if (kindOf(variable) == Integer)
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
    return kindOf(variable) == Arrow                       ? TableKind::BlockRecord
           : kindOf(variable) == DimensionValue::TextStyle ? TableKind::Style
                                                           : TableKind::Linetype;
}

/// Those of styles, by their group there.
const std::vector<DimensionVariable> &styleVariables()
{
    static const std::vector<DimensionVariable> rows = [] {
        std::vector<DimensionVariable> found;
        std::ranges::copy_if(dimensionVariables(), std::back_inserter(found), isOfStyles);
        std::ranges::sort(found, {}, &DimensionVariable::styleCode);
        return found;
    }();
    return rows;
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

DimensionValue kindOf(const DimensionVariable &variable)
{
    switch (variable.headerCode) {
    case 40:
        return Real;
    case 7:
        return DimensionValue::TextStyle;
    case 6:
        return DimensionValue::Linetype;
    case 1:
        return variable.styleCode > 340 ? Arrow : Text;
    default:
        return Integer;
    }
}

bool isOfStyles(const DimensionVariable &variable)
{
    return variable.styleCode != 0 && variable.styleCode != 70;
}

Field valueInStyle(const Drawing &drawing, const FieldList &style, const DimensionVariable &variable)
{
    const int code = variable.headerCode;
    if (const Field *early = findField(style, earlyCode(variable)); early && earlyCode(variable) != 0)
        return {code, early->text()};
    const Field *found = findField(style, variable.styleCode);
    if (!found)
        return {code, usualInStyle(variable)};
    if (isNamed(kindOf(variable)))
        return {code, nameOfRecord(drawing, found->handle())};
    if (kindOf(variable) == Real)
        return {code, found->real()};
    return kindOf(variable) == Integer ? Field{code, found->integer()} : Field{code, found->text()};
}

std::optional<Field> valueInHeader(const Drawing &drawing, const DimensionVariable &variable)
{
    return drawing.header().get(headerName(variable));
}

Field fieldOfStyle(Drawing &drawing, const DimensionVariable &variable, const Field &value)
{
    if (kindOf(variable) == Real)
        return {variable.styleCode, value.real()};
    if (kindOf(variable) == Integer)
        return {variable.styleCode, value.integer()};
    if (kindOf(variable) == Text)
        return {variable.styleCode, value.text()};
    const QString name = kindOf(variable) == Arrow ? ensureArrowBlock(drawing, value.text()) : value.text();
    if (kindOf(variable) == Arrow && drawing.version() < Version::R2000)
        return {earlyCode(variable) != 0 ? earlyCode(variable) : variable.styleCode, name};
    const RecordId record = name.isEmpty() ? noRecord : drawing.tables().find(tableOf(variable), name);
    return {variable.styleCode, isValid(record) ? drawing.handle(record) : Handle{}};
}

FieldList currentOverrides(Drawing &drawing, const QString &style)
{
    const RecordId record = drawing.tables().find(TableKind::DimStyle, style);
    FieldList result;
    if (!isValid(record))
        return result;
    const FieldList fields = drawing.fields(record);
    for (const DimensionVariable &variable : styleVariables()) {
        const std::optional<Field> value = valueInHeader(drawing, variable);
        const bool isKnown = hasCode(TableKind::DimStyle, variable.styleCode, drawing.version());
        if (value && isKnown && !areSame(variable, *value, valueInStyle(drawing, fields, variable)))
            result.push_back(fieldOfStyle(drawing, variable, *value));
    }
    return result;
}

void makeStyleCurrent(Drawing &drawing, RecordId style)
{
    const FieldList fields = drawing.fields(style);
    for (const DimensionVariable &variable : styleVariables()) {
        const Field value = valueInStyle(drawing, fields, variable);
        // What the header leaves out is what a style leaves out.
        const std::optional<Field> present = valueInHeader(drawing, variable);
        const bool isNeeded = present || !areSame(variable, value, {value.code, usualInStyle(variable)});
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
    for (const DimensionVariable &variable : styleVariables()) {
        const Field value = valueInHeader(drawing, variable).value_or(valueInStyle(drawing, base, variable));
        const bool isUsual = areSame(variable, value, {value.code, usualInStyle(variable)});
        const bool isKnown = hasCode(TableKind::DimStyle, variable.styleCode, drawing.version());
        if (isKnown && (!isUsual || findField(base, variable.styleCode)))
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
