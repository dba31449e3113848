#include "tests/dwg/RecordMatching.h"

#include <algorithm>
#include <deque>
#include <map>

namespace host::dwg::test {

namespace {

bool isProxy(const TextNode &node)
{
    return node.type() == "ACAD_PROXY_OBJECT" || node.type() == "ACAD_PROXY_ENTITY";
}

bool isSameKind(const TextNode &one, const TextNode &other)
{
    return one.type() == other.type() || isProxy(one) || isProxy(other);
}

class RecordMatcher
{
public:
    RecordMatcher(const TextTree &read, const TextTree &expected) : m_read(read), m_expected(expected)
    {
        m_partners.ofRead.resize(read.nodes.size());
        m_partners.ofExpected.resize(expected.nodes.size());
        noteBlocks(read, m_readBlocks);
        noteBlocks(expected, m_expectedBlocks);
    }

    Partners run()
    {
        matchChildren(0, 0);
        followAll();
        for (std::size_t i = 1; i < m_expected.nodes.size(); ++i) {
            matchByHandle(i);
            followAll();
        }
        for (const char *section : {"TABLES", "BLOCKS"})
            matchRest(section);
        matchByOwners();
        return std::move(m_partners);
    }

private:
    /// Places of blocks by "BLOCK Name" and "BLOCK_RECORD Name".
    using Blocks = std::map<std::string, std::size_t>;

    static void noteBlocks(const TextTree &tree, Blocks &blocks)
    {
        for (std::size_t i = 1; i < tree.nodes.size(); ++i) {
            if (isBlock(tree.nodes[i]))
                blocks.emplace(tree.nodes[i].type() + ' ' + tree.nodes[i].name, i);
        }
    }

    static bool isBlock(const TextNode &node) { return node.type() == "BLOCK" || node.type() == "BLOCK_RECORD"; }

    const TextNode &readNode(std::size_t i) const { return m_read.nodes[i]; }
    const TextNode &expectedNode(std::size_t i) const { return m_expected.nodes[i]; }

    bool match(std::size_t read, std::size_t expected)
    {
        if (read == 0 || expected == 0 || m_partners.ofRead[read] != 0 || m_partners.ofExpected[expected] != 0 ||
            !isSameKind(readNode(read), expectedNode(expected)))
            return false;
        m_partners.ofRead[read] = expected;
        m_partners.ofExpected[expected] = read;
        m_row.push_back({read, expected});
        return true;
    }

    void followAll()
    {
        while (!m_row.empty()) {
            const auto [read, expected] = m_row.front();
            m_row.pop_front();
            if (readNode(read).name == "OBJECTS")
                matchFirst(read, expected);
            else
                matchChildren(read, expected);
            matchLinks(readNode(read), expectedNode(expected));
        }
    }

    /// Objects hang together by names from the first dictionary on.
    void matchFirst(std::size_t read, std::size_t expected)
    {
        if (!readNode(read).children.empty() && !expectedNode(expected).children.empty())
            match(readNode(read).children[0], expectedNode(expected).children[0]);
    }

    void matchLinks(const TextNode &read, const TextNode &expected)
    {
        match(m_read.find(extensionOf(read)), m_expected.find(extensionOf(expected)));
        if (expected.type() == "INSERT" || expected.type() == "DIMENSION")
            matchBlocks(blockNameOf(read), blockNameOf(expected));
        else if (expected.type() == "BLOCK_RECORD")
            matchBlocks(read.name, expected.name);
        if (expected.type() != "DICTIONARY" && expected.type() != "ACDBDICTIONARYWDFLT")
            return;
        std::map<std::string, std::string> handles;
        for (auto &[name, handle] : entriesOf(read))
            handles[name] = handle;
        for (const auto &[name, handle] : entriesOf(expected)) {
            if (const auto found = handles.find(name); found != handles.end())
                match(m_read.find(found->second), m_expected.find(handle));
        }
    }

    /// Blocks without a name of their own are found from what shows them.
    void matchBlocks(const std::string &read, const std::string &expected)
    {
        if (!read.starts_with('*') || !expected.starts_with('*'))
            return;
        for (const char *type : {"BLOCK_RECORD ", "BLOCK "}) {
            const auto one = m_readBlocks.find(type + read);
            const auto other = m_expectedBlocks.find(type + expected);
            if (one != m_readBlocks.end() && other != m_expectedBlocks.end())
                match(one->second, other->second);
        }
    }

    void matchChildren(std::size_t read, std::size_t expected)
    {
        const auto &ones = readNode(read).children;
        const auto &others = expectedNode(expected).children;
        if (!isListAnew(ones, others)) {
            for (const std::size_t child : others) {
                const std::size_t found = m_read.find(expectedNode(child).handle);
                if (readNode(found).parent == read && readNode(found).handle == expectedNode(child).handle)
                    match(found, child);
            }
        }
        matchByKeys(ones, others,
                    [](const TextNode &node) { return node.name.empty() ? "" : node.type() + node.name; });
        matchByKeys(ones, others, [](const TextNode &node) {
            return isBlock(node) || node.type() == "SECTION" ? std::string() : node.type();
        });
    }

