#include "tests/dwg/making/ReadBack.h"

#include <algorithm>
#include <cstdio>

namespace host::dwg::test {

namespace {

std::string tagsOf(const TextNode &node)
{
    std::string tags;
    for (const TextTag &tag : node.tags)
        tags += std::to_string(tag.code) + ' ' + tag.value + '|';
    return tags;
}

} // namespace

std::string ReadBack::record(std::uint64_t handle) const
{
    char digits[20];
    std::snprintf(digits, sizeof digits, "%llX", static_cast<unsigned long long>(handle));
    return tagsOf(tree.nodes[tree.find(digits)]);
}

std::string ReadBack::lastPart(std::uint64_t handle) const
{
    const std::string tags = record(handle);
    const std::size_t marker = tags.rfind("|100 ");
    return marker == std::string::npos ? tags : tags.substr(tags.find('|', marker + 1) + 1);
}

std::string ReadBack::variable(const std::string &name) const
{
    const auto found = std::ranges::find(tree.nodes, name, &TextNode::name);
    return found != tree.nodes.end() ? tagsOf(*found) : std::string();
}

std::string ReadBack::problems() const
{
    std::string messages;
    for (const Problem &problem : drawing.problems.list())
        messages += problem.message() + '\n';
    return messages;
}

ReadBack readBack(const FileBytes &file)
{
    ReadBack result;
    result.drawing = readDrawing(file);
    result.tree = readTree(result.drawing.text);
    return result;
}

ReadBack readBack(const MadeDrawing &drawing)
{
    return readBack(drawing.file());
}

} // namespace host::dwg::test
