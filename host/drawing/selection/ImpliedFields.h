#pragma once

#include "host/drawing/records/Drawing.h"

#include <optional>

namespace host::drawing {

/// What an entity has under a group code that its record leaves out, as files may where it is the usual value: a TEXT's
/// rotation, an INSERT's scales, colour by layer, the layout it stands in. `tags` are the entity's. Angles are degrees.
/// Nothing for a group that says nothing about such an entity. Whether the record has the group is not looked at.
std::optional<Field> impliedField(const Drawing &drawing, RecordId entity, const TagList &tags, int code);

/// Whether impliedField() gives the same for all entities of a type.
bool isImpliedByType(QByteArrayView type, int code);

/// Whether something is implied although some groups of this code are there: the widths and the bulge of an
/// LWPOLYLINE's vertices.
bool isImpliedBeside(const Drawing &drawing, RecordId entity, int code);

/// A field as programs see it.
struct ShownField
{
    static constexpr int implied = -1;
    Field field;
    int origin = implied; ///< which of the record's fields it is
};

/// The record's fields as programs see them, extended data aside: the owner directly behind the type, the space and
/// layout behind the marker of all entities; behind the entity's own groups, or of an LWPOLYLINE before the vertices
/// and for widths and bulges behind each of them, what is implied and programs count on.
std::vector<ShownField> shownFields(const Drawing &drawing, RecordId record, const FieldList &fields);

} // namespace host::drawing
