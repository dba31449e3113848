#include "tests/dwg/PairComparison.h"

#include "tests/dwg/PairExplanations.h"
#include "tests/dwg/RecordMatching.h"
#include "tests/dwg/RecordNames.h"
#include "tests/dwg/TagComparison.h"

#include <algorithm>

namespace host::dwg::test {

namespace {

/// Compares two drawings whose records were brought together.
class TreeComparison
{
public:
    TreeComparison(const TextTree &read, const TextTree &expected, std::string_view pair)
        : m_read(read), m_expected(expected), m_pair(pair), m_partners(matchRecords(read, expected)), m_readNames(read),
          m_expectedNames(expected)
    {
        for (std::size_t i = 1; i < expected.nodes.size(); ++i) {
            if (expected.nodes[i].type() == "BLOCK_RECORD")
                m_blocks.emplace(expected.nodes[i].name, i);
        }
    }

    PairOutcome run()
    {
        for (std::size_t i = 1; i < m_expected.nodes.size(); ++i) {
            if (isCounted(m_expected.nodes[i]))
                compareRecord(i);
        }
        for (std::size_t i = 1; i < m_read.nodes.size(); ++i) {
            if (m_partners.ofRead[i] == 0 && isCounted(m_read.nodes[i]))
                add({Difference::Kind::Extra, m_readNames.of(i), {}, m_read.nodes[i].handle, {}});
        }
        for (std::size_t i = 0; i < m_expected.nodes.size(); ++i)
            compareOrder(i);
        return std::move(m_outcome);
    }

private:
    /// Sections are only frames, unless they have something of their own.
    static bool isCounted(const TextNode &node) { return node.type() != "SECTION" || node.tags.size() > 2; }

    void add(Difference difference)
    {
        difference.why = explanationOf(m_pair, difference);
        m_outcome.differences.push_back(std::move(difference));
    }

    void compareRecord(std::size_t i)
    {
        ++m_outcome.all;
        const std::size_t partner = m_partners.ofExpected[i];
        const TextNode &node = m_expected.nodes[i];
        Difference difference{Difference::Kind::Different, m_expectedNames.of(i), {}, {}, {}};
        if (partner == 0) {
            difference.kind = Difference::Kind::Missing;
            difference.told = node.handle;
            return add(std::move(difference));
        }
        compareTags(m_read.nodes[partner].tags, withPartners(node), difference, lastDigit());
        if (difference.groups.empty())
            ++m_outcome.equal;
        else
            add(std::move(difference));
    }

    /// Up to R12 numbers have six digits behind the point.
    double lastDigit() const { return m_expected.byHandle.empty() ? 1e-6 : 1e-16; }

    /// References as the drawing that was read has them.
    std::vector<TextTag> withPartners(const TextNode &node) const
    {
        std::vector<TextTag> tags = node.tags;
        if (const std::size_t block = blockPartner(node); block != 0) {
            const std::string name = blockNameOf(node);
            for (TextTag &tag : tags)
                tag.value = tag.value == name ? m_read.nodes[block].name : tag.value;
        }
        for (TextTag &tag : tags) {
            const bool isOwn = tag.code == 5 && (tags[0].code == 9 || node.type() == "DIMSTYLE");
            if (!isReference(tag.code) || isOwn)
                continue;
            const std::size_t target = m_expected.find(trimmed(tag.value));
            if (target != 0 && m_partners.ofExpected[target] != 0)
                tag.value = m_read.nodes[m_partners.ofExpected[target]].handle;
        }
        return tags;
    }

    /// The block that the record is, or shows, in the drawing that was read, where it has no name of its own.
    std::size_t blockPartner(const TextNode &node) const
    {
        const std::string name = blockNameOf(node);
        const bool hasBlock = node.type() == "BLOCK" || node.type() == "BLOCK_RECORD" || node.type() == "INSERT" ||
                              node.type() == "DIMENSION";
        const auto found = hasBlock && name.starts_with('*') ? m_blocks.find(name) : m_blocks.end();
        return found != m_blocks.end() ? m_partners.ofExpected[found->second] : 0;
    }

    /// Tells the fewest records that need to move for the rest to stand in the expected order.
    void compareOrder(std::size_t parent)
    {
        const auto &row = m_expected.nodes[parent].children;
        std::vector<std::size_t> kept; // by the length of the best row that ends with it
        std::vector<std::size_t> before(row.size(), row.size());
        const auto place = [&](std::size_t i) { return m_partners.ofExpected[row[i]]; };
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (!isAtHome(row[i], parent))
                continue;
            const auto at = std::ranges::lower_bound(kept, place(i), {}, place);
            before[i] = at == kept.begin() ? row.size() : *std::prev(at);
            if (at == kept.end())
                kept.push_back(i);
            else
                *at = i;
        }
        std::vector<bool> isKept(row.size());
        for (std::size_t i = kept.empty() ? row.size() : kept.back(); i < row.size(); i = before[i])
            isKept[i] = true;
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (!isKept[i] && place(i) != 0 && isCounted(m_expected.nodes[row[i]]))
                add({Difference::Kind::Moved, m_expectedNames.of(row[i]), {}, m_expected.nodes[row[i]].handle, {}});
        }
    }

    bool isAtHome(std::size_t child, std::size_t parent) const
    {
        const std::size_t partner = m_partners.ofExpected[child];
        return partner != 0 && m_read.nodes[partner].parent == m_partners.ofExpected[parent];
    }

    const TextTree &m_read;
    const TextTree &m_expected;
    std::string_view m_pair;
    Partners m_partners;
    RecordNames m_readNames;
    RecordNames m_expectedNames;
    std::unordered_map<std::string, std::size_t> m_blocks; ///< of the expected drawing, by name
    PairOutcome m_outcome;
};

} // namespace

int PairOutcome::count(Difference::Kind kind) const
{
    return static_cast<int>(std::ranges::count(differences, kind, &Difference::kind));
}

int PairOutcome::explained() const
{
    return static_cast<int>(std::ranges::count_if(differences, [](const Difference &one) { return !one.why.empty(); }));
}

PairOutcome comparePair(const TextTree &read, const TextTree &expected, std::string_view pair)
{
    return TreeComparison(read, expected, pair).run();
}

} // namespace host::dwg::test
