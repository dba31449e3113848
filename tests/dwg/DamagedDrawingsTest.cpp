// Drawings that lack what others are found by: what is left of them stands at its place.

#include "host/dwg/objects/TableTypes.h"
#include "tests/dwg/FieldWords.h"
#include "tests/dwg/making/ReadBack.h"
#include "tests/dwg/making/TypeNumbers.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace host::dwg::test {

namespace {

void writeUnitCircle(ObjectWriter &o)
{
    o.point({});
    o.real(1.0);
    o.thickness(0.0);
    o.extrusion();
}

/// Circles 40 to 44 in model space, a layer 45, an object 46 that a dictionary names.
MadeDrawing fiveCircles(Release release)
{
    MadeDrawing drawing(release);
    for (int i = 0; i < 5; ++i)
        drawing.addEntity(CircleType, writeUnitCircle);
    drawing.addEntry(LayerType, layerWriter("WALL", true, [](ObjectWriter &o) { o.colour(1); }));
    drawing.addObject("DICTIONARYVAR", "NAMED", [](ObjectWriter &o) {
        o.small(0);
        o.text("value");
    });
    return drawing;
}

/// A whole circle of model space, which its block does not have.
FileBytes circleWith(Release release, std::uint64_t handle)
{
    MadeHead head;
    head.type = CircleType;
    head.isEntity = true;
    head.handle = handle;
    head.space = 2;
    ObjectWriter o(release, head);
    writeUnitCircle(o);
    return o.bytes();
}

FileBytes without(const MadeDrawing &drawing, std::uint64_t handle)
{
    MadeParts parts = drawing.parts();
    EXPECT_EQ(std::erase_if(parts.objects, [handle](const auto &object) { return object.handle == handle; }), 1u);
    return madeFile(parts);
}

/// The file with nothing left of the object, of which the map tells.
FileBytes withoutBytes(const MadeDrawing &drawing, std::uint64_t handle)
{
    MadeParts parts = drawing.parts();
    const auto object = std::ranges::find(parts.objects, handle, &MadeParts::Object::handle);
    std::ranges::fill(object->bytes, std::uint8_t{0});
    return madeFile(parts);
}

/// The records of a section or a table: " TYPE" where they have no handle, " 1A" with one.
std::string recordsOf(const ReadBack &read, const std::string &container)
{
    const auto found = std::ranges::find(read.tree.nodes, container, &TextNode::name);
    std::string records;
    for (const std::size_t child : found->children) {
        const TextNode &node = read.tree.nodes[child];
        records += ' ' + (node.handle.empty() ? node.type() : node.handle);
    }
    return records;
}

/// What comes out of the circles, the table of layers, that of blocks, and the other objects.
struct DamageRow
{
    const char *name;
    std::uint64_t gone;
    const char *entities = " 40 41 42 43 44";
    const char *layers = " 10 45";
    const char *blocks = " 1D 1A";
    const char *objects = " C 46";
    std::size_t lost = 1; ///< that are told
    std::size_t made = 0; ///< like what cannot be read
};

const DamageRow damageRows[] = {
    {.name = "the first entity", .gone = 0x40, .entities = " 41 42 43 44", .lost = 0},
    {.name = "an entity", .gone = 0x42, .entities = " 40 41 43 44", .lost = 0},
    {.name = "the last entity", .gone = 0x44, .entities = " 40 41 42 43", .lost = 0},
    {.name = "the table of layers", .gone = MadeHandles::LayerTable},
    {.name = "the table of blocks", .gone = MadeHandles::BlockTable, .blocks = " 1A 1D"},
    {.name = "model space", .gone = MadeHandles::ModelSpace, .lost = 0, .made = 1},
    {.name = "paper space", .gone = MadeHandles::PaperSpace, .lost = 0, .made = 1},
    {.name = "what model space begins with", .gone = MadeHandles::ModelSpace + 1, .lost = 0, .made = 1},
    {.name = "the dictionary of named objects", .gone = MadeHandles::NamedObjects},
};

/// A layout that shows `block`, with a few values more than layouts have where `more` says so.
MadeDrawing::Write layoutWriter(std::uint64_t block, bool hasMore)
{
    return [block, hasMore](ObjectWriter &o) {
        writerOf("t t s0 d0 d0 d0 d0 d0 d0 t d0 d0 s0 s0 s0 d0 d0 d0 d0")(o);
        writerOf(o.until(Release::R2000) ? "t d0 d0 t s0 d0 d0 d0" : "d0 d0 t s0 d0 d0 d0 s0 s0 s0 h0")(o);
        if (o.since(Release::R2007))
            o.reference(0);
        writerOf("tSheet l1 s1 p0,0,0 f0,0 f0,0 p0,0,0 p0,0,0 p0,0,0 d0 s0 p0,0,0 p0,0,0")(o);
        if (o.since(Release::R2004))
            o.int32(0);
        o.reference(block);
        writerOf(hasMore ? "h0 h0 h0 l77" : "h0 h0 h0")(o);
    };
}

/// A layout 42 of the block 40, which is lost, and one 43 of which a row tells. 41 is a circle of the block, 44 the
/// dictionary of layouts.
MadeDrawing twoLayouts(Release release, std::uint64_t otherBlock, bool hasMore)
{
    MadeDrawing drawing(release);
    drawing.addEntry(blockType, writerOf("n*Paper_Space"));
    drawing.addPart(CircleType, 0x40, writeUnitCircle);
    drawing.addOwned("LAYOUT", 0x44, layoutWriter(0x40, false));
    drawing.addOwned("LAYOUT", 0x44, layoutWriter(otherBlock, hasMore));
    drawing.addObject(DictionaryType, "ACAD_LAYOUT", [](ObjectWriter &o) {
        writerOf(o.until(Release::R13) ? "l2" : o.release() == Release::R14 ? "l2 c0" : "l2 s1 c0")(o);
        for (const std::uint64_t layout : {0x42u, 0x43u}) {
            o.text("Sheet" + std::to_string(layout));
            o.reference(layout, HandleReference::SoftOwner);
        }
    });
    return drawing;
}

struct LayoutRow
{
    std::uint64_t otherBlock;
    bool hasMore;
    const char *why; ///< the other layout is lost; null where it is not
};

const LayoutRow layoutRows[] = {
    {MadeHandles::PaperSpace, false, nullptr},
    {0, false, "LAYOUT 43: It has no block.\n"},
    {MadeHandles::LayerZero, false, "LAYOUT 43: What it has for its block is none.\n"},
    {0x40, false, "LAYOUT 43: Another layout has its block.\n"},
    {MadeHandles::PaperSpace, true, "LAYOUT 43: The object has another form than layouts have.\n"},
};

class DamagedDrawings : public testing::TestWithParam<Release>
{
};

} // namespace

