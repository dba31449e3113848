#include "host/dwg/drawing/ObjectNames.h"
#include "host/dwg/drawing/Sections.h"

#include <algorithm>

namespace host::dwg {

namespace {

/// The table of blocks alone, in front of what refers to blocks by their names.
void readBlockNames(DrawingParts &parts)
{
    RecordWriter &records = parts.records;
    const auto frame = parts.objects.peek(parts.header.blockTable);
    if (!frame || frame->type != blockTableType)
        return;
    records.readHead(*frame, "TABLE", false);
    std::vector<std::uint64_t> further;
    numberBlocks(readTableEntries(records.fields(), frame->type, further), records.spaces(), records.names());
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

void writeBlockRecord(DrawingParts &parts, std::uint64_t handle)
{
    RecordWriter &records = parts.records;
    Fields &fields = records.fields();
    const auto frame = parts.objects.take(handle);
    if (!frame)
        return;
    if (frame->type != blockType)
        return parts.objects.lose(handle, frame->type, "The table of blocks refers to it.");
    records.readHead(*frame, "BLOCK_RECORD", false);
    if (!records.checkHandle(handle, frame->type))
        return;
    BlockHead block = readBlockHead(fields);
    block.entry.name = fields.nameOf(handle);
    noteBlockRecord(fields, block);
    block.preview = {};
    if (fields.hasFailed())
        parts.objects.lose(handle, frame->type, "The object ends before its values do.");
    records.writeNoted("BLOCK_RECORD");
    parts.blocks.push_back({std::move(block), fields.relations()});
}

void writeTable(DrawingParts &parts, const char *name, std::uint64_t handle)
{
    RecordWriter &records = parts.records;
    const auto frame = parts.objects.take(handle);
    if (!frame)
        return parts.objects.problems().lose(std::string("The table ") + name + " is missing.");
    records.readHead(*frame, "TABLE", false);
    std::vector<std::uint64_t> further;
    std::vector<std::uint64_t> entries = readTableEntries(records.fields(), frame->type, further);
    // Later releases count what was erased as well.
    if (records.fields().until(Release::R14))
        std::erase_if(entries, [&parts](std::uint64_t entry) { return !parts.objects.peek(entry); });
    constexpr std::ptrdiff_t always = 2; // they stand in front here
    if (frame->type == linetypeTableType && entries.size() >= always)
        records.fields().setLinetypes({entries.begin() + always, entries.end()});
    noteTable(records.fields(), frame->type, entries.size(), further);
    records.writeNoted("TABLE", tagLines(2, name));
    for (const std::uint64_t entry : entries) {
        if (frame->type == blockTableType)
            writeBlockRecord(parts, entry);
        else
            records.writeObject(entry);
    }
    records.beginRecord("ENDTAB");
}

} // namespace

void writeTablesSection(DrawingParts &parts)
{
    const Header &header = parts.header;
    readBlockNames(parts);
    parts.records.beginSection("TABLES");
    writeTable(parts, "VPORT", header.viewportTable);
    writeTable(parts, "LTYPE", header.linetypeTable);
    writeTable(parts, "LAYER", header.layerTable);
    writeTable(parts, "STYLE", header.styleTable);
    writeTable(parts, "VIEW", header.viewTable);
    writeTable(parts, "UCS", header.systemTable);
    writeTable(parts, "APPID", header.applicationTable);
    writeTable(parts, "DIMSTYLE", header.dimensionStyleTable);
    writeTable(parts, "BLOCK_RECORD", header.blockTable);
    parts.records.endSection();
}

} // namespace host::dwg
