// Models of solids, and what objects keep outside themselves.

#include "host/dwg/contents/DataStore.h"
#include "tests/dwg/making/ReadBack.h"

#include <gtest/gtest.h>

namespace host::dwg::test {

namespace {

/// A line of what is drawn of a model, placed elsewhere.
void writeWire(ObjectWriter &o)
{
    o.small(1);
    o.int32(7);
    o.since(Release::R2004) ? o.int32(256) : o.int16(256);
    o.int32(3);
    o.int32(2);
    o.point({0.0, 0.0, 0.0});
    o.point({1.0, 0.0, 0.0});
    o.flag(true);
    for (int i = 0; i < 4; ++i)
        o.point({0.0, 0.0, 1.0});
    o.real(1.0);
    for (int i = 0; i < 3; ++i)
        o.flag(false);
}

/// What follows the model: a wire, a view with one more, a material, and what later releases have.
void writeBehindModel(ObjectWriter &o, bool isSolid)
{
    o.flag(true);
    o.flag(true);
    o.point({5.0, 6.0, 7.0});
    o.int32(4);
    o.flag(true);
    o.int32(1);
    writeWire(o);
    o.int32(1);
    o.int32(2);
    for (int i = 0; i < 3; ++i)
        o.point({0.0, 0.0, 1.0});
    o.flag(false);
    o.flag(true);
    o.int32(1);
    writeWire(o);
    o.flag(true);
    if (!o.since(Release::R2007))
        return;
    o.int32(1);
    o.int32(0);
    o.int32(0);
    o.reference(MadeHandles::LayerZero);
    if (o.since(Release::R2013)) {
        o.flag(true);
        o.int32(0x01020304);
        o.int16(0x0506);
        o.int16(0x0708);
        o.values().rawBytes("abcdefgh");
        o.int32(0);
    }
    if (isSolid)
        o.reference(0x99, HandleReference::SoftOwner);
}

void writeTextModel(ObjectWriter &o)
{
    const std::string lines = "noi mi n o\r\n=0;& {rn\r\n";
    o.flag(false);
    o.flag(false);
    o.int16(1);
    // In two pieces, cut within a line.
    for (const std::string_view piece : {std::string_view(lines).substr(0, 15), std::string_view(lines).substr(15)}) {
        o.int32(static_cast<std::int32_t>(piece.size()));
        o.values().rawBytes(piece);
    }
    o.int32(0);
}

void writeDamagedModel(ObjectWriter &o)
{
    const std::string_view line = "no\xe9 ^\t\x7f\x01";
    o.flag(false);
    o.flag(false);
    o.int16(1);
    o.int32(static_cast<std::int32_t>(line.size()));
    o.values().rawBytes(line);
    o.int32(0);
}

void writeBinaryModel(ObjectWriter &o)
{
    o.flag(false);
    o.flag(false);
    o.int16(2);
    o.values().rawBytes("ACIS BinaryFile\x01\x02\x03\x0e\x03"
                        "End\x0e\x02of\x0e\x03"
                        "ASM\x0d\x04"
                        "data");
}

struct ModelRow
{
    Release release;
    void (*writeModel)(ObjectWriter &);
    std::string region;
    std::string problem;
};

const char *const noBinary = "3DSOLID 40: The model has a binary form that has no text here; it is kept as its bytes.\n"
                             "REGION 41: The model has a binary form that has no text here; it is kept as its bytes.\n";
const std::string lines = "70 1|1 noi mi n o|1 =0;& {rn|";
const std::string revision = "290 0|2 {01020304-0506-0708-6162-636465666768}|";

const char *const noLetters = "3DSOLID 40: The model has bytes that are no letters; there are question marks instead.\n"
                              "REGION 41: The model has bytes that are no letters; there are question marks instead.\n";
const std::string damagedLine = "70 1|1 no` ^ ```|";
const ModelRow modelRows[] = {
    {Release::R13, writeTextModel, lines, ""},
    {Release::R2000, writeTextModel, lines, ""},
    {Release::R2004, writeTextModel, lines, ""},
    {Release::R2010, writeTextModel, lines, ""},
    {Release::R2000, writeDamagedModel, damagedLine, noLetters},
    {Release::R2007, writeDamagedModel, damagedLine, noLetters},
    {Release::R2007, writeBinaryModel, "", noBinary},
    {Release::R2010, writeBinaryModel, "", noBinary},
    {Release::R2013, writeTextModel, lines + revision, ""},
    {Release::R2018, [](ObjectWriter &o) { o.flag(true); }, revision, ""},
};

/// Puts a data store together: its segments behind each other, and the table of them.
class StoreMaker
{
public:
    struct Segment
    {
        BitWriter content;
        std::vector<std::string> names;
        BitWriter data;
    };