TEST_P(DamagedDrawings, HaveWhatIsLeftAtItsPlace)
{
    for (const DamageRow &row : damageRows) {
        const ReadBack read = readBack(without(fiveCircles(GetParam()), row.gone));
        EXPECT_EQ(recordsOf(read, "ENTITIES"), row.entities) << row.name;
        EXPECT_EQ(recordsOf(read, "LAYER"), row.layers) << row.name;
        EXPECT_EQ(recordsOf(read, "BLOCK_RECORD"), row.blocks) << row.name;
        EXPECT_EQ(recordsOf(read, "OBJECTS"), row.objects) << row.name;
        EXPECT_EQ(read.drawing.problems.lostCount(), row.lost) << row.name << '\n' << read.problems();
        EXPECT_EQ(read.drawing.problems.count(Problem::Kind::Warning), row.made) << row.name << '\n' << read.problems();
    }
}

TEST_P(DamagedDrawings, HaveEntitiesPastWhichAReferenceLeads)
{
    if (GetParam() > Release::R2000)
        return; // there they are no chain
    MadeParts parts = fiveCircles(GetParam()).parts();
    const auto second = std::ranges::find(parts.objects, 0x41u, &MadeParts::Object::handle);
    // One that leads to the fifth, and is lost since it has not its own handle.
    second->bytes = std::ranges::find(parts.objects, 0x43u, &MadeParts::Object::handle)->bytes;
    EXPECT_EQ(recordsOf(readBack(madeFile(parts)), "ENTITIES"), " 40 42 43 44");
}

