#pragma once

#include "formats/DefinitionHeaders.h"

namespace ortakit {

/// What a ".lin" file says of a linetype in its header: "*NAME,description". Blanks stay as they are.
struct LinetypeHeader
{
    QString name;
    QString description; ///< up to a further comma; empty when the header has none

    bool operator==(const LinetypeHeader &) const = default;
};

using LinetypeListing = DefinitionListing<LinetypeHeader>;

LinetypeListing listLinetypes(QByteArrayView text);
LinetypeListing readLinetypeFile(const QString &path);

/// Whether definitions may be added to the file at `path`. `extension` must be somewhere in the path, in any case, and
/// be ".lin" in any case. The file may be missing: then it will be made. Otherwise its first line must be blank or
/// begin with "*". A file that cannot be opened, and what is no regular file, is not acceptable.
bool isAcceptableLinetypeFile(const QString &path, const QString &extension);

} // namespace ortakit
