#include "host/drawing/TextCodec.h"
#include "host/view/BuildMText.h"
#include "host/view/Scene.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <numbers>

namespace host::view {

using drawing::TagList;

namespace {

constexpr qint64 largestFile = 256 * 1024;

// Bits of group 70.
constexpr qint64 isExpression = 1;
constexpr qint64 hasCodes = 2;

/// In the encoding that a mark at its begin says, else UTF-8, else what is no UTF-8 in the drawing's own encoding.
QString decoded(const QByteArray &bytes, const drawing::TextCodec &codec)
{
    QStringDecoder decoder(QStringConverter::encodingForData(bytes).value_or(QStringConverter::Utf8));
    QString text = decoder(bytes);
    if (decoder.hasError())
        text = codec.decode(bytes);
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

/// The text of the named file, looked for beside the drawing; nothing when it is no ordinary file of sensible size.
std::optional<QString> readBeside(const drawing::Drawing &drawing, QString name)
{
    const QDir folder = drawing.path().isEmpty() ? QDir() : QFileInfo(drawing.path()).absoluteDir();
    // Drawings come from systems with either separator.
    const QFileInfo info(folder, name.replace(u'\\', u'/'));
    QFile file(info.filePath());
    if (!info.isFile() || info.size() > largestFile || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return decoded(file.read(largestFile), drawing.codec());
}

/// Plain text as multi-line text: nothing in it is a code.
QString escaped(QString text)
{
    for (const QChar c : {u'\\', u'{', u'}'})
        text.replace(c, QString(u'\\') + c);
    return text;
}

/// What an entity shows; nothing when its file cannot be read.
std::optional<QString> shownText(const BuildContext &context, const QString &content, qint64 flags)
{
    if ((flags & isExpression) != 0)
        return drawing::evaluateMacro(content, context.scene.surroundings());
    return readBeside(context.drawing, content);
}

} // namespace

/// The first line stands on the insertion point. Shows the file's text, or its name when it cannot be read, and the
/// value of an expression.
bool buildRemoteText(BuildContext &context, const TagList &tags)
{
    const Vec3 at = tags.point(10);
    const Vec3 extrusion = tags.point(210, {0.0, 0.0, 1.0});
    const double height = std::abs(tags.real(40, 1.0));
    const double rotation = tags.real(50) * std::numbers::pi / 180.0;
    if (!isUsable(at) || !isUsable(extrusion) || !isUsable(height) || !isUsable(rotation) || !(height > 0.0))
        return false;
    const QString content = tags.text(1);
    const qint64 flags = tags.integer(70);
    const std::optional<QString> shown = shownText(context, content, flags);
    context.display.isSimplified = !shown;
    const MTextPlace place{.frame = Matrix::fromExtrusion(extrusion) * Matrix::translation(at) *
                                    Matrix::rotation(rotation) * Matrix::translation({0.0, height, 0.0}),
                           .height = height,
                           .styleName = tags.text(7)};
    const bool isPlain = !shown || (flags & hasCodes) == 0;
    addMText(context, place, isPlain ? escaped(shown.value_or(content)) : *shown, {});
    return true;
}

} // namespace host::view
