#include "host/drawing/Blocks.h"
#include "host/drawing/Drawing.h"
#include "host/kernel/Document.h"
#include "host/kernel/DrawingDatabase.h"
#include "host/view/Export.h"
#include "platform/kernel/CKvUtils.h"

namespace {

// Pictures come on black or white, whichever the colours of the drawing suit on this background.
host::view::Ground groundFor(const QColor &background)
{
    return background.lightness() < 128 ? host::view::Ground::Black : host::view::Ground::White;
}

} // namespace

QImage CKvUtils::drawingPicture(const OdString &path, const QSize &size, const QColor &background)
{
    return host::view::picture(path, size, groundFor(background));
}

QImage CKvUtils::blockPicture(OdDbDatabase *database, const OdString &name, const QSize &size, const QColor &background)
{
    // Whoever else implements the class has no drawing to show.
    auto *own = dynamic_cast<host::kernel::DrawingDatabase *>(database);
    return own ? host::view::blockPicture(own->document().drawing(), name, size, groundFor(background)) : QImage();
}

QSizeF CKvUtils::drawingSize(const OdString &path)
{
    return host::view::drawnSize(path);
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
