#pragma once

#include "platform/kernel/OdResBuf.h"

class CKvLispEngine;
class CKvSelectionInput;
class CKvUserInput;
class OdDbDatabase;

/// An open drawing with what works on it. Owned by the host; valid between the reactors' DocumentCreated and
/// DocumentToBeDestroyed.
class KV_EXPORT CKvDocument
{
public:
    virtual ~CKvDocument() = default;

    // What works on the document belongs to it, is always the same object and ends with it.

    /// Null before LispDocumentReady and after LispDocumentClosing.
    virtual CKvLispEngine *lispEngine() = 0;
    /// Prompts of this document; nobody may be there to answer them, which then counts as a cancel. Null in a host
    /// without prompts: functions that ask fail then.
    virtual CKvUserInput *userInput() = 0;
    /// Never null, as the next one.
    virtual CKvSelectionInput *selectionInput() = 0;
    /// The drawing, which is open for as long as the document is.
    virtual OdDbDatabase *database() = 0;
    /// The value of a system variable as text; empty for an unknown name, which stands for what is usual. Names are
    /// compared without regard to case. Numbers come with a decimal point whatever the language;
    /// OdDbDatabase::getSysVar() has them with their type.
    virtual OdString systemVariable(const OdString &name) const = 0;
    /// Turns a point of the current user coordinate system into world coordinates, and back: of the space that is
    /// current, model or paper, each of which has a system of its own. Cannot fail.
    virtual OdGePoint3d userToWorld(const OdGePoint3d &point) const = 0;
    virtual OdGePoint3d worldToUser(const OdGePoint3d &point) const = 0;
};

/// The document that the user works in; null when none is open. Another one may be active after anything that lets the
/// user act, a prompt or a dialog, so it is asked for anew each time.
KV_EXPORT CKvDocument *ACTIVE_DOCUMENT();
