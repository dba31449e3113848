#include "host/drawing/text/RemoteTextContent.h"
#include "host/view/build/BuildMText.h"
#include "host/view/build/Scene.h"

#include <numbers>

namespace host::view {

using drawing::TagList;

namespace {

/// Plain text as multi-line text: nothing in it is a code.
QString escaped(QString text)
{
    for (const QChar c : {u'\\', u'{', u'}'})
        text.replace(c, QString(u'\\') + c);
    return text;
}

} // namespace

/// The first line stands on the insertion point.
bool buildRemoteText(BuildContext &context, const TagList &tags)
{
    const Vec3 at = tags.point(10);
    const Vec3 extrusion = tags.point(210, {0.0, 0.0, 1.0});
    const double height = std::abs(tags.real(40, 1.0));
    const double rotation = tags.real(50) * std::numbers::pi / 180.0;
    if (!isUsable(at) || !isUsable(extrusion) || !isUsable(height) || !isUsable(rotation) || !(height > 0.0))
        return false;
    const drawing::RemoteTextContent content =
        drawing::remoteTextContent(context.drawing, tags, context.scene.surroundings());
    context.display.isSimplified = !content.isRead;
    const MTextPlace place{.frame = Matrix::fromExtrusion(extrusion) * Matrix::translation(at) *
                                    Matrix::rotation(rotation) * Matrix::translation({0.0, height, 0.0}),
                           .height = height,
                           .styleName = tags.text(7)};
    addMText(context, place, content.hasCodes ? content.text : escaped(content.text), {});
    return true;
}

} // namespace host::view
