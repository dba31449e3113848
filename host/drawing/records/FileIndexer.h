#pragma once

#include "host/drawing/records/RecordStore.h"
#include "host/drawing/tags/Diagnostic.h"
#include "host/drawing/tags/TagReader.h"
#include "host/drawing/tags/TagWriter.h"

#include <optional>

namespace host::drawing {

/// A file cut into records.
struct IndexedFile
{
    QByteArray bytes;    ///< what the records point into
    RecordStore records; ///< linked in file order, starting with record 0
    HandleIndex handles;
    LineEnds lineEnds = LineEnds::LineFeed;
    LineStyle style; ///< of the file's first lines, for those that are written
};

/// The outcome of indexing: a file or the reason why not.
struct IndexResult
{
    std::optional<IndexedFile> file;
    Diagnostic error; ///< with the line at which reading ended; of no meaning when there is a file
};

/// Cuts the bytes of a DXF file into records. One pass; every group code is looked at, values only where they tell the
/// structure: sections, tables and blocks have to open and close properly and the file has to end with EOF, so a file
/// that was cut off is refused. Not trusted: anything may be in `bytes`.
IndexResult indexFile(QByteArray bytes);

/// The section that a name (group 2 of SECTION, any letter case) stands for; Other for those of other programs.
Section sectionNamed(QByteArrayView name);

/// Whether a carriage return stands without the line feed behind it: text in some files and a line end in others.
bool hasLoneCarriageReturn(QByteArrayView bytes);

/// Whether a file that begins so is a drawing in one of the forms that are not read here. The first 22 bytes tell.
bool isBinaryDxf(QByteArrayView bytes);
bool isDwg(QByteArrayView bytes);

/// Says what a file is that is not a text DXF (empty, binary DXF, DWG, UTF-16); empty when it may be one.
QString foreignContent(QByteArrayView bytes);

} // namespace host::drawing
