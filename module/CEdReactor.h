#pragma once

#include "platform/kernel/CKvEditorReactor.h"

/// Counts editing time: whatever the user does in the active document advances the time of its records that are
/// tracked. A save writes the time into the drawing as well. No error leaves the handlers: what went wrong is not worth
/// a save or a command that fails.
class CEdReactor : public CKvEditorReactor
{
public:
    /// Counts, and writes the time of the active document, whichever drawing is saved. A drawing without room for such
    /// records is saved without its time.
    void beginSave(OdDbDatabase *database, const OdString &intendedName) override;
    void commandWillStart(OdEdCommand *command, OdEdCommandContext *context) override;
    void lispWillStart(OdEdCommandContext *context, const OdString &firstLine) override;
    /// LASTPROMPT, in any case, is no activity: prompting changes it.
    void sysVarWillChange(OdDbDatabase *database, const OdString &name) override;
};
