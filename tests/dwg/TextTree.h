#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace host::dwg::test {

struct TextTag
{
    int code;
    std::string value;
};

/// A record of a drawing in text form in its place: a section has tables, header variables, classes, blocks or
/// entities; a table its entries, a block its entities and what ends it, a polyline its vertices, an insert its
/// attributes.
struct TextNode
{
    std::vector<TextTag> tags; ///< group 0 first; group 9 for header variables
    std::string handle;        ///< empty where it has none
    std::string name; ///< what tells it from its neighbours: of a variable, a class, a table, an entry, a block
    std::size_t parent = 0;
    std::vector<std::size_t> children; ///< in their order

    const std::string &type() const { return tags[0].value; }
};

/// A drawing in text form. The first node is its root and has no tags; parents stand in front of their children.
struct TextTree
{
    std::vector<TextNode> nodes;
    std::unordered_map<std::string, std::size_t> byHandle;

    /// The place of the handle in `nodes`; 0 where no record has it.
    std::size_t find(const std::string &handle) const
    {
        const auto found = byHandle.find(handle);
        return found != byHandle.end() ? found->second : 0;
    }
};

TextTree readTree(std::string_view text);

/// Without the blanks in front and behind: numbers stand right-aligned in some programs' files.
std::string trimmed(std::string_view text);

} // namespace host::dwg::test
