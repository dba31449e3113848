// Files that are cut off, changed or made up. Nothing of them may crash, hang or grow; what is lost is told.

#include "host/dwg/container/Container.h"
#include "host/dwg/container/Pages.h"
#include "host/dwg/drawing/DrawingText.h"
#include "tests/dwg/making/ReadBack.h"
#include "tests/dwg/making/TypeNumbers.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <new>
#include <random>

#ifdef __linux__
#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace host::dwg::test {

namespace {

using File = std::vector<std::uint8_t>;

constexpr Release releasesFromR13[] = {Release::R13,   Release::R14,   Release::R2000, Release::R2004,
                                       Release::R2007, Release::R2010, Release::R2013, Release::R2018};

void writeCircleAtOrigin(ObjectWriter &o)
{
    o.point({});
    o.real(5.0);
    o.thickness(0.0);
    o.extrusion();
}

/// A small drawing of each release; with the folder of drawings made elsewhere, one of each kind of container from
/// there.
std::vector<File> samples()
{
    std::vector<File> files;
    for (const Release release : releasesFromR13) {
        MadeDrawing drawing(release);
        drawing.addEntity(0x12, writeCircleAtOrigin);
        drawing.addObject("DICTIONARYVAR", "CLEF", [](ObjectWriter &o) {
            o.small(0);
            o.text("value");
        });
        files.push_back(drawing.file());
    }
    const char *corpus = std::getenv("ORTAKIT_CORPUS");
    for (const char *name : {"r2000_sample.dwg", "r2000_entities.dwg", "r2018_sample.dwg", "r2004_leader.dwg",
                             "r2007_line.dwg", "r9_entities.dwg", "r11_entities.dwg"}) {
        if (!corpus)
            break;
        std::ifstream file(std::filesystem::path(corpus).parent_path() / "dwg" / name, std::ios::binary);
        if (file)
            files.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return files;
}

/// Reads it, and checks what holds of any file.
DrawingText readAny(const File &file)
{
    DrawingText drawing = readDrawing(file);
    EXPECT_LE(drawing.text.size(), 1000 * file.size() + 100000);
    EXPECT_LE(drawing.problems.list().size(), Problems::mostKept);
    EXPECT_TRUE(!drawing.text.empty() || drawing.problems.lostCount() > 0);
    return drawing;
}

} // namespace

TEST(HostileDwg, LookAlikesAreNoDrawings)
{
    for (const std::string_view start : {"", "A", "AC1015", "AC1099", "PK\3\4", "  0\nSECTION\n", "AC10x5"}) {
        for (const std::size_t size : {start.size(), std::size_t(0x100), std::size_t(5000)}) {
            File file(start.begin(), start.end());
            file.resize(std::max(size, file.size()));
            EXPECT_TRUE(readAny(file).text.empty()) << start << ' ' << size;
        }
    }
}

TEST(HostileDwg, FilesMayEndAnywhere)
{
    for (const File &file : samples()) {
        // Each place in the headers, then in steps that meet all places within units of any size.
        for (std::size_t length = 0; length < file.size(); length += length < 0x200 ? 1 : 97)
            readAny(File(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(length)));
    }
}

TEST(HostileDwg, BytesMayBeOthers)
{
    std::mt19937 random(20);
    for (const File &file : samples()) {
        for (int run = 0; run < 150; ++run) {
            File changed = file;
            const int changes = 1 << run % 7;
            for (int i = 0; i < changes; ++i)
                changed[random() % changed.size()] ^= static_cast<std::uint8_t>(1 << random() % 8);
            readAny(changed);
        }
    }
}

namespace {

/// A file that is made to take room or time, and what it must be told for. `told` begins a problem.
struct HostileRow
{
    const char *name;
    std::function<File()> file;
    const char *told;
};

File withSections(Release release, const std::function<void(std::vector<MadeSection> &)> &change)
{
    std::vector<MadeSection> sections = sectionsOf(MadeDrawing(release).parts());
    change(sections);
    return release == Release::R2007 ? correctedFile(sections) : pagedFile(release, sections);
}

/// Sections of zeros, which pack to a two-hundredth and so unpack to more than a file may.
void addBombs(std::vector<MadeSection> &sections)
{
    for (int i = 0; i < 5; ++i)
        sections.push_back({"AcDb:Bomb", FileBytes(6 << 20, 0), 1 << 20, true, true});
}

/// A header of R2007 that says to be plain and of two gigabytes.
File hugeHeader()
{
    File file = MadeDrawing(Release::R2007).file();
    BitWriter header;
    header.append(FileBytes(24, 0));
    header.raw32(0x80000001);
    header.append(FileBytes(3 * 239 - 28, 0));
    const FileBytes blocks = correctedBlocks(ErrorCode::Maps, header.bytes());
    std::ranges::copy(blocks, file.begin() + 0x80);
    std::ranges::copy(blocks, file.end() - 0x400);
    return file;
}

/// Each entity names a layer whose name is as long as names can be.
File longNames()
{
    MadeDrawing drawing(Release::R2000);
    const std::uint64_t layer = drawing.addEntry(0x33, [](ObjectWriter &o) {
        o.entryHead(std::string(0xffff, 'x'));
        o.int16(0);
        o.colour(1);
        for (int i = 0; i < 3; ++i)
            o.reference(0);
    });
    for (int i = 0; i < 3000; ++i)
        drawing.head(drawing.addEntity(0x12, writeCircleAtOrigin)).layer = layer;
    return drawing.file();
}

/// All objects of the map at the place of one large one.
File oneObjectForAll()
{
    MadeParts parts = MadeDrawing(Release::R2004).parts();
    std::vector<MadeSection> sections = sectionsOf(parts);
    sections[3].bytes.resize(1 << 20);
    std::vector<MadeParts::Object> objects(100000);
    for (std::size_t i = 0; i < objects.size(); ++i)
        objects[i].handle = i + 1;
    sections[2].bytes = objectMap(objects, std::vector<std::size_t>(objects.size(), 4));
    sections[3].pageSize = 1 << 20;
    return pagedFile(Release::R2004, sections);
}

/// A page of two megabytes which the map of sections has ten thousand times.
File onePageForAll()
{
    return withSections(Release::R2010, [](auto &sections) {
        sections[3].bytes.resize(2 << 20);
        sections[3].pageSize = 2 << 20;
        sections[3].repeat = 10000;
    });
}

/// A file in which pages begin at each place where one can, and go on to its end.
File pagesInPages()
{
    File file = MadeDrawing(Release::R2004).file();
    file[0x80] ^= 1;
    file.resize(4 << 20);
    for (std::size_t at = 0x100; at + pageUnit < file.size(); at += pageUnit) {
        BitWriter head;
        const std::size_t size = file.size() - at - 0x14;
        for (const std::size_t number :
             {static_cast<std::size_t>(MapType::Sections), std::size_t(1000), size, std::size_t(2), size})
            head.raw32(static_cast<std::uint32_t>(number));
        std::ranges::copy(head.bytes(), file.begin() + static_cast<std::ptrdiff_t>(at));
    }
    return file;
}

/// A dictionary in itself, which is its own extension dictionary, reactor and owner.
File dictionaryOfItself()
{
    MadeDrawing drawing(Release::R2013);
    const std::uint64_t self = drawing.nextHandle();
    drawing.addObject(0x2a, "SELF", [self](ObjectWriter &o) {
        o.int32(1);
        o.int16(1);
        o.small(1);
        o.text("SELF");
        o.reference(self, HandleReference::HardOwner);
    });
    MadeHead &head = drawing.head(self);
    head.owner = head.dictionary = self;
    head.reactors = {self};
    return drawing.file();
}

/// Dictionaries that lead from one to the next.
File chainOfDictionaries()
{
    MadeDrawing drawing(Release::R2000);
    for (int i = 0; i < 20000; ++i) {
        const std::uint64_t next = drawing.nextHandle() + 1;
        drawing.addOwned(0x2a, next - 2, [next](ObjectWriter &o) {
            o.int32(1);
            o.int16(1);
            o.small(0);
            o.text("NEXT");
            o.reference(next, HandleReference::HardOwner);
        });
    }
    return drawing.file();
}

/// Entities whose next one is in front of them: links of `step` in a ring.
File ringOfEntities()
{
    MadeDrawing drawing(Release::R14);
    for (int i = 0; i < 100; ++i)
        drawing.addEntity(0x12, writeCircleAtOrigin);
    MadeParts parts = drawing.parts();
    // The third circle is there in place of the last.
    parts.objects.back().bytes = parts.objects[parts.objects.size() - 98].bytes;
    return madeFile(parts);
}

/// Extended data that goes on as line spacing, which ends within a text.
File endlessSpacing()
{
    MadeDrawing drawing(Release::R14);
    const std::string spacing("\0\12\0\0MTEXTBEGIN\0\xff\0\0cut", 21);
    drawing.head(drawing.addEntity(0x12, writeCircleAtOrigin)).extensions = {{MadeHandles::Application, spacing}};
    return drawing.file();
}

const HostileRow hostileRows[] = {
    {"a section of a terabyte",
     [] {
         return withSections(Release::R2010, [](auto &sections) { sections[3].claimedSize = std::uint64_t(1) << 40; });
     },
     "The section AcDb:AcDbObjects is larger than the file can hold."},
    {"a section of a terabyte in R2007",
     [] {
         return withSections(Release::R2007, [](auto &sections) { sections[3].claimedSize = std::uint64_t(1) << 40; });
     },
     "The sections are larger than the file can hold."},
    {"a page of four gigabytes",
     [] {
         return withSections(Release::R2018, [](auto &sections) {
             sections[3] = {sections[3].name, sections[3].bytes, 0xffffffe0, false};
         });
     },
     "The section AcDb:AcDbObjects is larger than the file can hold."},
    {"pages that unpack to more than a file may", [] { return withSections(Release::R2013, addBombs); },
     "The section AcDb:Bomb is larger than the file can hold."},
    {"a header of two gigabytes", hugeHeader, "The header of the file cannot be read."},
    {"names as long as can be", longNames, "The file makes more records than it can have."},
    {"one place for all objects", oneObjectForAll, "There is no object at its place."},
    {"one page for all parts of a section", onePageForAll, "A page of the section AcDb:AcDbObjects cannot be read."},
    {"pages in pages", pagesInPages, "The map of the file's sections cannot be read."},
    {"extended data without an end", endlessSpacing, ""},
    {"a dictionary of itself", dictionaryOfItself, ""},
    {"a chain of dictionaries", chainOfDictionaries, ""},
    {"a ring of entities", ringOfEntities, "There is no object at its place."},
};

} // namespace

TEST(HostileDwg, NothingTakesMoreThanItMay)
{
    for (const HostileRow &row : hostileRows) {
        const DrawingText read = readDrawing(row.file());
        const auto isTold = [&row](const Problem &problem) {
            return problem.message().find(row.told) != std::string::npos;
        };
        const std::vector<Problem> &problems = read.problems.list();
        EXPECT_EQ(std::ranges::any_of(problems, isTold), *row.told != 0)
            << row.name << ": " << (problems.empty() ? "nothing" : problems[0].message());
    }
}

#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__)
namespace {

/// What is large comes from the system from the first test on, not from what tests before left free.
const int largeBlocksAreMapped = mallopt(M_MMAP_THRESHOLD, 0x10000);

/// Ends this process with 0 when the file is read within so much more memory than is in use.
[[noreturn]] void readWithin(const File &file, std::size_t bytes)
{
    std::size_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    rlimit limit{};
    limit.rlim_cur = limit.rlim_max = pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)) + bytes;
    setrlimit(RLIMIT_AS, &limit);
    try {
        readDrawing(file);
    } catch (const std::bad_alloc &) {
        std::_Exit(1);
    }
    std::_Exit(0);
}

} // namespace

