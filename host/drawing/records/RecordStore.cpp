#include "host/drawing/records/RecordStore.h"

#include <bit>

namespace host::drawing {

RecordId HandleIndex::find(quint64 handle, const RecordStore &records) const
{
    return m_slots.empty() || handle == 0 ? noRecord : m_slots[slot(handle, records)];
}

void HandleIndex::insert(RecordId id, const RecordStore &records)
{
    if (m_slots.size() < 2 * (m_used + 1))
        rebuild(std::max<size_t>(64, 4 * (m_used + 1)), records);
    RecordId &place = m_slots[slot(records[id].handle, records)];
    if (!isValid(place))
        ++m_used;
    else if ((records[place].flags & RecordState::Absent) == 0)
        return;
    place = id;
}

void HandleIndex::reserve(quint32 count, const RecordStore &records)
{
    rebuild(std::max<size_t>(64, 2 * static_cast<size_t>(count)), records);
}

size_t HandleIndex::slot(quint64 handle, const RecordStore &records) const
{
    // Handles come in runs; multiplying by the golden ratio spreads them.
    const size_t mask = m_slots.size() - 1;
    const int shift = 64 - std::countr_zero(m_slots.size());
    size_t place = static_cast<size_t>((handle * 0x9E3779B97F4A7C15ULL) >> shift) & mask;
    while (isValid(m_slots[place]) && records[m_slots[place]].handle != handle)
        place = (place + 1) & mask;
    return place;
}

void HandleIndex::rebuild(size_t capacity, const RecordStore &records)
{
    std::vector<RecordId> old(std::bit_ceil(capacity), noRecord);
    old.swap(m_slots);
    for (const RecordId id : old) {
        if (isValid(id))
            m_slots[slot(records[id].handle, records)] = id;
    }
}

} // namespace host::drawing
