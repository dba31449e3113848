#pragma once

#include "host/drawing/records/Drawing.h"

namespace host::drawing {

// What a drawing needs around the records that people mean: sections, classes, table entries, heads of records. All of
// it is journaled with the change that asked for it.

/// The section's record, made in its proper place when the file lacks it. For sections up to Objects.
RecordId ensureSection(Drawing &drawing, Section section);

/// Whether a record may have groups of this code: readers take no larger one, and a comment is no group.
inline bool isRecordCode(int code)
{
    constexpr int comment = 999;
    constexpr int largest = 1071;
    return code <= largest && code != comment;
}

/// Whether a record of this type can stand among entities: not what the file's own structure is made of, table
/// entries and the objects of this program, and nothing that is no word. `type` is in upper case.
bool mayBeEntity(const QString &type);

/// The class record of a type; noRecord when the drawing has none. Goes through all classes.
RecordId findClass(const Drawing &drawing, const QString &type);

/// Entities and objects that programs outside the format's core brought (IMAGE, WIPEOUT, RTEXT) need a class record
/// from R13 on. Does nothing for other types.
void ensureClass(Drawing &drawing, const QString &type);

/// Registered applications that fields name (group 1001) are made when missing.
void ensureApplications(Drawing &drawing, const FieldList &fields);

/// Layers and registered applications that fields name (groups 8 and 1001) are made when missing.
void ensureNamed(Drawing &drawing, const FieldList &fields);

/// Whether records have subclass markers (group 100): from R13 on.
inline bool hasMarkers(const Drawing &drawing)
{
    return drawing.version() >= Version::R13;
}
/// Whether records name their owner (group 330): from R2000 on.
inline bool hasOwners(const Drawing &drawing)
{
    return drawing.version() >= Version::R2000;
}

/// Type, handle and owner: the start of a new record, as the drawing's version has it. The handle is a new one, and is
/// taken even when nothing comes of the record.
FieldList recordHead(Drawing &drawing, const QString &type, Handle owner);

/// Adds an object behind the others: head, then `body` from its first marker on. Whoever is to find it by a name has to
/// be told (see Dictionaries::set()).
RecordId insertObject(Drawing &drawing, const QString &type, Handle owner, const FieldList &body);

/// Adds BLOCK, ENDBLK and the table entry under a name that is free; gives the BLOCK record. `flags` are its group 70.
RecordId insertBlockDefinition(Drawing &drawing, const QString &name, const Vec3 &basePoint, int flags);

} // namespace host::drawing
