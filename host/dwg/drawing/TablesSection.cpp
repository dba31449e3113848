#include "host/dwg/drawing/ObjectNames.h"
#include "host/dwg/drawing/Sections.h"

#include <algorithm>
#include <unordered_set>

namespace host::dwg {

namespace {

/// What a table says to have.
struct TableContents
{
    std::vector<std::uint64_t> entries;
    std::vector<std::uint64_t> further; ///< what the table of dimension styles has beside
    bool isRead = false;
};

/// All entries of the table's type, by rising handle.
std::vector<std::uint64_t> entriesByType(const DrawingObjects &objects, int tableType)
{
    std::vector<std::uint64_t> entries;
    for (const MapEntry &entry : objects.map()) {
        if (const ObjectFrame *const frame = DrawingObjects::peek(entry); frame && frame->type == tableType + 1)
            entries.push_back(entry.handle);
    }
    return entries;
}

/// Starts the fields with the table. One that cannot be read has all entries of its type.
TableContents readTable(DrawingParts &parts, int type, std::uint64_t handle)
{
    TableContents table;
    const ObjectFrame *const frame = parts.objects.peek(handle);
    if (frame && frame->type == type) {
        Fields &fields = parts.records.fields();
        parts.records.readHead(*frame, "TABLE", false);
        table.entries = readTableEntries(fields, type, table.further);
        table.isRead = !fields.hasFailed() && fields.relations().handle == handle;
    }
    if (!table.isRead)
        table = {entriesByType(parts.objects, type), {}, false};
    return table;
}

/// The number of entries. Blocks and linetypes have two more than are counted.
std::size_t countedEntries(int tableType, std::size_t count)
{
    const bool hasTwoMore = tableType == blockTableType || tableType == linetypeTableType;
    return count - (hasTwoMore ? std::min<std::size_t>(2, count) : 0);
}

void noteTable(Fields &fields, int tableType, std::size_t count, const std::vector<std::uint64_t> &further)
{
    fields.subclass("AcDbSymbolTable");
    fields.note(70, countedEntries(tableType, count));
    if (tableType != dimensionStyleTableType || !fields.since(Release::R2000))
        return;
    fields.subclass("AcDbDimStyleTable");
    fields.note(71, further.size());
    for (const std::uint64_t style : further)
        fields.noteHandle(340, style);
}

bool isSpace(const DrawingParts &parts, std::uint64_t block)
{
    const ObjectHead::Spaces &spaces = parts.records.spaces();
    return block != 0 && (block == spaces.model || block == spaces.paper);
}

/// The layout that shows the block; 0 where none does.
std::uint64_t layoutOf(const DrawingParts &parts, std::uint64_t block)
{
    const auto found = parts.layouts.find(block);
    return found != parts.layouts.end() ? found->second : 0;
}

/// The two spaces and the blocks of layouts are among the blocks, whatever the table says and can be read of them: the
/// spaces in front, the others behind what it has.
void addSpaces(const DrawingParts &parts, std::vector<std::uint64_t> &blocks)
{
    const ObjectHead::Spaces &spaces = parts.records.spaces();
    for (const std::uint64_t space : {spaces.paper, spaces.model}) {
        if (std::ranges::find(blocks, space) == blocks.end())
            blocks.insert(blocks.begin(), space);
    }
    const std::unordered_set<std::uint64_t> had(blocks.begin(), blocks.end());
    for (const auto &[block, layout] : parts.layouts) {
        if (!had.contains(block))
            blocks.push_back(block);
    }
}

/// The table of blocks alone, in front of what refers to blocks by their names.
void readBlockNames(DrawingParts &parts)
{
    TableContents table = readTable(parts, blockTableType, parts.header.blockTable);
    addSpaces(parts, table.entries);
    for (const auto &[block, layout] : parts.layouts)
        parts.records.names().try_emplace(block, "*Paper_Space");
    numberBlocks(table.entries, parts.records.spaces(), parts.records.names());
}

/// What the block is called, for entities as well. The two spaces have their names whatever can be read of them.
std::string nameOfBlock(DrawingParts &parts, std::uint64_t handle)
{
    std::string &name = parts.records.names()[handle];
    const bool isModel = handle == parts.records.spaces().model;
    if (isSpace(parts, handle) && !(isModel ? isModelSpace(name) : isPaperSpace(name)))
        name = isModel ? "*Model_Space" : "*Paper_Space";
    return name;
}

/// Stands for the block of a space or a layout that cannot be read: what it has tells it as its owner.
void writeSpaceStandIn(DrawingParts &parts, std::uint64_t handle)
{
    Fields &fields = parts.records.fields();
    parts.objects.problems().add(
        {Problem::Kind::Warning, "It cannot be read; one like it was made.", "BLOCK_RECORD", handle});
    BlockHead block;
    block.entry.name = nameOfBlock(parts, handle);
    block.layout = layoutOf(parts, handle);
    fields.start({}, {}, {});
    fields.noteHandle(5, handle);
    if (fields.since(Release::R2000))
        fields.noteHandle(330, parts.header.blockTable);
    noteBlockRecord(fields, block);
    parts.records.writeFields("BLOCK_RECORD");
    Relations relations;
    relations.handle = handle;
    parts.blocks.push_back({std::move(block), std::move(relations), true});
}

/// Takes the block and starts the fields with it.
bool takeBlock(DrawingParts &parts, std::uint64_t handle)
{
    const ObjectFrame *const frame = parts.objects.take(handle);
    if (!frame)
        return false;
    if (frame->type != blockType) {
        parts.objects.lose(handle, frame->type, "The table of blocks refers to it.");
        return false;
    }
    parts.records.readHead(*frame, "BLOCK_RECORD", false);
    return true;
}

void writeBlockRecord(DrawingParts &parts, std::uint64_t handle)
{
    Fields &fields = parts.records.fields();
    if (!takeBlock(parts, handle)) {
        if (isSpace(parts, handle) || layoutOf(parts, handle) != 0)
            writeSpaceStandIn(parts, handle);
        return;
    }
    BlockHead block = readBlockHead(fields);
    block.entry.name = nameOfBlock(parts, handle);
    noteBlockRecord(fields, block);
    block.preview = {};
    const bool isCut = fields.hasFailed();
    if (isCut)
        parts.objects.lose(handle, blockType, "The object ends before its values do.");
    parts.records.writeNoted("BLOCK_RECORD");
    parts.blocks.push_back({std::move(block), fields.relations(), isCut});
}

/// Begins a table that cannot be read with what stands for it.
void noteTableStandIn(DrawingParts &parts, const char *name, std::uint64_t handle)
{
    parts.objects.problems().lose(std::string("The table ") + name + " is missing.");
    Fields &fields = parts.records.fields();
    fields.start({}, {}, {});
    fields.noteHandle(5, handle);
    if (fields.since(Release::R2000))
        fields.noteHandle(330, 0);
}

void writeEntries(DrawingParts &parts, int tableType, const std::vector<std::uint64_t> &entries)
{
    for (const std::uint64_t entry : entries) {
        const ObjectFrame *const frame = tableType != blockTableType ? parts.objects.peek(entry) : nullptr;
        if (tableType == blockTableType)
            writeBlockRecord(parts, entry);
        else if (!frame || frame->type == tableType + 1)
            parts.records.writeObject(entry);
    }
}

void writeTable(DrawingParts &parts, const char *name, int type, std::uint64_t handle)
{
    Fields &fields = parts.records.fields();
    // Its checksum is looked at, and that it was not taken for something else.
    const ObjectFrame *const seen = parts.objects.peek(handle);
    const bool isTaken = seen && seen->type == type && parts.objects.take(handle);
    TableContents table = readTable(parts, type, isTaken ? handle : 0);
    if (!table.isRead)
        noteTableStandIn(parts, name, handle);
    // Later releases count what was erased as well.
    if (fields.until(Release::R14))
        std::erase_if(table.entries, [&parts](std::uint64_t entry) {
            return !parts.objects.peek(entry) && !isSpace(parts, entry) && layoutOf(parts, entry) == 0;
        });
    if (type == blockTableType)
        addSpaces(parts, table.entries);
    constexpr std::ptrdiff_t always = 2; // they stand in front here
    if (type == linetypeTableType && table.entries.size() >= always)
        fields.setLinetypes({table.entries.begin() + always, table.entries.end()});
    noteTable(fields, type, table.entries.size(), table.further);
    if (table.isRead)
        parts.records.writeNoted("TABLE", tagLines(2, name));
    else
        parts.records.writeFields("TABLE", tagLines(2, name));
    writeEntries(parts, type, table.entries);
    parts.records.beginRecord("ENDTAB");
}

} // namespace

void writeTablesSection(DrawingParts &parts)
{
    const Header &header = parts.header;
    parts.layouts = findLayoutBlocks(parts.objects, parts.records.fields());
    readBlockNames(parts);
    parts.records.beginSection("TABLES");
    writeTable(parts, "VPORT", viewportTableType, header.viewportTable);
    writeTable(parts, "LTYPE", linetypeTableType, header.linetypeTable);
    writeTable(parts, "LAYER", layerTableType, header.layerTable);
    writeTable(parts, "STYLE", styleTableType, header.styleTable);
    writeTable(parts, "VIEW", viewTableType, header.viewTable);
    writeTable(parts, "UCS", coordinateSystemTableType, header.systemTable);
    writeTable(parts, "APPID", applicationTableType, header.applicationTable);
    writeTable(parts, "DIMSTYLE", dimensionStyleTableType, header.dimensionStyleTable);
    writeTable(parts, "BLOCK_RECORD", blockTableType, header.blockTable);
    parts.records.endSection();
}

} // namespace host::dwg
