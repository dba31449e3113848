#include "module/ExceptionGuard.h"

#include "platform/kernel/CKvDocument.h"

namespace ortakit {

void tellError(const OdError &error) noexcept
{
    runGuarded([&error] {
        CKvDocument *document = ACTIVE_DOCUMENT();
        if (CKvLispEngine *lisp = document ? document->lispEngine() : nullptr)
            lisp->print(u'\n' + error.description());
    });
}

} // namespace ortakit
