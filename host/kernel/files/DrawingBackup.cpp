#include "host/kernel/files/DrawingBackup.h"

#include "files/FileReplacement.h"
#include "files/RegularFile.h"
#include "files/qt/Files.h"

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
        m_copy = std::make_unique<files::FileReplacement>(files::nativePath(target));
        copy(path);
    }
}

DrawingBackup::~DrawingBackup() = default;

void DrawingBackup::copy(const QString &path)
{
    constexpr size_t pieceSize = 1024 * 1024;
    files::RegularFile old(files::nativePath(path), std::numeric_limits<std::uintmax_t>::max());
    std::vector<char> piece(pieceSize);
    while (const size_t count = old.read(piece.data(), piece.size())) {
        if (!m_copy->write({piece.data(), count}))
            break;
    }
    // Whoever may not read the drawing may not read its backup.
    if (old && *m_copy)
        m_copy->setMode(old.mode());
    if (!old || !*m_copy)
        fail(files::reasonText(old ? m_copy->reason() : old.reason()));
}

QString DrawingBackup::finish()
{
    if (m_problem.isEmpty() && m_copy && !m_copy->commit())
        fail(files::reasonText(m_copy->reason()));
    return m_problem.isEmpty() ? QString()
                               : translated("No backup of %1: %2.").arg(QDir::toNativeSeparators(m_path), m_problem);
}

} // namespace host::kernel
