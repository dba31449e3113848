#include "host/drawing/comparing/ContentHash.h"

#include "host/drawing/comparing/ComparedTags.h"

#include <QHashFunctions>

#include <bit>

namespace host::drawing {

namespace {

quint64 joined(quint64 hash, quint64 value)
{
    hash = (hash ^ value) * 0x9E3779B97F4A7C15;
    return hash ^ (hash >> 29);
}

quint64 joined(quint64 hash, QByteArrayView bytes)
{
    return joined(hash, qHashBits(bytes.data(), static_cast<size_t>(bytes.size()), 1));
}

quint64 joinedText(quint64 hash, QByteArrayView text, const TextCodec &codec)
{
    return TextCodec::isPlain(text) ? joined(hash, text) : joined(hash, codec.decode(text).toUtf8());
}

quint64 joinedValue(quint64 hash, const Tag &tag, TagType type, const TextCodec &codec)
{
    if (type == TagType::Text)
        return joinedText(hash, tag.value, codec);
    if (type == TagType::Binary)
        return joined(hash, QByteArrayView(tag.trimmed().toByteArray().toUpper()));
    if (type == TagType::Real) {
        const auto number = tag.real();
        return number ? joined(hash, std::bit_cast<quint64>(*number + 0.0)) : joinedText(hash, tag.value, codec);
    }
    const auto number = tag.integer();
    return number ? joined(hash, static_cast<quint64>(*number)) : joinedText(hash, tag.value, codec);
}

} // namespace

quint64 contentHash(const Drawing &drawing, RecordId record, IgnoredKinds ignored)
{
    quint64 hash = joined(0, drawing.typeName(record));
    ComparedTags tags(drawing, record, ignored, ComparedTags::Space::Counts);
    Tag tag;
    while (tags.read(tag)) {
        const TagType type = tagType(tag.code);
        if (type != TagType::Handle)
            hash = joinedValue(joined(hash, static_cast<quint64>(tag.code)), tag, type, drawing.codec());
    }
    if (drawing.kind(record) == RecordKind::Entity)
        for (RecordId child = drawing.firstChild(record); isValid(child); child = drawing.nextSibling(child))
            hash = joined(hash, contentHash(drawing, child, ignored));
    return hash;
}

} // namespace host::drawing
