#pragma once

#include "host/drawing/records/Drawing.h"
#include "host/drawing/text/MacroExpression.h"

namespace host::drawing {

/// What a remote text (RTEXT) shows.
struct RemoteTextContent
{
    QString text;
    /// The text is that of the file or the value of the expression. Otherwise it is the name of a file that could not
    /// be read.
    bool isRead = false;
    /// The codes of multi-line text in it count.
    bool hasCodes = false;
};

/// Reads the file where `surroundings` finds it (without a finder, as namedFiles() does), or evaluates the expression,
/// as group 70 says. A file's text is in the encoding that a mark at its begin says, else in UTF-8 or, where it is
/// none, in the drawing's own. Of files that are no ordinary ones or larger than 256 kB nothing is read.
RemoteTextContent remoteTextContent(const Drawing &drawing, const TagList &tags, const MacroSurroundings &surroundings);

} // namespace host::drawing
