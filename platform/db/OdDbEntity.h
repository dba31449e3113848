#pragma once

#include "platform/db/OdDbObjectId.h"
#include "platform/rx/OdRxObject.h"

class OdDbDatabase;

/// An entity that is being made, by the module or by its class (see OdRxClass::create()). It becomes a part of a
/// drawing when it is appended to a block, as it is at that moment; destroying it closes it.
class KV_EXPORT OdDbEntity : public OdRxObject
{
public:
    /// What new entities of the drawing have: layer, colour, linetype, linetype scale and lineweight; of a text the
    /// style too.
    /// The entity is in no drawing by that, and nothing is taken over from a database that is null or another host's.
    virtual void setDatabaseDefaults(OdDbDatabase *database) = 0;
};

/// A block of a drawing that was opened for writing: a space or a definition. Belongs to the drawing, and is valid
/// until the end of the transaction that it was opened in.
class KV_EXPORT OdDbBlockTableRecord
{
public:
    virtual ~OdDbBlockTableRecord() = default;

    /// Adds the entity at the end. Throws OdError when the drawing's version has no such entity or it is not complete;
    /// the drawing is then as it was.
    virtual OdDbObjectId appendOdDbEntity(OdDbEntity &entity) = 0;
};
