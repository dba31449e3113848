#include "host/view/BuildMText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <numbers>

namespace host::view {

using drawing::TagList;

namespace {

constexpr qint64 largestFile = 256 * 1024;

/// The text of the named file, looked for beside the drawing; nothing when it is no ordinary file of sensible size.
std::optional<QString> readBeside(const drawing::Drawing &drawing, const QString &name)
{
    const QDir folder = drawing.path().isEmpty() ? QDir() : QFileInfo(drawing.path()).absoluteDir();
    const QFileInfo info(folder, name);
    QFile file(info.filePath());
    if (!info.isFile() || info.size() > largestFile || !file.open(QIODevice::ReadOnly | QIODevice::Text))
        return std::nullopt;
    return QString::fromUtf8(file.read(largestFile));
}

/// Plain text as multi-line text: nothing in it is a code.
QString escaped(QString text)
{
    for (const QChar c : {u'\\', u'{', u'}'})
        text.replace(c, QString(u'\\') + c);
    return text;
}

} // namespace

/// The first line stands on the insertion point. Shows the file's text, or its name when it cannot be read; expressions
/// are shown as they are written.
bool buildRemoteText(BuildContext &context, const TagList &tags)
{
    constexpr qint64 isExpression = 1;
    const Vec3 at = tags.point(10);
    const Vec3 extrusion = tags.point(210, {0.0, 0.0, 1.0});
    const double height = std::abs(tags.real(40, 1.0));
    const double rotation = tags.real(50) * std::numbers::pi / 180.0;
    if (!isUsable(at) || !isUsable(extrusion) || !isUsable(height) || !isUsable(rotation) || !(height > 0.0))
        return false;
    const QString content = tags.text(1);
    const bool isFile = (tags.integer(70) & isExpression) == 0;
    const std::optional<QString> read = isFile ? readBeside(context.drawing, content) : std::nullopt;
    context.display.isSimplified = !read;
    const MTextPlace place{.frame = Matrix::fromExtrusion(extrusion) * Matrix::translation(at) *
                                    Matrix::rotation(rotation) * Matrix::translation({0.0, height, 0.0}),
                           .height = height,
                           .styleName = tags.text(7)};
    addMText(context, place, escaped(read.value_or(content)), {});
    return true;
}

} // namespace host::view
