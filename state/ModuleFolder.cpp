#include "state/ModuleFolder.h"

#include "platform/kernel/CKvDocument.h"

namespace ortakit {

QString moduleFolder()
{
    const CKvDocument *document = ACTIVE_DOCUMENT();
    const QString base = document ? document->systemVariable(QStringLiteral("LOGFILEPATH")) : QString();
    return base + QStringLiteral("Ortakit");
}

} // namespace ortakit