    /// Blocks without a name of their own that nothing else brought together go by order, each kind for itself.
    void matchRest(std::string_view section)
    {
        const auto place = [section](const TextTree &tree) {
            std::size_t at = 0;
            for (const std::size_t child : tree.nodes[0].children)
                at = tree.nodes[child].name == section ? child : at;
            for (const std::size_t table : tree.nodes[at].children)
                at = tree.nodes[table].name == "BLOCK_RECORD" ? table : at;
            return at;
        };
        matchByKeys(
            readNode(place(m_read)).children, expectedNode(place(m_expected)).children,
            [](const TextNode &node) { return node.name.starts_with('*') ? node.name.substr(0, 2) : std::string(); });
        followAll();
    }

    /// Whether it is a list of vertices or attributes that has other handles.
    bool isListAnew(const std::vector<std::size_t> &ones, const std::vector<std::size_t> &others) const
    {
        if (others.empty() ||
            (expectedNode(others[0]).type() != "VERTEX" && expectedNode(others[0]).type() != "ATTRIB"))
            return false;
        return !std::equal(ones.begin(), ones.end(), others.begin(), others.end(),
                           [this](auto one, auto other) { return readNode(one).handle == expectedNode(other).handle; });
    }

    template <typename Key>
    void matchByKeys(const std::vector<std::size_t> &ones, const std::vector<std::size_t> &others, Key key)
    {
        std::map<std::string, std::deque<std::size_t>> rows;
        for (const std::size_t one : ones) {
            if (const std::string name = key(readNode(one)); m_partners.ofRead[one] == 0 && !name.empty())
                rows[name].push_back(one);
        }
        for (const std::size_t other : others) {
            if (m_partners.ofExpected[other] != 0)
                continue;
            const auto found = rows.find(key(expectedNode(other)));
            if (found == rows.end() || found->second.empty())
                continue;
            match(found->second.front(), other);
            found->second.pop_front();
        }
    }

    void matchByHandle(std::size_t expected)
    {
        if (m_partners.ofExpected[expected] == 0 && !expectedNode(expected).handle.empty())
            match(m_read.find(expectedNode(expected).handle), expected);
    }

    /// What dictionaries call the records.
    static std::vector<std::string> dictionaryNames(const TextTree &tree)
    {
        std::vector<std::string> names(tree.nodes.size());
        for (std::size_t i = 1; i < tree.nodes.size(); ++i) {
            for (auto &[name, handle] : entriesOf(tree.nodes[i]))
                names[tree.find(handle)] = name;
        }
        return names;
    }

    /// Names that are numbers are addresses in the memory of the program that wrote them.
    static bool mayBeSame(const std::string &read, const std::string &expected)
    {
        const auto isNumber = [](const std::string &name) {
            return name.find_first_not_of("0123456789") == std::string::npos;
        };
        return read == expected || (isNumber(read) && isNumber(expected));
    }

    void matchByOwners()
    {
        const std::vector<std::string> readNames = dictionaryNames(m_read);
        const std::vector<std::string> expectedNames = dictionaryNames(m_expected);
        std::map<std::string, std::vector<std::size_t>> owned;
        for (std::size_t i = 1; i < m_read.nodes.size(); ++i) {
            if (m_partners.ofRead[i] == 0)
                owned[ownerOf(readNode(i))].push_back(i);
        }
        for (std::size_t i = 1; i < m_expected.nodes.size(); ++i) {
            const std::size_t owner = m_partners.ofExpected[m_expected.find(ownerOf(expectedNode(i)))];
            if (m_partners.ofExpected[i] != 0 || owner == 0 || isBlock(expectedNode(i)))
                continue;
            for (const std::size_t one : owned[readNode(owner).handle]) {
                if (mayBeSame(readNames[one], expectedNames[i]) && match(one, i))
                    break;
            }
            followAll();
        }
    }

    const TextTree &m_read;
    const TextTree &m_expected;
    Blocks m_readBlocks;
    Blocks m_expectedBlocks;
    Partners m_partners;
    std::deque<std::pair<std::size_t, std::size_t>> m_row; ///< whose children and links are still to be looked at
};

} // namespace

std::string blockNameOf(const TextNode &node)
{
    const auto found = std::ranges::find(node.tags, 2, &TextTag::code);
    return found != node.tags.end() ? found->value : std::string();
}

std::string ownerOf(const TextNode &node)
{
    bool isInBraces = false;
    for (const TextTag &tag : node.tags) {
        if (tag.code == 100)
            break;
        if (tag.code == 102)
            isInBraces = tag.value.starts_with("{");
        else if (tag.code == 330 && !isInBraces)
            return trimmed(tag.value);
    }
    return {};
}

std::string extensionOf(const TextNode &node)
{
    for (std::size_t i = 0; i + 1 < node.tags.size(); ++i) {
        if (node.tags[i].code == 102 && node.tags[i].value == "{ACAD_XDICTIONARY")
            return trimmed(node.tags[i + 1].value);
    }
    return {};
}

std::vector<std::pair<std::string, std::string>> entriesOf(const TextNode &node)
{
    std::vector<std::pair<std::string, std::string>> entries;
    for (std::size_t i = 0; i + 1 < node.tags.size(); ++i) {
        if (node.tags[i].code == 3 && (node.tags[i + 1].code == 350 || node.tags[i + 1].code == 360))
            entries.emplace_back(node.tags[i].value, trimmed(node.tags[i + 1].value));
    }
    return entries;
}

Partners matchRecords(const TextTree &read, const TextTree &expected)
{
    return RecordMatcher(read, expected).run();
}

} // namespace host::dwg::test
