#pragma once

#include "platform/Export.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <memory>
#include <optional>

namespace host::kernel {

/// Who has a drawing open, as the lock file beside it says.
struct LockHolder
{
    QString user;
    QString host;
    qint64 process = 0;
    QDateTime since; ///< not valid where the lock file does not tell

    /// "anna on cad07, process 4711, since 2026-03-01 09:30"
    QString description() const;
};

/// The lock file beside a drawing, ".plan.dxf.lock" for "plan.dxf": one process at a time has it. It says which process
/// of which machine that is, so that what a killed one left behind is recognised and replaced.
///
/// A process of this machine that is gone, has another start time or belongs to an earlier start of the machine left
/// its lock behind; nothing is known of those of other machines, which count as open. The lock goes when the object
/// does, and when the process ends by exit() or a signal that can be caught.
class KV_EXPORT DrawingLock
{
public:
    enum class Wanted
    {
        IfFree,
        Anyway ///< takes it from whoever has it
    };
    struct Attempt
    {
        std::unique_ptr<DrawingLock> lock; ///< null when there is a holder, or where the folder takes no lock file
        std::optional<LockHolder> holder;  ///< who has it
    };

    /// `file` is a canonicalFile(). Of any number of processes that try at once one gets the lock.
    static Attempt take(const QString &file, Wanted wanted = Wanted::IfFree);
    /// Who has the file open; nothing when nobody has, or only what left its lock behind.
    static std::optional<LockHolder> holderOf(const QString &file);
    static QString lockFileOf(const QString &file);

    ~DrawingLock();
    DrawingLock(const DrawingLock &) = delete;
    DrawingLock &operator=(const DrawingLock &) = delete;

    /// Nobody took it from here.
    bool isHeld() const;

private:
    DrawingLock(const QByteArray &path, const QByteArray &content);

    QByteArray m_path;
    QByteArray m_content;
    int m_place; ///< among what is removed at the end of the process
};

} // namespace host::kernel
