#pragma once

#include "host/dwg/objects/Fields.h"

#include <span>
#include <vector>

namespace host::dwg {

/// A type of object: a row of the table. `read` takes the type's own fields, what follows those that all objects have.
struct ObjectType
{
    int number;             ///< in files; 0 for types that files have as classes
    const char *name;       ///< in the text form, which is a class's name as well
    void (*read)(Fields &); ///< null where the object has no more than every object
    bool isEntity = false;
};

/// Types from this number on are classes, which the file has a list of.
constexpr int firstClassNumber = 500;

/// The row of a type with a number of its own; null for what is none, and for types that are not read.
const ObjectType *typeByNumber(int number);
/// The row of a class by the name that it has in the text form of a release; null when there is none. The text form of
/// R13 and R14 has no records for most classes: they came later, and their objects stand there as proxies, tables as
/// inserts of their blocks.
const ObjectType *typeByClass(std::string_view name, Release release);

/// The row for tables with cells where the text form has none.
const ObjectType &tableAsInsert();

/// All rows, by subject.
std::vector<const ObjectType *> allTypes();

// The rows, by subject; typeByNumber() and typeByClass() look through all.
std::span<const ObjectType> curveTypes();     ///< lines, arcs, splines, points, faces
std::span<const ObjectType> polylineTypes();  ///< polylines and their vertices
std::span<const ObjectType> textTypes();      ///< texts, attributes, tolerances, shapes
std::span<const ObjectType> paragraphTypes(); ///< texts of paragraphs
std::span<const ObjectType> insertTypes();    ///< blocks and what stands in them
std::span<const ObjectType> dimensionTypes(); ///< dimensions
std::span<const ObjectType> leaderTypes();
std::span<const ObjectType> multiLeaderTypes();
std::span<const ObjectType> hatchTypes();
std::span<const ObjectType> solidTypes();
std::span<const ObjectType> viewportTypes();
std::span<const ObjectType> imageTypes();     ///< images and what defines them, wipeouts
std::span<const ObjectType> multiLineTypes(); ///< and their styles
std::span<const ObjectType> tableTypes();     ///< the symbol tables' entries
std::span<const ObjectType> dimensionStyleTypes();
std::span<const ObjectType> dictionaryTypes(); ///< dictionaries, extension records, groups, variables, data tables
std::span<const ObjectType> layoutTypes();
std::span<const ObjectType> materialTypes();
std::span<const ObjectType> visualStyleTypes();
std::span<const ObjectType> styleTypes();        ///< scales, named colours, styles of leaders and views
std::span<const ObjectType> tableStyleTypes();   ///< of tables with cells
std::span<const ObjectType> tableContentTypes(); ///< the cells of these tables
std::span<const ObjectType> tableEntityTypes();
std::span<const ObjectType> fieldTypes();
std::span<const ObjectType> dimensionLinkTypes(); ///< what dimensions follow
std::span<const ObjectType> lightTypes();
std::span<const ObjectType> filterTypes();      ///< clips of inserts, filters and indexes
std::span<const ObjectType> evaluationTypes();  ///< what blocks and solids are worked out from
std::span<const ObjectType> associativeTypes(); ///< what follows other objects
std::span<const ObjectType> renderTypes();
std::span<const ObjectType> meshTypes();
std::span<const ObjectType> underlayTypes();     ///< sheets of other files, and what defines them
std::span<const ObjectType> scaleContextTypes(); ///< what entities look like at one scale
std::span<const ObjectType> geographicTypes();
std::span<const ObjectType> sectionTypes();
std::span<const ObjectType> embeddedTypes(); ///< what other programs embedded

} // namespace host::dwg
