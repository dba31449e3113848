#include "lispfuncs/LicenceState.h"

#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvLispEngine.h"
#include "platform/kernel/CKvSystemServices.h"

namespace ortakit {

int isItDemoVersion()
{
    CKvDocument *document = ACTIVE_DOCUMENT();
    CKvLispEngine *lisp = document ? document->lispEngine() : nullptr;
    CKvSystemServices *services = GetKvSystemServices();
    if (!lisp || !services)
        return kRtError;
    if (services->licenceState() == KvLicence::Demo)
        lisp->returnTrue();
    else
        lisp->returnNil();
    return kRtNormal;
}

} // namespace ortakit
