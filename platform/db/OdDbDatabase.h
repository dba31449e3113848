#pragma once

#include "platform/db/OdDbObjectId.h"
#include "platform/kernel/OdResBuf.h"

#include <memory>

class OdDbBlockTableRecord;

/// A record of free data in a drawing: a chain of result buffers whose type codes are DXF group codes. Belongs to the
/// drawing; valid until the next change of the dictionary that holds it.
class KV_EXPORT OdDbXrecord
{
public:
    virtual ~OdDbXrecord() = default;

    /// The data, null when the record is empty.
    virtual OdResBufPtr rbChain() const = 0;
    /// Replaces the data. False when the drawing cannot take it; it is then as it was.
    virtual bool setFromRbChain(const OdResBuf *chain) = 0;
};

/// Named objects of a drawing. Names are compared without regard to case.
class KV_EXPORT OdDbDictionary
{
public:
    virtual ~OdDbDictionary() = default;

    /// The extension record under `name`; null when there is none or the entry is something else.
    virtual OdDbXrecord *getAt(const OdString &name) = 0;
    /// The extension record under `name`, made empty when there was none; null when the drawing's version has no
    /// room for such records or the entry is something else.
    virtual OdDbXrecord *setAt(const OdString &name) = 0;
};

/// The database of one drawing: of an open one, which its document owns, or of a file that was read beside it (see
/// CKvUtils::readDrawing()).
class KV_EXPORT OdDbDatabase
{
public:
    virtual ~OdDbDatabase() = default;

    /// Full path of the drawing file; empty for a drawing that was never saved.
    virtual OdString getFilename() const = 0;
    /// The named-object dictionary; null when the drawing's version has none and for a file beside the open drawing.
    virtual OdDbDictionary *getNamedObjectsDictionary() = 0;
    /// The value of a system variable, its name in any case; null for an unknown one. Integers that fit are of the type
    /// kRtShort.
    virtual OdResBufPtr getSysVar(const OdString &name) const = 0;
    /// Changes a system variable to the value of `value` (its first link only). False when there is none of that name,
    /// it cannot be changed, or it takes no such value; it is then as it was.
    virtual bool setSysVar(const OdString &name, const OdResBuf &value) = 0;

    /// What is changed between these two is one step to undo, or a part of the one under way. They nest.
    virtual void startTransaction() = 0;
    virtual void endTransaction() = 0;
    /// The space that new entities go into, opened for writing and valid until the end of the transaction. Throws
    /// OdError when it cannot be opened as a block.
    virtual OdDbBlockTableRecord *openActiveLayoutBTR() = 0;
    /// Shows what was changed so far.
    virtual void flushGraphics() = 0;

    /// The data of an entity or object as Lisp's (entget) shows it: by turns a group code (16-bit integer) and its
    /// value (string, real, integer, point, entity name), the extended data of all applications with their codes from
    /// 1001 on at the end. Null when it is erased or not of this drawing.
    virtual OdResBufPtr entityData(const OdDbObjectId &object) const = 0;
    /// The next entity in the order of the drawing, as (entnext) has it: the parts of a polyline or block reference
    /// follow it and end with a SEQEND. A null id behind the last.
    virtual OdDbObjectId nextEntity(const OdDbObjectId &entity) const = 0;
    /// Moves entities by a vector in world coordinates, in one undo step. Gives the number of those that stayed where
    /// they were: on locked layers, erased, or of a kind that cannot be moved.
    virtual int moveEntities(const OdDbObjectIdArray &entities, const OdGePoint3d &by) = 0;
};

using OdDbDatabasePtr = std::shared_ptr<OdDbDatabase>;
