#pragma once

#include "tests/dwg/TextTree.h"

namespace host::dwg::test {

/// Names records by what stays the same when handles do not: "LAYER Walls", "$LTSCALE", "LINE 2A",
/// "XRECORD /ACAD_LAYOUT/Model/*/NAME" for what dictionaries name; `*` stands for an extension dictionary.
class RecordNames
{
public:
    explicit RecordNames(const TextTree &tree);

    std::string of(std::size_t node) const;

private:
    struct Link
    {
        std::size_t from = 0;
        std::string name;
    };

    void link(std::size_t from, const std::string &handle, const std::string &name);
    std::string labelOf(std::size_t node) const;
    std::string pathOf(std::size_t node, int depth) const;

    const TextTree &m_tree;
    std::vector<Link> m_links; ///< for each node, which one leads to it
};

} // namespace host::dwg::test
