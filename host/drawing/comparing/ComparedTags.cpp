#include "host/drawing/comparing/ComparedTags.h"

#include "host/drawing/tags/GroupCodes.h"

namespace host::drawing {

namespace {

constexpr int childrenFollowCode = 66;

bool isLayoutExtent(int code)
{
    return code == 14 || code == 24 || code == 34 || code == 15 || code == 25 || code == 35;
}

} // namespace

ComparedTags::ComparedTags(const Drawing &drawing, RecordId record, IgnoredKinds ignored, Space space)
    : m_reader(drawing.tagReader(record)), m_type(drawing.typeName(record)), m_ignored(ignored), m_space(space),
      m_handleCode(drawing.isType(record, "DIMSTYLE") ? 105 : 5),
      m_isEntity(drawing.kind(record) == RecordKind::Entity || drawing.kind(record) == RecordKind::Child)
{
}

bool ComparedTags::read(Tag &tag)
{
    while (m_reader.read(tag))
        if (counts(tag))
            return true;
    return false;
}

bool ComparedTags::counts(const Tag &tag)
{
    if (!m_isTypeRead || tag.code == commentCode) {
        m_isTypeRead |= tag.code != commentCode;
        return false;
    }
    if (tag.code == applicationCode || tag.code == embeddedObjectCode)
        m_part = tag.trimmed();
    if (m_part.isEmpty() || m_part.startsWith('{')) {
        if (isBrace(tag) || isPlace(tag))
            return false;
        const bool isBackward = m_part.startsWith("{ACAD_REACTORS") || m_part.startsWith("{BLKREFS");
        return !isBackward || !m_ignored.testFlag(Ignored::Reactors);
    }
    return tag.code < firstXdataCode || !m_ignored.testFlag(Ignored::Xdata);
}

bool ComparedTags::isBrace(const Tag &tag)
{
    if (tag.code != groupCode)
        return false;
    const QByteArrayView value = tag.trimmed();
    m_part = value.startsWith('{') ? value : QByteArrayView();
    return true;
}

bool ComparedTags::isPlace(const Tag &tag)
{
    if (!m_part.isEmpty())
        return false;
    if (tag.code == m_handleCode && !m_isHandleRead) {
        m_isHandleRead = true;
        return true;
    }
    m_hasMarker |= tag.code == subclassCode;
    if (tag.code == subclassCode || (tag.code == ownerCode && !m_hasMarker))
        return true;
    if (tag.code == childrenFollowCode && (m_type == "POLYLINE" || m_type == "INSERT"))
        return true;
    if (m_isEntity && tag.code == layoutNameCode)
        return true;
    if (m_isEntity && tag.code == paperSpaceCode)
        return m_space == Space::IsLeftOut || tag.integer().value_or(0) == 0;
    return m_ignored.testFlag(Ignored::Extents) && isLayoutExtent(tag.code) && m_type == "LAYOUT";
}

} // namespace host::drawing
