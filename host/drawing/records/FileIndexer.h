#pragma once

#include "host/drawing/records/RecordStore.h"
#include "host/drawing/tags/BinaryTags.h"
#include "host/drawing/tags/Diagnostic.h"
#include "host/drawing/tags/TagReader.h"
#include "host/drawing/tags/TagWriter.h"

#include <optional>

namespace host::drawing {

/// A file cut into records.
struct IndexedFile
{
    QByteArray bytes;    ///< what the records point into: the text of the file, of a binary one made from it
    RecordStore records; ///< linked in file order, starting with record 0
    HandleIndex handles;
    LineEnds lineEnds = LineEnds::LineFeed;
    LineStyle style;                    ///< of the file's first lines, for those that are written
    std::optional<BinaryOrigin> binary; ///< of a file in the binary form
};

/// The outcome of indexing: a file or the reason why not.
struct IndexResult
{
    std::optional<IndexedFile> file;
    Diagnostic error;       ///< with the line at which reading ended; of no meaning when there is a file
    bool isDamaged = false; ///< there is no file, but the beginning of one
};

/// Cuts the bytes of a DXF file, text or binary, into records. One pass; every group code is looked at, values only
/// where they tell the structure: sections, tables and blocks have to open and close properly and the file has to end
/// with EOF, so a file that was cut off is refused. Not trusted: anything may be in `bytes`.
IndexResult indexFile(QByteArray bytes);

/// The section that a name (group 2 of SECTION, any letter case) stands for; Other for those of other programs.
Section sectionNamed(QByteArrayView name);

/// Whether a carriage return stands without the line feed behind it: text in some files and a line end in others.
bool hasLoneCarriageReturn(QByteArrayView bytes);

/// Says what a file is that is no drawing (empty, UTF-16, packed); empty when it may be one.
QString foreignContent(QByteArrayView bytes);

} // namespace host::drawing
