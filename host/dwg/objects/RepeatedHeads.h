#pragma once

#include "host/dwg/objects/Fields.h"

#include <array>

namespace host::dwg {

/// The heads of the entities that were read last, bit by bit. Most entities have the head of one of those but for their
/// handle, so that its tags are taken over. From R2000 on; before, the head tells where the references begin.
class RepeatedHeads
{
public:
    /// One that stands alone: without extended data, graphics, reactors, a dictionary or neighbours.
    struct Head
    {
        BitRun values;     ///< from behind the handle to the values of the type
        BitRun references; ///< those that it has
        TagLines::Kept tags;
        std::uint64_t owner = 0;
        int space = 0;
    };

    /// Takes the head from `fields`, and notes its tags behind that of the handle. Null when none is like it.
    const Head *repeat(Fields &fields);
    /// Keeps the head that was read up to here from the bits `values` and `references` on, whose tags are those from
    /// `mark` on, unless it is too long or has what goes by its handle.
    void keep(const Fields &fields, std::size_t values, std::size_t references, std::size_t mark, int space);

private:
    std::array<Head, 4> m_heads;
    std::size_t m_count = 0;
    std::size_t m_next = 0; ///< that is overwritten next
};

} // namespace host::dwg
