#pragma once

#include "platform/rx/OdRxObject.h"
#include "platform/rx/OdString.h"

class OdDbDatabase;
class OdEdCommand;
class OdEdCommandContext;

/// Hears of events of whole drawings. Nothing is done by default, here and in the classes below.
///
/// All of them are called before the thing happens, by the host that is about to do it, and can not keep it from
/// happening. What they throw would pass through the host's frames: they must not.
class KV_EXPORT OdRxEventReactor : public virtual OdRxObject
{
public:
    /// `database` is about to be written to `intendedName`, a path; changes made now go into the file. The save
    /// may fail after this, so it is no news of a written file.
    virtual void beginSave(OdDbDatabase *database, const OdString &intendedName);
};

/// Hears of events of the editor.
class KV_EXPORT OdEditorReactor : public OdRxEventReactor
{
public:
    /// The system variable `name` (case as the caller wrote it) is about to change, or to be set to what it is already.
    /// Each prompt that is shown sets LASTPROMPT.
    virtual void sysVarWillChange(OdDbDatabase *database, const OdString &name);
};

/// Hears of commands.
class KV_EXPORT OdEdCommandStackReactor : public virtual OdRxObject
{
public:
    /// A command of the host or of a module starts in the active document. Both pointers may be null, as they are where
    /// the host keeps no objects for its commands.
    virtual void commandWillStart(OdEdCommand *command, OdEdCommandContext *context);
};

/// Hears of Lisp programs.
class KV_EXPORT OdEdLispEngineReactor : public virtual OdRxObject
{
public:
    /// A Lisp program starts in the active document: an expression that was typed, a file that is loaded, or a function
    /// that stands for a command. `firstLine` is its beginning, of a file or function the expression that would run it.
    /// `context` may be null.
    virtual void lispWillStart(OdEdCommandContext *context, const OdString &firstLine);
};
