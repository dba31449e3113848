#include "host/dwg/objects/RepeatedHeads.h"

#include <algorithm>

namespace host::dwg {

namespace {

/// Whether what all of them go to is the same in any object, and owned by none.
bool areWhole(BitReader references, std::size_t begin)
{
    const std::size_t end = references.position();
    references.seek(begin);
    while (references.position() < end) {
        const HandleReference reference = references.handle();
        if (reference.kind > HandleReference::HardPointer || (reference.isOwner() && reference.value != 0))
            return false;
    }
    return true;
}

} // namespace

const RepeatedHeads::Head *RepeatedHeads::repeat(Fields &fields)
{
    const auto end = m_heads.begin() + static_cast<std::ptrdiff_t>(m_count);
    const auto found = std::find_if(m_heads.begin(), end, [&](const Head &head) {
        return fields.values().isNext(head.values) && fields.references().isNext(head.references);
    });
    if (found == end)
        return nullptr;
    fields.values().skip(found->values.count);
    fields.references().skip(found->references.count);
    fields.noteHandle(5, fields.relations().handle);
    fields.note(found->tags);
    return &*found;
}

void RepeatedHeads::keep(const Fields &fields, std::size_t values, std::size_t references, std::size_t mark, int space)
{
    const BitRun valueRun = fields.values().runFrom(values);
    const BitRun referenceRun = fields.references().runFrom(references);
    const bool isShort = fields.values().position() - values == valueRun.count &&
                         fields.references().position() - references == referenceRun.count;
    if (fields.hasFailed() || !isShort || referenceRun.count == 0 || !areWhole(fields.references(), references))
        return;
    m_heads[m_next] = {valueRun, referenceRun, fields.keep(mark), fields.relations().owner, space};
    m_next = (m_next + 1) % m_heads.size();
    m_count = std::max(m_count, m_next == 0 ? m_heads.size() : m_next);
}

} // namespace host::dwg
