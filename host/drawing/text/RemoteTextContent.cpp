#include "host/drawing/text/RemoteTextContent.h"

#include "files/qt/Files.h"
#include "host/drawing/references/NamedFiles.h"
#include "host/drawing/tags/DrawingTexts.h"

#include <QStringConverter>
#include <QStringDecoder>

namespace host::drawing {

namespace {

constexpr qint64 largestTextFile = 256 * 1024;

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

std::optional<QString> readNamed(const Drawing &drawing, const QString &name, const MacroSurroundings &surroundings)
{
    const FileFinder find = surroundings.file ? surroundings.file : namedFiles(drawing);
    const QString path = find(name);
    if (path.isEmpty())
        return std::nullopt;
    const files::WholeBytes file = files::readWhole(path, largestTextFile);
    if (!file && surroundings.unread)
        surroundings.unread(path, DrawingTexts::tr("%1 (remote texts have at most 256 kB)").arg(file.reason));
    return file ? std::optional(decoded(file.bytes, drawing.codec())) : std::nullopt;
}

} // namespace

RemoteTextContent remoteTextContent(const Drawing &drawing, const TagList &tags, const MacroSurroundings &surroundings)
{
    const QString content = tags.text(1);
    const qint64 flags = tags.integer(70);
    const bool hasCodes = (flags & codesBit) != 0;
    if ((flags & expressionBit) != 0)
        return {evaluateMacro(content, surroundings), true, hasCodes};
    const std::optional<QString> read = readNamed(drawing, content, surroundings);
    return {read.value_or(content), read.has_value(), read && hasCodes};
}

} // namespace host::drawing
