#pragma once

#include "host/drawing/records/Record.h"

#include <QByteArrayView>

#include <memory>
#include <vector>

namespace host::drawing {

/// What can change about a record: its bytes and whether it is there.
struct RecordState
{
    enum Flag : quint8
    {
        Erased = 1, ///< can be brought back
        Absent = 2  ///< its adding was undone
    };

    const char *data = nullptr; ///< in the file's bytes or in the arena of edited records
    quint32 length = 0;
    quint8 flags = 0;

    QByteArrayView bytes() const { return {data, static_cast<qsizetype>(length)}; }
    bool isAlive() const { return flags == 0; }
    bool isSame(const RecordState &other) const { return flags == other.flags && bytes() == other.bytes(); }
};

/// One record of a drawing: about 40 bytes beside those of the file.
struct RecordEntry
{
    quint64 handle = 0;
    const char *data = nullptr;
    quint32 length = 0;
    RecordId next = noRecord;
    RecordId previous = noRecord;
    RecordId parent = noRecord;
    quint8 flags = 0;
    RecordKind kind = RecordKind::Other;
    Section section = Section::None;

    RecordState state() const { return {data, length, flags}; }
    QByteArrayView bytes() const { return {data, static_cast<qsizetype>(length)}; }
};

/// The records of a drawing by id. Entries keep their address; growing moves nothing.
class RecordStore
{
public:
    RecordEntry &operator[](RecordId id) { return m_chunks[quint32(id) >> chunkBits][quint32(id) & chunkMask]; }
    const RecordEntry &operator[](RecordId id) const
    {
        return m_chunks[quint32(id) >> chunkBits][quint32(id) & chunkMask];
    }
    RecordId append()
    {
        if ((m_size & chunkMask) == 0)
            m_chunks.push_back(std::make_unique<RecordEntry[]>(chunkMask + 1));
        return RecordId(m_size++);
    }
    quint32 size() const { return m_size; }

private:
    static constexpr quint32 chunkBits = 12;
    static constexpr quint32 chunkMask = (1U << chunkBits) - 1;
    std::vector<std::unique_ptr<RecordEntry[]>> m_chunks;
    quint32 m_size = 0;
};

/// Finds records by handle: one table of ids, open addressing. Where a file gives a handle twice the first record has
/// it.
class HandleIndex
{
public:
    RecordId find(quint64 handle, const RecordStore &records) const;
    /// A record whose adding was undone gives way to a new one with its handle.
    void insert(RecordId id, const RecordStore &records);
    void reserve(quint32 count, const RecordStore &records);

private:
    size_t slot(quint64 handle, const RecordStore &records) const;
    void rebuild(size_t capacity, const RecordStore &records);

    std::vector<RecordId> m_slots;
    size_t m_used = 0;
};

} // namespace host::drawing
