// What looks into drawing files beside the open ones. This host reads none, and each of these answers as for a file
// that cannot be read.

#include "Supply.h"
#include "platform/kernel/CKvUtils.h"

using sample::notSupplied;

QImage CKvUtils::drawingPicture(const OdString &, const QSize &, const QColor &)
{
    return notSupplied<QImage>("CKvUtils::drawingPicture");
}

QImage CKvUtils::blockPicture(OdDbDatabase *, const OdString &, const QSize &, const QColor &)
{
    return notSupplied<QImage>("CKvUtils::blockPicture");
}

QSizeF CKvUtils::drawingSize(const OdString &)
{
    return notSupplied<QSizeF>("CKvUtils::drawingSize");
}

QStringList CKvUtils::externalReferences(const OdString &)
{
    return notSupplied<QStringList>("CKvUtils::externalReferences");
}

OdDbDatabasePtr CKvUtils::readDrawing(const OdString &, OdString &error)
{
    error = QStringLiteral("This host reads no drawings.");
    return notSupplied<OdDbDatabasePtr>("CKvUtils::readDrawing");
}

QList<CKvBlock> CKvUtils::blocks(OdDbDatabase *)
{
    return notSupplied<QList<CKvBlock>>("CKvUtils::blocks");
}

CKvBlockCopy CKvUtils::copyBlock(OdDbDatabase *, const OdString &, OdDbDatabase *)
{
    return notSupplied<CKvBlockCopy>("CKvUtils::copyBlock");
}

OdResBufPtr CKvUtils::drawingRecord(const OdString &, const OdString &, OdString *error)
{
    if (error)
        *error = QStringLiteral("This host reads no drawings.");
    return notSupplied<OdResBufPtr>("CKvUtils::drawingRecord");
}

bool CKvUtils::setDrawingRecord(const OdString &, const OdString &, const OdResBuf *, OdString *error)
{
    if (error)
        *error = QStringLiteral("This host writes no drawings.");
    return notSupplied<bool>("CKvUtils::setDrawingRecord");
}
