#pragma once

#include "host/dwg/objects/Fields.h"

namespace host::dwg {

/// What all entries of symbol tables begin with: the name and the flags of group 70.
struct EntryHead
{
    std::string name;
    int flags = 0;
};

EntryHead readEntryHead(Fields &fields);

/// A table: the handles of its entries, in their order. `further` gets what the table of dimension styles has beside.
std::vector<std::uint64_t> readTableEntries(Fields &fields, int type, std::vector<std::uint64_t> &further);

// Types by number that tables are put together from.
constexpr int blockTableType = 0x30;
constexpr int blockType = 0x31;
constexpr int layerTableType = 0x32;
constexpr int styleTableType = 0x34;
constexpr int linetypeTableType = 0x38;
constexpr int viewTableType = 0x3c;
constexpr int coordinateSystemTableType = 0x3e;
constexpr int viewportTableType = 0x40;
constexpr int applicationTableType = 0x42;
constexpr int dimensionStyleTableType = 0x44;
constexpr int dimensionStyleType = 0x45;
constexpr int multiLineStyleType = 0x49;

/// A block as its table has it.
struct BlockHead
{
    EntryHead entry;
    bool isAnonymous = false;
    bool isExternal = false;
    Point base;
    std::string path;
    std::string description;
    std::string preview; ///< a picture, as its bytes
    int units = 0;
    bool isExplodable = true;
    bool isScaledEvenly = false;
    std::uint64_t layout = 0;
    std::vector<std::uint64_t> inserts; ///< that show it
    bool hasAttributes = false;
    bool isOverlay = false;
};

/// Reads a block; what it has goes into the relations of `fields`.
BlockHead readBlockHead(Fields &fields);
/// Notes the tags of its entry in the table of blocks.
void noteBlockRecord(Fields &fields, const BlockHead &block);

} // namespace host::dwg
