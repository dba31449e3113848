#include "host/dwg/drawing/Sections.h"

namespace host::dwg {

namespace {

/// The dictionary of named objects, then what the records own that were written, in the order of their references, as
/// the program that made the format writes them.
void writeReachable(DrawingParts &parts)
{
    RecordWriter &records = parts.records;
    std::vector<std::uint64_t> row = {parts.header.namedObjects};
    const auto addOwned = [&] {
        const std::vector<std::uint64_t> owned = records.takeOwned();
        row.insert(row.end(), owned.begin(), owned.end());
    };
    addOwned();
    for (std::size_t i = 0; i < row.size(); ++i) {
        records.writeObject(row[i]);
        addOwned();
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