TEST_P(DamagedDrawings, KeepTheOrderOfChainsThatAreLeft)
{
    if (GetParam() > Release::R2000)
        return;
    // 40 leads to 43, 42 and 41, and is lost.
    MadeDrawing drawing(GetParam());
    drawing.addEntity(CircleType, writeUnitCircle);
    for (std::uint64_t handle = 0x41; handle <= 0x43; ++handle) {
        MadeHead &head = drawing.head(drawing.addPart(CircleType, 0, writeUnitCircle));
        head.space = 2;
        head.next = handle == 0x41 ? 0 : handle - 1;
    }
    EXPECT_EQ(recordsOf(readBack(without(drawing, 0x40)), "ENTITIES"), " 43 42 41");
}

TEST_P(DamagedDrawings, GiveHandlesThatAreFreeToWhatStandsForOthers)
{
    // Where the header has the dictionary of named objects and the table of layers are circles.
    MadeParts parts = fiveCircles(GetParam()).parts();
    for (MadeParts::Object &object : parts.objects) {
        if (object.handle == MadeHandles::NamedObjects || object.handle == MadeHandles::LayerTable)
            object.bytes = circleWith(GetParam(), object.handle);
    }
    const ReadBack read = readBack(madeFile(parts));
    EXPECT_EQ(recordsOf(read, "LAYER"), " 10 45");
    EXPECT_EQ(recordsOf(read, "OBJECTS"), " 1001 46");
    EXPECT_EQ(read.record(0x1000), GetParam() < Release::R2000
                                       ? "0 TABLE|2 LAYER|5 1000|100 AcDbSymbolTable|70 2|"
                                       : "0 TABLE|2 LAYER|5 1000|330 0|100 AcDbSymbolTable|70 2|");
    EXPECT_EQ(read.variable("$HANDSEED"), "9 $HANDSEED|5 1002|");
}

TEST_P(DamagedDrawings, HaveABlockForEachLayout)
{
    for (const LayoutRow &row : layoutRows) {
        const ReadBack read = readBack(without(twoLayouts(GetParam(), row.otherBlock, row.hasMore), 0x40));
        EXPECT_EQ(recordsOf(read, "BLOCK_RECORD"), " 1D 1A 40");
        EXPECT_NE(read.record(0x40).find("|2 *Paper_Space0|"), std::string::npos) << read.record(0x40);
        EXPECT_NE(read.drawing.text.find("\n  3\n*Paper_Space0\n  1\n\n  0\nCIRCLE\n  5\n41\n"), std::string::npos);
        EXPECT_EQ(recordsOf(read, "OBJECTS"), row.why ? " C 44 42" : " C 44 42 43");
        EXPECT_EQ(read.lastPart(0x44).find("350 43|") != std::string::npos, !row.why) << read.lastPart(0x44);
        const std::string problems = read.problems();
        EXPECT_EQ(problems.substr(0, problems.find("BLOCK_RECORD 40: ")), row.why ? row.why : "");
    }
}

TEST_P(DamagedDrawings, HaveLayoutsWithoutTheirDictionaries)
{
    const MadeDrawing drawing = twoLayouts(GetParam(), MadeHandles::PaperSpace, false);
    const ReadBack withoutOwn = readBack(withoutBytes(drawing, 0x44));
    EXPECT_TRUE(withoutOwn.record(0x44).ends_with("|330 C|100 AcDbDictionary|3 Sheet|350 43|3 Sheet|350 42|"))
        << withoutOwn.record(0x44);
    EXPECT_TRUE(withoutOwn.record(MadeHandles::NamedObjects).ends_with("|3 ACAD_LAYOUT|350 44|"));
    const ReadBack withoutRoot = readBack(without(drawing, MadeHandles::NamedObjects));
    EXPECT_TRUE(withoutRoot.record(MadeHandles::NamedObjects).ends_with("|100 AcDbDictionary|3 ACAD_LAYOUT|350 44|"));
    EXPECT_NE(withoutRoot.record(0x44).find("|350 42|"), std::string::npos) << withoutRoot.problems();
}

