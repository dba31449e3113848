#include "host/dwg/drawing/BlockRecords.h"

#include "host/dwg/drawing/ObjectNames.h"

#include <algorithm>
#include <unordered_set>

namespace host::dwg {

namespace {

bool isSpace(const DrawingParts &parts, std::uint64_t block)
{
    const ObjectHead::Spaces &spaces = parts.records.spaces();
    return block != 0 && (block == spaces.model || block == spaces.paper);
}

/// The layout that shows the block; 0 where none does.
std::uint64_t layoutOf(const DrawingParts &parts, std::uint64_t block)
{
    const auto found = parts.layouts.find(block);
    return found != parts.layouts.end() ? found->second.handle : 0;
}

/// What is left of the block. The marks are looked for when the first one is asked for.
BlockMarks marksOf(DrawingParts &parts, std::uint64_t block)
{
    if (!parts.marks)
        parts.marks = findBlockMarks(parts.objects, parts.records.spaces());
    const auto found = parts.marks->find(block);
    return found != parts.marks->end() ? found->second : BlockMarks();
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

/// Stands for a block that cannot be read: what it has tells it as its owner.
void writeBlockStandIn(DrawingParts &parts, std::uint64_t handle)
{
    Fields &fields = parts.records.fields();
    parts.objects.problems().add(
        {Problem::Kind::Warning, "It cannot be read; one like it was made.", "BLOCK_RECORD", handle});
    BlockHead block;
    block.entry.name = nameOfBlock(parts, handle);
    block.isAnonymous =
        block.entry.name.starts_with('*') && !isModelSpace(block.entry.name) && !isPaperSpace(block.entry.name);
    block.layout = layoutOf(parts, handle);
    fields.start({}, {}, {});
    fields.noteHandle(5, handle);
    if (fields.since(Release::R2000))
        fields.noteHandle(330, parts.header.blockTable);
    noteBlockRecord(fields, block);
    parts.records.writeFields("BLOCK_RECORD");
    Relations relations;
    relations.handle = handle;
    const BlockMarks marks = marksOf(parts, handle);
    relations.begin = marks.begin;
    relations.end = marks.end;
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

} // namespace

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

void nameBlocks(DrawingParts &parts, std::vector<std::uint64_t> entries)
{
    Names &names = parts.records.names();
    addSpaces(parts, entries);
    for (const std::uint64_t entry : entries) {
        const ObjectFrame *const frame = parts.objects.peek(entry);
        const auto name = names.find(entry);
        const bool isNamed = name != names.end() && !name->second.empty();
        if (frame ? frame->type != blockType || isNamed : isNamed)
            continue;
        const std::string told = marksOf(parts, entry).name;
        if (!told.empty())
            names[entry] = told;
        else if (layoutOf(parts, entry) != 0)
            names[entry] = "*Paper_Space";
    }
    numberBlocks(entries, parts.records.spaces(), names);
}

bool hasBlockStandIn(DrawingParts &parts, std::uint64_t handle)
{
    const ObjectFrame *const frame = parts.objects.peek(handle);
    return isSpace(parts, handle) || ((!frame || frame->type == blockType) && !nameOfBlock(parts, handle).empty());
}

void writeBlockRecord(DrawingParts &parts, std::uint64_t handle)
{
    Fields &fields = parts.records.fields();
    bool isRead = takeBlock(parts, handle);
    BlockHead block;
    if (isRead) {
        block = readBlockHead(fields);
        block.entry.name = nameOfBlock(parts, handle);
        isRead = !fields.hasFailed() && !block.entry.name.empty();
        if (!isRead)
            parts.objects.lose(handle, blockType, "The object ends before its values do.");
    }
    if (!isRead) {
        if (hasBlockStandIn(parts, handle))
            writeBlockStandIn(parts, handle);
        return;
    }
    noteBlockRecord(fields, block);
    block.preview = {};
    parts.records.writeNoted("BLOCK_RECORD");
    parts.blocks.push_back({std::move(block), fields.relations()});
}

} // namespace host::dwg
