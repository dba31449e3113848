#include "host/kernel/platform/RecordChain.h"

#include "host/kernel/platform/ChainBuilder.h"

namespace host::kernel {

namespace {

using drawing::Field;
using drawing::FieldList;

OdResBufPtr toResBuf(const Field &field)
{
    if (const auto *real = std::get_if<double>(&field.value))
        return OdResBuf::newReal(field.code, *real);
    if (const auto *integer = std::get_if<qint64>(&field.value))
        return OdResBuf::newInteger(field.code, *integer);
    if (std::holds_alternative<drawing::Vec2>(field.value) || std::holds_alternative<drawing::Vec3>(field.value)) {
        const drawing::Vec3 point = field.point();
        return OdResBuf::newPoint(field.code, {point.x, point.y, point.z});
    }
    if (const auto *bytes = std::get_if<QByteArray>(&field.value))
        return OdResBuf::newString(field.code, QString::fromLatin1(bytes->toHex().toUpper()));
    return OdResBuf::newString(field.code, field.text());
}

Field toField(const OdResBuf &link)
{
    const int code = link.restype();
    switch (drawing::tagType(code)) {
    case drawing::TagType::Real: {
        const OdGePoint3d point = link.getPoint3d();
        if (drawing::isPointCode(code) && (point != OdGePoint3d{} || link.getDouble() == 0.0))
            return {code, drawing::Vec3{point.x, point.y, point.z}};
        return {code, link.getDouble()};
    }
    case drawing::TagType::Int16:
    case drawing::TagType::Int32:
    case drawing::TagType::Int64:
    case drawing::TagType::Bool:
        return {code, link.getInteger()};
    case drawing::TagType::Handle:
        return {code, drawing::Handle::fromText(link.getString()).value_or(drawing::Handle{})};
    case drawing::TagType::Binary:
        return {code, QByteArray::fromHex(link.getString().toLatin1())};
    case drawing::TagType::Text:
        break;
    }
    return {code, link.getString()};
}

} // namespace

OdResBufPtr chainFromFields(const FieldList &fields)
{
    ChainBuilder chain;
    for (const Field &field : fields)
        chain.append(toResBuf(field));
    return chain.take();
}

FieldList fieldsFromChain(const OdResBuf *chain)
{
    FieldList fields;
    for (const OdResBuf *link = chain; link; link = link->next())
        fields.push_back(toField(*link));
    return fields;
}

} // namespace host::kernel
