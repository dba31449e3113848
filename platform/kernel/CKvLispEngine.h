#pragma once

#include "platform/db/OdDbObjectId.h"
#include "platform/kernel/OdResBuf.h"

/// The Lisp engine of one document, as external functions use it.
///
/// What arguments and results are said of is the running call. Calls nest: a dialog runs an event loop, and a file that
/// is loaded from it may call again; the outer call goes on when the inner one is over. A document that is evaluated in
/// is the active one, since that is where functions look for their engine. It may be closed while a call runs, by the
/// user of a dialog; the call then touches the engine no more, and the host keeps it until the call is over.
class KV_EXPORT CKvLispEngine
{
public:
    /// An external function. It fetches its arguments from the engine of the active document, sets at most one
    /// result there (none means nil) and returns a KvResult code. It must not throw.
    using Handler = int (*)();

    virtual ~CKvLispEngine() = default;

    /// Makes `handler` callable from Lisp as `name`, in any mix of cases; one of that name is replaced.
    virtual void defineFunction(const OdString &name, Handler handler) = 0;
    /// Unknown names are ignored.
    virtual void undefineFunction(const OdString &name) = 0;

    /// The arguments of the running call in order, null when there are none, and outside of calls. The chain belongs to
    /// the engine, which frees what is left of it when the call ends.
    virtual OdResBuf *arguments() = 0;
    /// Gives back the arguments from `first` on before the call ends. Null is allowed.
    virtual void releaseArguments(OdResBuf *first) = 0;

    /// The members of the selection set that `set`, a link of type kRtPickSet among the arguments of the running call,
    /// stands for. Erased ones are among them.
    virtual OdDbObjectIdArray selectionMembers(const OdResBuf &set) const = 0;

    // The result of the running call: the last one that was set counts, nil when none was. Values are copied.

    virtual void returnNil() = 0;
    virtual void returnTrue() = 0;
    virtual void returnInteger(qint32 value) = 0;
    virtual void returnReal(double value) = 0;
    virtual void returnString(const OdString &value) = 0;
    virtual void returnPoint(const OdGePoint3d &point) = 0;
    /// The Lisp entity name of `object`; nil for a null id.
    virtual void returnEntityName(const OdDbObjectId &object) = 0;
    /// A new selection set of these entities, each of them once; nil for none.
    virtual void returnSelectionSet(const OdDbObjectIdArray &entities) = 0;
    /// The links between a list begin (5016) and a list end (5017), with both.
    virtual void returnList(OdResBufPtr chain) = 0;

    /// Sets the Lisp variable `name` to the value of `value` (its first link only).
    virtual void setSymbol(const OdString &name, const OdResBuf &value) = 0;
    /// Loads the Lisp source file at `path`, which is not searched for, and evaluates its forms. False when it cannot
    /// be read or a form fails; what went wrong is told on the document's command line. A program in it may do
    /// anything, even close the document.
    virtual bool loadFile(const OdString &path) = 0;
    /// Prints on the document's command line as it is; a line break comes only where the text has one.
    virtual void print(const OdString &text) = 0;
};