TEST(HostileDwg, MemoryStaysWithinAMultipleOfTheFile)
{
    ASSERT_EQ(largeBlocksAreMapped, 1);
    constexpr std::size_t always = 96 << 20;
    for (const HostileRow &row : hostileRows) {
        const File file = row.file();
        EXPECT_EXIT(readWithin(file, always + 100 * file.size()), testing::ExitedWithCode(0), "") << row.name;
    }
    // The limit is one: a file that has as much as it may does not fit into a megabyte.
    const File bombs = withSections(Release::R2013, addBombs);
    EXPECT_EXIT(readWithin(bombs, 1 << 20), testing::ExitedWithCode(1), "");
}
#endif

TEST(HostileDwg, WhatHoldsOthersTogetherIsMadeWhereItCannotBeRead)
{
    constexpr std::uint64_t begin = MadeHandles::ModelSpace + 1;
    constexpr std::uint64_t end = MadeHandles::ModelSpace + 2;
    const auto countOf = [](const std::string &text, const std::string &type) {
        std::size_t count = 0;
        for (std::size_t at = 0; (at = text.find("  0\n" + type + '\n', at)) != std::string::npos; ++at)
            ++count;
        return count;
    };
    for (const Release release : {Release::R14, Release::R2000, Release::R2010}) {
        for (const std::vector<std::uint64_t> &gone :
             {std::vector<std::uint64_t>{begin}, {end}, {begin, end}, {begin, MadeHandles::PaperSpace + 2}}) {
            MadeDrawing drawing(release);
            drawing.addEntity(CircleType, [](ObjectWriter &o) {
                o.point({1.0, 2.0, 0.0});
                o.real(5.0);
                o.thickness(0.0);
                o.extrusion();
            });
            MadeParts parts = drawing.parts();
            const auto isGone = [&gone](const MadeParts::Object &object) {
                return std::ranges::find(gone, object.handle) != gone.end();
            };
            EXPECT_EQ(std::erase_if(parts.objects, isGone), gone.size());
            const ReadBack read = readBack(madeFile(parts));
            const std::string &text = read.drawing.text;
            EXPECT_EQ(countOf(text, "BLOCK"), 2u);
            EXPECT_EQ(countOf(text, "ENDBLK"), 2u);
            EXPECT_EQ(countOf(text, "CIRCLE"), 1u);
            EXPECT_EQ(read.drawing.problems.count(Problem::Kind::Warning), gone.size()) << read.problems();
        }
    }
}

