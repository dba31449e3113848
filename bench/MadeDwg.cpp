#include "bench/MadeDwg.h"

#include "host/dwg/objects/TableTypes.h"
#include "tests/dwg/making/TypeNumbers.h"

#include <cmath>

using namespace host::dwg::test;
using host::dwg::HandleReference;
using host::dwg::Point;

namespace bench {

namespace {

/// A place that has all digits, as measured ones have.
Point placeOf(int i)
{
    return {1000.0 * std::sin(i * 0.37), 1000.0 * std::cos(i * 0.73), 0.0};
}

void writeLine(ObjectWriter &o, Point from, Point to)
{
    o.flag(true); // without heights
    o.rawReal(from.x);
    o.values().realNear(from.x, to.x);
    o.rawReal(from.y);
    o.values().realNear(from.y, to.y);
    o.thickness(0.0);
    o.extrusion();
}

void writeCircle(ObjectWriter &o, Point centre, double radius)
{
    o.point(centre);
    o.real(radius);
    o.thickness(0.0);
    o.extrusion();
}

void writeText(ObjectWriter &o, double x, double y, const std::string &text)
{
    o.small(0xff); // all usual
    o.rawFlatPoint(x, y);
    o.extrusion();
    o.thickness(0.0);
    o.rawReal(2.5);
    o.text(text);
    o.reference(MadeHandles::TextStyle);
}

void addEntity(MadeDrawing &drawing, int i)
{
    switch (i % 3) {
    case 0:
        drawing.addEntity(LineType, [i](ObjectWriter &o) { writeLine(o, placeOf(i), placeOf(i + 1)); });
        return;
    case 1:
        drawing.addEntity(CircleType, [i](ObjectWriter &o) { writeCircle(o, placeOf(i), 0.25 + i % 7); });
        return;
    default:
        drawing.addEntity(TextType, [i](ObjectWriter &o) {
            writeText(o, i % 1000 * 1.25, i / 1000 * 0.75, "Room " + std::to_string(i));
        });
    }
}

FileBytes fileOf(const MadeDrawing &drawing)
{
    if (drawing.release() < Release::R2004)
        return drawing.file();
    std::vector<MadeSection> sections = sectionsOf(drawing.parts());
    for (MadeSection &section : sections) {
        section.pageSize = 0x7400;
        section.isTight = true;
    }
    return drawing.release() == Release::R2007 ? correctedFile(sections) : pagedFile(drawing.release(), sections);
}

/// A block of R2000 or later, with the BLOCK and ENDBLK behind it and nothing between them.
void writeEmptyBlock(ObjectWriter &o, std::uint64_t handle, const std::vector<std::uint64_t> &inserts)
{
    o.entryHead("SHOWN");
    for (int i = 0; i < 5; ++i)
        o.flag(false); // anonymous, with attributes, external, overlay, loaded
    if (o.since(Release::R2004))
        o.int32(0);
    o.point({});
    o.text("");
    for (std::size_t i = 0; i < inserts.size(); ++i)
        o.small(1);
    o.small(0);
    o.text("");
    o.int32(0);
    if (o.since(Release::R2007)) {
        o.int16(0);
        o.flag(true);
        o.small(0);
    }
    o.reference(0);
    o.reference(handle + 1, HandleReference::HardOwner);
    if (o.until(Release::R2000)) {
        o.reference(0);
        o.reference(0);
    }
    o.reference(handle + 2, HandleReference::HardOwner);
    for (const std::uint64_t insert : inserts)
        o.reference(insert, HandleReference::SoftPointer);
    o.reference(0);
}

void writeInsert(ObjectWriter &o, Point place, std::uint64_t block)
{
    o.point(place);
    o.values().pair(3); // in its own size
    o.real(0.0);
    o.point({0.0, 0.0, 1.0});
    o.flag(false); // no attributes
    o.reference(block);
}

void writeCorners(ObjectWriter &o, int count)
{
    o.int16(0); // no widths, bulges, heights
    o.int32(count);
    for (int i = 0; i < count; ++i) {
        const Point place = placeOf(i);
        if (i == 0) {
            o.rawFlatPoint(place.x, place.y);
            continue;
        }
        o.values().realNear(placeOf(i - 1).x, place.x);
        o.values().realNear(placeOf(i - 1).y, place.y);
    }
}

} // namespace

FileBytes manyEntities(Release release, int count)
{
    MadeDrawing drawing(release);
    for (int i = 0; i < count; ++i)
        addEntity(drawing, i);
    return fileOf(drawing);
}

FileBytes largeDictionary(Release release, int count)
{
    MadeDrawing drawing(release);
    for (int i = 0; i < count; ++i)
        drawing.addObject(PlaceholderType, "ENTRY_" + std::to_string(i), nullptr);
    return fileOf(drawing);
}

FileBytes manyInserts(Release release, int count)
{
    MadeDrawing drawing(release);
    std::vector<std::uint64_t> inserts;
    const std::uint64_t block = drawing.nextHandle();
    drawing.addEntry(host::dwg::blockType, [&](ObjectWriter &o) { writeEmptyBlock(o, block, inserts); });
    drawing.addPart(BeginType, block, [](ObjectWriter &o) { o.text("SHOWN"); });
    drawing.addPart(EndType, block, nullptr);
    for (int i = 0; i < count; ++i)
        inserts.push_back(
            drawing.addEntity(InsertType, [i, block](ObjectWriter &o) { writeInsert(o, placeOf(i), block); }));
    return fileOf(drawing);
}

FileBytes longPolyline(Release release, int count)
{
    MadeDrawing drawing(release);
    drawing.addEntity(LightPolylineType, [count](ObjectWriter &o) { writeCorners(o, count); });
    return fileOf(drawing);
}

} // namespace bench
