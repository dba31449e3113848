#pragma once

#include "host/drawing/selection/ImpliedFields.h"
#include "host/lisp/Value.h"

#include <functional>

namespace host::kernel {

class Document;

/// A value that cannot stand in an entity list.
struct EntityListError
{
    QString text;
    lisp::Value item;
};

/// Whether a group code's handle is an entity name to programs (330, 340, 350, 360 and their kin) rather than text.
bool isEntityNameCode(int code);

/// One field as an item of an entity list: (40 . 2.5), (10 1.0 2.0 0.0), (330 . <Entity name: 1f>). Angles (50 to 58)
/// become radians when `withAngles` says so.
enum class AngleForm
{
    Degrees, ///< as the file has it: objects, extended records
    Radians
};
lisp::Value toListItem(const Document &document, const drawing::Field &field, AngleForm angles);
/// Back; throws EntityListError. Items with the codes -1 and -3 are the caller's business.
drawing::Field fromListItem(const Document &document, const lisp::Value &item, AngleForm angles);
bool isAngleCode(int code);

/// The extended data among fields, apart by application; each begins with its name (1001).
std::vector<drawing::FieldList> applicationsOf(const drawing::FieldList &fields);
/// One of these as an item of (-3 ...): ("APP" (1000 . "text") ...).
lisp::Value applicationItem(const Document &document, const drawing::FieldList &application);
/// Back, behind what `fields` has already; throws EntityListError.
void appendXdata(const Document &document, const lisp::Value &application, drawing::FieldList &fields);

/// An entity, a part of one, or the end of its parts.
bool isEntityKind(drawing::RecordKind kind);
/// The entity behind another, going into its parts; in a block up to its end. noRecord behind the last.
drawing::RecordId entityBehind(const drawing::Drawing &drawing, drawing::RecordId entity);
/// A block's first entity; of an empty one the ENDBLK.
drawing::RecordId firstInBlock(const drawing::Drawing &drawing, drawing::RecordId block);

/// How programs see the angles of a record.
AngleForm angleForm(const drawing::Drawing &drawing, drawing::RecordId record);

/// The record's fields as its entity list has them, extended data aside. `fields` are those of the record.
std::vector<drawing::ShownField> shownFields(const Document &document, drawing::RecordId record,
                                             const drawing::FieldList &fields);

/// A record's whole entity list: its name first, then type, owner, handle and the rest in file order, with what the
/// file leaves out because it is the usual value. `applications` are patterns of the applications whose extended data
/// is wanted, in (-3 ...) at the end.
lisp::Value entityList(const Document &document, drawing::RecordId record, const QStringList &applications);

/// The fields of an entity list: (-1 ...) left out, extended data of (-3 ...) as fields from 1001 on. Throws
/// EntityListError.
drawing::FieldList fieldsFromList(const Document &document, const lisp::Value &list, AngleForm angles);

} // namespace host::kernel