    FileBytes bytes(std::uint32_t schemas, std::uint32_t records) const
    {
        BitWriter store;
        store.rawBytes("jard");
        for (const std::uint32_t number : {0x80u, 8u, 2u, 0u, 1u, 0x80u, 0u})
            store.raw32(number);
        store.raw32(static_cast<std::uint32_t>(segments.size()));
        store.raw32(schemas);
        store.raw32(records);
        fill(store, 0x80);
        std::vector<FileBytes> all;
        for (const Segment &segment : segments)
            all.push_back(bytesOf(segment));
        BitWriter table;
        fill(table, headSize);
        std::size_t at = 0x80 + headSize + (12 * all.size() + 15) / 16 * 16;
        for (const FileBytes &segment : all) {
            table.raw64(at);
            table.raw32(static_cast<std::uint32_t>(segment.size()));
            at += segment.size();
        }
        fill(table, (table.bytes().size() + 15) / 16 * 16);
        store.append(table);
        for (const FileBytes &segment : all)
            store.append(Bytes(segment));
        return store.bytes();
    }

    std::vector<Segment> segments;

private:
    static constexpr std::size_t headSize = 0x30;

    static void fill(BitWriter &writer, std::size_t size)
    {
        while (writer.bytes().size() < size)
            writer.byte(0);
    }

