#pragma once

#include "host/drawing/file/FileEnds.h"

#include <optional>

namespace host::drawing {

/// What a part of a file says about a record.
struct Finding
{
    bool isCertain = false; ///< otherwise the whole file has to be read
    std::optional<FieldList> data = {};
};

/// The extension record `name` of the named-object dictionary, in the text of a file from the start of its OBJECTS
/// section on. Reads the dictionary, which is the first object, and the record that its entry leads to. Not trusted.
Finding findXrecord(QByteArrayView objects, const FileHead &head, QStringView name);

} // namespace host::drawing
