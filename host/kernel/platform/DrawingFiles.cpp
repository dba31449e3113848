#include "host/drawing/Blocks.h"
#include "host/drawing/Drawing.h"
#include "host/view/Export.h"
#include "platform/kernel/CKvUtils.h"

QImage CKvUtils::drawingPicture(const OdString &path, const QSize &size, const QColor &background)
{
    // Pictures come on black or white, whichever the colours of the drawing suit on this background.
    const bool isDark = background.lightness() < 128;
    return host::view::picture(path, size, isDark ? host::view::Ground::Black : host::view::Ground::White);
}

QStringList CKvUtils::externalReferences(const OdString &path)
{
    const host::drawing::ReadResult read = host::drawing::Drawing::open(path);
    QStringList paths;
    if (!read)
        return paths;
    const host::drawing::Blocks &blocks = read.drawing->blocks();
    for (host::drawing::RecordId id : blocks.all()) {
        const host::drawing::Block block = blocks.read(id);
        if (block.isExternal() && !block.externalPath.isEmpty())
            paths.append(block.externalPath);
    }
    return paths;
}
