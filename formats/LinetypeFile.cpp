#include "formats/LinetypeFile.h"

#include <QFile>
#include <QFileInfo>

namespace ortakit {

namespace {

constexpr int fieldCount = 2;
constexpr int nameField = 0;
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
    LinetypeListing listing;
    DefinitionHeaderReader headers(text, fieldCount, nameField);
    while (headers.next())
        listing.linetypes.append({headers.field(nameField), headers.field(descriptionField)});
    listing.diagnostics = headers.diagnostics();
    return listing;
}

LinetypeListing readLinetypeFile(const QString &path)
{
    const TextReading file = readTextFile(path);
    LinetypeListing listing = listLinetypes(file.text);
    listing.error = file.error;
    return listing;
}

bool isAcceptableLinetypeFile(const QString &path, const QString &extension)
{
    const bool isLinetypeFile = extension.compare(QLatin1StringView(".lin"), Qt::CaseInsensitive) == 0;
    if (!isLinetypeFile || !path.contains(extension, Qt::CaseInsensitive))
        return false;
    const QFileInfo info(path);
    if (!info.exists())
        return true;
    QFile file(path);
    return info.isFile() && file.open(QIODevice::ReadOnly) &&
           opensDefinitionOrIsBlank(withoutByteOrderMark(file.read(longestFirstLine)));
}

} // namespace ortakit
