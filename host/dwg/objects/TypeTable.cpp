#include "host/dwg/objects/TypeTable.h"

#include <algorithm>

namespace host::dwg {

namespace {

struct TypeIndex
{
    TypeIndex()
    {
        for (const ObjectType *row : allTypes()) {
            if (row->number != 0)
                byNumber.emplace(row->number, row);
            byName.emplace(row->name, row);
        }
    }

    std::unordered_map<int, const ObjectType *> byNumber;
    std::unordered_map<std::string_view, const ObjectType *> byName;
};

const TypeIndex &typeIndex()
{
    static const TypeIndex index;
    return index;
}

template <typename Map, typename Key>
const ObjectType *rowIn(const Map &map, const Key &key)
{
    const auto found = map.find(key);
    return found != map.end() ? found->second : nullptr;
}

/// Classes that programs of R13 and R14 write as what they are.
bool isOldClass(std::string_view name)
{
    constexpr std::string_view names[] = {
        "ACDBDICTIONARYWDFLT", "DICTIONARYVAR", "IMAGE",   "IMAGEDEF",         "IMAGEDEF_REACTOR", "MATERIAL",
        "RASTERVARIABLES",     "SORTENTSTABLE", "WIPEOUT", "WIPEOUTVARIABLES",
    };
    return std::ranges::find(names, name) != std::end(names);
}

} // namespace

std::vector<const ObjectType *> allTypes()
{
    std::vector<const ObjectType *> types;
    for (const auto rows :
         {curveTypes(),        polylineTypes(),     textTypes(),        paragraphTypes(),      insertTypes(),
          dimensionTypes(),    multiLeaderTypes(),  hatchTypes(),       solidTypes(),          viewportTypes(),
          imageTypes(),        multiLineTypes(),    tableTypes(),       dimensionStyleTypes(), dictionaryTypes(),
          layoutTypes(),       materialTypes(),     visualStyleTypes(), styleTypes(),          tableStyleTypes(),
          tableContentTypes(), tableEntityTypes(),  fieldTypes(),       dimensionLinkTypes(),  lightTypes(),
          filterTypes(),       evaluationTypes(),   associativeTypes(), renderTypes(),         meshTypes(),
          underlayTypes(),     scaleContextTypes(), geographicTypes(),  embeddedTypes()}) {
        for (const ObjectType &row : rows)
            types.push_back(&row);
    }
    return types;
}

const ObjectType *typeByNumber(int number)
{
    return rowIn(typeIndex().byNumber, number);
}

const ObjectType *typeByClass(std::string_view name, Release release)
{
    const ObjectType *type = rowIn(typeIndex().byName, name);
    const bool isKnown = type && (type->number != 0 || release >= Release::R2000 || isOldClass(name));
    return isKnown ? type : name == "ACAD_TABLE" ? &tableAsInsert() : nullptr;
}

} // namespace host::dwg