TEST(HostileDwg, APasswordIsTold)
{
    struct Row
    {
        Release release;
        std::uint8_t flags;
        std::uint8_t further; ///< in the byte behind
        bool isTold;
    };
    constexpr Row rows[] = {{Release::R2000, 1, 0, false}, {Release::R2004, 1, 0, true},
                            {Release::R2007, 1, 0, true},  {Release::R2018, 0x33, 0, true},
                            {Release::R2018, 2, 0, false}, {Release::R2018, 5, 0, false},
                            {Release::R2018, 1, 1, false}, {Release::R2007, 0xff, 0xff, false}};
    for (const Row &row : rows) {
        FileBytes file = MadeDrawing(row.release).file();
        file[0x18] = row.flags;
        file[0x19] = row.further;
        if (row.release >= Release::R2004) {
            EXPECT_EQ(readBack(file).problems(), "") << "what can be read is not protected";
        }
        std::fill(file.begin() + 0x480, file.end(), 0x5a);
        const auto isTold = [&file] { return readBack(file).problems().find("by a password") != std::string::npos; };
        EXPECT_EQ(isTold(), row.isTold) << static_cast<int>(row.release) << " " << int(row.flags);
        if (row.release >= Release::R2004) {
            file[0x28] = 0;
            EXPECT_FALSE(isTold()) << "a head that is damaged";
        }
    }
}

