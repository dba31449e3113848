#include "module/RegisteredDrawings.h"

#include "formats/Translated.h"
#include "module/DialogRegistry.h"
#include "platform/db/OdDbDatabase.h"
#include "platform/kernel/CKvDocument.h"

#include <QCoreApplication>
#include <QFileInfo>

using ortakit::translated;

namespace {

QString fileOf(const DocumentDialogSet &record)
{
    const OdDbDatabase *database = record.document()->database();
    return database ? database->getFilename() : QString();
}

} // namespace

QList<OpenDrawings::Drawing> RegisteredDrawings::drawings() const
{
    QList<Drawing> open;
    for (const DocumentDialogSet &record : DialogRegistry::instance().records()) {
        if (const QString path = fileOf(record); !path.isEmpty())
            open.append({path, record.editingTime});
    }
    return open;
}

QString RegisteredDrawings::change(const QString &path, const ortakit::EditingTimeChange &change)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    bool isFound = false;
    for (DocumentDialogSet &record : DialogRegistry::instance().records()) {
        if (QFileInfo(fileOf(record)).canonicalFilePath() != canonical)
            continue;
        isFound = true;
        const ortakit::EditingTime changed = change.applied(record.editingTime, ortakit::currentTime());
        if (!ortakit::writeEditingTime(changed, record.document()->database()))
            return translated("%1: the drawing has no room for an editing time").arg(path);
        record.editingTime = changed;
    }
    return isFound ? QString() : translated("%1: the drawing is not open any more").arg(path);
}
