#include "host/drawing/RemoteTextContent.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

namespace host::drawing {

namespace {

constexpr qint64 largestFile = 256 * 1024;

// Bits of group 70.
constexpr qint64 expressionBit = 1;
constexpr qint64 codesBit = 2;

QString decoded(const QByteArray &bytes, const TextCodec &codec)
{
    QStringDecoder decoder(QStringConverter::encodingForData(bytes).value_or(QStringConverter::Utf8));
    QString text = decoder(bytes);
    if (decoder.hasError())
        text = codec.decode(bytes);
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

std::optional<QString> readBeside(const Drawing &drawing, QString name)
{
    const QDir folder = drawing.path().isEmpty() ? QDir() : QFileInfo(drawing.path()).absoluteDir();
    // Drawings come from systems with either separator.
    const QFileInfo info(folder, name.replace(u'\\', u'/'));
    QFile file(info.filePath());
    if (!info.isFile() || info.size() > largestFile || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return decoded(file.read(largestFile), drawing.codec());
}

} // namespace

RemoteTextContent remoteTextContent(const Drawing &drawing, const TagList &tags, const MacroSurroundings &surroundings)
{
    const QString content = tags.text(1);
    const qint64 flags = tags.integer(70);
    const bool hasCodes = (flags & codesBit) != 0;
    if ((flags & expressionBit) != 0)
        return {evaluateMacro(content, surroundings), true, hasCodes};
    const std::optional<QString> read = readBeside(drawing, content);
    return {read.value_or(content), read.has_value(), read && hasCodes};
}

} // namespace host::drawing