TEST(HostileDwg, AWrongChecksumIsToldAndReadingGoesOn)
{
    for (File file : samples()) {
        if (releaseOf(file) != Release::R2000)
            continue;
        const DrawingText whole = readAny(file);
        // The checksum of the table of sections of R2000, which has six records.
        file[0x19 + 6 * 9] ^= 0xff;
        const DrawingText drawing = readAny(file);
        EXPECT_EQ(drawing.problems.lostCount(), 0u);
        ASSERT_FALSE(drawing.problems.list().empty());
        EXPECT_EQ(drawing.problems.list()[0].message(), "The table of sections is damaged; its copy was read.");
        EXPECT_TRUE(drawing.text == whole.text);
    }
}

TEST(HostileDwg, AnObjectIsReadUnderOneHandle)
{
    // A map that names one large object a thousand times: what each reading takes is the file's size each time.
    MadeDrawing drawing(Release::R2018);
    const std::uint64_t large = drawing.addObject(0x4f, "LARGE", [](ObjectWriter &o) {
        constexpr int numbers = 16000;
        o.int32(6 * numbers);
        for (int i = 0; i < numbers; ++i) {
            o.values().raw16(90);
            o.values().raw32(static_cast<std::uint32_t>(i));
        }
        o.int16(1);
    });
    const MadeParts parts = drawing.parts();
    std::vector<MadeSection> sections = sectionsOf(parts);
    std::vector<MadeParts::Object> objects = parts.objects;
    std::vector<std::size_t> places;
    std::size_t place = 4; // behind the mark of the section
    for (const MadeParts::Object &object : parts.objects) {
        places.push_back(place);
        place += object.bytes.size();
    }
    ASSERT_EQ(objects.back().handle, large);
    constexpr std::size_t added = 1000;
    for (std::size_t i = 1; i <= added; ++i) {
        objects.push_back({large + i, {}});
        places.push_back(places[parts.objects.size() - 1]);
    }
    for (MadeSection &section : sections) {
        if (section.name == "AcDb:Handles")
            section.bytes = objectMap(objects, places);
    }
    const ReadBack read = readBack(pagedFile(Release::R2018, sections));
    EXPECT_EQ(read.drawing.problems.count(Problem::Kind::Lost), added);
    EXPECT_EQ(read.drawing.problems.list().front().message(), "object 41: There is no object at its place.");
    EXPECT_TRUE(read.lastPart(large).ends_with("90 15998|90 15999|"));
}

} // namespace host::dwg::test
