#pragma once

#include "platform/Export.h"

#include <QByteArray>
#include <QString>

#include <optional>

class QJsonObject;

namespace host::drawing {
class Drawing;
}

namespace host::kernel {

/// Which file it is, through whatever links and spellings of its name.
struct FileIdentity
{
    quint64 device = 0;
    quint64 node = 0;

    friend bool operator==(const FileIdentity &, const FileIdentity &) = default;
};

/// Of the regular file that the path leads to; nothing when there is none.
KV_EXPORT std::optional<FileIdentity> identityOf(const QString &path);

/// The same file's path without links and dots; of one that is still to be made, its folder's with its name. Empty when
/// there is no such folder.
KV_EXPORT QString canonicalFile(const QString &path);

/// What may have happened to a file since it was read or written.
enum class FileChange
{
    None,    ///< it holds what it held, even if it was touched, or replaced by the same
    Content, ///< it holds something else
    Gone     ///< nothing can be seen of it any more
};

/// What a file was when its content was read or written here.
class KV_EXPORT FileStamp
{
public:
    /// Looks at the file before its content is read: what comes later is a change then. Nothing without a regular file.
    static std::optional<FileStamp> of(const QString &path);
    /// The content that was read from the file, or written to it.
    void setContent(const drawing::Drawing &drawing);
    /// The content as it is in the file, which is read once more: for a drawing that is not the bytes of its file. A
    /// file that has changed since the look counts as changed.
    void setContentOf(const QString &path);

    // For a later run of the program. Values that are missing or wrong make a stamp that no file fits.
    QJsonObject toJson() const;
    static FileStamp fromJson(const QJsonObject &json);

    const FileIdentity &identity() const { return m_identity; }
    /// Reads the file again where its size is the same and its time does not tell.
    FileChange changeOf(const QString &path) const;

private:
    FileIdentity m_identity;
    qint64 m_size = 0;
    qint64 m_time = 0;            ///< of the last change, nanoseconds
    bool m_isTimeCertain = false; ///< a change after the look has another time
    quint64 m_content = 0;        ///< a hash
};

} // namespace host::kernel
