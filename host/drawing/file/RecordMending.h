#pragma once

#include "host/drawing/file/DamagedText.h"
#include "host/drawing/records/Drawing.h"

namespace host::drawing {

/// What the records of a damaged file say of the file.
struct FileTraits
{
    Version version = Version::R12;
    bool hasVersion = false; ///< the file says it; otherwise it is told from what records hold
    QByteArray codePage = "ANSI_1252";
    quint64 nextHandle = 1; ///< above all that the file has

    /// Handles are taken one after the other.
    Handle takeHandle() { return {nextHandle++}; }
};

/// `text` is where the records are from. A version that is none is taken out of them.
FileTraits traitsOf(std::vector<FoundRecord> &records, QByteArrayView text, RecoveryReport &report);

/// Takes out entries of tables that have lost their name.
void dropNameless(std::vector<FoundRecord> &records, RecoveryReport &report);

/// Takes out header variables that have lost their value, and what stands behind the value of others.
void mendVariables(std::vector<FoundRecord> &records, RecoveryReport &report, ByteArena &arena);

/// From R13 on the first object is the dictionary that leads to all others. Where it is lost, another one that nobody
/// owns takes its place, or a new one, with those of the file's dictionaries whose names their contents tell.
void mendRoot(std::vector<FoundRecord> &records, FileTraits &traits, RecoveryReport &report, ByteArena &arena);

/// Gives records new handles that have one of another record in front, or something that is none.
void mendHandles(std::vector<FoundRecord> &records, FileTraits &traits, RecoveryReport &report, ByteArena &arena);

/// Texts of drawings from R2007 on are UTF-8: of records that have others, they are taken for texts in the code page
/// that the drawing names.
void mendTexts(std::vector<FoundRecord> &records, const FileTraits &traits, RecoveryReport &report, ByteArena &arena);

/// The value of the record's first tag with this code, without blanks around; empty when there is none.
QByteArrayView firstValue(const FoundRecord &record, int code);

/// The bytes of a record but for its tags of a code.
QByteArray withoutCode(const FoundRecord &record, int code);

} // namespace host::drawing
