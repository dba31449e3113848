#include "host/drawing/editing/CopyBetweenDrawings.h"
#include "host/drawing/file/XrecordInFile.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/platform/DrawingDatabase.h"
#include "host/kernel/platform/RecordChain.h"
#include "host/view/paint/Export.h"
#include "platform/kernel/CKvUtils.h"

#include <QImage>

using host::kernel::HostDatabase;

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
    const host::drawing::Drawing *drawing = HostDatabase::drawingOf(database);
    return drawing ? host::view::blockPicture(*drawing, name, size, groundFor(background)) : QImage();
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

OdDbDatabasePtr CKvUtils::readDrawing(const OdString &path, OdString &error)
{
    host::drawing::ReadResult read = host::drawing::Drawing::open(path);
    error = read ? QString() : read.error.message();
    return read ? std::make_shared<host::kernel::FileDatabase>(std::move(read.drawing)) : nullptr;
}

QList<CKvBlock> CKvUtils::blocks(OdDbDatabase *database)
{
    constexpr int ofExternalReference = 16;
    QList<CKvBlock> found;
    const host::drawing::Drawing *drawing = HostDatabase::drawingOf(database);
    if (!drawing)
        return found;
    const host::drawing::Blocks &blocks = drawing->blocks();
    for (const host::drawing::RecordId id : blocks.all()) {
        const host::drawing::Block block = blocks.read(id);
        // Of blocks that a damaged file has twice, the name means one.
        if (block.isLayout() || (block.flags & ofExternalReference) != 0 || blocks.find(block.name) != id)
            continue;
        found.append({block.name, block.isAnonymous() || block.name.startsWith(u'*'), block.isExternal()});
    }
    return found;
}

CKvBlockCopy CKvUtils::copyBlock(OdDbDatabase *source, const OdString &name, OdDbDatabase *target)
{
    CKvBlockCopy result;
    const host::drawing::Drawing *from = HostDatabase::drawingOf(source);
    auto *own = dynamic_cast<host::kernel::DrawingDatabase *>(target);
    if (!from || !own)
        return result;
    host::drawing::CopyResult copy;
    own->document().runAs(QStringLiteral("BLOCK"),
                          [&] { copy = host::drawing::copyBlock(*from, from->blocks().find(name), own->drawing()); });
    result.isDone = bool(copy);
    result.leftOut = copy.skipped;
    for (const host::drawing::KeptName &kept : copy.kept) {
        const bool isBlock = kept.kind == host::drawing::TableKind::BlockRecord;
        const QByteArrayView table = host::drawing::tableTypeName(kept.kind);
        result.kept.append({isBlock ? QStringLiteral("BLOCK") : QString::fromLatin1(table), kept.name});
    }
    return result;
}

OdResBufPtr CKvUtils::drawingRecord(const OdString &path, const OdString &name, OdString *error)
{
    const std::optional<host::drawing::FieldList> data = host::drawing::xrecordInFile(path, name, error);
    return data ? host::kernel::chainFromFields(*data) : nullptr;
}

bool CKvUtils::setDrawingRecord(const OdString &path, const OdString &name, const OdResBuf *chain, OdString *error)
{
    auto *active = dynamic_cast<host::kernel::Document *>(ACTIVE_DOCUMENT());
    const auto obstacle = host::kernel::obstacleToWriting(path, active ? &active->session() : nullptr);
    const host::drawing::SaveResult result =
        obstacle ? host::drawing::SaveResult{obstacle->text}
                 : host::drawing::setXrecordInFile(path, name, host::kernel::fieldsFromChain(chain));
    if (error)
        *error = result.error;
    return bool(result);
}
