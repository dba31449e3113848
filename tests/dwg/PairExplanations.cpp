#include "tests/dwg/PairExplanations.h"

#include "tests/dwg/ExplanationRows.h"

#include <algorithm>

namespace host::dwg::test {

namespace {

const std::vector<Explanation> &allExplanations()
{
    static const std::vector<Explanation> all = [] {
        std::vector<Explanation> rows(earlierExplanations().begin(), earlierExplanations().end());
        rows.insert(rows.end(), laterExplanations().begin(), laterExplanations().end());
        return rows;
    }();
    return all;
}

bool matchesPattern(std::string_view pattern, std::string_view text)
{
    if (pattern.empty())
        return text.empty();
    if (pattern[0] != '*')
        return !text.empty() && (pattern[0] == '?' || text[0] == pattern[0]) &&
               matchesPattern(pattern.substr(1), text.substr(1));
    return matchesPattern(pattern.substr(1), text) || (!text.empty() && matchesPattern(pattern, text.substr(1)));
}

bool concerns(const Explanation &row, std::string_view pair, const Difference &difference)
{
    return row.kind == difference.kind && matchesPattern(row.pair, pair) &&
           matchesPattern(row.record, difference.record);
}

} // namespace

std::string_view explanationOf(std::string_view pair, const Difference &difference)
{
    std::string_view why;
    std::vector<int> left = difference.groups;
    for (const Explanation &row : allExplanations()) {
        if (!concerns(row, pair, difference))
            continue;
        const std::size_t before = left.size();
        std::erase_if(left, [&row](int group) {
            return row.groups.size() == 0 || std::ranges::find(row.groups, group) != row.groups.end();
        });
        if (left.size() < before || difference.groups.empty())
            why = row.why;
    }
    return left.empty() ? why : std::string_view();
}

std::string idleExplanations(std::string_view pair, const std::vector<Difference> &differences)
{
    std::string idle;
    for (const Explanation &row : allExplanations()) {
        const bool isNeeded = row.pair != pair || std::ranges::any_of(differences, [&](const Difference &one) {
                                  return concerns(row, pair, one);
                              });
        idle += isNeeded ? std::string() : std::string(row.record) + '\n';
    }
    return idle;
}

} // namespace host::dwg::test
