#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

/// The model's lines, in pieces of any length, as they are: text files have them in the same disguise.
void readModelText(Fields &f)
{
    std::string model;
    while (const std::size_t size = f.count(8))
        model += f.values().rawBytes(size);
    std::string_view rest = model;
    while (!rest.empty()) {
        const std::size_t end = rest.find('\n');
        std::string_view line = rest.substr(0, end);
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
        // Blanks at the end of a line mean nothing in text files.
        while (!line.empty() && (line.back() == '\r' || line.back() == ' '))
            line.remove_suffix(1);
        constexpr std::size_t mostOfATag = 255;
        f.note(1, line.substr(0, mostOfATag));
        while (line.size() > mostOfATag) {
            line.remove_prefix(mostOfATag);
            f.note(3, line.substr(0, mostOfATag));
        }
    }
}

/// A model. What is drawn of it, which follows, is left: it can be made again.
void readModel(Fields &f)
{
    f.subclass("AcDbModelerGeometry");
    const bool isEmpty = f.flag();
    if (isEmpty)
        return;
    f.flag();
    const int version = f.int16(70);
    if (version == 1)
        readModelText(f);
}

void readSolid(Fields &f)
{
    readModel(f);
}

} // namespace

std::span<const ObjectType> solidTypes()
{
    static constexpr ObjectType rows[] = {
        {0x25, "REGION", readModel, true},
        {0x26, "3DSOLID", readSolid, true},
        {0x27, "BODY", readModel, true},
    };
    return rows;
}

} // namespace host::dwg
