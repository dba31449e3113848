#pragma once

#include "platform/rx/OdRxObject.h"
#include "platform/rx/OdString.h"

class OdDbDatabase;
class OdEdCommand;
class OdEdCommandContext;

/// Hears of events of whole drawings. Nothing is done by default, here and in the classes below.
class KV_EXPORT OdRxEventReactor : public virtual OdRxObject
{
public:
    /// `database` is about to be written to `intendedName`; changes made now go into the file.
    virtual void beginSave(OdDbDatabase *database, const OdString &intendedName);
};

/// Hears of events of the editor.
class KV_EXPORT OdEditorReactor : public OdRxEventReactor
{
public:
    /// The system variable `name` (case as the caller wrote it) is about to change.
    virtual void sysVarWillChange(OdDbDatabase *database, const OdString &name);
};

/// Hears of commands.
class KV_EXPORT OdEdCommandStackReactor : public virtual OdRxObject
{
public:
    virtual void commandWillStart(OdEdCommand *command, OdEdCommandContext *context);
};

/// Hears of Lisp programs.
class KV_EXPORT OdEdLispEngineReactor : public virtual OdRxObject
{
public:
    /// A Lisp program starts; `firstLine` is its beginning.
    virtual void lispWillStart(OdEdCommandContext *context, const OdString &firstLine);
};
