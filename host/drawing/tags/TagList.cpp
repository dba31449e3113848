#include "host/drawing/tags/TagList.h"

#include "host/drawing/tags/FieldSpan.h"
#include "host/drawing/tags/GroupCodes.h"

namespace host::drawing {

namespace {

FieldValue textValue(const Tag &tag, const TextCodec &codec)
{
    return codec.decode(tag.value);
}

FieldValue typedValue(const Tag &tag, const TextCodec &codec)
{
    const auto orText = [&](const auto &value) -> FieldValue {
        return value ? FieldValue(*value) : textValue(tag, codec);
    };
    switch (tagType(tag.code)) {
    case TagType::Text:
        return textValue(tag, codec);
    case TagType::Real:
        return orText(tag.real());
    case TagType::Int16:
    case TagType::Int32:
    case TagType::Int64:
    case TagType::Bool:
        return orText(tag.integer());
    case TagType::Handle:
        return orText(tag.handle());
    case TagType::Binary:
        return orText(tag.binary());
    }
    return textValue(tag, codec);
}

/// How many tags from `index` on make one point: 0, 2 or 3.
size_t pointLength(const std::vector<Tag> &tags, size_t index)
{
    const int code = tags[index].code;
    const auto isPart = [&](size_t at, int wanted) {
        return at < tags.size() && tags[at].code == wanted && tags[at].real();
    };
    if (!isPointCode(code) || !isPart(index, code) || !isPart(index + 1, code + 10))
        return 0;
    return isPart(index + 2, code + 20) ? 3 : 2;
}

/// The field at `index`; `length` becomes the number of tags it takes.
Field readField(const std::vector<Tag> &tags, size_t index, const TextCodec &codec, size_t &length)
{
    const Tag &tag = tags[index];
    const size_t coordinates = pointLength(tags, index);
    length = std::max<size_t>(coordinates, 1);
    if (coordinates == 0)
        return {tag.code, typedValue(tag, codec)};
    const double x = tag.real().value_or(0.0);
    const double y = tags[index + 1].real().value_or(0.0);
    if (coordinates == 2)
        return {tag.code, Vec2{x, y}};
    return {tag.code, Vec3{x, y, tags[index + 2].real().value_or(0.0)}};
}

} // namespace

std::span<const Tag> TagList::own() const &
{
    return {m_tags.begin(), std::find_if(m_tags.begin(), m_tags.end(), endsOwnGroups<Tag>)};
}

const Tag *TagList::find(int code) const &
{
    BraceDepth braces;
    bool isOwn = true;
    for (const Tag &tag : m_tags) {
        isOwn = isOwn && !endsOwnGroups(tag);
        if (!braces.isInside(tag) && tag.code == code && (isOwn || code >= firstXdataCode))
            return &tag;
    }
    return nullptr;
}

const Tag *TagList::find(int code, QByteArrayView subclass) const &
{
    BraceDepth braces;
    bool hasMarkers = false;
    bool isWithin = false;
    for (const Tag &tag : own()) {
        const bool isInside = braces.isInside(tag);
        if (tag.code == subclassCode) {
            hasMarkers = true;
            isWithin = tag.trimmed() == subclass;
        } else if (isWithin && !isInside && tag.code == code) {
            return &tag;
        }
    }
    return hasMarkers ? nullptr : find(code);
}

QString TagList::text(int code, const QString &otherwise) const
{
    const Tag *tag = find(code);
    return tag ? decoded(*tag) : otherwise;
}

double TagList::real(int code, double otherwise) const
{
    const Tag *tag = find(code);
    return tag ? tag->real().value_or(otherwise) : otherwise;
}

qint64 TagList::integer(int code, qint64 otherwise) const
{
    const Tag *tag = find(code);
    return tag ? tag->integer().value_or(otherwise) : otherwise;
}

Handle TagList::handle(int code) const
{
    const Tag *tag = find(code);
    return tag ? tag->handle().value_or(Handle{}) : Handle{};
}

Vec3 TagList::point(int code, const Vec3 &otherwise) const
{
    const Tag *tag = find(code);
    if (!tag)
        return otherwise;
    const auto index = static_cast<size_t>(tag - m_tags.data());
    Vec3 point{tag->real().value_or(otherwise.x), otherwise.y, otherwise.z};
    // Some writers put the coordinates apart; within a record they still belong together.
    for (size_t i = index + 1; i < m_tags.size() && m_tags[i].code != code; ++i) {
        if (code < firstXdataCode && endsOwnGroups(m_tags[i]))
            break;
        if (m_tags[i].code == code + 10) {
            point.y = m_tags[i].real().value_or(otherwise.y);
        } else if (m_tags[i].code == code + 20) {
            point.z = m_tags[i].real().value_or(otherwise.z);
            break;
        }
    }
    return point;
}

std::vector<Vec3> TagList::points(int code, size_t from) const
{
    std::vector<Vec3> points;
    const size_t end = own().size();
    for (size_t i = from; i < end;) {
        size_t next = i + 1;
        if (m_tags[i].code == code)
            points.push_back(pointAt(i, &next));
        i = next;
    }
    return points;
}

std::vector<double> TagList::reals(int code, size_t from) const
{
    std::vector<double> numbers;
    const size_t end = own().size();
    for (size_t i = from; i < end; ++i) {
        if (m_tags[i].code == code)
            numbers.push_back(m_tags[i].real().value_or(0.0));
    }
    return numbers;
}

Vec3 TagList::pointAt(size_t index, size_t *next) const
{
    const int code = m_tags[index].code;
    Vec3 point{m_tags[index].real().value_or(0.0), 0.0, 0.0};
    size_t i = index + 1;
    if (i < m_tags.size() && m_tags[i].code == code + 10) {
        point.y = m_tags[i++].real().value_or(0.0);
        if (i < m_tags.size() && m_tags[i].code == code + 20)
            point.z = m_tags[i++].real().value_or(0.0);
    }
    if (next)
        *next = i;
    return point;
}

FieldList TagList::fields() const
{
    FieldList fields;
    for (FieldSpan &span : readFieldSpans(m_tags, *m_codec)) {
        if (span.field.code != commentCode)
            fields.push_back(std::move(span.field));
    }
    return fields;
}

Field TagList::fieldAt(size_t index, size_t *next) const
{
    size_t length = 1;
    Field field = readField(m_tags, index, *m_codec, length);
    if (next)
        *next = index + length;
    return field;
}

std::vector<FieldSpan> readFieldSpans(const std::vector<Tag> &tags, const TextCodec &codec)
{
    std::vector<FieldSpan> spans;
    spans.reserve(tags.size());
    for (size_t i = 0; i < tags.size();) {
        size_t length = 1;
        Field field = readField(tags, i, codec, length);
        spans.push_back({std::move(field), QByteArrayView(tags[i].whole.begin(), tags[i + length - 1].whole.end())});
        i += length;
    }
    return spans;
}

} // namespace host::drawing
