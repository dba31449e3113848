#include "host/drawing/tags/TagWriter.h"

#include "host/drawing/tags/GroupCodes.h"

#include <charconv>

namespace host::drawing {

namespace {

/// Binary data longer than this goes on in another tag of the same code.
constexpr qsizetype binaryBytesOfATag = 127;

Tag parsed(const QByteArray &text)
{
    Tag tag;
    tag.value = text;
    return tag;
}

QByteArray realText(const Field &field, const TextCodec &codec)
{
    if (std::holds_alternative<QString>(field.value)) {
        const QByteArray text = codec.encode(field.text());
        return formatReal(parsed(text).real().value_or(0.0));
    }
    return formatReal(field.real());
}

QByteArray integerText(const Field &field, const TextCodec &codec)
{
    if (std::holds_alternative<QString>(field.value)) {
        const QByteArray text = codec.encode(field.text());
        return QByteArray::number(parsed(text).integer().value_or(0));
    }
    return QByteArray::number(field.integer());
}

QByteArray plainText(const Field &field, const TextCodec &codec)
{
    if (const auto *number = std::get_if<double>(&field.value))
        return formatReal(*number);
    if (const auto *number = std::get_if<qint64>(&field.value))
        return QByteArray::number(*number);
    if (const auto *data = std::get_if<QByteArray>(&field.value))
        return data->toHex().toUpper();
    return codec.encode(field.text());
}

/// The place of `field` at or a little behind `from`. The limit keeps rewriting linear when nothing is the same.
size_t findSame(const std::vector<FieldSpan> &spans, size_t from, const Field &field)
{
    constexpr size_t lookAhead = 64;
    const size_t end = std::min(spans.size(), from + lookAhead);
    for (size_t i = from; i < end; ++i) {
        if (spans[i].field == field)
            return i;
    }
    return spans.size();
}

} // namespace

QByteArray formatReal(double number)
{
    if (!std::isfinite(number))
        return "0.0";
    char buffer[realTextLength];
    return {buffer, writeRealText(buffer, number)};
}

qsizetype writeRealText(char *buffer, double number)
{
    char *end = std::to_chars(buffer, buffer + realTextLength, number).ptr;
    if (std::none_of(buffer, end, [](char c) { return c == '.' || c == 'e'; })) {
        *end++ = '.';
        *end++ = '0';
    }
    return end - buffer;
}

void TagWriter::write(const Field &field)
{
    if (const auto *point = std::get_if<Vec3>(&field.value))
        return writePoint(field.code, *point, 3);
    if (const auto *point = std::get_if<Vec2>(&field.value))
        return writePoint(field.code, {point->x, point->y, 0.0}, 2);
    switch (tagType(field.code)) {
    case TagType::Real:
        return writeTag(field.code, realText(field, m_codec));
    case TagType::Int16:
    case TagType::Int32:
    case TagType::Int64:
    case TagType::Bool:
        return writeTag(field.code, integerText(field, m_codec));
    case TagType::Binary:
        if (const auto *data = std::get_if<QByteArray>(&field.value))
            return writeBinary(field.code, *data);
        [[fallthrough]];
    case TagType::Handle:
    case TagType::Text:
        return writeTag(field.code, plainText(field, m_codec));
    }
}

void TagWriter::writeTag(int code, QByteArrayView value)
{
    const QByteArray number = QByteArray::number(code);
    m_lines += m_style.isCodePadded ? number.rightJustified(3, ' ') : number;
    m_lines += m_style.lineEnd;
    m_lines += value;
    m_lines += m_style.lineEnd;
}

void TagWriter::writePoint(int code, const Vec3 &point, int dimensions)
{
    writeTag(code, formatReal(point.x));
    writeTag(code + 10, formatReal(point.y));
    if (dimensions == 3)
        writeTag(code + 20, formatReal(point.z));
}

void TagWriter::writeBinary(int code, const QByteArray &data)
{
    qsizetype from = 0;
    do {
        writeTag(code, data.mid(from, binaryBytesOfATag).toHex().toUpper());
        from += binaryBytesOfATag;
    } while (from < data.size());
}

QByteArray rewriteFields(const std::vector<FieldSpan> &before, const FieldList &fields, const LineStyle &style,
                         const TextCodec &codec)
{
    TagWriter writer(style, codec);
    size_t cursor = 0;
    for (const Field &field : fields) {
        const size_t same = findSame(before, cursor, field);
        if (same == before.size()) {
            writer.write(field);
            continue;
        }
        size_t comment = same;
        while (comment > cursor && before[comment - 1].field.code == commentCode)
            --comment;
        for (; comment <= same; ++comment)
            writer.writeRaw(before[comment].whole);
        cursor = same + 1;
    }
    for (; cursor < before.size() && before[cursor].field.code == commentCode; ++cursor)
        writer.writeRaw(before[cursor].whole);
    return writer.take();
}

} // namespace host::drawing
