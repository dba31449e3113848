#include "tests/dwg/EarlyReadBack.h"

namespace host::dwg::test {

namespace {

std::string earlyTagsOf(const TextNode &node)
{
    std::string text = node.type();
    for (std::size_t i = 1; i < node.tags.size(); ++i)
        text += ' ' + std::to_string(node.tags[i].code) + ' ' + node.tags[i].value;
    return text;
}

} // namespace

std::string earlyRecordsOf(const TextTree &tree, std::string_view name, std::size_t at)
{
    std::string lines;
    for (const std::size_t child : tree.nodes[at].children) {
        const TextNode &node = tree.nodes[child];
        if (node.name == name && (node.type() == "SECTION" || node.type() == "TABLE"))
            return earlyRecordsOf(tree, {}, child);
        if (node.type() == "SECTION" || node.type() == "TABLE")
            lines += earlyRecordsOf(tree, name, child);
        else if (name.empty())
            lines += earlyTagsOf(node) + '\n' + earlyRecordsOf(tree, {}, child);
    }
    return lines;
}

std::string earlyProblemsOf(const DrawingText &drawing)
{
    std::string lines;
    for (const Problem &problem : drawing.problems.list())
        lines += problem.message() + '\n';
    return lines;
}

EarlyFileMaker earlyMakerWithTables(Release release)
{
    EarlyFileMaker maker(release);
    maker.addRecord(EarlyTableKind::Styles, 0, "STANDARD", "0.0 1.0 0.0 b0 0.2 \"txt z125");
    maker.addToBlocks(12, 0, 0, "0.0 0.0");
    maker.addToBlocks(13, 0, 0, "");
    maker.addRecord(EarlyTableKind::Blocks, 0, "TREE", release >= r12 ? "l1073741824 l-1" : "l1073741824");
    maker.addRecord(EarlyTableKind::Applications, 0, "MADE", "");
    maker.addRecord(EarlyTableKind::DimensionStyles, 0, "MADE",
                    "1.0 2.0 3.0 4.0 5.0 6.0 7.0 8.0 9.0 10.0 11.0 12.0 13.0 14.0 15.0 b1 b2 b3 b4 b5 b6 b7 b8 b9 b10 "
                    "b11 b12 b13 b14 \"<>mm z12 z16 \"DOT z30 z33 z33 w1 w2 w3 16.0 17.0");
    maker.addRecord(EarlyTableKind::Views, 0, "FRONT",
                    release >= r10 ? "1.0 2.0 3.0 4.0 0.0 -1.0 0.0 w0 5.0 6.0 7.0 50.0 0.0 0.0 0.0 w1"
                                   : "1.0 2.0 3.0 4.0 0.0 -1.0 0.0 w0");
    maker.addRecord(EarlyTableKind::Systems, 0, "SIDE", "1.0 2.0 3.0 0.0 1.0 0.0 0.0 0.0 1.0");
    return maker;
}

} // namespace host::dwg::test
