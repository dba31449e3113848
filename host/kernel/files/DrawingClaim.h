#pragma once

#include "host/kernel/files/DrawingLock.h"
#include "host/kernel/files/FileStamp.h"

namespace host::kernel {

/// How a drawing is opened that another process has open.
enum class OpenMode
{
    Alone,    ///< not at all
    ReadOnly, ///< to be read: it is not saved under its own name
    Anyway    ///< as if nobody had it; its lock is taken over
};

/// What an open drawing holds of its file: the lock beside it, and how the file was when it was read or written last.
/// That of a new drawing is empty.
class KV_EXPORT DrawingClaim
{
public:
    DrawingClaim() = default;
    /// To be made before the file is read.
    DrawingClaim(const QString &path, OpenMode mode);
    /// Behind the reading or writing.
    void setContent(const drawing::Drawing &drawing);
    /// The drawing is made of a file that was so once, and not of what is there now; nothing when that is not known.
    void setBase(const std::optional<FileStamp> &base) { m_stamp = base ? base : FileStamp(); }
    /// How the file was when it was read or written last; nothing for a new drawing.
    const std::optional<FileStamp> &base() const { return m_stamp; }
    /// The drawing was written to the file of this claim, which was made before; its stamp is that of the new file.
    void noteWritten(const drawing::Drawing &drawing);

    /// Who has the file open; with OpenMode::Alone it is not to be opened then.
    const std::optional<LockHolder> &holder() const { return m_holder; }
    bool isReadOnly() const { return m_isReadOnly; }
    /// As canonicalFile(); empty for a new drawing.
    const QString &file() const { return m_file; }
    /// Whether this is the file of that canonical name and identity, or has another name there: a hard link, or one in
    /// letters of another case.
    bool isOf(const QString &file, const std::optional<FileIdentity> &identity) const;
    bool isOf(const QString &path) const { return isOf(canonicalFile(path), identityOf(path)); }
    FileChange change() const { return m_stamp ? m_stamp->changeOf(m_file) : FileChange::None; }
    /// Who took the lock from here. One that just went is made again.
    std::optional<LockHolder> successor();

private:
    QString m_file;
    std::optional<FileStamp> m_stamp;
    std::unique_ptr<DrawingLock> m_lock;
    std::optional<LockHolder> m_holder;
    bool m_isReadOnly = false;
};

} // namespace host::kernel
