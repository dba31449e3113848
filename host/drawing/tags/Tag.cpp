#include "host/drawing/tags/Tag.h"

#include "host/drawing/tags/GroupCodes.h"

#include <charconv>

namespace host::drawing {

namespace {

struct TypeRange
{
    int first;
    int last;
    TagType type;
};

// What is not listed is text.
constexpr TypeRange codeRanges[] = {
    {5, 5, TagType::Handle},       {10, 59, TagType::Real},     {60, 79, TagType::Int16},
    {90, 99, TagType::Int32},      {105, 105, TagType::Handle}, {110, 149, TagType::Real},
    {160, 169, TagType::Int64},    {170, 179, TagType::Int16},  {210, 239, TagType::Real},
    {270, 289, TagType::Int16},    {290, 299, TagType::Bool},   {310, 319, TagType::Binary},
    {320, 369, TagType::Handle},   {370, 389, TagType::Int16},  {390, 399, TagType::Handle},
    {400, 409, TagType::Int16},    {420, 429, TagType::Int32},  {440, 459, TagType::Int32},
    {460, 469, TagType::Real},     {480, 481, TagType::Handle}, {1004, 1004, TagType::Binary},
    {1005, 1005, TagType::Handle}, {1010, 1059, TagType::Real}, {1060, 1070, TagType::Int16},
    {1071, 1071, TagType::Int32},
};

QByteArrayView withoutPlus(QByteArrayView text)
{
    text = text.trimmed();
    return text.startsWith('+') ? text.sliced(1) : text;
}

} // namespace

QByteArray Handle::toHex() const
{
    return QByteArray::number(value, 16).toUpper();
}

QString Handle::toString() const
{
    return QString::fromLatin1(toHex());
}

std::optional<Handle> Handle::fromText(QByteArrayView text)
{
    text = text.trimmed();
    Handle handle;
    const auto [end, error] = std::from_chars(text.begin(), text.end(), handle.value, 16);
    if (error != std::errc() || end != text.end())
        return std::nullopt;
    return handle;
}

std::optional<Handle> Handle::fromText(QStringView text)
{
    return fromText(QByteArrayView(text.toLatin1()));
}

TagType tagType(int code)
{
    const auto *range =
        std::lower_bound(std::begin(codeRanges), std::end(codeRanges), code,
                         [](const TypeRange &candidate, int wanted) { return candidate.last < wanted; });
    return range != std::end(codeRanges) && code >= range->first ? range->type : TagType::Text;
}

bool isPointCode(int code)
{
    return (code >= 10 && code <= 18) || (code >= 110 && code <= 112) || (code >= 210 && code <= 212) ||
           (code >= 1010 && code <= 1013);
}

std::optional<double> Tag::real() const
{
    const QByteArrayView text = withoutPlus(value);
    double number = 0.0;
    const auto [end, error] = std::from_chars(text.begin(), text.end(), number);
    if (error == std::errc::result_out_of_range)
        return 0.0;
    if (error != std::errc() || !std::isfinite(number))
        return std::nullopt;
    return number;
}

std::optional<qint64> Tag::integer() const
{
    const QByteArrayView text = withoutPlus(value);
    qint64 number = 0;
    const auto [end, error] = std::from_chars(text.begin(), text.end(), number);
    if (error == std::errc() && (end == text.end() || (*end != '.' && *end != 'e' && *end != 'E')))
        return number;
    const std::optional<double> fraction = real();
    if (!fraction || std::abs(*fraction) >= 9.2e18)
        return std::nullopt;
    return static_cast<qint64>(*fraction);
}

std::optional<Handle> Tag::handle() const
{
    return Handle::fromText(value);
}

std::optional<QByteArray> Tag::binary() const
{
    const QByteArrayView digits = value.trimmed();
    const auto isDigit = [](char c) { return std::isxdigit(static_cast<unsigned char>(c)) != 0; };
    if (digits.size() % 2 != 0 || !std::all_of(digits.begin(), digits.end(), isDigit))
        return std::nullopt;
    return QByteArray::fromHex(digits.toByteArray());
}

QString Field::text() const
{
    if (const auto *string = std::get_if<QString>(&value))
        return *string;
    if (const auto *reference = std::get_if<Handle>(&value))
        return reference->toString();
    return {};
}

double Field::real() const
{
    if (const auto *number = std::get_if<double>(&value))
        return *number;
    if (const auto *number = std::get_if<qint64>(&value))
        return static_cast<double>(*number);
    return 0.0;
}

qint64 Field::integer() const
{
    if (const auto *number = std::get_if<qint64>(&value))
        return *number;
    const auto *number = std::get_if<double>(&value);
    return number && std::abs(*number) < 9.2e18 ? static_cast<qint64>(*number) : 0;
}

Vec3 Field::point() const
{
    if (const auto *inSpace = std::get_if<Vec3>(&value))
        return *inSpace;
    if (const auto *flat = std::get_if<Vec2>(&value))
        return {flat->x, flat->y, 0.0};
    return {};
}

Handle Field::handle() const
{
    if (const auto *reference = std::get_if<Handle>(&value))
        return *reference;
    if (const auto *string = std::get_if<QString>(&value))
        return Handle::fromText(QStringView(*string)).value_or(Handle{});
    return {};
}

FieldList::const_iterator ownEnd(const FieldList &fields)
{
    return std::find_if(fields.begin(), fields.end(), endsOwnGroups<Field>);
}

FieldList::iterator ownEnd(FieldList &fields)
{
    return std::find_if(fields.begin(), fields.end(), endsOwnGroups<Field>);
}

const Field *findField(const FieldList &fields, int code)
{
    BraceDepth braces;
    bool isOwn = true;
    for (const Field &field : fields) {
        const bool isInside = braces.isInside(field);
        if (field.code == code && (code >= firstXdataCode || code == 102 || (isOwn && !isInside)))
            return &field;
        isOwn = isOwn && !endsOwnGroups(field);
    }
    return nullptr;
}

Field *findField(FieldList &fields, int code)
{
    return const_cast<Field *>(findField(std::as_const(fields), code));
}

double realOf(const FieldList &fields, int code, double otherwise)
{
    const Field *field = findField(fields, code);
    return field ? field->real() : otherwise;
}

bool isPoint(const Field &field)
{
    return std::holds_alternative<Vec2>(field.value) || std::holds_alternative<Vec3>(field.value);
}

void setField(FieldList &fields, int code, FieldValue value)
{
    if (Field *field = findField(fields, code))
        field->value = std::move(value);
    else
        fields.insert(code < firstXdataCode ? ownEnd(fields) : fields.end(), {code, std::move(value)});
}

} // namespace host::drawing
