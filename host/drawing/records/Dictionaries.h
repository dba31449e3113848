#pragma once

#include "host/drawing/records/Drawing.h"

#include <optional>

namespace host::drawing {

/// Named objects of the OBJECTS section. R12 has none: there reading finds nothing and every change returns failure.
/// Names are compared without regard to letter case.
class Dictionaries
{
public:
    struct Entry
    {
        QString name;
        RecordId record = noRecord; ///< noRecord when the handle leads nowhere
        Handle handle;
    };

    explicit Dictionaries(Drawing &drawing) : m_drawing(drawing) {}

    /// The named-object dictionary; noRecord when the drawing has none (yet).
    RecordId root() const;
    /// The same, made with the OBJECTS section when missing; noRecord in R12.
    RecordId ensureRoot();

    std::vector<Entry> entries(RecordId dictionary) const;
    RecordId find(RecordId dictionary, QStringView name) const;
    /// Makes `name` lead to `object`, in place of what it led to. One without an owner is the dictionary's then. False
    /// in R12.
    bool set(RecordId dictionary, const QString &name, RecordId object);
    /// Takes the entry out and erases what it owned. False when there is none.
    bool remove(RecordId dictionary, QStringView name);
    /// The dictionary under that name, made when there is none; noRecord when the entry is something else, or in R12.
    RecordId ensureDictionary(RecordId parent, const QString &name);

    /// The data of the extension record under `name`: its fields behind the marker, the cloning flag (280, from R2000
    /// on) left out; nothing when there is none.
    std::optional<FieldList> xrecord(RecordId dictionary, QStringView name) const;
    FieldList xrecordData(RecordId xrecord) const;
    /// The same of the fields of such a record in a drawing of `version`.
    static FieldList xrecordData(const FieldList &fields, Version version);
    /// Creates or replaces the extension record under `name`; noRecord in R12, or when the entry is something else.
    RecordId setXrecord(RecordId dictionary, const QString &name, const FieldList &data);

    /// Whether a tag of this code behind an entry's name leads to its object.
    static bool isReference(int code);

    /// The extension dictionary of any record (102 {ACAD_XDICTIONARY); noRecord when it has none.
    RecordId extensionDictionary(RecordId record) const;
    /// The same, made when there is none; noRecord in R12.
    RecordId ensureExtensionDictionary(RecordId record);

    /// Erases the objects that these records own, and what those own in turn.
    void eraseOwnedBy(const std::vector<RecordId> &records);

private:
    void giveOwner(RecordId object, RecordId dictionary);

    Drawing &m_drawing;
};

} // namespace host::drawing
