#pragma once

#include "module/CEdReactor.h"
#include "platform/kernel/CKvDocumentManager.h"
#include "platform/rx/OdRxModule.h"

/// The module as its host sees it: between initApp() and uninitApp() every document with a Lisp engine has the external
/// Lisp functions and a record in the DialogRegistry, and editing time is counted.
class CLispFunctionsModule : public OdRxModule, public CKvDocumentManagerReactor
{
public:
    /// Takes in the documents that are open already and listens for others. A host without documents gets the commands
    /// and the editor reactor all the same.
    void initApp() override;
    /// Undoes initApp(); dialogs of every document are deleted.
    void uninitApp() override;

    void LispDocumentReady(CKvDocument *document) override;
    void LispDocumentClosing(CKvDocument *document) override;

private:
    OdStaticRxObject<CEdReactor> m_editorReactor;
};
