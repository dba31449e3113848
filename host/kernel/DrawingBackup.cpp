#include "host/kernel/DrawingBackup.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace host::kernel {

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("host::kernel::DrawingBackup", text);
}

/// Whether both lead to the same file, through whatever links.
bool isSameFile(const QString &one, const QString &other)
{
    return QFileInfo(one).canonicalFilePath() == QFileInfo(other).canonicalFilePath();
}

} // namespace

DrawingBackup::DrawingBackup(const QString &path, const QString &folder) : m_path(path)
{
    if (folder.isEmpty() || !QFileInfo(path).isFile())
        return;
    const QString target = QDir(folder).absoluteFilePath(QFileInfo(path).completeBaseName() + QStringLiteral(".bak"));
    if (!QFileInfo(folder).isDir()) {
        fail(translated("there is no folder %1").arg(QDir::toNativeSeparators(folder)));
    } else if (QFileInfo::exists(target) && isSameFile(path, target)) {
        fail(translated("the backup would take the place of the drawing"));
    } else {
        m_copy.emplace(target);
        copy(path);
    }
}

void DrawingBackup::copy(const QString &path)
{
    constexpr qint64 pieceSize = 1024 * 1024;
    QFile old(path);
    if (!old.open(QIODevice::ReadOnly))
        return fail(old.errorString());
    if (!m_copy->open(QIODevice::WriteOnly))
        return fail(m_copy->errorString());
    // Whoever may not read the drawing may not read its backup.
    m_copy->setPermissions(old.permissions());
    for (;;) {
        const QByteArray piece = old.read(pieceSize);
        if (piece.isEmpty())
            break;
        if (m_copy->write(piece) != piece.size())
            return fail(m_copy->errorString());
    }
    if (old.error() != QFileDevice::NoError)
        fail(old.errorString());
}

QString DrawingBackup::finish()
{
    if (m_problem.isEmpty() && m_copy && !m_copy->commit())
        fail(m_copy->errorString());
    return m_problem.isEmpty() ? QString()
                               : translated("No backup of %1: %2.").arg(QDir::toNativeSeparators(m_path), m_problem);
}

} // namespace host::kernel
