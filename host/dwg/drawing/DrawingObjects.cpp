#include "host/dwg/drawing/DrawingObjects.h"

#include "host/dwg/objects/ProxyTypes.h"

#include <algorithm>

namespace host::dwg {

DrawingObjects::DrawingObjects(const Container &container, Problems &problems)
    : m_container(container), m_problems(problems), m_classes(readClasses(container, problems)),
      m_map(readObjectMap(container, problems)), m_isTaken(m_map.size())
{
    sortClasses();
}

void DrawingObjects::sortClasses()
{
    for (const ObjectClass &one : m_classes) {
        if (one.number < firstClassNumber)
            continue;
        const auto place = static_cast<std::size_t>(one.number - firstClassNumber);
        if (place >= m_knownClasses.size())
            m_knownClasses.resize(place + 1);
        if (!m_knownClasses[place].one)
            m_knownClasses[place] = {&one, typeByClass(one.name, m_container.release)};
    }
}

DrawingObjects::KnownClass DrawingObjects::knownClass(int number) const
{
    const auto place = static_cast<std::size_t>(number - firstClassNumber);
    return number >= firstClassNumber && place < m_knownClasses.size() ? m_knownClasses[place] : KnownClass();
}

std::size_t DrawingObjects::indexOf(std::uint64_t handle) const
{
    if (m_lastTaken + 1 < m_map.size() && m_map[m_lastTaken + 1].handle == handle)
        return m_lastTaken + 1;
    const auto found = std::ranges::lower_bound(m_map, handle, {}, &MapEntry::handle);
    return found != m_map.end() && found->handle == handle ? static_cast<std::size_t>(found - m_map.begin())
                                                           : m_map.size();
}

const ObjectFrame *DrawingObjects::peek(std::uint64_t handle) const
{
    const std::size_t index = indexOf(handle);
    return index != m_map.size() ? peek(m_map[index]) : nullptr;
}

const ObjectFrame *DrawingObjects::take(std::uint64_t handle)
{
    const std::size_t index = indexOf(handle);
    if (index == m_map.size() || m_isTaken[index])
        return nullptr;
    m_isTaken[index] = true;
    m_lastTaken = index;
    const ObjectFrame *const frame = peek(m_map[index]);
    if (!frame) {
        m_lost.insert(handle);
        m_problems.add({Problem::Kind::Lost, "There is no object at its place.", {}, handle});
        return nullptr;
    }
    // Otherwise a small file could have any number of large objects, each in the others.
    m_bytesTaken += frame->bytes.size();
    if (m_bytesTaken > byteCount()) {
        lose(handle, frame->type, "It stands within other objects.");
        return nullptr;
    }
    if (!hasItsChecksum(m_container.objects, m_map[index].place, *frame))
        warn(handle, frame->type, "The checksum does not fit.");
    return frame;
}

void DrawingObjects::leaveOut(std::uint64_t handle)
{
    if (const std::size_t index = indexOf(handle); index != m_map.size())
        m_isTaken[index] = true;
}

const ObjectType *DrawingObjects::typeOf(int number) const
{
    return number < firstClassNumber ? typeByNumber(number) : knownClass(number).type;
}

const ObjectClass *DrawingObjects::classOf(int number) const
{
    return knownClass(number).one;
}

bool DrawingObjects::isEntity(int number) const
{
    if (const ObjectType *type = typeOf(number))
        return type->isEntity;
    const ObjectClass *one = classOf(number);
    return one ? one->isEntity : number == proxyEntityType;
}

std::string DrawingObjects::typeNameOf(int number) const
{
    if (const ObjectType *type = typeOf(number))
        return type->name;
    const ObjectClass *one = classOf(number);
    return one ? one->name : "type " + std::to_string(number);
}

void DrawingObjects::lose(std::uint64_t handle, int type, const char *why)
{
    m_lost.insert(handle);
    m_problems.add({Problem::Kind::Lost, why, typeNameOf(type), handle});
}

void DrawingObjects::keep(std::uint64_t handle, int type, const char *why)
{
    m_problems.add({Problem::Kind::Kept, why, typeNameOf(type), handle});
}

void DrawingObjects::warn(std::uint64_t handle, int type, const char *why)
{
    m_problems.add({Problem::Kind::Warning, why, typeNameOf(type), handle});
}

} // namespace host::dwg
