// Models of solids in binary form: the text that is made of them, and those that stay as they are.

#include "host/dwg/objects/ModelText.h"
#include "host/dwg/objects/ModelValues.h"
#include "tests/dwg/making/BinaryModel.h"
#include "tests/dwg/making/ReadBack.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <optional>
#include <span>
#include <sstream>

namespace host::dwg::test {

namespace {

constexpr int regionType = 0x25;
constexpr int solidType = 0x26;
constexpr std::size_t headLines = 3;

std::optional<std::vector<std::string>> modelLines(std::string_view model)
{
    std::vector<std::string> lines;
    const bool isRead = takeModelLines(model, [&lines](const std::string &line) { lines.push_back(line); });
    return isRead ? std::optional(lines) : std::nullopt;
}

/// The line of the only record of a model; "kept" where the model has no text.
std::string lineOf(std::string_view record, ModelForm form = {})
{
    const auto lines = modelLines(binaryModel(record, form));
    if (!lines)
        return "kept";
    const std::size_t head = form.version < 200 ? 1 : headLines;
    EXPECT_EQ(lines->size(), head + 2);
    return (*lines)[head];
}

struct RecordRow
{
    const char *record;
    const char *line; ///< null where it is the same
};

const RecordRow recordRows[] = {
    {"body $-1 -1 $-1 $1 $-1 $2 #", nullptr},
    {"face $6 -1 $-1 $7 $8 $4 $-1 $9 F F #", "face $6 -1 $-1 $7 $8 $4 $-1 $9 forward single #"},
    {"face $6 -1 $-1 $7 $8 $4 $-1 $9 T T F #", "face $6 -1 $-1 $7 $8 $4 $-1 $9 reversed double out #"},
    {"face $6 -1 $-1 $7 $8 $4 $-1 $9 T T T #", "face $6 -1 $-1 $7 $8 $4 $-1 $9 reversed double in #"},
    {"face $6 -1 $-1 $7 $8 $4 $-1 $9 T T #", "kept"},
    {"face $6 -1 $-1 $7 $8 $4 $-1 $9 F F F #", "kept"},
    {"coedge $-1 -1 $-1 $2 $3 $-1 $4 T $5 0 $-1 #", "coedge $-1 -1 $-1 $2 $3 $-1 $4 reversed $5 0 $-1 #"},
    {"edge $-1 $2 $3 $4 $5 F #", "edge $-1 $2 $3 $4 $5 forward #"},
    {"edge $-1 -1 $-1 $2 0.0 $3 0.1 $4 $5 T \"convex edge\" #",
     "edge $-1 -1 $-1 $2 0 $3 0.10000000000000001 $4 $5 reversed @11 convex edge #"},
    {"plane-surface $-1 -1 $-1 (0 0 5) (0 -0 1) (1 0 0) F F F F F #",
     "plane-surface $-1 -1 $-1 0 0 5 0 -0 1 1 0 0 forward_v I I I I #"},
    {"plane-surface $-1 -1 $-1 (0 0 5) (0 0 1) (1 0 0) T T -1.5 T 2.0 F F #",
     "plane-surface $-1 -1 $-1 0 0 5 0 0 1 1 0 0 reverse_v F -1.5 F 2 I I #"},
    {"plane-surface $-1 -1 $-1 (0 0 5) (0 0 1) (1 0 0) T T T 2.0 F F #", "kept"},
    {"plane-surface $-1 -1 $-1 (0 0 5) (0 0 1) (1 0 0) T F F F F F #", "kept"},
    {"cone-surface $-1 -1 $-1 (0 0 0) (0 0 1) (5 0 0) 1.0 F F 0.0 1.0 5.0 F F F F F #",
     "cone-surface $-1 -1 $-1 0 0 0 0 0 1 5 0 0 1 I I 0 1 5 forward I I I I #"},
    {"sphere-surface $-1 -1 $-1 (1 2 3) 1e-07 (1 0 0) (0 0 1) F F F F F #",
     "sphere-surface $-1 -1 $-1 1 2 3 9.9999999999999995e-08 1 0 0 0 0 1 forward_v I I I I #"},
    {"torus-surface $-1 -1 $-1 (0 0 0) (0 0 1) 10.0 2.5 (1 0 0) T F F T 0.0 T 1.0 #",
     "torus-surface $-1 -1 $-1 0 0 0 0 0 1 10 2.5 1 0 0 reverse_v I I F 0 F 1 #"},
    {"straight-curve $-1 -1 $-1 (0 0 0) (0 0 1) F F #", "straight-curve $-1 -1 $-1 0 0 0 0 0 1 I I #"},
    {"ellipse-curve $-1 -1 $-1 (0 0 0) (0 0 1) (2 0 0) 0.5 F T 3.0 #",
     "ellipse-curve $-1 -1 $-1 0 0 0 0 0 1 2 0 0 0.5 I F 3 #"},
    {"transform $-1 -1 (1 0 0) (0 1 0) (0 0 1) (4 5 6) 2.0 T F F #",
     "transform $-1 -1 1 0 0 0 1 0 0 0 1 4 5 6 2 rotate no_reflect no_shear #"},
    {"transform $-1 -1 (1 0 0) (0 1 0) (0 0 1) (4 5 6) 2.0 F T T #",
     "transform $-1 -1 1 0 0 0 1 0 0 0 1 4 5 6 2 no_rotate reflect shear #"},
    {"transform $-1 -1 '1 0 0 0 1 0 0 0 1 4 5 6 1 no_rotate no_reflect no_shear ' #",
     "transform $-1 -1 1 0 0 0 1 0 0 0 1 4 5 6 1 no_rotate no_reflect no_shear #"},
    {"one-other-attrib $-1 'word ' #", "kept"},
    {"persubent-acadSolidHistory-attrib $-1 -1 $-1 $-1 $5 1 -3 #", nullptr},
    {"rgb_color-st-attrib $-1 -1 $-1 $-1 $5 0.5 1.0 \"\" #", "rgb_color-st-attrib $-1 -1 $-1 $-1 $5 0.5 1 @0  #"},
    {"one-other-attrib $-1 F #", "kept"},
    {"one-other-attrib $-1 e2 #", "kept"},
    {"one-other-attrib $-1 { =word 1 } #", "one-other-attrib $-1 { word 1 } #"},
    {"one-other-attrib $-1 \"a\tb\" #", "kept"},
    {"one-other-attrib $-1 \"\xc3\xa9\" #", "kept"},
    {"one-other-attrib $-1 1e999 #", "kept"},
};

/// What a record has as its model, without the disguise: lines of groups 1, with the groups 3 behind them.
std::vector<std::string> modelIn(const TextNode &node)
{
    std::vector<std::string> lines;
    for (const TextTag &tag : node.tags) {
        if (tag.code != 1 && tag.code != 3)
            continue;
        if (tag.code == 1 || lines.empty())
            lines.emplace_back();
        EXPECT_LE(tag.value.size(), 2 * 255u);
        for (std::size_t i = 0; i < tag.value.size(); ++i) {
            lines.back() += tag.value[i] == ' ' ? ' ' : static_cast<char>(159 - tag.value[i]);
            i += tag.value.substr(i, 2) == "^ " ? 1 : 0;
        }
    }
    return lines;
}

MadeDrawing::Write writeModel(std::string model, bool isSolid)
{
    return [model = std::move(model), isSolid](ObjectWriter &o) { writeSolid(o, model, isSolid); };
}

const TextNode &nodeOf(const ReadBack &read, const std::string &handle)
{
    return read.tree.nodes[read.tree.find(handle)];
}

std::string valueOf(const TextNode &node, int code)
{
    const auto found = std::ranges::find(node.tags, code, &TextTag::code);
    return found != node.tags.end() ? found->value : std::string();
}

/// The bytes in the groups 310 of a record.
std::string binaryIn(const TextNode &node)
{
    std::string bytes;
    for (const TextTag &tag : node.tags) {
        for (std::size_t i = 0; tag.code == 310 && i + 1 < tag.value.size(); i += 2)
            bytes += static_cast<char>(std::stoi(tag.value.substr(i, 2), nullptr, 16));
    }
    return bytes;
}

TextTree corpusTree(const std::string &file)
{
    const char *corpus = std::getenv("ORTAKIT_CORPUS");
    if (!corpus)
        return {};
    std::ifstream stream(std::filesystem::path(corpus) / file, std::ios::binary);
    std::stringstream text;
    text << stream.rdbuf();
    return readTree(text.str());
}

} // namespace

TEST(DwgModels, RecordsAreLinesWithWords)
{
    for (const RecordRow &row : recordRows)
        EXPECT_EQ(lineOf(row.record), row.line ? row.line : row.record) << row.record;
}

TEST(DwgModels, VersionsHaveTheirOwnForms)
{
    const char *const face = "face $-1 $2 $3 $4 $-1 $5 T T F e3 \"ab\" #";
    EXPECT_EQ(lineOf(face, {.version = 106}), "face $-1 $2 $3 $4 $-1 $5 1 1 0 3 2 ab #");
    const char *const edge = "edge $-1 $2 $3 $4 $70000 T \"ab\" #";
    EXPECT_EQ(lineOf(edge, {.version = 400}), "edge $-1 $2 $3 $4 $70000 reversed 2 ab #");
    EXPECT_EQ(lineOf(edge, {.isWide = true}), "edge $-1 $2 $3 $4 $70000 reversed @2 ab #");
    const char *const point = "point $-1 (1e-07 -0.1 1e-100) #";
    EXPECT_EQ(lineOf(point, {.writer = "ASM 1.0 NT"}),
              "point $-1 9.9999999999999995e-008 -0.10000000000000001 1e-100 #");
    EXPECT_EQ(lineOf(point, {.writer = "ASM 1.0 OSX"}),
              "point $-1 9.999999999999999547e-08 -0.1000000000000000056 1.00000000000000002e-100 #");
    const auto head = modelLines(binaryModel("body #"));
    ASSERT_TRUE(head);
    EXPECT_EQ((*head)[0], "21800 0 2 4");
    EXPECT_EQ((*head)[1], "@7 Ortakit @7 ASM 1.0 @24 Thu Jan 01 00:00:00 1970");
    EXPECT_EQ((*head)[2], "25.399999999999999 9.9999999999999995e-07 1e-10");
    EXPECT_EQ(head->back(), "End-of-ASM-data");
}

TEST(DwgModels, AreTextInDrawings)
{
    const auto lines = modelLines(triangleModel());
    ASSERT_TRUE(lines);
    for (const Release release : {Release::R2007, Release::R2010}) {
        MadeDrawing drawing(release);
        const std::uint64_t region = drawing.addEntity(regionType, writeModel(triangleModel(), false));
        drawing.addEntity(solidType, writeModel(binaryModel("one-attrib \"" + std::string(250, 'A') + "\" #"), true));
        const ReadBack read = readBack(drawing);
        EXPECT_EQ(read.problems(), "");
        EXPECT_EQ(modelIn(nodeOf(read, "40")), *lines);
        EXPECT_EQ(read.lastPart(region).find("70 1|1 "), 0u);
        EXPECT_EQ(modelIn(nodeOf(read, "41"))[3], "one-attrib @250 " + std::string(250, 'A') + " #");
        EXPECT_NE(read.record(0x41).find("|3 "), std::string::npos) << "the long line goes on";
        EXPECT_EQ(read.lastPart(0x41), "350 0|");
        EXPECT_EQ(read.record(region).find("ACAD_XDICTIONARY"), std::string::npos);
    }
}

TEST(DwgModels, WithoutTextStayAsTheyAre)
{
    for (const Release release : {Release::R2007, Release::R2010}) {
        MadeDrawing drawing(release);
        drawing.addEntity(regionType, writeModel(splineModel(), false));
        const std::uint64_t solid = drawing.addEntity(solidType, writeModel(splineModel(), true));
        const std::uint64_t dictionary = drawing.addOwned(0x2a, solid, [](ObjectWriter &o) {
            o.int32(1);
            o.int16(1);
            o.small(1);
            o.text("OTHER");
            o.reference(0x43, HandleReference::HardOwner);
        });
        drawing.addOwned(0x50, dictionary, [](ObjectWriter &) {});
        drawing.head(solid).dictionary = dictionary;
        drawing.addEntity(regionType, writeModel(triangleModel(), false));
        const ReadBack read = readBack(drawing);
        EXPECT_EQ(read.problems(),
                  "REGION 40: The model has a binary form that has no text here; it is kept as its bytes.\n"
                  "3DSOLID 41: The model has a binary form that has no text here; it is kept as its bytes.\n");
        EXPECT_TRUE(modelIn(nodeOf(read, "40")).empty());
        EXPECT_EQ(read.record(0x40).find("0 REGION|5 40|102 {ACAD_XDICTIONARY|360 1000|102 }|"), 0u);
        EXPECT_EQ(read.record(0x1000),
                  "0 DICTIONARY|5 1000|330 40|100 AcDbDictionary|280 1|281 1|3 ORTAKIT_MODEL|360 1001|");
        EXPECT_EQ(read.lastPart(0x42), "280 1|281 1|3 ORTAKIT_MODEL|360 1002|3 OTHER|360 43|");
        EXPECT_EQ(read.variable("$HANDSEED"), "9 $HANDSEED|5 1003|");
        for (const char *record : {"1001", "1002"}) {
            EXPECT_EQ(valueOf(nodeOf(read, record), 100), "AcDbXrecord");
            EXPECT_TRUE(binaryIn(nodeOf(read, record)) == splineModel()) << record;
        }
        EXPECT_EQ(valueOf(nodeOf(read, "1002"), 330), "42");
        EXPECT_FALSE(modelIn(nodeOf(read, "44")).empty());
    }
}

TEST(DwgModels, EndWithTheirLastRecordAlone)
{
    const std::string_view last("\x0e\x03"
                                "End\x0e\x02of\x0e\x03"
                                "ASM\x0d\x04"
                                "data");
    const std::string model = triangleModel();
    EXPECT_EQ(binaryModelSize(model + model), model.size());
    const std::string within = binaryModel("one-attrib \"" + std::string(last) + "\" #");
    EXPECT_EQ(binaryModelSize(within + "more"), within.size()) << "a text that looks like the end";
    std::string unknown = triangleModel();
    unknown[unknown.size() - last.size() - 1] = '\x63';
    EXPECT_EQ(binaryModelSize(unknown + "more"), unknown.size()) << "values of another form";
    EXPECT_FALSE(modelLines(unknown));
    EXPECT_FALSE(modelLines(model + "#"));
    std::string endless = binaryModel("one-attrib \"ab\" #");
    endless[endless.find("\x07\x02"
                         "ab")] = '\x09'; // a length of four bytes that leads far away
    EXPECT_FALSE(modelLines(endless));
}

TEST(DwgModels, DamageIsToldAndNothingIsMadeUp)
{
    const std::string model = triangleModel();
    for (std::size_t size = 0; size < model.size(); ++size) {
        EXPECT_EQ(binaryModelSize(model.substr(0, size)), 0u) << size;
        EXPECT_FALSE(modelLines(model.substr(0, size))) << size;
    }
    for (std::size_t place = 0; place < model.size(); ++place) {
        std::string changed = model;
        changed[place] = static_cast<char>(changed[place] ^ 0xff);
        if (const auto lines = modelLines(changed)) {
            EXPECT_NE(*lines, *modelLines(model)) << place;
        }
    }
    MadeDrawing drawing(Release::R2010);
    drawing.addEntity(regionType, writeModel(binaryModel("body #", {.end = nullptr}), false));
    EXPECT_EQ(readBack(drawing).problems(), "REGION 40: The object ends before its values do.\n");
}

/// Models of another program, in the binary form of later drawings.
TEST(DwgModels, OfOtherProgramsHaveAWordForEachLogicalValue)
{
    int count = 0;
    const TextTree tree = corpusTree("uncommon.dxf");
    for (const TextNode &node : tree.nodes) {
        const std::string model = binaryIn(node);
        if (!model.starts_with("ASM BinaryFile4"))
            continue;
        ++count;
        EXPECT_EQ(binaryModelSize(model), model.size());
        const auto lines = modelLines(model);
        ASSERT_TRUE(lines);
        EXPECT_EQ(lines->size(), headLines + 114) << "a line a record, and the end";
        const auto has = [&lines](std::string_view line) { return std::ranges::count(*lines, line) == 1; };
        EXPECT_TRUE(has("face $6 -1 $-1 $7 $8 $4 $-1 $9 forward single #"));
        EXPECT_TRUE(has("straight-curve $-1 -1 $-1 2.6063831782316029 0 0.31918888275115875 0 -1 0 I I #"));
        EXPECT_TRUE(has("coedge $-1 -1 $-1 $20 $21 $22 $23 reversed $8 0 $-1 #"));
        const std::size_t planes = static_cast<std::size_t>(std::ranges::count_if(*lines, [](const std::string &line) {
            return line.starts_with("plane-surface ") && line.ends_with("_v I I I I #");
        }));
        EXPECT_EQ(planes, 6u);
    }
    if (count == 0)
        GTEST_SKIP() << "ORTAKIT_CORPUS names no folder with uncommon.dxf";
    EXPECT_EQ(count, 4);
}

/// The text of another program's models, put into binary form, becomes the same text again.
TEST(DwgModels, OfOtherProgramsComeBackToTheSameLines)
{
    int count = 0;
    const TextTree tree = corpusTree("../dwg/r13_example.dxf");
    for (const TextNode &node : tree.nodes) {
        if (node.tags.empty() || (node.type() != "REGION" && node.type() != "3DSOLID"))
            continue;
        const std::vector<std::string> lines = modelIn(node);
        ASSERT_FALSE(lines.empty());
        ++count;
        std::string records;
        for (const std::string &line : std::span(lines).subspan(1, lines.size() - 2)) {
            const bool hasSense = line.starts_with("face ") || line.starts_with("coedge ") || line.starts_with("edge ");
            std::istringstream words(line);
            for (std::string word; words >> word; records += word + (word == "#" ? '\n' : ' ')) {
                if (hasSense && (word == "0" || word == "1"))
                    word = word == "0" ? "F" : "T";
            }
        }
        auto read = modelLines(binaryModel(records, {.version = 106, .end = "End-of-ACIS-data"}));
        ASSERT_TRUE(read);
        read->front() = lines.front(); // its counts
        EXPECT_EQ(*read, lines);
    }
    if (count == 0)
        GTEST_SKIP() << "ORTAKIT_CORPUS names no folder with r13_example beside it";
    EXPECT_EQ(count, 3);
}

} // namespace host::dwg::test
