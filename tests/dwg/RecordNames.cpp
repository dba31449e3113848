#include "tests/dwg/RecordNames.h"

#include "tests/dwg/RecordMatching.h"

namespace host::dwg::test {

RecordNames::RecordNames(const TextTree &tree) : m_tree(tree), m_links(tree.nodes.size())
{
    for (std::size_t i = 1; i < tree.nodes.size(); ++i) {
        const TextNode &node = tree.nodes[i];
        link(i, extensionOf(node), "*");
        if (node.type() != "DICTIONARY" && node.type() != "ACDBDICTIONARYWDFLT")
            continue;
        for (const auto &[name, handle] : entriesOf(node))
            link(i, handle, name);
    }
}

std::string RecordNames::of(std::size_t i) const
{
    const TextNode &node = m_tree.nodes[i];
    if (node.tags[0].code == 9)
        return node.type();
    return node.type() + ' ' + (m_links[i].from != 0 ? pathOf(i, 0) : labelOf(i));
}

void RecordNames::link(std::size_t from, const std::string &handle, const std::string &name)
{
    const std::size_t to = m_tree.find(handle);
    if (to != 0 && m_links[to].from == 0)
        m_links[to] = {from, name};
}

std::string RecordNames::labelOf(std::size_t i) const
{
    const TextNode &node = m_tree.nodes[i];
    return !node.name.empty() ? node.name : !node.handle.empty() ? node.handle : '#' + std::to_string(i);
}

std::string RecordNames::pathOf(std::size_t i, int depth) const
{
    const Link &link = m_links[i];
    constexpr int mostDepth = 20;
    if (link.from != 0 && depth < mostDepth)
        return pathOf(link.from, depth + 1) + '/' + link.name;
    const TextNode &node = m_tree.nodes[i];
    return node.type() == "DICTIONARY" ? std::string() : node.type() + ' ' + labelOf(i);
}

} // namespace host::dwg::test
