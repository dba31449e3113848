#include "platform/ed/OdEditorReactor.h"
#include "platform/kernel/CKvDocumentManager.h"

void OdRxEventReactor::beginSave(OdDbDatabase *, const OdString &) {}

void OdEditorReactor::sysVarWillChange(OdDbDatabase *, const OdString &) {}

void OdEdCommandStackReactor::commandWillStart(OdEdCommand *, OdEdCommandContext *) {}

void OdEdLispEngineReactor::lispWillStart(OdEdCommandContext *, const OdString &) {}

void CKvDocumentManagerReactor::DocumentCreated(CKvDocument *) {}

void CKvDocumentManagerReactor::DocumentToBeDestroyed(CKvDocument *) {}

void CKvDocumentManagerReactor::DocumentDestroyed(CKvDocument *) {}

void CKvDocumentManagerReactor::LispDocumentReady(CKvDocument *) {}

void CKvDocumentManagerReactor::LispDocumentClosing(CKvDocument *) {}
