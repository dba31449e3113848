#pragma once

#include "host/drawing/references/NamedFiles.h"
#include "host/drawing/references/ShapeFile.h"

#include <memory>

namespace host::drawing {

/// The shape files of a drawing, fonts among them, each read when it is asked for.
///
/// Drawings name compiled files. Where the source lies beside it, or instead of it, the younger of the two is read, so
/// that a shape that was just made need not be compiled. A file that another system's path names is found by its name
/// alone, also in small or in capital letters. Files of more than 16 MB, and what is no ordinary file, are not read.
class ShapeFiles
{
public:
    explicit ShapeFiles(FileFinder finder) : m_finder(std::move(finder)) {}

    /// The file of a name as drawings have it, with or without path and ending. Null when there is no such file, or
    /// none that can be read; that is kept in mind as well. Valid until forget().
    const ShapeFile *find(const QString &name);
    /// The same to be kept.
    std::shared_ptr<const ShapeFile> share(const QString &name);
    /// Files are read anew the next time.
    void forget() { m_read.clear(); }

private:
    QString pathOf(const QString &name) const;

    FileFinder m_finder;
    QHash<QString, std::shared_ptr<const ShapeFile>> m_read; ///< null for a file that cannot be read
};

/// The files that the drawing's styles for shape files name, in their order.
QStringList shapeFileNames(const Drawing &drawing);

/// The style that stands for a shape file, made where the drawing lacks it. Endings and letter case of `name` do not
/// count in looking for it.
RecordId shapeFileStyle(Drawing &drawing, const QString &name);

} // namespace host::drawing
