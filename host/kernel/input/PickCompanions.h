#pragma once

#include "host/drawing/records/Record.h"

#include <QMultiHash>
#include <QSet>

#include <optional>
#include <vector>

namespace host::kernel {

class Document;

/// What is chosen together with what is picked, as PICKSTYLE says: 1 the groups it is in, when these may be picked as
/// a whole, 2 the boundary of an associative hatch, 3 both. Groups are read once, when the first pick asks for them.
class PickCompanions
{
public:
    explicit PickCompanions(Document &document) : m_document(document) {}

    /// The picked entities, each with its companions behind it: those of the current space that can be seen.
    std::vector<drawing::RecordId> withCompanions(const std::vector<drawing::RecordId> &picked);
    /// The members of a group by its name, that can be seen; nothing when there is no such group.
    std::optional<std::vector<drawing::RecordId>> group(const QString &name) const;

private:
    void readGroups();

    Document &m_document;
    std::vector<std::vector<drawing::RecordId>> m_groups;
    std::optional<QMultiHash<quint32, std::size_t>> m_groupsOf; ///< by entity; nothing before they are read
    QSet<quint32> m_visible;
};

} // namespace host::kernel
