#pragma once

#include "host/view/display/RecordSummary.h"

#include <optional>

namespace host::view {

/// Finds the records of a block by where they are: a packed tree over their boxes as seen from above, some six bytes a
/// record. Built in one go, in time n log n; what changes afterwards is looked at one by one until the tree is built
/// anew.
///
/// Records are named by their places in the list, which must stay until clear().
class BoxIndex
{
public:
    bool isBuilt() const { return !m_levels.empty(); }
    void clear();
    void build(std::vector<RecordSummary> &records);
    /// The record at this place has another box, or is new. Without a tree it does nothing.
    void touch(std::vector<RecordSummary> &records, std::uint32_t place);
    /// So much has changed that it is worth building anew.
    bool isWorn() const { return m_loose.size() > 256 + m_places.size() / 64; }

    /// Rising places of all that touch the box as seen from above, lines without end among them. Of more than `most`
    /// only so many are found, or a few more.
    std::vector<std::uint32_t> find(const std::vector<RecordSummary> &records, const Box &box, std::size_t most) const;

private:
    /// Seen from above, and rounded outwards.
    struct FlatBox
    {
        float left = 0;
        float bottom = 0;
        float right = 0;
        float top = 0;
    };
    using Level = std::vector<FlatBox>; ///< each around `fanOut` boxes of the level below, or records

    void descend(const std::vector<RecordSummary> &records, const Box &box, std::size_t level, std::size_t node,
                 std::size_t most, std::vector<std::uint32_t> &found) const;

    std::vector<std::uint32_t> m_places; ///< in the order of the leaves
    std::vector<Level> m_levels;         ///< from the leaves up to a single box
    std::vector<std::uint32_t> m_loose;  ///< places that the tree does not have, or has elsewhere
};

} // namespace host::view
