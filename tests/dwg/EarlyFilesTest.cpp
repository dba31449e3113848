// Files of R9 to R12 that the tests make, for what no pair has: header, tables, blocks, jumps, and records that are not
// as they should be.

#include "tests/dwg/EarlyReadBack.h"

#include <gtest/gtest.h>

namespace host::dwg::test {

TEST(EarlyDwg, TablesAreThoseOfTheRelease)
{
    const DrawingText drawing = readDrawing(earlyMakerWithTables(r12).file());
    const TextTree tree = readTree(drawing.text);
    EXPECT_EQ(earlyProblemsOf(drawing), "");
    EXPECT_EQ(earlyRecordsOf(tree, "VIEW"),
              "VIEW 2 FRONT 70 0 40 1.0 10 2.0 20 3.0 41 4.0 11 0.0 21 -1.0 31 0.0 12 5.0 22 6.0 "
              "32 7.0 42 50.0 43 0.0 44 0.0 50 0.0 71 1\n");
    EXPECT_EQ(earlyRecordsOf(tree, "UCS"),
              "UCS 2 SIDE 70 0 10 1.0 20 2.0 30 3.0 11 0.0 21 1.0 31 0.0 12 0.0 22 0.0 32 1.0\n");
    EXPECT_EQ(
        earlyRecordsOf(tree, "DIMSTYLE"),
        "DIMSTYLE 2 MADE 70 0 3 <>mm 4  5 DOT 6  7  40 1.0 41 2.0 42 3.0 43 4.0 44 5.0 45 6.0 46 7.0 47 8.0 48 9.0 "
        "140 10.0 141 11.0 142 12.0 143 13.0 144 14.0 145 15.0 146 16.0 147 17.0 71 1 72 2 73 3 74 4 75 5 76 6 77 "
        "7 78 8 170 9 171 10 172 11 173 12 174 13 175 14 176 1 177 2 178 3\n");
    const TextTree early = readTree(readDrawing(earlyMakerWithTables(r9).file()).text);
    EXPECT_EQ(earlyRecordsOf(early, "VIEW"), "VIEW 2 FRONT 70 0 40 1.0 10 2.0 20 3.0 41 4.0 11 0.0 21 -1.0 31 0.0\n");
    EXPECT_EQ(earlyRecordsOf(early, "APPID"), "");
}

TEST(EarlyDwg, WhatIsNotKnownOfAViewIsLeftOut)
{
    EarlyFileMaker maker(r12);
    maker.addRecord(EarlyTableKind::Views, 0, "TURNED",
                    "1.0 2.0 3.0 4.0 0.0 -1.0 0.0 w0 5.0 6.0 7.0 50.0 0.0 1.0 0.0 w1");
    const DrawingText drawing = readDrawing(maker.file());
    EXPECT_EQ(
        earlyRecordsOf(readTree(drawing.text), "VIEW"),
        "VIEW 2 TURNED 70 0 40 1.0 10 2.0 20 3.0 41 4.0 11 0.0 21 -1.0 31 0.0 12 5.0 22 6.0 32 7.0 42 50.0 71 1\n");
    EXPECT_EQ(earlyProblemsOf(drawing), "VIEW: Clipping planes and turn of the view are left out.\n");
}

TEST(EarlyDwg, DeletedRecordsOfTablesAreCountedAlone)
{
    EarlyFileMaker maker(r9);
    maker.addRecord(EarlyTableKind::Layers, 128, "GONE", "w1 w0");
    maker.addRecord(EarlyTableKind::Layers, 1, "FROZEN", "w-3 w255");
    maker.addRecord(EarlyTableKind::Linetypes, 0, "DASHED", "\"- z47 b65 b2 1.5 1.0 -0.5 z80");
    maker.addRecord(EarlyTableKind::Linetypes, 0, "WRONG", "\"- z47 b65 b13 1.5 1.0 -0.5 z80");
    maker.addRecord(EarlyTableKind::Styles, 0, "LONG", "0.0 1.0 0.0 b0 0.2 \"txt z126");
    const DrawingText drawing = readDrawing(maker.file());
    const TextTree tree = readTree(drawing.text);
    EXPECT_EQ(earlyRecordsOf(tree, "LAYER"), "LAYER 2 0 70 0 62 7 6 CONTINUOUS\nLAYER 2 FROZEN 70 1 62 -3 6 BYBLOCK\n");
    EXPECT_EQ(earlyRecordsOf(tree, "LTYPE"), "LTYPE 2 CONTINUOUS 70 64 3 Solid line 72 65 73 0 40 0.0\n"
                                             "LTYPE 2 DASHED 70 0 3 - 72 65 73 2 40 1.5 49 1.0 49 -0.5\n");
    EXPECT_NE(drawing.text.find("TABLE\n  2\nLAYER\n 70\n3\n"), std::string::npos);
    EXPECT_EQ(earlyProblemsOf(drawing), "LTYPE: Its values do not fill its record.\n"
                                        "STYLE: Its values do not fill its record.\n");
}

TEST(EarlyDwg, RecordsOfTablesWithoutNamesAreLostAndCounted)
{
    EarlyFileMaker maker(r9);
    maker.addRecord(EarlyTableKind::Layers, 0, "", "w1 w0");
    maker.addRecord(EarlyTableKind::Linetypes, 0, "", "\"- z47 b65 b2 1.5 1.0 -0.5 z80");
    maker.addRecord(EarlyTableKind::Layers, 0, "WALLS", "w2 w1");
    maker.addRecord(EarlyTableKind::Blocks, 0, "A\x03", "l1073741824");
    for (const int flags : {0, 1})
        maker.addRecord(EarlyTableKind::Styles, flags, "", "0.0 1.0 0.0 b0 0.2 \"shapes z122");
    maker.setHeader(0x14a, "w1");
    for (const char *layer : {"w1", "w2"})
        maker.addEntityOn(layer, 2, 0x02, 0, "b1 1.0 2.0");
    const DrawingText drawing = readDrawing(maker.file());
    const TextTree tree = readTree(drawing.text);
    EXPECT_EQ(earlyRecordsOf(tree, "LAYER"),
              "LAYER 2 0 70 0 62 7 6 CONTINUOUS\nLAYER 2 WALLS 70 0 62 2 6 CONTINUOUS\n");
    EXPECT_EQ(earlyRecordsOf(tree, "ENTITIES"), "POINT 8 0 10 1.0 20 2.0\nPOINT 8 WALLS 10 1.0 20 2.0\n");
    EXPECT_EQ(earlyRecordsOf(tree, "HEADER").find("$CLAYER"), std::string::npos);
    EXPECT_TRUE(earlyRecordsOf(tree, "STYLE").starts_with("STYLE 2  70 1 40 0.0")) << earlyRecordsOf(tree, "STYLE");
    std::string expected;
    for (const char *type : {"BLOCK", "LTYPE", "LAYER", "STYLE"})
        expected += type + std::string(": It has no name.\n");
    EXPECT_EQ(earlyProblemsOf(drawing), expected);
}

TEST(EarlyDwg, BlocksHaveWhatTheirTableSays)
{
    EarlyFileMaker maker(r12);
    maker.addToBlocks(12, 0x04, 0x06, "3.0 1.0 2.0 'C:\\PLAN.DWG 'PLAN");
    const std::size_t second = maker.addToBlocks(13, 0, 0, "") + 10;
    maker.addToBlocks(12, 0, 0x04, "0.0 0.0 '*U");
    const std::size_t broken = maker.addToBlocks(2, 0, 0, "1.0 2.0 3.0");
    const auto address = [](std::size_t place) {
        return 'l' + std::to_string(place | EarlyFileMaker::blocksBit) + " l-1";
    };
    maker.addRecord(EarlyTableKind::Blocks, 4, "PLAN", address(0));
    maker.addRecord(EarlyTableKind::Blocks, 1, "*U", address(second));
    maker.addRecord(EarlyTableKind::Blocks, 0, "BROKEN", address(broken));
    const DrawingText drawing = readDrawing(maker.file());
    const TextTree tree = readTree(drawing.text);
    EXPECT_EQ(earlyRecordsOf(tree, "BLOCKS"),
              "BLOCK 8 0 2 PLAN 70 4 10 1.0 20 2.0 30 3.0 3 PLAN 1 C:\\PLAN.DWG\nENDBLK 8 0\n"
              "BLOCK 8 0 2 *U1 70 1 10 0.0 20 0.0 30 0.0 3 *U\nPOINT 8 0 10 1.0 20 2.0 30 3.0\nENDBLK\n");
    EXPECT_EQ(earlyProblemsOf(drawing), "BLOCK: There is no block at its place: BROKEN.\n");
}

TEST(EarlyDwg, NothingShowsABlockThatIsLost)
{
    struct LostBlockRow
    {
        int tableFlags;
        int type;
        const char *values;
        std::size_t lost; ///< with the two insertions
    };
    for (const LostBlockRow &row : {LostBlockRow{128, 12, "0.0 0.0", 2}, {0, 2, "1.0 2.0", 3}, {0, 12, "0.0", 3}}) {
        EarlyFileMaker maker(r9);
        maker.addToBlocks(12, 0, 0, "0.0 0.0");
        maker.addToBlocks(14, 0, 0, "w1 5.0 6.0");
        const std::size_t gone = maker.addToBlocks(13, 0, 0, "") + 8;
        maker.addToBlocks(row.type, 0, 0, row.values);
        maker.addRecord(EarlyTableKind::Blocks, 0, "PARENT", "l1073741824");
        maker.addRecord(EarlyTableKind::Blocks, row.tableFlags, "GONE",
                        'l' + std::to_string(gone | EarlyFileMaker::blocksBit));
        maker.addEntity(14, 0x80, 0, "w1 1.0 2.0");
        maker.addEntity(16, 0, 0, "1.0 2.0 3.0 'one 'TAG b0");
        maker.addEntity(14, 0, 0, "w0 1.0 2.0");
        const DrawingText drawing = readDrawing(maker.file());
        const TextTree tree = readTree(drawing.text);
        EXPECT_EQ(earlyRecordsOf(tree, "BLOCKS"), "BLOCK 8 0 2 PARENT 70 0 10 0.0 20 0.0\nENDBLK 8 0\n");
        EXPECT_EQ(earlyRecordsOf(tree, "ENTITIES"), "INSERT 8 0 2 PARENT 10 1.0 20 2.0\n");
        EXPECT_EQ(drawing.problems.lostCount(), row.lost) << earlyProblemsOf(drawing);
    }
}

TEST(EarlyDwg, JumpsAreFollowedAndRingsEnd)
{
    for (const Release release : {r9, r12}) {
        EarlyFileMaker maker(release);
        maker.addEntity(3, 0, 0, "1.0 0.0 1.0");
        maker.addJump(0, EarlyFileMaker::furtherBit);
        const std::size_t back = maker.addEntity(3, 0, 0, "3.0 0.0 1.0");
        maker.addFurther(3, 0, 0, "2.0 0.0 1.0");
        EarlyFileMaker ring = maker;
        maker.addJumpBack(back);
        const DrawingText drawing = readDrawing(maker.file());
        std::string centers;
        for (const TextNode &node : readTree(drawing.text).nodes)
            centers += !node.tags.empty() && node.type() == "CIRCLE" ? node.tags[2].value + ' ' : "";
        EXPECT_EQ(centers, "1.0 2.0 3.0 ");
        EXPECT_EQ(earlyProblemsOf(drawing), "");
        ring.addJumpBack(0);
        EXPECT_EQ(readDrawing(ring.file()).problems.lostCount(), 1u);
        EarlyFileMaker outside(release);
        outside.addJump(0x7fffffff, 0);
        EXPECT_EQ(readDrawing(outside.file()).problems.lostCount(), 1u);
    }
}

TEST(EarlyDwg, EntitiesMayStandBehindEverything)
{
    EarlyFileMaker maker = earlyMakerWithTables(r9);
    maker.addEntity(3, 0, 0, "1.0 0.0 1.0");
    EarlyFileMaker::File file = maker.file();
    const DrawingText there = readDrawing(file);
    const std::size_t end = file.size();
    const EarlyFileMaker::File entity(file.begin() + static_cast<std::ptrdiff_t>(maker.entitiesBegin()),
                                      file.begin() + static_cast<std::ptrdiff_t>(maker.entitiesBegin()) + 32);
    file.insert(file.end(), entity.begin(), entity.end());
    for (int i = 0; i < 4; ++i) {
        file[std::size_t(0x14 + i)] = static_cast<std::uint8_t>(end >> 8 * i);
        file[std::size_t(0x18 + i)] = static_cast<std::uint8_t>(file.size() >> 8 * i);
    }
    const DrawingText behind = readDrawing(file);
    EXPECT_EQ(behind.text, there.text);
    EXPECT_EQ(earlyProblemsOf(behind), "");
}

TEST(EarlyDwg, TheHeaderHasWhatItsReleaseHas)
{
    EarlyFileMaker maker = earlyMakerWithTables(r12);
    maker.setHeader(0x4ec, "w1 h0000000000001A2B");
    maker.setHeader(0x510, "w0");
    maker.setHeader(0x52c, "w0 w1 w2 w3");
    maker.setHeader(0x31d, "w0");
    const TextTree tree = readTree(readDrawing(maker.file()).text);
    const std::string header = earlyRecordsOf(tree, "HEADER");
    for (const char *line : {"$HANDLING 70 1\n", "$HANDSEED 5 1A2B\n", "$UCSNAME 2 SIDE\n", "$DIMSTYLE 2 MADE\n",
                             "$DIMCLRT 70 3\n", "$CELTYPE 6 CONTINUOUS\n", "$INSBASE 10 0.0 20 0.0 30 0.0\n"})
        EXPECT_NE(header.find(line), std::string::npos) << line;
    const std::string early = earlyRecordsOf(readTree(readDrawing(earlyMakerWithTables(r10).file()).text), "HEADER");
    EXPECT_NE(early.find("$SPLINETYPE"), std::string::npos);
    EXPECT_EQ(early.find("$TILEMODE"), std::string::npos);
}

TEST(EarlyDwg, ValuesOfTheHeaderThatCannotBeAreLeftOut)
{
    constexpr std::pair<std::size_t, const char *> places[] = {
        {0x5e, "0.0 1e200 0.0"}, {0x128, "w-1"}, {0x132, "h000000000000F0FF"}, {0x31b, "w257"}, {0x31f, "l99999999 l0"},
        {0x353, "-1e300"},       {0x36f, "w-1"},
    };
    EarlyFileMaker maker = earlyMakerWithTables(r12);
    for (const auto &[at, values] : places)
        maker.setHeader(at, values);
    const DrawingText drawing = readDrawing(maker.file());
    std::string expected;
    for (const char *name : {"$INSBASE", "$ORTHOMODE", "$LTSCALE", "$CECOLOR", "$TDCREATE", "$ANGBASE"}) {
        EXPECT_EQ(drawing.text.find(name), std::string::npos) << name;
        expected += std::string("The value of ") + name + " cannot be; it is left out.\n";
    }
    EXPECT_EQ(earlyProblemsOf(drawing), expected);
    EXPECT_NE(drawing.text.find("$USERI1\n 70\n-1\n"), std::string::npos);
}

TEST(EarlyDwg, WhatIsNoDrawingIsRefused)
{
    const std::string refusal = "Neither header and tables nor entities are those of a drawing.\n";
    EarlyFileMaker maker = earlyMakerWithTables(r9);
    const EarlyFileMaker::File whole = maker.file();
    for (const char *release : {"AC1003", "AC1004", "AC1006", "AC1009"}) {
        for (const int filling : {0x00, 0xff, 0x14, -1}) {
            // -1: a file of another release, whose header stands elsewhere.
            EarlyFileMaker::File file = filling < 0 ? EarlyFileMaker::File(whole.begin() + 64, whole.end())
                                                    : EarlyFileMaker::File(5000, static_cast<std::uint8_t>(filling));
            std::copy_n(release, 6, file.begin());
            const DrawingText drawing = readDrawing(file);
            EXPECT_EQ(drawing.text, "") << release << ' ' << filling;
            EXPECT_TRUE(earlyProblemsOf(drawing).ends_with(refusal)) << release << ' ' << filling;
        }
    }
    // One entity that can be read is a drawing, and so is the first layer.
    EXPECT_NE(readDrawing(whole).text, "");
    maker.addEntity(3, 0, 0, "1.0 2.0 3.0");
    EarlyFileMaker::File file = maker.file();
    std::fill_n(file.begin() + 0x2c, 50, std::uint8_t{0xff});
    EXPECT_EQ(earlyRecordsOf(readTree(readDrawing(file).text), "ENTITIES"), "CIRCLE 8 0 10 1.0 20 2.0 40 3.0\n");
}

TEST(EarlyDwg, ReadingGoesOnBehindDamage)
{
    for (const Release release : {r9, r10, r12}) {
        EarlyFileMaker maker = earlyMakerWithTables(release);
        const char *circle = "1.0 2.0 3.0";
        const std::size_t damaged = maker.addEntity(3, 0, 0, circle);
        maker.addEntity(7, 0, 0, "1.0 2.0 3.0 'text");
        maker.addEntity(3, 0, 0, circle);
        for (const std::uint8_t length : {0, 7, 255}) {
            EarlyFileMaker::File file = maker.file();
            file[maker.entitiesBegin() + damaged + 2] = length;
            file[maker.entitiesBegin() + damaged + 3] = length;
            const DrawingText drawing = readDrawing(file);
            const std::string records = earlyRecordsOf(readTree(drawing.text), "ENTITIES");
            EXPECT_TRUE(records.starts_with("TEXT 8 0 10 1.0 20 2.0")) << records;
            EXPECT_NE(records.find("\nCIRCLE"), std::string::npos) << records;
            EXPECT_EQ(drawing.problems.lostCount(), 1u);
        }
    }
}

TEST(EarlyDwg, ChecksumsThatDoNotFitAreTold)
{
    EarlyFileMaker maker = earlyMakerWithTables(r12);
    maker.addEntity(3, 0, 0, "1.0 2.0 3.0");
    const auto problemsWith = [&maker](std::size_t changed) {
        EarlyFileMaker::File file = maker.file();
        file[changed] ^= 1;
        return earlyProblemsOf(readDrawing(file));
    };
    EXPECT_EQ(problemsWith(0x70), "The checksum of the header does not fit.\n");
    EXPECT_EQ(problemsWith(maker.entitiesBegin() + 9), "CIRCLE: The checksum does not fit.\n");
    EXPECT_EQ(problemsWith(maker.entitiesBegin() + 34 + 8), "A checksum of the table BLOCK does not fit.\n");
}

TEST(EarlyDwg, CountsMayBeAnything)
{
    const EarlyFileMaker::File whole = earlyMakerWithTables(r12).file();
    constexpr std::uint8_t heads[][10] = {
        {0, 0, 255, 255},                        // records without a size
        {1, 0, 255, 255},                        // records without room for a name
        {255, 255, 255, 255},                    // more than the file has
        {41, 0, 1, 0, 0, 0, 255, 255, 255, 255}, // behind the file
    };
    for (const std::size_t at : {0x2c, 0x36, 0x40, 0x4a, 0x54, 0x3ef, 0x500, 0x512, 0x522}) {
        for (const auto &head : heads) {
            EarlyFileMaker::File file = whole;
            std::copy_n(head, sizeof head, file.begin() + static_cast<std::ptrdiff_t>(at));
            const std::string problems = earlyProblemsOf(readDrawing(file));
            EXPECT_NE(problems.find("A table has more records than"), std::string::npos) << at << ' ' << problems;
        }
    }
}

} // namespace host::dwg::test
