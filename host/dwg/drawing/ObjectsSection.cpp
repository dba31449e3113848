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

/// Programs take the first record of the section for the dictionary of named objects, whatever it is: there is one even
/// where it cannot be read.
void writeRootStandIn(DrawingParts &parts)
{
    parts.objects.problems().lose("The dictionary of named objects is missing.");
    Fields &fields = parts.records.fields();
    fields.start({}, {}, {});
    fields.noteHandle(5, parts.header.namedObjects);
    if (fields.since(Release::R13))
        fields.noteHandle(330, 0);
    fields.subclass("AcDbDictionary");
    parts.records.writeFields("DICTIONARY");
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
