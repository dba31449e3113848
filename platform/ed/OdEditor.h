#pragma once

#include "platform/ed/OdEditorReactor.h"

/// The editor of the process. A reactor is not owned and must be removed before it goes away. One that is also an
/// OdEdCommandStackReactor or an OdEdLispEngineReactor hears of those events too. Reactors hear in the order in which
/// they were added, on the thread of the user interface, and may add and remove others or themselves meanwhile: one
/// that is removed during an event does not hear of it any more.
class KV_EXPORT OdEditor
{
public:
    virtual ~OdEditor() = default;

    /// Adding a reactor twice has no further effect, nor has null.
    virtual void addReactor(OdEditorReactor *reactor) = 0;
    /// Removing one that was not added has no effect.
    virtual void removeReactor(OdEditorReactor *reactor) = 0;
};

/// The editor; never null while a module is loaded.
KV_EXPORT OdEditor *odedEditor();
