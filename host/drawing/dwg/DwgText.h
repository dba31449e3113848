#pragma once

#include "host/drawing/dwg/ReadingNotes.h"

#include <QByteArray>

namespace host::drawing {

/// A DWG file as the DXF text that it comes to.
struct DwgText
{
    QByteArray text;    ///< empty when nothing can be read
    ReadingNotes notes; ///< what of the file is not in the text
    QString error;      ///< why there is no text, a part of a sentence

    explicit operator bool() const { return !text.isEmpty(); }
};

/// Whether a file that begins so is a DWG file, of a release that is read here or of another.
bool isDwg(QByteArrayView bytes);

/// The same of a file that is there; false for what cannot be opened, and for pipes and devices, which are not waited
/// for.
bool isDwgFile(const QString &path);

/// Reads a DWG file of any release. Not trusted: anything may be in `bytes`. Takes time and memory within a multiple of
/// the file.
DwgText textOfDwg(QByteArrayView bytes);

} // namespace host::drawing
