#include "host/dwg/objects/TypeTable.h"

#include <algorithm>
#include <array>

namespace host::dwg {

namespace {

struct TypeIndex
{
    TypeIndex()
    {
        for (const ObjectType *row : allTypes()) {
            const auto number = static_cast<std::size_t>(row->number);
            if (number != 0 && !byNumber[number])
                byNumber[number] = row;
            byName.emplace(row->name, row);
        }
    }

    std::array<const ObjectType *, firstClassNumber> byNumber{};
    std::unordered_map<std::string_view, const ObjectType *> byName;
};

const TypeIndex &typeIndex()
{
    static const TypeIndex index;
    return index;
}

/// Classes that programs of R13 and R14 write as what they are.
bool isOldClass(std::string_view name)
{
    constexpr std::string_view names[] = {
        "ACDBDICTIONARYWDFLT",
        "DICTIONARYVAR",
        "IDBUFFER",
        "IMAGE",
        "IMAGEDEF",
        "IMAGEDEF_REACTOR",
        "LAYER_FILTER",
        "LAYER_INDEX",
        "MATERIAL",
        "RASTERVARIABLES",
        "SORTENTSTABLE",
        "SPATIAL_FILTER",
        "WIPEOUT",
        "WIPEOUTVARIABLES",
    };
    return std::ranges::find(names, name) != std::end(names);
}

} // namespace

std::vector<const ObjectType *> allTypes()
{
    std::vector<const ObjectType *> types;
    for (const auto rows :
         {curveTypes(),      polylineTypes(),     textTypes(),         paragraphTypes(),   insertTypes(),
          dimensionTypes(),  leaderTypes(),       multiLeaderTypes(),  hatchTypes(),       solidTypes(),
          viewportTypes(),   imageTypes(),        multiLineTypes(),    tableTypes(),       dimensionStyleTypes(),
          dictionaryTypes(), layoutTypes(),       materialTypes(),     visualStyleTypes(), styleTypes(),
          tableStyleTypes(), tableContentTypes(), tableEntityTypes(),  fieldTypes(),       dimensionLinkTypes(),
          lightTypes(),      filterTypes(),       evaluationTypes(),   associativeTypes(), renderTypes(),
          meshTypes(),       underlayTypes(),     scaleContextTypes(), geographicTypes(),  embeddedTypes(),
          sectionTypes()}) {
        for (const ObjectType &row : rows)
            types.push_back(&row);
    }
    return types;
}

const ObjectType *typeByNumber(int number)
{
    return number >= 0 && number < firstClassNumber ? typeIndex().byNumber[static_cast<std::size_t>(number)] : nullptr;
}

const ObjectType *typeByClass(std::string_view name, Release release)
{
    const auto found = typeIndex().byName.find(name);
    const ObjectType *type = found != typeIndex().byName.end() ? found->second : nullptr;
    const bool isKnown = type && (type->number != 0 || release >= Release::R2000 || isOldClass(name));
    return isKnown ? type : name == "ACAD_TABLE" ? &tableAsInsert() : nullptr;
}

} // namespace host::dwg