    static FileBytes bytesOf(const Segment &segment)
    {
        BitWriter rest;
        rest.append(segment.content);
        fill(rest, (rest.bytes().size() + 15) / 16 * 16);
        const std::size_t data = rest.bytes().size();
        rest.append(segment.data);
        fill(rest, (rest.bytes().size() + 15) / 16 * 16);
        const std::size_t names = rest.bytes().size();
        rest.raw32(static_cast<std::uint32_t>(segment.names.size()));
        for (const std::string &name : segment.names)
            rest.rawBytes(name + '\0');
        BitWriter head;
        fill(head, 0x20);
        head.raw32(static_cast<std::uint32_t>((headSize + names) / 16));
        head.raw32(static_cast<std::uint32_t>((headSize + data) / 16));
        fill(head, headSize);
        head.append(rest);
        fill(head, (head.bytes().size() + 15) / 16 * 16);
        return head.bytes();
    }
};

enum Segments : std::uint32_t
{
    NoSegment,
    SchemaTable,
    SchemaData,
    RecordTable,
    RecordData,
    FirstPage,
    SecondPage
};

void addPage(StoreMaker &maker, std::uint64_t start, std::string_view part)
{
    BitWriter page;
    page.raw64(8);
    page.raw64(start);
    page.raw32(0);
    page.raw32(2);
    page.raw64(part.size());
    page.rawBytes(part);
    maker.segments.push_back({page, {}, {}});
}

/// One schema with a handle and bytes, and an attribute of a second one; two records, one of them in two pages, with an
/// empty place between them.
StoreMaker smallStore()
{
    StoreMaker maker;
    BitWriter schemas;
    schemas.raw64(2);
    for (const std::uint32_t number : {0u, std::uint32_t(SchemaData), 8u, 1u, std::uint32_t(SchemaData), 48u})
        schemas.raw32(number);
    schemas.raw64(0x0af10c);
    schemas.raw64(1);
    for (const std::uint32_t number : {std::uint32_t(SchemaData), 0u, 1u})
        schemas.raw32(number);
    BitWriter data;
    data.raw32(8);
    data.raw32(1);
    data.raw16(1); // at 8: the first schema, with its attribute
    data.raw64(0);
    data.raw16(2);
    for (const std::uint32_t number : {0u, 0u, 10u})
        data.raw32(number);
    data.raw16(0);
    for (const std::uint32_t number : {0u, 1u, 15u})
        data.raw32(number);
    data.raw16(0);
    data.raw16(0); // at 48: the second one
    data.raw16(1);
    for (const std::uint32_t number : {0u, 2u, 1u})
        data.raw32(number);
    data.raw16(0);
    BitWriter records;
    records.raw64(3);
    for (const std::uint32_t number :
         {std::uint32_t(RecordData), 0u, 0u, 0u, 0u, 0u, std::uint32_t(RecordData), 20u, 0u})
        records.raw32(number);
    BitWriter heads;
    for (const std::uint32_t i : {0u, 1u}) {
        heads.raw32(20);
        heads.raw32(1);
        heads.raw64(0x40 + i);
        heads.raw32(i * 8);
    }
    BitWriter contents;
    contents.raw32(2);
    contents.rawBytes(std::string_view("ab\0\0", 4));
    contents.raw32(0xbb106bb1);
    contents.raw64(8);
    contents.raw32(2);
    for (const std::uint32_t number :
         {60u, 5u, 3u, 0u, 0u, std::uint32_t(FirstPage), 5u, std::uint32_t(SecondPage), 3u})
        contents.raw32(number);
    maker.segments.push_back({});
    maker.segments.push_back({schemas, {"Pictures", "Marks"}, {}});
    maker.segments.push_back({data, {"ID", "Data", "IsMarked"}, {}});
    maker.segments.push_back({records, {}, {}});
    maker.segments.push_back({heads, {}, contents});
    addPage(maker, 0, "12345");
    addPage(maker, 5, "678");
    return maker;
}

DataStore storeOf(const FileBytes &bytes, Problems &problems)
{
    Container container;
    container.release = Release::R2018;
    container.dataStore = bytes;
    return readDataStore(container, problems);
}

} // namespace

TEST(DwgSolids, ModelsAreTextOrKept)
{
    for (const ModelRow &row : modelRows) {
        MadeDrawing drawing(row.release);
        const auto write = [&row](bool isSolid) {
            return [&row, isSolid](ObjectWriter &o) {
                row.writeModel(o);
                writeBehindModel(o, isSolid);
            };
        };
        const std::uint64_t solid = drawing.addEntity(0x26, write(true));
        const std::uint64_t region = drawing.addEntity(0x25, write(false));
        const ReadBack read = readBack(drawing);
        EXPECT_EQ(read.problems(), row.problem);
        EXPECT_EQ(read.lastPart(region), row.region);
        if (row.release >= Release::R2007) {
            EXPECT_EQ(read.lastPart(solid), "350 99|");
        } else {
            EXPECT_EQ(read.lastPart(solid), row.region);
        }
    }
}

TEST(DwgSolids, AModelIsKeptWhereWhatFollowsItIsNotKnown)
{
    MadeDrawing drawing(Release::R2000);
    const std::uint64_t region = drawing.addEntity(0x25, [](ObjectWriter &o) {
        writeTextModel(o);
        o.flag(false);
        o.flag(true);
        o.int32(12);
    });
    const ReadBack read = readBack(drawing);
    EXPECT_EQ(read.lastPart(region), lines);
    EXPECT_EQ(read.problems(), "REGION 40: More of the object is in the file than is read of it.\n");
}

TEST(DwgDataStore, RecordsAreReadWholeFromTheirPages)
{
    Problems problems;
    const DataStore store = storeOf(smallStore().bytes(SchemaTable, RecordTable), problems);
    EXPECT_EQ(problems.list().size(), 0u);
    ASSERT_EQ(store.schemas.size(), 2u);
    EXPECT_EQ(store.schemas[0].name, "Pictures");
    ASSERT_EQ(store.schemas[0].properties.size(), 2u);
    EXPECT_EQ(store.schemas[0].properties[1].name, "Data");
    ASSERT_EQ(store.schemas[0].attributes, std::vector<std::size_t>{0});
    EXPECT_EQ(store.attributes[0].schema, 1);
    EXPECT_TRUE(store.attributes[0].isSet);
    ASSERT_EQ(store.records.size(), 2u);
    EXPECT_EQ(store.records[0].data, "ab");
    EXPECT_EQ(store.records[1].handle, 0x41u);
    EXPECT_EQ(store.records[1].data, "12345678");
}

TEST(DwgDataStore, NamesAreUtf8InTheText)
{
    StoreMaker maker = smallStore();
    maker.segments[SchemaTable].names[0] = "Pi\xc3\xa9\xff\n\xed\xa0\x80";
    MadeDrawing drawing(Release::R2018);
    std::vector<MadeSection> sections = sectionsOf(drawing.parts());
    sections.push_back({"AcDb:AcDsPrototype_1b", maker.bytes(SchemaTable, RecordTable)});
    const ReadBack read = readBack(pagedFile(Release::R2018, sections));
    const std::string bad = "\xef\xbf\xbd";
    EXPECT_NE(read.drawing.text.find("\nPi\xc3\xa9" + bad + "^J" + bad + bad + bad + "\n"), std::string::npos);
    EXPECT_EQ(read.problems(), "Texts have bytes that are no characters; they were replaced.\n");
}

TEST(DwgDataStore, SchemasDoNotMultiply)
{
    StoreMaker maker = smallStore();
    BitWriter schemas;
    schemas.raw64(1000);
    for (std::uint32_t i = 0; i < 1000; ++i) {
        schemas.raw32(i);
        schemas.raw32(SchemaData);
        schemas.raw32(8);
    }
    maker.segments[SchemaTable].content = schemas;
    Problems problems;
    EXPECT_TRUE(storeOf(maker.bytes(SchemaTable, RecordTable), problems).schemas.empty());
    EXPECT_EQ(problems.lostCount(), 1u);
}

TEST(DwgDataStore, DamageIsToldAndEndsNowhereElse)
{
    const FileBytes whole = smallStore().bytes(SchemaTable, RecordTable);
    for (std::size_t length = 1; length < whole.size(); length += 3) {
        Problems problems;
        const DataStore store =
            storeOf(FileBytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)), problems);
        EXPECT_TRUE(problems.lostCount() == 1 || store.records.size() == 2) << length;
    }
    for (std::size_t place = 0; place < whole.size(); ++place) {
        FileBytes changed = whole;
        changed[place] = 0xff;
        Problems problems;
        const DataStore store = storeOf(changed, problems);
        EXPECT_LE(store.records.size(), 3u) << place;
    }
}

} // namespace host::dwg::test
