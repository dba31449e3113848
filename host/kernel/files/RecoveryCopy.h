#pragma once

#include "host/kernel/files/DrawingLock.h"
#include "host/kernel/files/FileStamp.h"

#include <QList>

#include <atomic>
#include <vector>

namespace host::kernel {

/// What is known of a copy of a drawing beside its content.
struct RecoveryNote
{
    QString title;                 ///< what the drawing was called: "plan.dxf", "Drawing1"
    QString path;                  ///< its file; empty for one that had none
    QDateTime time;                ///< when the drawing was as the copy has it
    bool isBinary = false;         ///< its file has the binary form; copies are text
    std::optional<FileStamp> base; ///< its file as the drawing was read from it or written to it last
};

/// A copy that is there.
struct RecoveryFile
{
    QString file;
    RecoveryNote note;
    qint64 size = 0; ///< bytes
};

/// A copy of a changed drawing, for after a crash: NAME_xxxxxx.dxf and, with what it is a copy of,
/// NAME_xxxxxx.dxf.json.
///
/// While the object lives, a lock beside the copy says which process has it; a process that is killed leaves both, and
/// its lock counts for nothing then. See DrawingLock. Objects are made and destroyed on the thread of the user
/// interface; write() may be called on another one.
class KV_EXPORT RecoveryCopy
{
public:
    /// A new one, of which nothing is on the disk but the lock. The folder is made, for nobody else to look into. Null
    /// where that cannot be done.
    static std::unique_ptr<RecoveryCopy> begin(const QString &folder, const QString &title);
    /// One that was left behind, with what it has. Null when a process has it, or when it is gone.
    static std::unique_ptr<RecoveryCopy> adopt(const QString &file);

    const QString &file() const { return m_file; }
    /// Writes the pieces, which must stay readable meanwhile, beside the copy and puts them in its place, on the disk;
    /// so for the note. Setting `isStopped` has it give up. Empty, or why the copy is as it was.
    QString write(const std::vector<QByteArrayView> &pieces, const RecoveryNote &note,
                  const std::atomic<bool> &isStopped) const;
    /// Takes the copy away.
    void remove() const { removeFile(m_file); }

    /// The copies of a folder that no running process has, newest first. Remains of writing and notes without a copy
    /// are taken away. Files without a note are none of them.
    static QList<RecoveryFile> leftIn(const QString &folder);
    /// Takes away one that nobody has.
    static void removeFile(const QString &file);

private:
    RecoveryCopy(const QString &file, std::unique_ptr<DrawingLock> lock) : m_file(file), m_lock(std::move(lock)) {}

    QString m_file;
    std::unique_ptr<DrawingLock> m_lock;
};

} // namespace host::kernel
