#include "host/dwg/objects/TableTypes.h"

#include "host/dwg/objects/ObjectHead.h"
#include "host/dwg/objects/TypeTable.h"

#include <algorithm>

namespace host::dwg {

namespace {

/// Group 70 of all entries.
constexpr int dependsFlag = 16;
constexpr int resolvedFlag = 32;

void noteEntry(Fields &f, const char *subclass, const EntryHead &entry)
{
    f.subclass("AcDbSymbolTableRecord");
    f.subclass(subclass);
    f.note(2, entry.name);
    f.note(70, entry.flags);
}

/// Where layers have what, from R2000 on, in one number.
struct LayerBits
{
    static constexpr int frozen = 1;
    static constexpr int off = 2;
    static constexpr int frozenInNew = 4;
    static constexpr int locked = 8;
    static constexpr int plotted = 16;
    static constexpr int weightShift = 5;
};

void readLayer(Fields &f)
{
    EntryHead entry = readEntryHead(f);
    bool isOff = false;
    int bits = LayerBits::plotted;
    if (f.since(Release::R2000)) {
        bits = f.int16();
        isOff = (bits & LayerBits::off) != 0;
    } else {
        bits |= f.flag() ? LayerBits::frozen : 0;
        isOff = f.flag();
        bits |= f.flag() ? LayerBits::frozenInNew : 0;
        bits |= f.flag() ? LayerBits::locked : 0;
    }
    entry.flags |=
        (bits & LayerBits::frozen) | (bits & LayerBits::frozenInNew ? 2 : 0) | (bits & LayerBits::locked ? 4 : 0);
    noteEntry(f, "AcDbLayerTableRecord", entry);
    const std::size_t begin = f.mark();
    NotedColour colour = f.colour();
    colour.index = isOff ? -colour.index : colour.index;
    f.note(62, colour);
    f.reference(); // of the external drawing it came from
    const std::uint64_t plotStyle = f.since(Release::R2000) ? f.reference() : 0;
    const std::uint64_t material = f.since(Release::R2007) ? f.reference() : 0;
    const std::string_view linetype = f.nameOf(f.reference());
    f.note(6, linetype.empty() ? "Continuous" : linetype); // where it is lost
    if ((bits & LayerBits::plotted) == 0)
        f.note(290, 0);
    if (f.since(Release::R2000)) {
        f.note(370, lineWeight(bits >> LayerBits::weightShift & 0x1f));
        f.noteHandle(390, plotStyle);
    }
    if (material != 0)
        f.noteHandle(347, material);
    if (f.since(Release::R2013))
        f.reference(348);
    f.arrange(begin, {62, 420, 430, 6, 290, 370, 390, 347, 348});
}

void readStyle(Fields &f)
{
    EntryHead entry = readEntryHead(f);
    entry.flags |= f.flag() ? 1 : 0; // a shape file
    entry.flags |= f.flag() ? 4 : 0; // vertical
    noteEntry(f, "AcDbTextStyleTableRecord", entry);
    f.real(40);
    f.real(41);
    f.angle(50);
    f.small(71);
    f.real(42);
    f.text(3);
    f.text(4);
    f.reference(); // of the external drawing it came from
}

/// One dash of a linetype, with the shape or text in it.
struct Dash
{
    double length = 0.0;
    int shape = 0;
    double x = 0.0;
    double y = 0.0;
    double scale = 0.0;
    double rotation = 0.0;
    int flags = 0;
};

std::vector<Dash> readDashes(Fields &f)
{
    std::vector<Dash> dashes(static_cast<std::size_t>(f.small()));
    for (Dash &dash : dashes) {
        dash.length = f.real();
        dash.shape = f.int16();
        dash.x = f.rawReal();
        dash.y = f.rawReal();
        dash.scale = f.real();
        dash.rotation = f.real();
        dash.flags = f.int16();
    }
    return dashes;
}

constexpr int textInDash = 2;
constexpr int shapeInDash = 4;

/// The texts of all dashes: a dash tells by its shape's number where its text begins.
std::string textArea(Fields &f, const std::vector<Dash> &dashes)
{
    bool hasText = false;
    for (const Dash &dash : dashes)
        hasText |= (dash.flags & textInDash) != 0;
    if (f.until(Release::R2004))
        return f.values().rawBytes(256);
    return hasText ? f.values().rawBytes(512) : std::string();
}

/// Empty where a damaged file has it begin outside of the texts.
std::string textOfDash(const Fields &f, std::string_view area, int shape)
{
    if (shape < 0 || static_cast<std::size_t>(shape) >= area.size())
        return {};
    area.remove_prefix(static_cast<std::size_t>(shape));
    if (f.until(Release::R2004))
        return std::string(area.substr(0, area.find('\0')));
    BitReader reader(Bytes(reinterpret_cast<const std::uint8_t *>(area.data()), area.size()));
    return reader.utf16(area.size() / 2);
}

void noteDash(Fields &f, const Dash &dash, const std::string &area, std::uint64_t style)
{
    f.note(49, dash.length);
    f.note(74, dash.flags);
    if (dash.flags == 0)
        return;
    f.note(75, (dash.flags & shapeInDash) != 0 ? dash.shape : 0);
    f.noteHandle(340, style);
    f.note(46, dash.scale);
    f.noteAngle(50, dash.rotation);
    f.note(44, dash.x);
    f.note(45, dash.y);
    if ((dash.flags & textInDash) != 0)
        f.note(9, textOfDash(f, area, dash.shape));
}

void readLinetype(Fields &f)
{
    const EntryHead entry = readEntryHead(f);
    noteEntry(f, "AcDbLinetypeTableRecord", entry);
    f.text(3);
    const double length = f.real();
    f.small(72);
    const std::vector<Dash> dashes = readDashes(f);
    f.note(73, dashes.size());
    f.note(40, length);
    const std::string area = textArea(f, dashes);
    f.reference();
    for (const Dash &dash : dashes)
        noteDash(f, dash, area, f.reference());
}

/// Group 71 of views and viewports.
int readViewMode(Fields &f)
{
    int mode = 0;
    for (int bit = 1; bit <= 4; bit <<= 1)
        mode |= f.flag() ? bit : 0;
    return mode | (f.flag() ? 0 : 16);
}

void readLighting(Fields &f)
{
    f.flag(292);
    f.small(282);
    f.real(141);
    f.real(142);
    f.colour(63);
}

/// Views have it in the file alone.
void skipLighting(Fields &f)
{
    const std::size_t mark = f.mark();
    readLighting(f);
    f.drop(mark);
}

void readCoordinateAxes(Fields &f)
{
    for (int code = 110; code <= 112; ++code)
        f.point(code);
    f.real(146);
    f.int16(79);
}

void readView(Fields &f)
{
    EntryHead entry = readEntryHead(f);
    const std::size_t begin = f.mark();
    f.real(40);
    f.real(41);
    f.rawFlatPoint(10);
    f.point(12);
    f.point(11);
    f.angle(50);
    f.real(42);
    f.real(43);
    f.real(44);
    f.note(71, readViewMode(f));
    if (f.since(Release::R2000))
        f.small(281);
    if (f.since(Release::R2007))
        skipLighting(f);
    entry.flags |= f.flag() ? 1 : 0;
    bool hasSystem = false;
    if (f.since(Release::R2000)) {
        hasSystem = f.flag(72);
        if (hasSystem)
            readCoordinateAxes(f);
    }
    if (f.since(Release::R2007))
        f.flag(73);
    f.reference();
    if (f.since(Release::R2007)) {
        f.referenceUnlessNull(332);
        f.referenceUnlessNull(348);
        f.referenceUnlessNull(361);
    }
    if (hasSystem) {
        f.referenceUnlessNull(346);
        f.referenceUnlessNull(345);
    }
    // A section that shows in the view alone.
    if (f.since(Release::R2007) && f.references().left() >= 8)
        f.referenceUnlessNull(334);
    const std::size_t head = f.mark();
    noteEntry(f, "AcDbViewTableRecord", entry);
    f.moveForward(head, begin);
    f.arrange(begin, {100, 100, 2,   70,  40,  10,  20,  41,  11,  21,  31,  12,  22,  32,  42,  43, 44,  50,  71, 281,
                      72,  73,  332, 334, 348, 361, 110, 120, 130, 111, 121, 131, 112, 122, 132, 79, 146, 345, 346});
}

void readCoordinateSystem(Fields &f)
{
    const EntryHead entry = readEntryHead(f);
    noteEntry(f, "AcDbUCSTableRecord", entry);
    f.point(10);
    f.point(11);
    f.point(12);
    if (!f.since(Release::R2000))
        return;
    const std::size_t begin = f.mark();
    f.real(146);
    f.int16(79);
    const std::size_t others = f.smallCount(6);
    for (std::size_t i = 0; i < others; ++i) {
        f.int16(71);
        f.point(13);
    }
    f.reference();
    f.referenceUnlessNull(346);
    f.arrange(begin, {79, 146, 346});
}

void readViewport(Fields &f)
{
    const EntryHead entry = readEntryHead(f);
    noteEntry(f, "AcDbViewportTableRecord", entry);
    const std::size_t begin = f.mark();
    const double height = f.real(40);
    const double width = f.real();
    f.note(41, height != 0.0 ? width / height : 0.0);
    f.rawFlatPoint(12);
    f.point(17);
    f.point(16);
    f.angle(51);
    f.real(42);
    f.real(43);
    f.real(44);
    const int mode = readViewMode(f) & ~16;
    if (f.since(Release::R2000))
        f.small(281);
    if (f.since(Release::R2007))
        readLighting(f);
    f.rawFlatPoint(10);
    f.rawFlatPoint(11);
    f.note(71, mode | (f.flag() ? 8 : 0));
    f.int16(72);
    f.flag(73);
    const int icon = f.flag() ? 1 : 0;
    f.note(74, icon | (f.flag() ? 2 : 0));
    f.flag(76);
    f.rawFlatPoint(15);
    f.flag(75);
    f.flag(77);
    f.int16(78);
    f.angle(50);
    f.rawFlatPoint(13);
    f.rawFlatPoint(14);
    if (f.since(Release::R2000)) {
        f.flag();
        f.flag(65);
        readCoordinateAxes(f);
    }
    if (f.since(Release::R2007)) {
        f.int16(60);
        f.int16(61);
    }
    f.reference();
    if (f.since(Release::R2007)) {
        f.referenceUnlessNull(332);
        f.referenceUnlessNull(348);
        f.referenceUnlessNull(361);
    }
    if (f.since(Release::R2000)) {
        f.referenceUnlessNull(345);
        f.referenceUnlessNull(346);
    }
    f.arrange(begin, {10,  20,  11,  21,  12,  22,  13, 23,  14,  24,  15, 25, 16,  26,  36,  17,  27,  37,  40,  41,
                      42,  43,  44,  50,  51,  71,  72, 73,  74,  75,  76, 77, 78,  281, 65,  110, 120, 130, 111, 121,
                      131, 112, 122, 132, 345, 346, 79, 146, 332, 348, 60, 61, 292, 282, 141, 142, 63,  421, 361});
}

void readApplication(Fields &f)
{
    const EntryHead entry = readEntryHead(f);
    noteEntry(f, "AcDbRegAppTableRecord", entry);
    f.small();
    f.reference(); // of the external drawing it came from
}

} // namespace

EntryHead readEntryHead(Fields &f)
{
    EntryHead entry;
    entry.name = f.text();
    if (f.since(Release::R2007)) {
        const int number = f.int16();
        entry.flags = (number & 0x100) != 0 ? dependsFlag | resolvedFlag : 0;
    } else {
        f.flag();
        const int number = f.int16();
        const bool depends = f.flag();
        entry.flags = depends ? dependsFlag | (number != 0 ? resolvedFlag : 0) : 0;
    }
    return entry;
}

std::vector<std::uint64_t> readTableEntries(Fields &f, int type, std::vector<std::uint64_t> &further)
{
    const std::size_t count = f.checkedCount(f.int32(), 8, f.references());
    const bool hasFurther = type == dimensionStyleTableType && f.since(Release::R2000);
    const int furtherCount = hasFurther ? f.small() : 0;
    std::vector<std::uint64_t> entries;
    // Two of them stand in front or behind, apart from the others.
    const bool hasTwoMore = type == blockTableType || type == linetypeTableType;
    for (std::size_t i = 0; i < count + (hasTwoMore ? 2 : 0); ++i)
        entries.push_back(f.reference());
    for (int i = 0; i < furtherCount && f.references().left() >= 8; ++i)
        further.push_back(f.reference());
    if (hasTwoMore && entries.size() >= 2)
        std::rotate(entries.begin(), entries.end() - 2, entries.end());
    return entries;
}

BlockHead readBlockHead(Fields &f)
{
    BlockHead block;
    Relations &relations = f.relations();
    const std::size_t ownedByHead = relations.parts.size();
    block.entry = readEntryHead(f);
    block.isAnonymous = f.flag();
    block.hasAttributes = f.flag();
    block.isExternal = f.flag();
    block.isOverlay = f.flag();
    if (f.since(Release::R2000))
        f.flag();
    const std::size_t owned = f.since(Release::R2004) ? f.checkedCount(f.int32(), 8, f.references()) : 0;
    block.base = f.point();
    block.path = f.text();
    std::size_t inserts = 0;
    if (f.since(Release::R2000)) {
        while (f.small() != 0 && !f.hasFailed())
            ++inserts;
        block.description = f.text();
        block.preview = f.values().rawBytes(f.count(8));
    }
    if (f.since(Release::R2007)) {
        block.units = f.int16();
        block.isExplodable = f.flag();
        block.isScaledEvenly = f.small() != 0;
    }
    f.reference();
    relations.begin = f.reference();
    if (f.until(Release::R2000)) {
        if (!block.isExternal && !block.isOverlay) {
            relations.firstOwned = f.reference();
            relations.lastOwned = f.reference();
        }
    } else {
        for (std::size_t i = 0; i < owned; ++i)
            relations.owned.push_back(f.reference());
    }
    relations.end = f.reference();
    if (f.since(Release::R2000)) {
        for (std::size_t i = 0; i < inserts && f.references().left() >= 8; ++i)
            block.inserts.push_back(f.reference());
        block.layout = f.reference();
    }
    relations.parts.resize(ownedByHead); // without its entities, which have lists of their own
    return block;
}

void noteBlockRecord(Fields &f, const BlockHead &block)
{
    f.subclass("AcDbSymbolTableRecord");
    f.subclass("AcDbBlockTableRecord");
    f.note(2, block.entry.name);
    if (f.since(Release::R2000))
        f.noteHandle(340, block.layout);
    f.noteBinary(310, block.preview);
    if (!block.inserts.empty()) {
        f.note(102, "{BLKREFS");
        for (const std::uint64_t insert : block.inserts)
            f.noteHandle(331, insert);
        f.note(102, "}");
    }
    if (f.since(Release::R2007)) {
        f.note(70, block.units);
        f.note(280, block.isExplodable);
        f.note(281, block.isScaledEvenly);
    }
}

std::span<const ObjectType> tableTypes()
{
    static constexpr ObjectType rows[] = {
        {0x33, "LAYER", readLayer},       {0x35, "STYLE", readStyle},          {0x39, "LTYPE", readLinetype},
        {0x3d, "VIEW", readView},         {0x3f, "UCS", readCoordinateSystem}, {0x41, "VPORT", readViewport},
        {0x43, "APPID", readApplication},
    };
    return rows;
}

} // namespace host::dwg