TEST_P(DamagedDrawings, TakeNoOtherBlockForTheSpaceOfTheLayoutThatWasShown)
{
    MadeDrawing drawing(GetParam());
    drawing.addEntry(blockType, writerOf("n*Paper_Space"));
    const ReadBack read = readBack(withoutBytes(drawing, MadeHandles::PaperSpace));
    EXPECT_NE(read.record(MadeHandles::PaperSpace).find("|2 *PAPER_SPACE|"), std::string::npos) << read.problems();
    EXPECT_NE(read.record(0x40).find("|2 *Paper_Space0|"), std::string::npos) << read.record(0x40);
}

TEST_P(DamagedDrawings, HaveNothingLostInTheirDictionaries)
{
    MadeDrawing drawing = fiveCircles(GetParam());
    drawing.addObject(multiLineStyleType, "NO_LINES", writerOf("tS t s0 C0 d0 d0 c0"));
    const std::uint64_t damaged = drawing.addText("DAMAGED", "text");
    drawing.head(0x40).dictionary = damaged;
    drawing.head(0x41).dictionary = 0x46;
    const ReadBack read = readBack(withoutBytes(drawing, damaged));
    EXPECT_TRUE(read.lastPart(MadeHandles::NamedObjects).ends_with("3 NAMED|350 46|"))
        << read.record(MadeHandles::NamedObjects);
    EXPECT_EQ(read.record(0x40).find("XDICTIONARY"), std::string::npos) << read.record(0x40);
    EXPECT_NE(read.record(0x41).find("|102 {ACAD_XDICTIONARY|360 46|102 }|"), std::string::npos) << read.record(0x41);
    EXPECT_EQ(read.drawing.problems.lostCount(), 2u) << read.problems();
}

TEST_P(DamagedDrawings, HaveBlocksThatTheirMarksTellOf)
{
    MadeDrawing drawing(GetParam());
    const auto writeInsert = [](std::uint64_t block) {
        return [block](ObjectWriter &o) {
            o.point({});
            if (o.since(Release::R2000))
                o.values().pair(3);
            else
                o.point({1.0, 1.0, 1.0});
            o.real(0.0);
            o.point({0.0, 0.0, 1.0});
            o.flag(false);
            o.reference(block);
        };
    };
    const std::uint64_t door = drawing.addEntry(blockType, writerOf("n*D"));
    drawing.addPart(BeginType, door, writerOf("t*D"));
    drawing.addPart(CircleType, door, writeUnitCircle);
    drawing.addPart(EndType, door, nullptr);
    const std::uint64_t shown = drawing.addEntity(InsertType, writeInsert(door));
    const std::uint64_t nameless = drawing.addEntry(blockType, writerOf("nGONE"));
    const std::uint64_t lost = drawing.addEntity(InsertType, writeInsert(nameless));
    MadeParts parts = drawing.parts();
    const auto damage = [&parts](std::uint64_t handle) {
        std::ranges::fill(std::ranges::find(parts.objects, handle, &MadeParts::Object::handle)->bytes, std::uint8_t{0});
    };
    damage(nameless);
    // The record of the door ends behind its name, then nothing is left of it.
    for (int i = 0; i < 2; ++i) {
        const ReadBack read = readBack(madeFile(parts));
        const std::string name = read.lastPart(shown).substr(0, 5);
        EXPECT_TRUE(name == "2 *D0" || name == "2 *D1") << read.record(shown); // by its place in the table
        EXPECT_NE(read.record(door).find('|' + name + '|'), std::string::npos) << read.record(door);
        EXPECT_TRUE(read.lastPart(door + 1).starts_with(name + "|70 1|")) << read.record(door + 1);
        const TextNode &circle = read.tree.nodes[read.tree.find("42")];
        EXPECT_EQ(read.tree.nodes[circle.parent].handle, "41");
        EXPECT_NE(read.record(door + 3), "");
        EXPECT_EQ(read.record(lost), "");
        EXPECT_NE(read.problems().find("INSERT 46: Its block is lost.\n"), std::string::npos) << read.problems();
        damage(door);
    }
}

