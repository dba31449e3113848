#include "host/kernel/input/PickCompanions.h"

#include "host/drawing/editing/EntityGroups.h"
#include "host/drawing/records/Drawing.h"
#include "host/drawing/tags/GroupCodes.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/Picker.h"
#include "host/kernel/variables/SystemVariables.h"

#include <algorithm>

namespace host::kernel {

using drawing::RecordId;

namespace {

constexpr int wholeGroups = 1; ///< bits of PICKSTYLE
constexpr int hatchesWithBoundary = 2;

/// The entities that a hatch follows; none when it follows nothing.
std::vector<RecordId> boundaryOf(const drawing::Drawing &drawing, RecordId hatch)
{
    std::vector<RecordId> boundary;
    if (!drawing.isType(hatch, "HATCH"))
        return boundary;
    const drawing::TagList tags = drawing.tags(hatch);
    if (tags.integer(71) == 0)
        return boundary;
    bool isBehindCount = false;
    for (const drawing::Tag &tag : tags.own()) {
        isBehindCount = tag.code == 97 || (isBehindCount && tag.code == drawing::ownerCode);
        if (!isBehindCount || tag.code == 97)
            continue;
        if (const RecordId source = drawing.find(tag.handle().value_or(drawing::Handle{})); isValid(source))
            boundary.push_back(source);
    }
    return boundary;
}

QSet<quint32> visibleOnes(Document &document)
{
    QSet<quint32> visible;
    for (const RecordId id : Picker(document).visible())
        visible.insert(quint32(id));
    return visible;
}

} // namespace

void PickCompanions::readGroups()
{
    m_groupsOf.emplace();
    for (const drawing::EntityGroup &group : drawing::entityGroups(m_document.drawing())) {
        if (!group.isSelectable)
            continue;
        for (const RecordId member : group.members)
            m_groupsOf->insert(quint32(member), m_groups.size());
        m_groups.push_back(group.members);
    }
}

std::vector<RecordId> PickCompanions::withCompanions(const std::vector<RecordId> &picked)
{
    const int style = m_document.variables().integer(u"PICKSTYLE");
    if ((style & wholeGroups) != 0 && !m_groupsOf)
        readGroups();
    std::vector<RecordId> all;
    QSet<quint32> taken;
    const auto add = [&](RecordId id) {
        if (!taken.contains(quint32(id)))
            all.push_back(id);
        taken.insert(quint32(id));
    };
    QSet<std::size_t> whole;
    const auto addGroupsOf = [&](RecordId id) {
        for (const std::size_t index : m_groupsOf->values(quint32(id))) {
            const bool isWhole = whole.contains(index);
            whole.insert(index);
            // All of the space is looked at only once something is in a group.
            if (m_visible.isEmpty())
                m_visible = visibleOnes(m_document);
            for (const RecordId member : isWhole ? std::vector<RecordId>() : m_groups[index])
                if (m_visible.contains(quint32(member)))
                    add(member);
        }
    };
    for (const RecordId id : picked) {
        add(id);
        // Programs name what is not there, too; it is told further on.
        if (!m_document.drawing().isAlive(id))
            continue;
        if ((style & wholeGroups) != 0)
            addGroupsOf(id);
        if ((style & hatchesWithBoundary) != 0)
            std::ranges::for_each(boundaryOf(m_document.drawing(), id), add);
    }
    return all;
}

std::optional<std::vector<RecordId>> PickCompanions::group(const QString &name) const
{
    const std::optional<drawing::EntityGroup> found = drawing::findGroup(m_document.drawing(), name.trimmed());
    if (!found)
        return {};
    const QSet<quint32> visible = visibleOnes(m_document);
    std::vector<RecordId> members = found->members;
    std::erase_if(members, [&](RecordId id) { return !visible.contains(quint32(id)); });
    return members;
}

} // namespace host::kernel
