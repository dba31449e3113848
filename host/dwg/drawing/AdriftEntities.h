#pragma once

#include "host/dwg/drawing/DrawingObjects.h"

namespace host::dwg {

/// Entities that nobody has taken, by the owners that they tell: what damage has cut off from its block, polyline or
/// insert. Of each is kept what it takes to find it, no more bytes than a small multiple of the map of objects.
class AdriftEntities
{
public:
    /// Reads the heads of all entities that are not taken, once. Marks (BLOCK, ENDBLK, SEQEND) are not among them.
    AdriftEntities(const DrawingObjects &objects, const ObjectHead::Spaces &spaces);

    /// What an owner has: first where its chains begin, then all by rising handle, those beginnings once more.
    std::vector<std::uint64_t> of(std::uint64_t owner) const;

private:
    struct Entity
    {
        std::uint64_t owner = 0;
        std::uint64_t handle = 0;
    };

    void add(const Relations &relations);

    std::vector<Entity> m_entities;        ///< by owners, then by handles
    std::vector<std::uint64_t> m_followed; ///< those that others lead to, by rising handle
};

/// Whether objects of the type hold others together and stand at their places alone.
bool isMark(int type);

} // namespace host::dwg
