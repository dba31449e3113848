#pragma once

#include "host/drawing/records/Drawing.h"

#include <optional>
#include <vector>

namespace host::drawing {

/// A group of entities by name; drawings of R12 have none.
struct EntityGroup
{
    RecordId record = noRecord; ///< the GROUP object; noRecord for one that is not made yet
    QString name;               ///< by its dictionary; "*" of a new one stands for the next free "*A" and a number
    QString description;
    bool isSelectable = true;
    std::vector<RecordId> members; ///< that are there
};

/// In the dictionary's order.
std::vector<EntityGroup> entityGroups(const Drawing &drawing);
/// By name in any letter case.
std::optional<EntityGroup> findGroup(const Drawing &drawing, const QString &name);

// Changes; each is one group of the journal. Members are told of their group.

/// False in a drawing that can have none.
bool createGroup(Drawing &drawing, EntityGroup group);
/// Makes the group of that record what `group` says.
void changeGroup(Drawing &drawing, const EntityGroup &group);
/// The entities stay.
void eraseGroup(Drawing &drawing, const EntityGroup &group);

} // namespace host::drawing
