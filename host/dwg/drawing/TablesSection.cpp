#include "host/dwg/drawing/BlockRecords.h"
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

/// Puts what is of the table's type behind the entries that are, where the table leaves bits over, so that it may tell
/// of fewer, or one of them is lost: it may be that one, by another handle. Tables of R13 and R14 have lost ones
/// without damage.
void addMissing(const DrawingObjects &objects, int tableType, bool isUsedUp, std::vector<std::uint64_t> &entries)
{
    const auto isEntry = [&](std::uint64_t handle) {
        const ObjectFrame *const frame = objects.peek(handle);
        return frame && frame->type == tableType + 1;
    };
    if (isUsedUp && (objects.release() <= Release::R14 || std::ranges::all_of(entries, isEntry)))
        return;
    const std::unordered_set<std::uint64_t> had(entries.begin(), entries.end());
    for (const std::uint64_t entry : entriesByType(objects, tableType)) {
        if (!had.contains(entry))
            entries.push_back(entry);
    }
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
        table.isRead = !fields.hasFailed();
        addMissing(parts.objects, type, fields.isUsedUp(), table.entries);
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

/// The table of blocks alone, in front of what refers to blocks by their names.
void readBlockNames(DrawingParts &parts)
{
    nameBlocks(parts, readTable(parts, blockTableType, parts.header.blockTable).entries);
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

/// Whether nothing could refer to the entry by its name, as to a style that is no more than a file of shapes nothing
/// has to.
bool isNameless(DrawingParts &parts, int tableType, std::uint64_t entry)
{
    const auto name = parts.records.names().find(entry);
    return tableType != styleTableType && (name == parts.records.names().end() || name->second.empty());
}

void writeEntry(DrawingParts &parts, int tableType, std::uint64_t entry)
{
    const ObjectFrame *const frame = parts.objects.peek(entry);
    if (frame && frame->type != tableType + 1)
        return;
    if (frame && isNameless(parts, tableType, entry) && parts.objects.take(entry))
        return parts.objects.lose(entry, frame->type, "It has no name.");
    parts.records.writeObject(entry);
    if (parts.objects.lost().contains(entry))
        parts.records.names().erase(entry); // nothing can refer to it
}

void writeEntries(DrawingParts &parts, int tableType, const std::vector<std::uint64_t> &entries)
{
    for (const std::uint64_t entry : entries) {
        if (tableType == blockTableType)
            writeBlockRecord(parts, entry);
        else
            writeEntry(parts, tableType, entry);
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
            return !parts.objects.peek(entry) && !hasBlockStandIn(parts, entry);
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
