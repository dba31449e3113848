#include "state/host/ModuleFolder.h"

#include "platform/kernel/CKvDocument.h"

#include <QDir>

namespace ortakit {

QString moduleFolder()
{
    const CKvDocument *document = ACTIVE_DOCUMENT();
    const QString base = document ? document->systemVariable(QStringLiteral("LOGFILEPATH")) : QString();
    return base + QStringLiteral("Ortakit");
}

QString makeModuleFolder(const QString &name)
{
    const QString folder = moduleFolder() + u'/' + name;
    if (QDir::isAbsolutePath(folder))
        QDir().mkpath(folder);
    return folder;
}

} // namespace ortakit
