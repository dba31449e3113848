#pragma once

#include "host/drawing/records/Drawing.h"

#include <QLatin1StringView>

#include <initializer_list>
#include <span>

namespace host::drawing {

// What this program knows of the types that it makes: a table, of which a row is a type. Readers of drawings do
// without.

/// How a type writes the points of groups 10 to 18.
enum class PointForm
{
    Space,  ///< with z, which is 0 where none is given
    Flat,   ///< without z
    AsGiven ///< some with and some without, as the caller has them
};

/// A run of tags under one subclass marker. `codes` go here whatever order they come in; of all parts of a type one
/// takes the rest.
struct EntityPart
{
    QLatin1StringView marker; ///< group 100; written from R13 on
    std::vector<int> codes;
    bool takesRest = false;
};

/// What it takes to make an entity of a type.
struct EntityRule
{
    QLatin1StringView type;
    Version since = Version::R12; ///< no earlier version has the type
    std::vector<int> required;    ///< codes without which it is refused; 10 to 18 have to be points
    FieldList defaults;           ///< written in front where they are missing
    PointForm points = PointForm::Space;
    QLatin1StringView marker; ///< of types with a single part; see entityParts() for the others
};

/// Null for a type this program does not know; `type` in upper case. The row lives as long as the program.
const EntityRule *entityRule(QStringView type);

/// The parts of an entity behind AcDbEntity, in the order in which they are written; some types choose by their flags
/// (group 70). Empty for a SEQEND, which has no part of its own.
std::vector<EntityPart> entityParts(const EntityRule &rule, const FieldList &fields);

/// Whether a group belongs to what all entities have (layer, colour, ...), which stands in front of the type's own.
bool isCommonCode(int code);

} // namespace host::drawing
