#include "state/host/ActiveDrawing.h"

#include "platform/db/OdDbDatabase.h"
#include "platform/kernel/CKvDocument.h"

namespace ortakit {

QString activeDrawing()
{
    CKvDocument *document = ACTIVE_DOCUMENT();
    const OdDbDatabase *database = document ? document->database() : nullptr;
    return database ? database->getFilename() : QString();
}

} // namespace ortakit
