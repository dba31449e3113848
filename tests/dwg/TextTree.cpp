#include "tests/dwg/TextTree.h"

#include <cstdlib>

namespace host::dwg::test {

namespace {

std::string_view takeLine(std::string_view &text)
{
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    while (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    return line;
}

/// Puts the records of a text form, as they come, to their places.
class TreeBuilder
{
public:
    TreeBuilder() { m_tree.nodes.push_back({}); }

    void add(int code, std::string value)
    {
        if (code == 0)
            begin(std::move(value));
        else if (code == 9 && m_tree.nodes[m_section].name == "HEADER")
            append(9, std::move(value), m_section);
        else if (m_current != 0)
            continueRecord(code, std::move(value));
    }

    TextTree take() { return std::move(m_tree); }

private:
    void begin(std::string type)
    {
        m_current = 0;
        if (type == "SECTION") {
            m_section = m_container = append(0, std::move(type), 0);
        } else if (type == "TABLE" || type == "BLOCK") {
            m_container = append(0, std::move(type), m_section);
        } else if (type == "ENDTAB" || type == "ENDSEC" || type == "EOF") {
            m_container = m_section;
        } else if (type == "ENDBLK") {
            append(0, std::move(type), m_container);
            m_container = m_section;
        } else if (m_listOwner != 0 && (type == "VERTEX" || type == "ATTRIB" || type == "SEQEND")) {
            append(0, std::move(type), m_listOwner);
            return;
        } else {
            const bool hasList = type == "POLYLINE" || type == "INSERT";
            m_listOwner = append(0, std::move(type), m_container);
            if (hasList)
                return;
        }
        m_listOwner = 0;
    }

    std::size_t append(int code, std::string value, std::size_t parent)
    {
        m_current = m_tree.nodes.size();
        m_tree.nodes[parent].children.push_back(m_current);
        TextNode node;
        node.parent = parent;
        if (code == 9)
            node.name = value;
        node.tags.push_back({code, std::move(value)});
        m_tree.nodes.push_back(std::move(node));
        m_isInHead = true;
        return m_current;
    }

    void continueRecord(int code, std::string value)
    {
        TextNode &node = m_tree.nodes[m_current];
        m_isInHead = m_isInHead && code != 100;
        const std::string &type = node.type();
        if (code == (type == "DIMSTYLE" ? 105 : 5) && m_isInHead && node.handle.empty() && node.tags[0].code == 0) {
            node.handle = trimmed(value);
            m_tree.byHandle.emplace(node.handle, m_current);
        }
        const bool isInTable = m_tree.nodes[node.parent].tags.size() > 0 && m_tree.nodes[node.parent].type() == "TABLE";
        const bool isNamed = isInTable || type == "SECTION" || type == "TABLE" || type == "BLOCK";
        if (node.name.empty() && (isNamed ? code == 2 : type == "CLASS" && code == 1))
            node.name = value;
        node.tags.push_back({code, std::move(value)});
    }

    TextTree m_tree;
    std::size_t m_section = 0;
    std::size_t m_container = 0;
    std::size_t m_listOwner = 0; ///< the polyline or insert that vertices or attributes belong to
    std::size_t m_current = 0;
    bool m_isInHead = true; ///< in front of the first subclass
};

} // namespace

std::string trimmed(std::string_view text)
{
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return std::string(text);
}

TextTree readTree(std::string_view text)
{
    TreeBuilder builder;
    while (!text.empty()) {
        const int code = std::atoi(std::string(takeLine(text)).c_str());
        builder.add(code, std::string(takeLine(text)));
    }
    return builder.take();
}

} // namespace host::dwg::test
