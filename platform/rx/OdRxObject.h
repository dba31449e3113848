#pragma once

#include "platform/Export.h"

/// Root of what host and module hand each other and count references to. An object whose count is 0 is not destroyed
/// by release(); who created it says how it ends.
class KV_EXPORT OdRxObject
{
public:
    virtual ~OdRxObject() = default;

    virtual void addRef() = 0;
    virtual void release() = 0;
    /// How many references are held now.
    virtual long numRefs() const = 0;
};

/// An object that lives as long as the code that holds it: counting references does nothing.
template <class T>
class OdStaticRxObject : public T
{
public:
    void addRef() override {}
    void release() override {}
    long numRefs() const override { return 1; }
};
