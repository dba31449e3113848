#include "state/host/StarterFiles.h"

#include <QDir>

namespace ortakit {

void putStarterFiles(const QString &folder, const QString &set)
{
    static const QStringList drawings{QStringLiteral("*.dwg"), QStringLiteral("*.dxf")};
    const QDir own(folder);
    if (!own.isAbsolute() || !QDir().mkpath(folder) || !own.entryList(drawings, QDir::Files).isEmpty())
        return;
    const QDir starters(QStringLiteral(":/starters/") + set);
    for (const QString &name : starters.entryList(QDir::Files)) {
        QFile copy(own.filePath(name));
        // What is copied from a resource would be write-protected.
        if (QFile::copy(starters.filePath(name), copy.fileName()))
            copy.setPermissions(copy.permissions() | QFile::WriteOwner);
    }
}

} // namespace ortakit
