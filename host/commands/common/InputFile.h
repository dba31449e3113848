#pragma once

#include "host/drawing/records/Drawing.h"

namespace host::kernel {

class CommandContext;
class Document;

/// Opens a drawing that goes into another one, or is seen in it. Prints what of the file could not be read, in a line;
/// why the whole could not is the caller's to tell.
drawing::ReadResult openSource(CommandContext &context, const QString &path);

/// A file name as typed, without blanks around it and the quotes that scripts put around names with blanks.
QString fileName(const QString &typed);

/// What a drawing that was named may be called: as it stands, and with the endings of drawings, that of DXF files
/// first.
QStringList drawingFileNames(const QString &typed);

/// Where the drawing is that was named, with or without its ending, as Document::findFile() looks; empty when nowhere.
QString findDrawingFile(const Document &document, const QString &typed);

} // namespace host::kernel
