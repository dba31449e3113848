#pragma once

#include "platform/Export.h"

class CKvDocument;

/// Hears of documents and their Lisp engines. Nothing is done by default.
class KV_EXPORT CKvDocumentManagerReactor
{
public:
    virtual ~CKvDocumentManagerReactor() = default;

    virtual void DocumentCreated(CKvDocument *document);
    virtual void DocumentToBeDestroyed(CKvDocument *document);
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

    virtual int documentCount() const = 0;
    /// `index` from 0 to documentCount() - 1; null outside.
    virtual CKvDocument *document(int index) const = 0;
    /// Reactors are not owned and must be removed before they go away.
    virtual void addReactor(CKvDocumentManagerReactor *reactor) = 0;
    virtual void removeReactor(CKvDocumentManagerReactor *reactor) = 0;
};
