#include "host/dwg/drawing/AdriftEntities.h"

#include <algorithm>
#include <tuple>

namespace host::dwg {

bool isMark(int type)
{
    constexpr int blockBegin = 0x04;
    constexpr int listEnd = 0x06;
    return type >= blockBegin && type <= listEnd;
}

AdriftEntities::AdriftEntities(const DrawingObjects &objects, const ObjectHead::Spaces &spaces)
{
    const Names names;
    Fields fields(objects.release(), names);
    ObjectHead head(spaces);
    // Objects do not overlap: what has more bytes than all of them is not looked at.
    std::size_t left = objects.byteCount();
    for (std::size_t i = 0; i < objects.map().size(); ++i) {
        const MapEntry &entry = objects.map()[i];
        const ObjectFrame *const frame = objects.isTaken(i) ? nullptr : DrawingObjects::peek(entry);
        if (!frame || isMark(frame->type) || !objects.isEntity(frame->type))
            continue;
        if (frame->bytes.size() > left)
            break;
        left -= frame->bytes.size();
        head.read(*frame, true, fields);
        if (!fields.hasFailed() && fields.relations().handle == entry.handle)
            add(fields.relations());
    }
    std::ranges::sort(m_entities, {}, [](const Entity &one) { return std::tie(one.owner, one.handle); });
    std::ranges::sort(m_followed);
}

void AdriftEntities::add(const Relations &relations)
{
    m_entities.push_back({relations.owner, relations.handle});
    if (relations.next != 0)
        m_followed.push_back(relations.next);
}

std::vector<std::uint64_t> AdriftEntities::of(std::uint64_t owner) const
{
    std::vector<std::uint64_t> all;
    auto entity = std::ranges::lower_bound(m_entities, owner, {}, &Entity::owner);
    for (; entity != m_entities.end() && entity->owner == owner; ++entity)
        all.push_back(entity->handle);
    std::vector<std::uint64_t> handles = all;
    std::erase_if(handles, [this](std::uint64_t one) { return std::ranges::binary_search(m_followed, one); });
    handles.insert(handles.end(), all.begin(), all.end());
    return handles;
}

} // namespace host::dwg
