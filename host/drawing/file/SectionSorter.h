#pragma once

#include "host/drawing/file/RecordMending.h"

namespace host::drawing {

/// Puts the records of a damaged file into sections, tables and blocks that open and close as they should, and gives
/// the text of a file that opens. What stands where it belongs stays in its order; what lost its section or table goes
/// into the one for its type, and what lost the record that it is a part of is dropped. Missing ends are added.
QByteArray sortedText(const FoundRecords &found, FileTraits &traits, RecoveryReport &report, ByteArena &arena);

} // namespace host::drawing
