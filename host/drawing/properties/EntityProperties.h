#pragma once

#include "host/drawing/records/Drawing.h"

#include <QByteArrayView>

#include <optional>
#include <span>

namespace host::drawing {

/// What a property's value is for people.
enum class PropertyKind
{
    Text,
    Number,
    Whole,
    Length,
    Angle,     ///< degrees in the file, radians for programs
    Direction, ///< an angle counted from the x axis; likewise
    Point,
    Vector,
    Colour, ///< of entities: index (62) or, before it, exact colour (420)
    Layer,
    Linetype,
    Weight,
    Transparency, ///< of entities, as group 440 has it: 0 ByLayer, 0x01000000 ByBlock, 0x02000000 + what covers
    TextStyle,
    DimensionStyle
};

/// Under which heading people look for it.
enum class PropertySection
{
    General,
    Geometry,
    Text,
    Misc
};

/// A property that entities of a type have by a name that programs and people know: the group that holds it.
struct EntityProperty
{
    const char *type;                     ///< group 0; empty for all entities
    const char *name;                     ///< for programs, in any letter case
    int code;                             ///< of the entity's own groups
    std::optional<FieldValue> (*usual)(); ///< what an entity without the group has; null: it has none then
    const char *label;                    ///< for people, to be translated in "Properties"; null: a second name
    PropertySection section;
    PropertyKind kind;
    bool isTold; ///< worked out; nobody sets it
    /// What gives the value where no single group has it; null for all others, which have a code.
    std::optional<FieldValue> (*derived)(const Drawing &, RecordId) = nullptr;
};

/// All of them, those of all entities first, then by types in alphabetical order.
std::span<const EntityProperty> entityProperties();
/// Whether drawings of this version have the property.
bool isInVersion(Version version, const EntityProperty &property);
/// Whether entities of this type (in upper case) have the property.
bool hasProperty(QByteArrayView type, const EntityProperty &property);

} // namespace host::drawing
