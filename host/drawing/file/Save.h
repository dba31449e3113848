#pragma once

#include "host/drawing/records/Drawing.h"

namespace host::drawing {

/// What came of writing a file.
struct SaveResult
{
    QString error; ///< names the file and the reason; empty when it was written

    explicit operator bool() const { return error.isEmpty(); }
};

/// Why no drawing is written under this name: it ends in .dwg, and this program cannot write that format. Empty when
/// one may be.
QString whyNoName(const QString &path);

/// Writes the drawing to `path` and makes that its path. The file is written beside, read back and compared, and only
/// then takes the place of the old one: on failure the old file is as it was and the drawing still counts as modified.
/// Names ending in .dwg are refused, see whyNoName().
SaveResult save(Drawing &drawing, const QString &path);

/// As save(), but leaves the drawing's path and modified state alone.
SaveResult saveCopy(const Drawing &drawing, const QString &path);

/// Writes DXF text under any name, *.dwg included. This host's symbol files carry that extension because the tools ask
/// for it; they are DXF inside, and open() tells files by content. Not for drawings that people keep.
SaveResult saveSymbolCopy(const Drawing &drawing, const QString &path);

} // namespace host::drawing
