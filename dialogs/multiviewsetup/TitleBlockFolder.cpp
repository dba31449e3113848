#include "dialogs/multiviewsetup/TitleBlockFolder.h"

#include <QDir>

namespace {

bool isTitleBlock(const QString &fileName)
{
    const QStringList parts = fileName.split(u'.');
    if (parts.size() != 2)
        return false;
    const QString extension = parts[1].toUpper();
    return extension == QLatin1String("DWG") || extension == QLatin1String("DXF");
}

} // namespace

QStringList titleBlockFiles(const QString &folder)
{
    QStringList files = QDir(folder).entryList(QDir::Files, QDir::Unsorted);
    files.removeIf([](const QString &name) { return !isTitleBlock(name); });
    return files;
}
