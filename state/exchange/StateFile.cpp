#include "state/exchange/StateFile.h"

#include "formats/TextReading.h"
#include "state/host/CommandLineText.h"

namespace ortakit {

namespace {

constexpr qint64 largestFile = 16 * 1024 * 1024;

} // namespace

std::optional<QStringList> readStateFile(const QString &path)
{
    const TextReading file = readTextFile(path, largestFile);
    if (!file)
        return std::nullopt;
    QStringList lines;
    for (LineReader reader(file.text); reader.next();)
        lines.append(reader.string());
    return lines;
}

bool writeStateFile(const QString &path, const QString &text)
{
    return replaceFileOrTell(path, text.isEmpty() ? QByteArray() : "\xEF\xBB\xBF" + text.toUtf8());
}

} // namespace ortakit
