#pragma once

#include "module/CEdReactor.h"
#include "module/ModuleLanguage.h"
#include "platform/kernel/CKvDocumentManager.h"
#include "platform/rx/OdRxModule.h"

/// The module as its host sees it: between initApp() and uninitApp() every document with a Lisp engine has the external
/// Lisp functions and a record in the DialogRegistry, editing time is counted, and texts are in the host's language.
class CLispFunctionsModule : public OdRxModule, public CKvDocumentManagerReactor
{
public:
    /// Takes in the documents that are open already and listens for others. A host without documents gets the commands
    /// and the editor reactor all the same.
    void initApp() override;
    /// Undoes initApp(); dialogs of every document are deleted.
    void uninitApp() override;

    /// Defines the functions in the document's engine and adds its record, with the editing time that its drawing
    /// holds. Nothing for a document without an engine, which is announced again when it has one.
    void LispDocumentReady(CKvDocument *document) override;
    /// Takes the functions back and deletes the document's dialogs, also one that is running.
    void LispDocumentClosing(CKvDocument *document) override;

private:
    OdStaticRxObject<CEdReactor> m_editorReactor;
    ortakit::ModuleLanguage m_language;
};
