#pragma once

#include "host/drawing/records/Drawing.h"
#include "host/drawing/records/FileIndexer.h"
#include "host/drawing/tags/ByteArena.h"

#include <QHash>

#include <array>

namespace host::drawing {

struct Drawing::Private
{
    /// Sets the state without a word to anybody.
    void setState(RecordId id, const RecordState &state)
    {
        RecordEntry &entry = records()[id];
        entry.data = state.data;
        entry.length = state.length;
        entry.flags = state.flags;
    }
    /// Counts the change and tells the observers what became of a record that was in the state `before`.
    void announce(RecordId id, const RecordState &before, ChangeCause cause);
    void announceDone();

    RecordStore &records() { return file.records; }
    const RecordEntry &entry(RecordId id) const { return file.records[id]; }

    IndexedFile file;
    TextCodec codec;
    Version version = Version::R12;
    FileForm form = FileForm::Text;
    bool isFromDwg = false;
    ReadingNotes notes;
    BinaryOrigin binary;
    QString path;
    ByteArena arena;
    quint64 nextHandle = 1; ///< above every handle seen so far
    std::vector<DrawingObserver *> observers;
    mutable QHash<RecordId, RecordId> ends; ///< end markers of the containers looked at

    static constexpr size_t sectionCount = static_cast<size_t>(Section::Other) + 1;
    quint64 revision = 0;
    std::array<quint64, sectionCount> revisions{};
    std::array<quint64, sectionCount> structureRevisions{};
};

} // namespace host::drawing
