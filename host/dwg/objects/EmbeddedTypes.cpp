#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

/// What another program embedded. Its place stands in front of the other program's own data.
void noteEmbeddedPlace(Fields &f, std::string_view data)
{
    constexpr std::size_t placeSize = 128;
    if (data.size() < placeSize || static_cast<unsigned char>(data[0]) != 0x80 || data[1] != 0x55)
        return;
    const Bytes bytes(reinterpret_cast<const std::uint8_t *>(data.data()), data.size());
    BitReader reader(bytes, 16, placeSize * 8);
    const auto corner = [&reader] { return Point{reader.rawReal(), reader.rawReal(), reader.rawReal()}; };
    const Point upperLeft = corner();
    corner();
    const Point lowerRight = corner();
    f.note(10, upperLeft);
    f.note(11, lowerRight);
}

void readEmbedded(Fields &f)
{
    f.subclass("AcDbOle2Frame");
    f.int16(70);
    const int mode = f.since(Release::R2000) ? f.int16() : 0;
    const std::string data = f.values().rawBytes(f.count(8));
    if (f.since(Release::R2000))
        f.small();
    noteEmbeddedPlace(f, data);
    f.note(72, mode);
    f.note(90, data.size());
    f.noteBinary(310, data);
    f.note(1, "OLE");
    if (!f.isUsedUp())
        f.fail();
}

/// A program in another language that is kept in the drawing.
void readProject(Fields &f)
{
    f.subclass("AcDbVbaProject");
    const std::string data = f.values().rawBytes(f.count(8));
    f.note(90, data.size());
    f.noteBinary(310, data);
    if (!f.isUsedUp())
        f.fail();
}

} // namespace

std::span<const ObjectType> embeddedTypes()
{
    static constexpr ObjectType rows[] = {
        {0x4a, "OLE2FRAME", readEmbedded, true},
        {0x51, "VBA_PROJECT", readProject},
    };
    return rows;
}

} // namespace host::dwg
