// Entities in files of R9 to R12 that the tests make, for what no pair has: each type with its options, what all
// entities have, and lists of vertices and attributes.

#include "tests/dwg/EarlyReadBack.h"

#include <gtest/gtest.h>

namespace host::dwg::test {

namespace {

/// Of the entities that tests of lists have.
bool isEntity(const TextNode &node)
{
    const bool hasType = !node.tags.empty() && node.tags[0].code == 0;
    return hasType &&
           (node.type() == "POLYLINE" || node.type() == "VERTEX" || node.type() == "SEQEND" || node.type() == "REPEAT");
}

struct EarlyEntityRow
{
    const char *name;
    Release release;
    int type;
    int flags;
    int options;
    const char *values;
    const char *record;        ///< empty where the entity is lost
    const char *problems = ""; ///< without the line's end
};

constexpr const char *lost = "Its values do not fill its record.";

const EarlyEntityRow earlyEntityRows[] = {
    // What all entities have.
    {"colour", r12, 2, 0x01, 0, "b1 1.0 2.0 3.0", "POINT 8 0 62 1 10 1.0 20 2.0 30 3.0"},
    {"linetype of two bytes", r12, 2, 0x02, 0, "w0 1.0 2.0 3.0", "POINT 8 0 6 CONTINUOUS 10 1.0 20 2.0 30 3.0"},
    {"linetype of the block", r12, 2, 0x03, 0, "b0 w32766 1.0 2.0 3.0",
     "POINT 8 0 6 BYBLOCK 62 0 10 1.0 20 2.0 30 3.0"},
    {"linetype of one byte", r9, 2, 0x02, 0, "b0 1.0 2.0", "POINT 8 0 6 CONTINUOUS 10 1.0 20 2.0"},
    {"linetype of R10 of one byte", r10, 2, 0x02, 0, "b255 1.0 2.0 3.0", "POINT 8 0 6 BYBLOCK 10 1.0 20 2.0 30 3.0"},
    {"linetype of R10 of two bytes", r10, 2, 0x02, 0, "w0 1.0 2.0 3.0", "POINT 8 0 6 CONTINUOUS 10 1.0 20 2.0 30 3.0"},
    {"elevation of R9", r9, 3, 0x04, 0, "7.0 1.0 2.0 3.0", "CIRCLE 8 0 38 7.0 10 1.0 20 2.0 40 3.0"},
    {"elevation", r12, 3, 0x04, 0, "7.0 1.0 2.0 3.0", "CIRCLE 8 0 10 1.0 20 2.0 30 7.0 40 3.0"},
    {"thickness", r12, 3, 0x08, 0, "7.0 1.0 2.0 3.0", "CIRCLE 8 0 39 7.0 10 1.0 20 2.0 30 0.0 40 3.0"},
    {"handle", r12, 3, 0x20, 0, "b2 h1A2B 1.0 2.0 3.0", "CIRCLE 5 1A2B 8 0 10 1.0 20 2.0 30 0.0 40 3.0"},
    {"handle of what is too long", r12, 3, 0x20, 0, "b1 hAB 1.0 2.0 3.0 4.0", "",
     "CIRCLE AB: Its values do not fill its record."},
    {"handle of nine bytes", r12, 3, 0x20, 0, "b9 h112233445566778899 1.0 2.0 3.0", "", lost},
    {"paper space", r12, 3, 0x40, 0, "b4 w1 1.0 2.0 3.0", "CIRCLE 8 0 67 1 10 1.0 20 2.0 30 0.0 40 3.0"},
    {"all at once", r12, 3, 0x6f, 0, "b3 b4 w0 4.0 5.0 b1 hFF w2 1.0 2.0 3.0",
     "CIRCLE 5 FF 8 0 6 CONTINUOUS 39 5.0 62 3 67 1 10 1.0 20 2.0 30 4.0 40 3.0"},
    {"extended data", r12, 3, 0x40, 0,
     "b2 w70 b1 w0 b0 b3 \"a_b b2 b0 b3 w0 b4 b2 h01FF b5 h00000000000000AB b10 1.0 2.0 3.0 b40 4.0 b70 w-5 b71 l-6 b2 "
     "b1 1.0 2.0 3.0",
     "CIRCLE 8 0 10 1.0 20 2.0 30 0.0 40 3.0 1001 MADE 1000 a b 1002 { 1003 0 1004 01FF 1005 AB 1010 1.0 1020 2.0 1030 "
     "3.0 1040 4.0 1070 -5 1071 -6 1002 }"},
    {"extended data of an unknown kind", r12, 3, 0x40, 0, "b2 w2 b99 b1 1.0 2.0 3.0",
     "CIRCLE 8 0 10 1.0 20 2.0 30 0.0 40 3.0", "The extended data are left out."},
    {"extended data beyond the record", r12, 3, 0x40, 0, "b2 w300 b1 w0 1.0 2.0 3.0", "", lost},

    // Types with their options.
    {"LINE", r12, 1, 0, 0x01, "1.0 2.0 3.0 4.0 5.0 6.0 0.0 0.0 -1.0",
     "LINE 8 0 10 1.0 20 2.0 30 3.0 11 4.0 21 5.0 31 6.0 210 0.0 220 0.0 230 -1.0"},
    {"LINE on the ground", r12, 1, 0x04, 0, "1.0 2.0 4.0 5.0", "LINE 8 0 10 1.0 20 2.0 30 0.0 11 4.0 21 5.0 31 0.0"},
    {"LINE of R9 with an elevation", r9, 1, 0x04, 0, "9.0 1.0 2.0 4.0 5.0",
     "LINE 8 0 38 9.0 10 1.0 20 2.0 11 4.0 21 5.0"},
    {"LINE that is too short", r12, 1, 0, 0, "1.0 2.0 3.0 4.0 5.0", "", lost},
    {"LINE that is too long", r12, 1, 0, 0, "1.0 2.0 3.0 4.0 5.0 6.0 7.0", "", lost},
    {"POINT with a direction", r12, 2, 0, 0x02, "1.0 2.0 3.0 0.0", "POINT 8 0 10 1.0 20 2.0 30 3.0 50 0.0"},
    {"SHAPE", r12, 4, 0, 0x1f, "1.0 2.0 3.0 b131 0.0 b1 2.0 0.0 0.0 0.0 1.0",
     "SHAPE 8 0 10 1.0 20 2.0 30 0.0 40 3.0 2 131 50 0.0 41 2.0 51 0.0 210 0.0 220 0.0 230 1.0"},
    {"REPEAT", r9, 5, 0, 0, "", "REPEAT 8 0"},
    {"ENDREP", r9, 6, 0, 0, "w3 w4 5.0 6.0", "ENDREP 8 0 70 3 71 4 44 5.0 45 6.0"},
    {"LOAD", r9, 10, 0, 0, "'es", "LOAD 8 0 1 es"},
    {"TEXT", r12, 7, 0, 0x1ff, "1.0 2.0 3.0 'a_b 0.0 2.0 0.0 b0 b2 b1 4.0 5.0 0.0 0.0 1.0 b3",
     "TEXT 8 0 10 1.0 20 2.0 30 0.0 40 3.0 1 a b 50 0.0 41 2.0 51 0.0 7 STANDARD 71 2 72 1 11 4.0 21 5.0 31 0.0 210 "
     "0.0 "
     "220 0.0 230 1.0 73 3"},
    {"TEXT without its style", r12, 7, 0, 0x08, "1.0 2.0 3.0 'text b9", "TEXT 8 0 10 1.0 20 2.0 30 0.0 40 3.0 1 text"},
    {"TEXT longer than its record", r12, 7, 0, 0, "1.0 2.0 3.0 w500 \"abc", "", lost},
    {"ARC", r12, 8, 0, 0x01, "1.0 2.0 3.0 0.0 3.141592653589793 0.0 0.0 -1.0",
     "ARC 8 0 10 1.0 20 2.0 30 0.0 40 3.0 50 0.0 51 180.0 210 0.0 220 0.0 230 -1.0"},
    {"TRACE of R9", r9, 9, 0, 0, "1.0 2.0 3.0 4.0 5.0 6.0 7.0 8.0",
     "TRACE 8 0 10 1.0 20 2.0 11 3.0 21 4.0 12 5.0 22 6.0 13 7.0 23 8.0"},
    {"SOLID", r12, 11, 0x04, 0x01, "9.0 1.0 2.0 3.0 4.0 5.0 6.0 7.0 8.0 0.0 0.0 -1.0",
     "SOLID 8 0 10 1.0 20 2.0 30 9.0 11 3.0 21 4.0 31 9.0 12 5.0 22 6.0 32 9.0 13 7.0 23 8.0 33 9.0 210 0.0 220 0.0 "
     "230 "
     "-1.0"},
    {"INSERT in rows", r12, 14, 0, 0x1ff, "w0 1.0 2.0 3.0 4.0 0.0 5.0 w6 w7 8.0 9.0 0.0 0.0 1.0",
     "INSERT 8 0 2 TREE 10 1.0 20 2.0 30 0.0 41 3.0 42 4.0 50 0.0 43 5.0 70 6 71 7 44 8.0 45 9.0 210 0.0 220 0.0 230 "
     "1.0"},
    {"INSERT of no block", r12, 14, 0, 0, "w9 1.0 2.0", "", "INSERT: Its block is lost."},
    {"ATTDEF", r12, 15, 0, 0x201, "1.0 2.0 3.0 'one 'Which? 'TAG b8 b5 b2",
     "ATTDEF 8 0 10 1.0 20 2.0 30 0.0 40 3.0 1 one 3 Which? 2 TAG 70 8 73 5 74 2"},
    {"ATTRIB", r9, 16, 0, 0xfe, "1.0 2.0 3.0 'one 'TAG b0 0.0 2.0 0.0 b0 b2 b1 4.0 5.0",
     "ATTRIB 8 0 10 1.0 20 2.0 40 3.0 1 one 2 TAG 70 0 50 0.0 41 2.0 51 0.0 7 STANDARD 71 2 72 1 11 4.0 21 5.0"},
    {"SEQEND", r12, 17, 0, 0, "l0", "SEQEND 8 0"},
    {"POLYLINE", r12, 19, 0x80, 0x0f, "b1 2.0 3.0 0.0 0.0 1.0",
     "POLYLINE 8 0 66 1 10 0.0 20 0.0 30 0.0 70 1 40 2.0 41 3.0 210 0.0 220 0.0 230 1.0"},
    {"POLYLINE of a mesh", r10, 19, 0x84, 0x1f1, "5.0 b16 w3 w4 w5 w6 w8",
     "POLYLINE 8 0 66 1 10 0.0 20 0.0 30 5.0 70 16 71 3 72 4 73 5 74 6 75 8"},
    {"VERTEX", r12, 20, 0x04, 0x1f, "9.0 1.0 2.0 3.0 4.0 5.0 b1 0.0",
     "VERTEX 8 0 10 1.0 20 2.0 30 9.0 40 3.0 41 4.0 42 5.0 70 1 50 0.0"},
    {"VERTEX that is a face", r12, 20, 0, 0x41e8, "b128 w1 w2 w-3 w4",
     "VERTEX 8 0 10 0.0 20 0.0 30 0.0 70 128 71 1 72 2 73 -3 74 4"},
    {"3DLINE", r9, 21, 0, 0x03, "1.0 2.0 3.0 4.0 5.0 6.0", "3DLINE 8 0 10 1.0 20 2.0 30 3.0 11 4.0 21 5.0 31 6.0"},
    {"3DLINE to above", r9, 21, 0, 0x02, "1.0 2.0 4.0 5.0 6.0", "3DLINE 8 0 10 1.0 20 2.0 11 4.0 21 5.0 31 6.0"},
    {"3DFACE", r12, 22, 0, 0x01, "1.0 2.0 3.0 4.0 5.0 6.0 7.0 8.0 9.0 7.0 8.0 9.0 w5",
     "3DFACE 8 0 10 1.0 20 2.0 30 3.0 11 4.0 21 5.0 31 6.0 12 7.0 22 8.0 32 9.0 13 7.0 23 8.0 33 9.0 70 5"},
    {"3DFACE on the ground", r12, 22, 0x04, 0, "1.0 2.0 4.0 5.0 7.0 8.0 7.0 8.0",
     "3DFACE 8 0 10 1.0 20 2.0 30 0.0 11 4.0 21 5.0 31 0.0 12 7.0 22 8.0 32 0.0 13 7.0 23 8.0 33 0.0"},
    {"3DFACE of R9", r9, 22, 0, 0x11, "1.0 2.0 3.0 4.0 5.0 7.0 8.0 7.0 8.0 b1",
     "3DFACE 8 0 10 1.0 20 2.0 30 3.0 11 4.0 21 5.0 12 7.0 22 8.0 13 7.0 23 8.0 70 1"},
    {"DIMENSION", r12, 23, 0, 0x13e, "w0 1.0 2.0 3.0 4.0 5.0 b2 '<> 6.0 7.0 8.0 9.0 10.0 11.0 12.0 13.0 14.0 0.0",
     "DIMENSION 8 0 2 TREE 10 1.0 20 2.0 30 3.0 11 4.0 21 5.0 31 0.0 70 2 1 <> 13 6.0 23 7.0 33 8.0 14 9.0 24 10.0 34 "
     "11.0 15 12.0 25 13.0 35 14.0 50 0.0"},
    {"DIMENSION with a style", r12, 23, 0, 0x26c3, "w0 1.0 2.0 3.0 4.0 5.0 6.0 7.0 b2 8.0 9.0 10.0 0.0 0.0 0.0 1.0 w0",
     "DIMENSION 8 0 2 TREE 10 1.0 20 2.0 30 3.0 11 4.0 21 5.0 31 0.0 12 6.0 22 7.0 32 0.0 70 2 16 8.0 26 9.0 36 0.0 40 "
     "10.0 51 0.0 210 0.0 220 0.0 230 1.0 3 MADE"},
    {"DIMENSION with a turned text", r12, 23, 0, 0x800, "w0 1.0 2.0 3.0 4.0 5.0 1.0",
     "DIMENSION 8 0 2 TREE 10 1.0 20 2.0 30 3.0 11 4.0 21 5.0 31 0.0",
     "The turn of its text or of its extension lines is left out."},
    {"DIMENSION of no block, without its style", r12, 23, 0, 0, "w9 1.0 2.0 3.0 4.0 5.0 w9",
     "DIMENSION 8 0 10 1.0 20 2.0 30 3.0 11 4.0 21 5.0 31 0.0", "DIMENSION: The block with its lines is lost."},
    {"DIMENSION of R10 with flat points", r10, 23, 0, 0x08, "w0 1.0 2.0 4.0 5.0 6.0 7.0",
     "DIMENSION 8 0 2 TREE 10 1.0 20 2.0 30 0.0 11 4.0 21 5.0 31 0.0 13 6.0 23 7.0 33 0.0"},
    {"DIMENSION of R10 with points in space", r10, 23, 0, 0x08, "w0 1.0 2.0 3.0 4.0 5.0 6.0 7.0 8.0",
     "DIMENSION 8 0 2 TREE 10 1.0 20 2.0 30 3.0 11 4.0 21 5.0 31 0.0 13 6.0 23 7.0 33 8.0"},
    {"VIEWPORT", r12, 24, 0x40, 0x01, "b4 w1 1.0 2.0 3.0 4.0 5.0 w2 w3",
     "VIEWPORT 8 0 67 1 10 1.0 20 2.0 30 3.0 40 4.0 41 5.0 68 2 69 3"},
    {"VIEWPORT on the ground", r12, 24, 0, 0, "1.0 2.0 4.0 5.0 w2",
     "VIEWPORT 8 0 10 1.0 20 2.0 30 0.0 40 4.0 41 5.0 68 2"},
    {"deleted", r12, 129, 0, 0, "1.0 2.0 3.0 4.0 5.0 6.0", ""},
    {"BLOCK that is in none", r12, 12, 0, 0, "1.0 2.0", "", "type 12: Entities of this type are not read."},
    {"ENDBLK of no block", r12, 13, 0, 0, "", ""},
    {"of no type", r12, 99, 0, 0, "1.0", "", "type 99: Entities of this type are not read."},
};

bool isListed(const EarlyEntityRow &row)
{
    return row.type == 16 || row.type == 17 || row.type == 20;
}

/// What stands in a list gets an insert or a polyline in front.
EarlyFileMaker makerOf(const EarlyEntityRow &row)
{
    EarlyFileMaker maker = earlyMakerWithTables(row.release);
    if (row.type == 16)
        maker.addEntity(14, 0x80, 0, "w0 1.0 2.0");
    else if (isListed(row))
        maker.addEntity(19, 0x80, 0, "");
    maker.addEntity(row.type, row.flags, row.options, row.values);
    return maker;
}

/// A list that has no end gets one.
std::string expectedOf(const EarlyEntityRow &row)
{
    std::string records = isListed(row) ? "POLYLINE 8 0 66 1" : "";
    if (row.type == 16)
        records = "INSERT 8 0 66 1 2 TREE 10 1.0 20 2.0\n";
    else if (isListed(row))
        records += row.release < r10 ? "\n" : " 10 0.0 20 0.0 30 0.0\n";
    records += row.record[0] ? row.record + std::string("\n") : "";
    const bool isOpen = isListed(row) ? row.type != 17 : (row.flags & 0x80) != 0;
    return records + (isOpen ? "SEQEND\n" : "");
}

} // namespace

TEST(EarlyDwg, EntitiesHaveTheirOptions)
{
    for (const EarlyEntityRow &row : earlyEntityRows) {
        const DrawingText drawing = readDrawing(makerOf(row).file());
        const std::string records = earlyRecordsOf(readTree(drawing.text), "ENTITIES");
        EXPECT_EQ(records, expectedOf(row)) << row.name;
        const std::string problems = earlyProblemsOf(drawing);
        const bool isTold = row.problems[0] ? problems.ends_with(row.problems + std::string("\n")) : problems.empty();
        EXPECT_TRUE(isTold) << row.name << ": " << problems;
        EXPECT_EQ(drawing.problems.lostCount() != 0, !row.record[0] && row.problems[0]) << row.name;
    }
}

TEST(EarlyDwg, ListsHaveAnOwnerAndAnEnd)
{
    struct ListRow
    {
        std::vector<std::pair<int, int>> entities; ///< types and flags
        const char *types;
        std::size_t lost;
    };
    constexpr int polyline = 19;
    constexpr int vertex = 20;
    constexpr int end = 17;
    constexpr int attribute = 16;
    constexpr int repeat = 5;
    const ListRow rows[] = {
        {{{polyline, 0x80}, {vertex, 0}, {end, 0}, {repeat, 0}}, "POLYLINE VERTEX SEQEND REPEAT ", 0},
        {{{polyline, 0x80}, {vertex, 0}, {repeat, 0}}, "POLYLINE VERTEX SEQEND REPEAT ", 0},
        {{{polyline, 0x80}, {vertex | 0x80, 0}, {vertex, 0}, {end, 0}}, "POLYLINE VERTEX SEQEND ", 0},
        {{{polyline | 0x80, 0x80}, {vertex, 0}, {end, 0}, {repeat, 0}}, "REPEAT ", 0},
        {{{polyline, 0}, {vertex, 0}, {end, 0}, {repeat, 0}}, "POLYLINE VERTEX SEQEND REPEAT ", 0},
        {{{polyline, 0}, {repeat, 0}, {vertex, 0}}, "POLYLINE SEQEND REPEAT ", 1},
        {{{polyline, 0x88}, {vertex, 0}, {end, 0}, {repeat, 0}}, "REPEAT ", 1},
        {{{repeat, 0x80}, {vertex, 0}, {end, 0}}, "REPEAT ", 2},
        {{{polyline, 0x80}, {attribute, 0}, {vertex, 0}, {end, 0}}, "POLYLINE VERTEX SEQEND ", 1},
        {{{polyline, 0x80}, {repeat | 0x80, 0x80}, {vertex, 0}}, "POLYLINE VERTEX SEQEND ", 0},
    };
    for (const ListRow &row : rows) {
        EarlyFileMaker maker(r9);
        for (const auto &[type, flags] : row.entities)
            maker.addEntity(type, flags, 0, type == vertex ? "1.0 2.0" : type == end ? "l0" : "");
        const DrawingText drawing = readDrawing(maker.file());
        std::string types;
        for (const TextNode &node : readTree(drawing.text).nodes)
            types += isEntity(node) ? node.type() + ' ' : "";
        EXPECT_EQ(types, row.types);
        EXPECT_EQ(drawing.problems.lostCount(), row.lost) << row.types;
    }
}

TEST(EarlyDwg, DamagedFilesAreReadAsFarAsTheyGo)
{
    for (const Release release : {r9, r10, r12}) {
        EarlyFileMaker maker = earlyMakerWithTables(release);
        for (const EarlyEntityRow &row : earlyEntityRows) {
            if (row.release == release)
                maker.addEntity(row.type, row.flags, row.options, row.values);
        }
        maker.addFurther(3, 0, 0, "2.0 0.0 1.0");
        maker.addJump(0, EarlyFileMaker::furtherBit);
        const EarlyFileMaker::File file = maker.file();
        constexpr std::size_t variables = 0x5e;
        // Each place behind the name of the release, but those of variables.
        for (std::size_t at = 6; at < file.size(); at = at == variables ? maker.entitiesBegin() : at + 1) {
            const DrawingText cut = readDrawing(Bytes(file).first(at));
            EXPECT_LE(cut.text.size(), 20 * file.size()) << at;
            EarlyFileMaker::File changed = file;
            constexpr std::uint8_t changes[] = {0x01, 0x80, 0xff, 0x10};
            changed[at] ^= changes[at % 4];
            EXPECT_LE(readDrawing(changed).text.size(), 20 * file.size()) << at;
        }
    }
}

} // namespace host::dwg::test
