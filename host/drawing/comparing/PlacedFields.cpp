#include "host/drawing/comparing/PlacedFields.h"

#include "host/drawing/comparing/ComparedTags.h"

namespace host::drawing {

std::vector<PlacedField> placedFields(const Drawing &drawing, RecordId record, IgnoredKinds ignored)
{
    ComparedTags compared(drawing, record, ignored);
    std::vector<Tag> tags;
    std::vector<QByteArrayView> parts;
    for (Tag tag; compared.read(tag);) {
        tags.push_back(tag);
        parts.push_back(compared.part());
    }
    const TagList list(std::move(tags), drawing.codec());
    std::vector<PlacedField> fields;
    for (size_t i = 0; i < list.size();) {
        const QByteArray part = parts[i].toByteArray();
        fields.push_back({part, list.fieldAt(i, &i)});
    }
    return fields;
}

} // namespace host::drawing
