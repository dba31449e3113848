#include "host/kernel/files/DrawingClaim.h"

#include <QFileInfo>

namespace host::kernel {

DrawingClaim::DrawingClaim(const QString &path, OpenMode mode)
    : m_file(canonicalFile(path)), m_isReadOnly(mode == OpenMode::ReadOnly)
{
    // Folders, pipes and devices are no drawings, and nothing is made beside them.
    if (m_file.isEmpty() || (QFileInfo::exists(m_file) && !QFileInfo(m_file).isFile()))
        return;
    m_stamp = FileStamp::of(m_file);
    if (m_isReadOnly) {
        m_holder = DrawingLock::holderOf(m_file);
        return;
    }
    const auto wanted = mode == OpenMode::Anyway ? DrawingLock::Wanted::Anyway : DrawingLock::Wanted::IfFree;
    DrawingLock::Attempt attempt = DrawingLock::take(m_file, wanted);
    m_lock = std::move(attempt.lock);
    m_holder = std::move(attempt.holder);
}

void DrawingClaim::setContent(const drawing::Drawing &drawing)
{
    if (!m_stamp)
        return;
    // What a DWG file came to is not what is in it.
    if (drawing.isFromDwg())
        m_stamp->setContentOf(m_file);
    else
        m_stamp->setContent(drawing);
}

void DrawingClaim::noteWritten(const drawing::Drawing &drawing)
{
    m_stamp = FileStamp::of(m_file);
    if (m_stamp)
        m_stamp->setContent(drawing);
}

bool DrawingClaim::isOf(const QString &file, const std::optional<FileIdentity> &identity) const
{
    if (m_file.isEmpty())
        return false;
    if (file == m_file)
        return true;
    // The number of a file that is gone may belong to another by now.
    return identity && m_stamp && m_stamp->identity() == *identity && identityOf(m_file) == identity;
}

std::optional<LockHolder> DrawingClaim::successor()
{
    if (!m_lock || m_lock->isHeld())
        return {};
    DrawingLock::Attempt attempt = DrawingLock::take(m_file);
    if (!attempt.holder)
        m_lock = std::move(attempt.lock);
    return attempt.holder;
}

} // namespace host::kernel
