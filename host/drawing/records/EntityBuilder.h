#pragma once

#include "host/drawing/records/Drawing.h"
#include "host/drawing/records/Entities.h"

namespace host::drawing {

/// Brings an entity's fields into the form that a drawing of some version has: head (type, handle, owner), subclass
/// markers, what all entities have, what the type has, extended data.
class EntityBuilder
{
public:
    /// Checks the fields; error() tells what is wrong.
    EntityBuilder(const Drawing &drawing, FieldList fields);

    bool isGood() const { return m_error.isEmpty(); }
    const QString &error() const { return m_error; }
    const QString &type() const { return m_type; }
    /// The fields behind `head`, in order.
    FieldList build(FieldList head, Space space) const;

private:
    void check();
    void checkValues();
    void checkReferences();
    void complete();
    void appendParts(FieldList &result) const;
    void fail(const QString &text);

    const Drawing &m_drawing;
    FieldList m_fields; ///< without head and, for known types, markers
    FieldList m_xdata;
    QString m_type;
    QString m_error;
    const struct EntityRule *m_rule = nullptr;
    bool m_keepsOrder = false;
};

} // namespace host::drawing
