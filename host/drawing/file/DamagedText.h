#pragma once

#include "host/drawing/file/RecoveryReport.h"
#include "host/drawing/tags/ByteArena.h"
#include "host/drawing/tags/TagReader.h"

namespace host::drawing {

/// A record of a damaged file: sound tags alone.
struct FoundRecord
{
    QByteArrayView bytes; ///< of the file, or what is left of them in the arena
    QByteArrayView type;  ///< a view into `bytes`; the name for a variable, empty for what stands at the start
    qint64 line = 0;      ///< of the file, where it begins
    quint64 handle = 0;   ///< 0 where it has none
    bool isVariable = false;
    bool lacksHandle = false;          ///< the file has something that is none
    LineEnds lineEnds = LineEnds::Any; ///< that its lines were told apart by
};

/// What a damaged file holds.
struct FoundRecords
{
    std::vector<FoundRecord> records; ///< in file order, from the preamble to EOF, if there is one
    QByteArrayView tail;              ///< what stands behind EOF
    qsizetype lostBytes = 0;
};

/// Cuts a text into records as far as it is sound. A record with a line that is no group code, with a type that is none
/// or a value that is not what its code says is dropped, up to the next place where a record surely begins: a line 0
/// with the type of a record behind it. Of records that hold others the sound tags are kept.
///
/// Views into `text` and the arena. One pass; the lines of damaged records are gone through twice.
FoundRecords findRecords(QByteArrayView text, LineEnds lineEnds, RecoveryReport &report, ByteArena &arena);

} // namespace host::drawing
