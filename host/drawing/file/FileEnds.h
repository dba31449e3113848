#pragma once

#include "host/drawing/records/Drawing.h"
#include "host/drawing/tags/TextCodec.h"

#include <QByteArray>

class QIODevice;

namespace host::drawing {

// The sections at both ends of a drawing file, without reading what lies between. Not trusted: anything may be in the
// file. Both take what files commonly look like and leave the rest to those who read the whole file.

/// What the HEADER section at the start of a file says.
struct FileHead
{
    enum class Kind
    {
        Complete,
        NoDrawing, ///< whoever reads the whole file would refuse it
        Doubtful   ///< the HEADER section does not come first or has no end nearby, or the lines end in another way
    };

    Kind kind = Kind::Doubtful;
    Version version = Version::R12; ///< when complete
    TextCodec codec = {};           ///< when complete
};

/// Reads as many bytes at once as `pieceSize` says.
FileHead readHead(QIODevice &file, qint64 pieceSize);

/// The file from the start of its last OBJECTS section to its end; empty when that is not found in the second half of
/// the file or may be something else: when the file does not end with EOF, or when there is an EOF, another OBJECTS
/// section or anything but the end of a section in front of it, as far as was read. Reads from the end, first as many
/// bytes as `pieceSize` says.
QByteArray readFromObjects(QIODevice &file, qint64 pieceSize);

} // namespace host::drawing
