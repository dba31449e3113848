#include "module/CLispFunctionsModule.h"

#include "module/DialogRegistry.h"
#include "module/LispFunctionTable.h"
#include "module/ModuleCommands.h"
#include "platform/ed/OdEditor.h"
#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvSystemServices.h"

namespace {

CKvDocumentManager *documentManager()
{
    CKvSystemServices *services = GetKvSystemServices();
    return services ? services->documentManager() : nullptr;
}

} // namespace

void CLispFunctionsModule::initApp()
{
    m_language.follow(ACTIVE_DOCUMENT());
    if (CKvDocumentManager *manager = documentManager()) {
        manager->addReactor(this);
        for (int index = 0; index < manager->documentCount(); ++index)
            LispDocumentReady(manager->document(index));
    }
    ortakit::addCommands();
    odedEditor()->addReactor(&m_editorReactor);
}

void CLispFunctionsModule::uninitApp()
{
    if (CKvDocumentManager *manager = documentManager()) {
        manager->removeReactor(this);
        for (int index = 0; index < manager->documentCount(); ++index)
            LispDocumentClosing(manager->document(index));
    }
    ortakit::removeCommands();
    odedEditor()->removeReactor(&m_editorReactor);
    m_language.leave();
}

void CLispFunctionsModule::LispDocumentReady(CKvDocument *document)
{
    // A document that has no engine yet when the module is loaded is announced again when it has one.
    CKvLispEngine *lisp = document->lispEngine();
    if (!lisp)
        return;
    // Before the first document nobody could tell the language.
    m_language.follow(document);
    ortakit::defineFunctions(*lisp);
    DialogRegistry &registry = DialogRegistry::instance();
    registry.append(document);
    registry.records().back().editingTime = ortakit::readEditingTime(document->database());
}

void CLispFunctionsModule::LispDocumentClosing(CKvDocument *document)
{
    if (CKvLispEngine *lisp = document->lispEngine())
        ortakit::undefineFunctions(*lisp);
    DialogRegistry::instance().remove(document);
}
