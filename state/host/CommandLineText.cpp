#include "state/host/CommandLineText.h"

#include "formats/FileWriting.h"
#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvLispEngine.h"

#include <QCoreApplication>
#include <QDir>

namespace ortakit {

void tellOnCommandLine(const QString &sentence)
{
    CKvDocument *document = ACTIVE_DOCUMENT();
    if (document && document->lispEngine())
        document->lispEngine()->print(u'\n' + sentence + u'\n');
}

bool tellNotWritten(const QString &path, const QString &reason)
{
    if (!reason.isEmpty())
        tellOnCommandLine(QCoreApplication::translate("LispExtension", "%1 could not be written: %2.")
                              .arg(QDir::toNativeSeparators(path), reason));
    return reason.isEmpty();
}

bool replaceFileOrTell(const QString &path, const QByteArray &content)
{
    QString reason;
    replaceFile(path, content, &reason);
    return tellNotWritten(path, reason);
}

bool appendToFileOrTell(const QString &path, const QByteArray &content)
{
    QString reason;
    appendToFile(path, content, &reason);
    return tellNotWritten(path, reason);
}

} // namespace ortakit
