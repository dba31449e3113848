#pragma once

#include "host/drawing/records/Drawing.h"

#include <QLatin1StringView>

#include <initializer_list>
#include <span>

namespace host::drawing {

/// How a type writes the points of groups 10 to 18.
enum class PointForm
{
    Space,
    Flat,
    AsGiven
};

/// A run of tags under one subclass marker. `codes` go here whatever order they come in; of all parts of a type one
/// takes the rest.
struct EntityPart
{
    QLatin1StringView marker;
    std::vector<int> codes;
    bool takesRest = false;
};

/// What it takes to make an entity of a type.
struct EntityRule
{
    QLatin1StringView type;
    Version since = Version::R12;
    std::vector<int> required;
    FieldList defaults; ///< written in front where they are missing
    PointForm points = PointForm::Space;
    QLatin1StringView marker; ///< of types with a single part; see entityParts() for the others
};

/// Null for a type this program does not know.
const EntityRule *entityRule(QStringView type);

/// The parts of an entity behind AcDbEntity; some types choose by their flags (group 70).
std::vector<EntityPart> entityParts(const EntityRule &rule, const FieldList &fields);

/// Whether a group belongs to what all entities have (layer, colour, ...).
bool isCommonCode(int code);

} // namespace host::drawing
