#pragma once

#include "host/drawing/records/Drawing.h"

#include <optional>

namespace host::drawing {

/// Named objects of the OBJECTS section. R12 has none: there reading finds nothing and every change returns failure.
/// Names are compared without regard to letter case. What programs keep in a drawing for themselves stands in extension
/// records (XRECORD), below the root for the drawing or below a record's extension dictionary for that record.
class Dictionaries
{
public:
    struct Entry
    {
        QString name;               ///< as the file spells it
        RecordId record = noRecord; ///< noRecord when the handle leads nowhere
        Handle handle;
    };

    explicit Dictionaries(Drawing &drawing) : m_drawing(drawing) {}

    /// The named-object dictionary; noRecord when the drawing has none (yet).
    RecordId root() const;
    /// The same, made with the OBJECTS section when missing; noRecord in R12.
    RecordId ensureRoot();

    // A dictionary that is noRecord or erased is an empty one that takes no entry.
    /// In the file's order. Costs a pass over the dictionary's tags, as does every look for a name.
    std::vector<Entry> entries(RecordId dictionary) const;
    /// What the name leads to; noRecord when there is no such entry, or its object is gone.
    RecordId find(RecordId dictionary, QStringView name) const;
    /// Makes `name` lead to `object`, in place of what it led to. One without an owner is the dictionary's then. False
    /// in R12.
    bool set(RecordId dictionary, const QString &name, RecordId object);
    /// Takes the entry out and erases what it owned. False when there is none.
    bool remove(RecordId dictionary, QStringView name);
    /// Gives the entry another name; its object stays. False when there is none, or something has the new name.
    bool rename(RecordId dictionary, QStringView name, const QString &newName);
    /// The dictionary under that name, made when there is none; noRecord when the entry is something else, or in R12.
    RecordId ensureDictionary(RecordId parent, const QString &name);

    /// The data of the extension record under `name`: its fields behind the marker, the cloning flag (280, from R2000
    /// on) left out; nothing when there is none.
    std::optional<FieldList> xrecord(RecordId dictionary, QStringView name) const;
    /// As xrecord(), of the record itself.
    FieldList xrecordData(RecordId xrecord) const;
    /// The same of the fields of such a record in a drawing of `version`.
    static FieldList xrecordData(const FieldList &fields, Version version);
    /// Creates or replaces the extension record under `name`; noRecord in R12, or when the entry is something else.
    RecordId setXrecord(RecordId dictionary, const QString &name, const FieldList &data);

    /// A setting that the drawing keeps among its objects (AcDbVariableDictionary), as text: CANNOSCALE and the like.
    /// Nothing where the drawing does not say it.
    std::optional<QString> variable(QStringView name) const;
    /// Changes the setting, making its object where it is missing. False, and nothing happens, in versions before
    /// R2000, or when something else has the setting's name.
    bool setVariable(const QString &name, const QString &value);

    /// Whether a tag of this code behind an entry's name leads to its object.
    static bool isReference(int code);

    /// The extension dictionary of any record (102 {ACAD_XDICTIONARY); noRecord when it has none.
    RecordId extensionDictionary(RecordId record) const;
    /// The same, made when there is none; noRecord in R12.
    RecordId ensureExtensionDictionary(RecordId record);

    /// The objects that a record and its parts own, those of their extension dictionaries among them, and what they own
    /// in turn, each behind its owner. Found by the references to them: one that is erased is among them as long as its
    /// owner refers to it. Costs a pass over the tags of these records alone.
    std::vector<RecordId> ownedBy(RecordId record) const;
    /// As Drawing::setErased(), with the objects of ownedBy(): taken out they would be left without an owner.
    bool setErasedWithOwned(RecordId record, bool erased);
    /// Erases the objects that these records own, and what those own in turn. Costs a pass over all objects.
    void eraseOwnedBy(const std::vector<RecordId> &records);

private:
    void giveOwner(RecordId object, RecordId dictionary);

    Drawing &m_drawing;
};

} // namespace host::drawing
