#include "host/dwg/drawing/Sections.h"

namespace host::dwg {

namespace {

/// Whether the text form has objects of the type in this section: entities, tables and what stands in these would be
/// no part of the drawing here.
bool mayStandHere(const DrawingObjects &objects, int type)
{
    constexpr int lastOfTables = dimensionStyleType;
    return !objects.isEntity(type) && (type < blockTableType || type > lastOfTables);
}

/// Writes an object, unless it has its place elsewhere.
bool writeHere(DrawingParts &parts, std::uint64_t handle)
{
    const ObjectFrame *const frame = parts.objects.peek(handle);
    return (!frame || mayStandHere(parts.objects, frame->type)) && parts.records.writeObject(handle);
}

/// The dictionary that layouts tell as theirs; 0 without layouts, or where it is something else.
std::uint64_t dictionaryOfLayouts(const DrawingParts &parts)
{
    constexpr int dictionaryType = 0x2a;
    const std::uint64_t handle = parts.layouts.empty() ? 0 : parts.layouts.begin()->second.dictionary;
    const ObjectFrame *const frame = parts.objects.peek(handle);
    return handle != parts.header.namedObjects && (!frame || frame->type == dictionaryType) ? handle : 0;
}

using NamedHandles = std::vector<std::pair<std::string, std::uint64_t>>;

void writeDictionaryStandIn(DrawingParts &parts, std::uint64_t handle, std::uint64_t owner, const NamedHandles &entries)
{
    Fields &fields = parts.records.fields();
    fields.start({}, {}, {});
    fields.noteHandle(5, handle);
    if (fields.since(Release::R13))
        fields.noteHandle(330, owner);
    fields.subclass("AcDbDictionary");
    for (const auto &[name, named] : entries) {
        fields.note(3, name);
        fields.noteHandle(350, named);
    }
    parts.records.writeFields("DICTIONARY");
    parts.objects.standFor(handle);
}

/// Programs take the first record of the section for the dictionary of named objects, whatever it is: there is one even
/// where it cannot be read. The layouts are found from it.
void writeRootStandIn(DrawingParts &parts)
{
    parts.objects.problems().lose("The dictionary of named objects is missing.");
    const std::uint64_t layouts = dictionaryOfLayouts(parts);
    writeDictionaryStandIn(parts, parts.header.namedObjects, 0,
                           layouts != 0 ? NamedHandles{{"ACAD_LAYOUT", layouts}} : NamedHandles());
}

/// Programs know no layouts but those that the dictionary names, nor what stands on them.
void writeLayoutsStandIn(DrawingParts &parts, std::uint64_t dictionary)
{
    parts.objects.warn(dictionary, 0x2a, "It cannot be read; one with the layouts was made.");
    NamedHandles entries;
    for (const auto &[block, layout] : parts.layouts)
        entries.emplace_back(layout.name, layout.handle);
    writeDictionaryStandIn(parts, dictionary, parts.header.namedObjects, entries);
}

/// The dictionary of named objects, then what the records own that were written, in the order of their references, as
/// the program that made the format writes them.
void writeReachable(DrawingParts &parts)
{
    RecordWriter &records = parts.records;
    std::vector<std::uint64_t> row = records.takeOwned();
    const auto addOwned = [&] {
        const std::vector<std::uint64_t> owned = records.takeOwned();
        row.insert(row.end(), owned.begin(), owned.end());
    };
    if (!writeHere(parts, parts.header.namedObjects))
        writeRootStandIn(parts);
    addOwned();
    for (std::size_t i = 0; i < row.size(); ++i) {
        writeHere(parts, row[i]);
        addOwned();
    }
    const std::uint64_t layouts = dictionaryOfLayouts(parts);
    if (layouts != 0 && (!parts.objects.isTold(layouts) || parts.objects.lost().contains(layouts)))
        writeLayoutsStandIn(parts, layouts);
}

/// What nobody refers to, by rising handle.
void writeRest(DrawingParts &parts)
{
    const std::vector<MapEntry> &map = parts.objects.map();
    for (std::size_t i = 0; i < map.size(); ++i) {
        const MapEntry &entry = map[i];
        if (parts.objects.isTaken(i))
            continue;
        if (mayStandHere(parts.objects, entry.frame.type))
            parts.records.writeObject(entry.handle);
        else
            parts.objects.lose(entry.handle, entry.frame.type, "The object stands outside of what it belongs to.");
    }
    for (const std::uint64_t handle : parts.records.companions().left())
        parts.records.writeObject(handle);
}

} // namespace

void writeObjectsSection(DrawingParts &parts)
{
    parts.records.beginSection("OBJECTS");
    writeReachable(parts);
    writeRest(parts);
    parts.records.endSection();
}

} // namespace host::dwg
