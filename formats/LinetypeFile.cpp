#include "formats/LinetypeFile.h"

#include "files/qt/Files.h"

#include <QFile>
#include <QFileInfo>

#include <limits>

namespace ortakit {

namespace {

constexpr int linetypeFieldCount = 2;
constexpr int linetypeNameField = 0;
constexpr int descriptionField = 1;

/// As much of a file as its first line is looked for in: a file of one endless line is not read whole for that.
constexpr qint64 longestFirstLine = 64 * 1024;

bool opensDefinitionOrIsBlank(const QByteArray &beginning)
{
    LineReader lines(beginning);
    if (!lines.next())
        return true;
    return lines.line().startsWith('*') || lines.string().trimmed().isEmpty();
}

} // namespace

LinetypeListing listLinetypes(QByteArrayView text)
{
    return listDefinitions<LinetypeHeader>(
        {text, linetypeFieldCount, linetypeNameField}, [](const DefinitionHeaderReader &header) {
            return LinetypeHeader{header.field(linetypeNameField), header.field(descriptionField)};
        });
}

LinetypeListing readLinetypeFile(const QString &path)
{
    return readDefinitions(path, listLinetypes);
}

bool isAcceptableLinetypeFile(const QString &path, const QString &extension)
{
    const bool isLinetypeFile = extension.compare(QLatin1StringView(".lin"), Qt::CaseInsensitive) == 0;
    if (!isLinetypeFile || !path.contains(extension, Qt::CaseInsensitive))
        return false;
    const QFileInfo info(path);
    if (!info.exists())
        return true;
    // However large it is, only its begin is looked at.
    QFile file;
    return files::openRegular(file, path, std::numeric_limits<qint64>::max()).isEmpty() &&
           opensDefinitionOrIsBlank(withoutByteOrderMark(file.read(longestFirstLine)));
}

} // namespace ortakit
