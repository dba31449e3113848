#include "state/StateFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringConverter>

namespace ortakit {

namespace {

constexpr qint64 largestFile = 16 * 1024 * 1024;

QString decoded(const QByteArray &bytes)
{
    const auto encoding = QStringConverter::encodingForData(bytes).value_or(QStringConverter::Utf8);
    return QStringDecoder(encoding).decode(bytes);
}

QStringList linesOf(const QString &text)
{
    QStringList lines;
    qsizetype begin = 0;
    while (begin < text.size()) {
        qsizetype end = text.indexOf(u'\n', begin);
        if (end < 0)
            end = text.size();
        const bool hasReturn = end > begin && text[end - 1] == u'\r';
        lines.append(text.sliced(begin, end - begin - (hasReturn ? 1 : 0)));
        begin = end + 1;
    }
    return lines;
}

} // namespace

std::optional<QStringList> readStateFile(const QString &path)
{
    // A pipe or a device would be read for ever.
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestFile)
        return std::nullopt;
    return linesOf(decoded(file.read(largestFile)));
}

bool writeStateFile(const QString &path, const QString &text)
{
    const QFileInfo target(path);
    // Writing beside and renaming would put a file in the place of a device or pipe.
    if (path.isEmpty() || (target.exists() && !target.isFile()))
        return false;
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    if (!text.isEmpty())
        file.write("\xEF\xBB\xBF" + text.toUtf8());
    return file.commit();
}

} // namespace ortakit
