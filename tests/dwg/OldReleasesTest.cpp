// What R13 and R14 have of their own, in drawings that are made here: proxies for what came later, what later programs
// leave for themselves, dictionaries with gaps; and the order of objects in all releases.

#include "tests/dwg/making/ReadBack.h"
#include "tests/dwg/making/TypeNumbers.h"

#include <gtest/gtest.h>

namespace host::dwg::test {

namespace {

/// A dictionary's values, each entry with its kind of reference.
MadeDrawing::Write dictionaryOf(std::vector<std::pair<std::string, std::uint64_t>> entries, int kind)
{
    return [entries = std::move(entries), kind](ObjectWriter &o) {
        o.int32(static_cast<std::int32_t>(entries.size()));
        if (o.since(Release::R2000))
            o.int16(1);
        if (o.since(Release::R14))
            o.small(kind == HandleReference::HardOwner);
        for (const auto &[name, handle] : entries) {
            o.text(name);
            o.reference(handle, kind);
        }
    };
}

/// An extension record with group 102 alone, up to R14.
MadeDrawing::Write recordOf(std::string name)
{
    return [name = std::move(name)](ObjectWriter &o) {
        BitWriter data;
        data.raw16(102);
        data.raw16(static_cast<std::uint32_t>(name.size()));
        data.byte(0);
        data.rawBytes(name);
        o.int32(static_cast<std::int32_t>(data.bytes().size()));
        o.values().append(data);
    };
}

void writePoint(ObjectWriter &o)
{
    o.point({1.0, 2.0, 3.0});
    o.thickness(0.0);
    o.extrusion();
    o.real(0.0);
}

std::uint64_t addLayer(MadeDrawing &drawing, const char *name, bool isOff)
{
    return drawing.addEntry(0x33, [name, isOff](ObjectWriter &o) {
        o.entryHead(name);
        if (o.since(Release::R2000)) {
            o.int16(16 | (isOff ? 2 : 0));
        } else {
            for (const bool bit : {false, isOff, false, false})
                o.flag(bit);
        }
        o.int16(3);
        for (const std::uint64_t reference : {std::uint64_t{0}, std::uint64_t{MadeHandles::Continuous}})
            o.reference(reference);
    });
}

} // namespace

TEST(DwgOldReleases, HaveLayersThatAreOnAndOff)
{
    for (const Release release : {Release::R13, Release::R14}) {
        MadeDrawing drawing(release);
        const std::uint64_t on = addLayer(drawing, "ON", false);
        const std::uint64_t off = addLayer(drawing, "OFF", true);
        const ReadBack read = readBack(drawing);
        EXPECT_EQ(read.lastPart(on), "2 ON|70 0|62 3|6 Continuous|") << static_cast<int>(release);
        EXPECT_EQ(read.lastPart(off), "2 OFF|70 0|62 -3|6 Continuous|") << static_cast<int>(release);
    }
}

TEST(DwgOldReleases, HaveProxiesOfWhatCameLater)
{
    const auto writeScale = [](ObjectWriter &o) {
        o.int16(0);
        o.text(o.release() == Release::R14 ? std::string_view("1:1\0", 4) : "1:1");
        o.real(1.0);
        o.real(1.0);
        o.flag(true);
    };
    const auto proxyIn = [&](Release release) {
        MadeDrawing drawing(release);
        const std::uint64_t scale = drawing.addObject("SCALE", "A", writeScale);
        const ReadBack read = readBack(drawing);
        EXPECT_EQ(read.drawing.problems.lostCount(), 0u);
        return read.record(scale);
    };
    // R14 counts a zero at the end of its texts, which proxies in its text form do not.
    EXPECT_EQ(proxyIn(Release::R13), "0 ACAD_PROXY_OBJECT|5 40|330 C|100 AcDbZombieObject|90 499|91 500|93 41|"
                                     "310 903313A31580|");
    EXPECT_EQ(proxyIn(Release::R14), "0 ACAD_PROXY_OBJECT|5 40|330 C|100 AcDbProxyObject|90 499|91 500|93 41|"
                                     "310 903313A31580|");
    EXPECT_EQ(proxyIn(Release::R2000), "0 SCALE|5 40|330 C|100 AcDbScale|70 0|300 1:1|140 1.0|141 1.0|290 1|");
}

TEST(DwgOldReleases, LeaveOutWhatLaterProgramsKeepForThemselves)
{
    for (const Release release : {Release::R13, Release::R14}) {
        MadeDrawing drawing(release);
        const std::uint64_t point = drawing.addEntity(PointType, writePoint);
        const std::uint64_t names = drawing.nextHandle();
        drawing.head(point).dictionary = drawing.addOwned(
            DictionaryType, point, dictionaryOf({{"ACAD_XREC_ROUNDTRIP", names + 1}}, HandleReference::HardOwner));
        drawing.addOwned(XrecordType, names, recordOf("EXTNAMES"));
        const std::string weights("\0\6\0\0RTLwPs\x46\x9e\0", 13);
        drawing.head(point).extensions = {{MadeHandles::Application, weights}};
        const std::uint64_t other = drawing.addEntity(PointType, writePoint);
        const std::uint64_t solids = drawing.nextHandle();
        drawing.head(other).dictionary = drawing.addOwned(
            DictionaryType, other, dictionaryOf({{"ACAD_XREC_ROUNDTRIP", solids + 1}}, HandleReference::HardOwner));
        drawing.addOwned(XrecordType, solids, recordOf("ACAD_SOLID_HIST"));
        drawing.head(other).extensions = {{MadeHandles::Application, std::string("\x46\1\0", 3) + weights}};

        const ReadBack read = readBack(drawing);
        EXPECT_EQ(read.problems(), "");
        const std::string own = "330 1D|100 AcDbEntity|8 0|100 AcDbPoint|10 1.0|20 2.0|30 3.0|";
        EXPECT_EQ(read.record(point), "0 POINT|5 40|" + own);
        EXPECT_EQ(read.record(names), "");
        EXPECT_EQ(read.record(names + 1), "");
        EXPECT_EQ(read.record(other), "0 POINT|5 43|102 {ACAD_XDICTIONARY|360 44|102 }|" + own + "1001 ACAD|1070 1|");
        EXPECT_EQ(read.record(solids + 1), "0 XRECORD|5 45|330 44|100 AcDbXrecord|102 ACAD_SOLID_HIST|");
    }
}

TEST(DwgOldReleases, LeaveOutRecordsAlone)
{
    // Entities under such names stay, and so does the dictionary.
    MadeDrawing drawing(Release::R14);
    const std::uint64_t point = drawing.addEntity(PointType, writePoint);
    const std::uint64_t names = drawing.addObject(
        DictionaryType, "D",
        dictionaryOf({{"ACAD_XREC_ROUNDTRIP", point}, {"ACAD_LAYOUTSELFREF", point}}, HandleReference::SoftOwner));
    const ReadBack read = readBack(drawing);
    EXPECT_EQ(read.lastPart(names), "3 ACAD_LAYOUTSELFREF|350 40|3 ACAD_XREC_ROUNDTRIP|350 40|");
    EXPECT_EQ(read.lastPart(point), "10 1.0|20 2.0|30 3.0|");
}

TEST(DwgOldReleases, HaveDictionariesWithGaps)
{
    for (const Release release : {Release::R13, Release::R14, Release::R2000}) {
        MadeDrawing drawing(release);
        const std::uint64_t table = drawing.addObject(DictionaryType, "D", [](ObjectWriter &o) {
            dictionaryOf({{"B", 0x42}, {"", 0}, {"A_", 0x43}, {"AB", 0x44}}, HandleReference::SoftOwner)(o);
        });
        const std::uint64_t point = drawing.addEntity(PointType, writePoint);
        for (int i = 0; i < 3; ++i)
            drawing.addOwned(DictionaryType, table, dictionaryOf({}, HandleReference::SoftOwner));
        const std::uint64_t extension =
            drawing.addOwned(DictionaryType, point, dictionaryOf({{"N", 0x42}}, HandleReference::HardOwner));
        drawing.head(point).dictionary = extension;
        const ReadBack read = readBack(drawing);
        const bool isSorted = release <= Release::R14;
        EXPECT_EQ(read.lastPart(table),
                  isSorted ? "3 A_|350 43|3 AB|350 44|3 B|350 42|" : "281 1|3 B|350 42|3 A_|350 43|3 AB|350 44|");
        EXPECT_EQ(read.lastPart(extension), release == Release::R13   ? "3 N|360 42|"
                                            : release == Release::R14 ? "280 1|3 N|360 42|"
                                                                      : "280 1|281 1|3 N|360 42|");
    }
}

TEST(DwgObjects, StandInTheOrderOfWhatOwnsThem)
{
    for (const Release release : {Release::R13, Release::R2000, Release::R2010}) {
        MadeDrawing drawing(release);
        const std::uint64_t inner = drawing.addObject(
            DictionaryType, "D", dictionaryOf({{"Y", 0x45}, {"X", 0x44}}, HandleReference::SoftOwner));
        drawing.addObject(DictionaryType, "E", dictionaryOf({}, HandleReference::SoftOwner));
        const std::uint64_t point = drawing.addEntity(PointType, writePoint);
        drawing.head(point).dictionary =
            drawing.addOwned(DictionaryType, point, dictionaryOf({{"Z", 0x46}}, HandleReference::HardOwner));
        for (int i = 0; i < 3; ++i)
            drawing.addOwned(DictionaryType, i < 2 ? inner : 0x43, dictionaryOf({}, HandleReference::SoftOwner));
        const ReadBack read = readBack(drawing);
        std::string order;
        for (const TextNode &node : read.tree.nodes)
            order += !node.tags.empty() && node.type() == "DICTIONARY" ? node.handle + ' ' : "";
        EXPECT_EQ(order, release == Release::R13 ? "C 43 40 41 46 44 45 " : "C 43 40 41 46 45 44 ");
    }
}

TEST(DwgPreview, IsTheSectionThatTheTextFormHasForIt)
{
    FileBytes file = MadeDrawing(Release::R2000).file();
    const auto put32 = [&file](std::size_t at, std::size_t value) {
        for (int i = 0; i < 4; ++i)
            file[at + static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(value >> 8 * i);
    };
    const auto sectionOf = [](const FileBytes &bytes) {
        const TextTree tree = readTree(readDrawing(bytes).text);
        for (const TextNode &node : tree.nodes) {
            if (node.name == "THUMBNAILIMAGE")
                return node.tags.at(2).value + ' ' + node.tags.at(3).value;
        }
        return std::string("none");
    };
    constexpr std::uint8_t mark[] = {0x1f, 0x25, 0x6d, 0x07, 0xd4, 0x36, 0x28, 0x28,
                                     0x9d, 0x57, 0xca, 0x3f, 0x9d, 0x44, 0x10, 0x2b};
    const std::size_t place = file.size();
    put32(0x0d, 0);
    EXPECT_EQ(sectionOf(file), "none");
    put32(0x0d, place);
    EXPECT_EQ(sectionOf(file), "none"); // behind the end
    file.insert(file.end(), std::begin(mark), std::end(mark));
    file.insert(file.end(), {3, 0, 0, 0, 1, 0xab, 0xcd});
    EXPECT_EQ(sectionOf(file), "7 0300000001ABCD");
    file[place + 16] = 4; // longer than what is there
    EXPECT_EQ(sectionOf(file), "none");
}

} // namespace host::dwg::test
