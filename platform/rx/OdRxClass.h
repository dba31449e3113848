#pragma once

#include "platform/rx/OdRxObject.h"

#include <memory>

/// The description of a class whose code may come with a module of its own. Belongs to who registered it.
class KV_EXPORT OdRxClass
{
public:
    virtual ~OdRxClass() = default;

    /// A new object of the class, which is the caller's; of an entity, one that is in no drawing yet.
    virtual std::unique_ptr<OdRxObject> create() const = 0;
};