TEST_P(DamagedDrawings, HaveEntriesThatTheirTableTellsInAnotherWay)
{
    const auto object = [](std::uint64_t handle, int type, std::uint64_t owner, const MadeDrawing::Write &write) {
        MadeHead head;
        head.type = type;
        head.handle = handle;
        head.owner = owner;
        ObjectWriter o(GetParam(), head);
        write(o);
        return MadeParts::Object{handle, o.bytes()};
    };
    // The layer 45 is the layer 47, which the table does not name.
    MadeParts moved = fiveCircles(GetParam()).parts();
    std::erase_if(moved.objects, [](const MadeParts::Object &one) { return one.handle == 0x45; });
    moved.objects.push_back(object(0x47, LayerType, MadeHandles::LayerTable,
                                   layerWriter("WALL", true, [](ObjectWriter &o) { o.colour(1); })));
    // Tables of R14 have entries that are lost without damage.
    EXPECT_EQ(recordsOf(readBack(madeFile(moved)), "LAYER"), GetParam() == Release::R14 ? " 10" : " 10 47");
    const auto withTable = [&](const char *fields) {
        MadeParts parts = fiveCircles(GetParam()).parts();
        *std::ranges::find(parts.objects, MadeHandles::LayerTable, &MadeParts::Object::handle) =
            object(MadeHandles::LayerTable, layerTableType, 0, writerOf(fields));
        return recordsOf(readBack(madeFile(parts)), "LAYER");
    };
    EXPECT_EQ(withTable("l0 h10"), " 10 45") << "it counts no layers, and has one behind that";
    EXPECT_EQ(withTable("l2 h45 h10 c7"), " 45 10") << "it has a value that is not known, and keeps its order";
}

TEST_P(DamagedDrawings, NameNoEntryThatIsLost)
{
    MadeDrawing drawing(GetParam());
    const std::uint64_t layer = drawing.addEntry(LayerType, writerOf("nCUT"));
    const std::uint64_t application = drawing.addEntry(ApplicationType, writerOf("nCUT"));
    const std::uint64_t nameless = drawing.addEntry(ApplicationType, writerOf("n c0 h0"));
    const std::uint64_t linetype = drawing.addEntry(LinetypeType, writerOf("nCUT"));
    drawing.addEntry(LayerType, [linetype](ObjectWriter &o) {
        writerOf(o.since(Release::R2000) ? "nBENT s16 C1 h0 h0" : "nBENT b0 b0 b0 b0 C1 h0")(o);
        if (o.since(Release::R2007))
            o.reference(0);
        o.reference(linetype);
        if (o.since(Release::R2013))
            o.reference(0);
    });
    const std::uint64_t circle = drawing.addEntity(CircleType, writeUnitCircle);
    drawing.head(circle).layer = layer;
    drawing.head(circle).extensions = {{application, std::string("\x46\x07\x00", 3)}}; // a number
    const ReadBack read = readBack(drawing);
    EXPECT_NE(read.record(circle).find("|8 0|"), std::string::npos) << read.record(circle);
    EXPECT_EQ(read.record(circle).find("|1001 "), std::string::npos) << read.record(circle);
    EXPECT_NE(read.problems().find("CIRCLE 45: Extended data of an application that is lost are left out.\n"),
              std::string::npos);
    EXPECT_NE(read.record(0x44).find("|6 Continuous|"), std::string::npos) << read.record(0x44);
    EXPECT_EQ(read.record(nameless), "");
    EXPECT_EQ(read.drawing.problems.lostCount(), 4u) << read.problems();
}

INSTANTIATE_TEST_SUITE_P(Dwg, DamagedDrawings,
                         testing::Values(Release::R14, Release::R2000, Release::R2007, Release::R2018),
                         [](const auto &row) { return "AC" + std::to_string(static_cast<int>(row.param)); });

} // namespace host::dwg::test
