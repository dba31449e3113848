#pragma once

#include "host/drawing/file/Save.h"

#include <optional>

class QIODevice;

namespace host::drawing {

// One extension record of the named-object dictionary of a drawing file that is not open.

/// The data of the record `name`, as Dictionaries::xrecord() gives it; nothing when the drawing has none, holds none
/// (R12), or cannot be read, which `error` tells in a sentence then; it is empty otherwise.
///
/// Reads the HEADER section at the start of the file and the OBJECTS section near its end, and the whole file only
/// where these leave a doubt. Nothing else is looked at, so a file that is damaged elsewhere, has another OBJECTS
/// section further in front or gives the record's handle to something there as well, and two drawings in one file, are
/// not told from sound ones: what the last OBJECTS section says counts.
std::optional<FieldList> xrecordInFile(const QString &path, QStringView name, QString *error = nullptr);

/// How much is read at once.
struct PieceSizes
{
    qint64 head = 16 * 1024;
    /// Of the first piece from the end; each further one is twice as long.
    qint64 tail = 64 * 1024;
};

/// The same of an open device that can seek.
std::optional<FieldList> readXrecord(QIODevice &file, QStringView name, const PieceSizes &sizes = {},
                                     QString *error = nullptr);

/// Gives the record `name` of the drawing file at `path` this data, or makes it; everything else stays byte for byte as
/// it is but the dictionary's entry and the next free handle. The file is replaced whole or not at all, as by
/// saveCopy(), and not touched when it has the data already.
SaveResult setXrecordInFile(const QString &path, const QString &name, const FieldList &data);

} // namespace host::drawing
