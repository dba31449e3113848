#pragma once

#include "platform/Export.h"

class CKvDocument;

/// Hears of documents and their Lisp engines. Nothing is done by default. A document comes with DocumentCreated and
/// then LispDocumentReady, and goes with LispDocumentClosing, DocumentToBeDestroyed and DocumentDestroyed, in this
/// order.
class KV_EXPORT CKvDocumentManagerReactor
{
public:
    virtual ~CKvDocumentManagerReactor() = default;

    /// The document is open and, as a rule, the active one; it has no Lisp engine yet.
    virtual void DocumentCreated(CKvDocument *document);
    /// The document can be used for the last time; its Lisp engine has gone.
    virtual void DocumentToBeDestroyed(CKvDocument *document);
    /// The pointer is dead: it only tells which document it was.
    virtual void DocumentDestroyed(CKvDocument *document);
    /// The document has a Lisp engine now; functions may be defined in it.
    virtual void LispDocumentReady(CKvDocument *document);
    /// The document's Lisp engine is about to go away; it can still be used during this call.
    virtual void LispDocumentClosing(CKvDocument *document);
};

/// The open documents, in order of opening.
class KV_EXPORT CKvDocumentManager
{
public:
    virtual ~CKvDocumentManager() = default;

    /// A document counts from before its DocumentCreated to after its DocumentToBeDestroyed.
    virtual int documentCount() const = 0;
    /// `index` from 0 to documentCount() - 1; null outside.
    virtual CKvDocument *document(int index) const = 0;
    /// Reactors are not owned and must be removed before they go away. Adding one twice has no further effect. It hears
    /// of what happens from now on, not of documents that are open already.
    virtual void addReactor(CKvDocumentManagerReactor *reactor) = 0;
    /// Removing one that was not added has no effect. Reactors may come and go during a notification.
    virtual void removeReactor(CKvDocumentManagerReactor *reactor) = 0;
};
