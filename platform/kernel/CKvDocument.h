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

    /// Null before LispDocumentReady and after LispDocumentClosing.
    virtual CKvLispEngine *lispEngine() = 0;
    virtual CKvUserInput *userInput() = 0;
    virtual CKvSelectionInput *selectionInput() = 0;
    virtual OdDbDatabase *database() = 0;
    /// The value of a system variable as text; empty for an unknown name. Names are compared without regard to case.
    virtual OdString systemVariable(const OdString &name) const = 0;
    /// Turns a point of the current user coordinate system into world coordinates, and back.
    virtual OdGePoint3d userToWorld(const OdGePoint3d &point) const = 0;
    virtual OdGePoint3d worldToUser(const OdGePoint3d &point) const = 0;
};

/// The document that the user works in; null when none is open.
KV_EXPORT CKvDocument *ACTIVE_DOCUMENT();
