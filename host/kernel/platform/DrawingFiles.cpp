#include "platform/kernel/CKvUtils.h"

// Nothing in the host reads drawing files yet: every file counts as one that cannot be read as a drawing.

QImage CKvUtils::drawingPicture(const OdString &, const QSize &, const QColor &)
{
    return {};
}

QStringList CKvUtils::externalReferences(const OdString &)
{
    return {};
}
