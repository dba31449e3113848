#include "host/dwg/drawing/Sections.h"

namespace host::dwg {

namespace {

/// What can be reached from the dictionary of named objects and from the extension dictionaries of what was written.
void writeReachable(DrawingParts &parts)
{
    RecordWriter &records = parts.records;
    std::vector<std::uint64_t> row = records.takeDictionaries();
    row.insert(row.begin(), parts.header.namedObjects);
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (!records.writeObject(row[i]))
            continue;
        const Relations &relations = records.fields().relations();
        row.insert(row.end(), relations.entries.begin(), relations.entries.end());
        if (relations.dictionary != 0)
            row.push_back(relations.dictionary);
    }
}

/// What nobody refers to, by rising handle.
void writeRest(DrawingParts &parts)
{
    const std::vector<MapEntry> &map = parts.objects.map();
    for (std::size_t i = 0; i < map.size(); ++i) {
        if (!parts.objects.isTaken(i))
            parts.records.writeObject(map[i].handle);
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
