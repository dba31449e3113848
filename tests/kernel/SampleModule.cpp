// A module for tests: defines (sample-add) in every document while it runs.

#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvDocumentManager.h"
#include "platform/kernel/CKvLispEngine.h"
#include "platform/kernel/CKvSystemServices.h"
#include "platform/rx/OdRxWin32Module.h"

namespace {

int sampleAdd()
{
    CKvLispEngine *lisp = ACTIVE_DOCUMENT()->lispEngine();
    qint64 sum = 0;
    for (const OdResBuf *link = lisp->arguments(); link; link = link->next())
        sum += link->getInteger();
    lisp->returnInteger(static_cast<qint32>(sum));
    return kRtNormal;
}

class SampleModule : public OdRxModule
{
public:
    void initApp() override
    {
        forEachDocument([](CKvLispEngine &lisp) { lisp.defineFunction(QStringLiteral("sample-add"), sampleAdd); });
    }
    void uninitApp() override
    {
        forEachDocument([](CKvLispEngine &lisp) { lisp.undefineFunction(QStringLiteral("sample-add")); });
    }

private:
    template <typename Call>
    static void forEachDocument(Call &&call)
    {
        const CKvDocumentManager *manager = GetKvSystemServices()->documentManager();
        for (int i = 0; i < manager->documentCount(); ++i)
            call(*manager->document(i)->lispEngine());
    }
};

} // namespace

extern "C" {

Q_DECL_EXPORT void odrxGetAPIVersion(int *major, int *minor, int *majorBuild, int *minorBuild)
{
    *major = 26;
    *minor = 8;
    *majorBuild = 0;
    *minorBuild = SAMPLE_BUILD;
}

Q_DECL_EXPORT OdRxModule *odrxCreateModuleObject(void *handle)
{
    return OdRxWin32Module<SampleModule>::instance(handle);
}
}
