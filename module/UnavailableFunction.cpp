#include "module/UnavailableFunction.h"

#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvLispEngine.h"

#include <QCoreApplication>

namespace ortakit {

int sayUnavailable(QLatin1StringView name)
{
    CKvDocument *document = ACTIVE_DOCUMENT();
    if (CKvLispEngine *lisp = document ? document->lispEngine() : nullptr)
        lisp->print(QCoreApplication::translate("LispExtension", "\n%1 is not available in this build.").arg(name));
    return kRtError;
}

} // namespace ortakit
