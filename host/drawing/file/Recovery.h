#pragma once

#include "host/drawing/file/RecoveryReport.h"
#include "host/drawing/records/Drawing.h"

namespace host::drawing {

/// What came of recovering a file.
struct Recovered
{
    std::unique_ptr<Drawing> drawing; ///< null when the file holds nothing of a drawing
    RecoveryReport report;            ///< all that is other than in the file
    Diagnostic error;                 ///< meaningful when there is no drawing

    explicit operator bool() const { return drawing != nullptr; }
};

/// Opens a file, of either form, as far as it is sound. What opens as usual comes through byte for byte where its
/// values are what their codes say; of other files all records are there that are sound themselves, byte for byte, and
/// what holds them is completed: ends of sections, tables, blocks and polylines, handles that two records have, the
/// version, table entries of blocks. The result opens and saves as any drawing; it has no path, so that nobody saves it
/// over the file by accident.
///
/// Linear in the size of the file, however damaged; takes about three times its size of memory. Files of other kinds
/// are refused with what they are.
Recovered recoverDrawing(QByteArray bytes);
Recovered recoverFile(const QString &path);

/// The message of a file that could not be opened, its path in front, with what may help where it is a damaged drawing.
QString openingError(const QString &path, const ReadResult &failed);

} // namespace host::drawing
