#pragma once

#include "platform/Export.h"

class CKvDocument;

/// What the host knows of custom blocks: blocks that are edited in place, in a document of theirs or of the drawing.
class KV_EXPORT CKvCustBlockUtils
{
public:
    virtual ~CKvCustBlockUtils() = default;

    /// The host's one object; null before the host has started, and in a host without custom blocks. It lives as long
    /// as the host and is not the caller's.
    static CKvCustBlockUtils *Get();

    /// Whether `document` is editing a custom block now. Tools that make blocks of their own cannot run then.
    virtual bool IsEditing(const CKvDocument &document) const = 0;
};
