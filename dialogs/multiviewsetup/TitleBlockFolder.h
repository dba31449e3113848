#pragma once

#include <QStringList>

/// The drawing files of `folder` that can serve as title blocks, with their extensions, in the order of the file
/// system: "name.dwg" and "name.dxf" in any case. A name with another dot in it ("a.b.dwg") is left out, because the
/// tools take what stands before the first dot for the block's name. Empty for a folder that cannot be read.
QStringList titleBlockFiles(const QString &folder);
