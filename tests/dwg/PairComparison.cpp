#include "tests/dwg/PairComparison.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <deque>
#include <set>

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

std::string trimmed(std::string_view text)
{
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return std::string(text);
}

bool isReal(int code)
{
    return (code >= 10 && code <= 59) || (code >= 110 && code <= 149) || (code >= 210 && code <= 239) ||
           (code >= 460 && code <= 469) || (code >= 1010 && code <= 1059);
}

bool isReference(int code)
{
    return code == 5 || code == 105 || (code >= 320 && code <= 369) || (code >= 390 && code <= 399) || code == 1005;
}

/// The other program writes 16 digits, and none behind the 16th after the point.
bool isSameReal(const std::string &read, const std::string &expected)
{
    const double a = std::strtod(read.c_str(), nullptr);
    const double b = std::strtod(expected.c_str(), nullptr);
    return std::abs(a - b) <= std::max(1.01e-16, std::max(std::abs(a), std::abs(b)) * 2e-15);
}

bool isSame(const TextTag &read, const TextTag &expected)
{
    if (read.code != expected.code)
        return false;
    if (read.value == expected.value || trimmed(read.value) == trimmed(expected.value))
        return true;
    return isReal(read.code) && isSameReal(read.value, expected.value);
}

std::size_t findTag(const TextRecord &record, int code, std::string_view value)
{
    const auto found = std::find_if(record.begin(), record.end(),
                                    [&](const TextTag &tag) { return tag.code == code && tag.value == value; });
    return static_cast<std::size_t>(found - record.begin());
}

std::string dictionaryOf(const TextRecord &record)
{
    const std::size_t at = findTag(record, 102, "{ACAD_XDICTIONARY");
    return at + 1 < record.size() ? trimmed(record[at + 1].value) : std::string();
}

/// Binary data in one tag, however it was cut; the extension dictionary in front of the reactors.
TextRecord inOneForm(const TextRecord &record)
{
    TextRecord result;
    for (const TextTag &tag : record) {
        if (tag.code == 310 && !result.empty() && result.back().code == 310)
            result.back().value += trimmed(tag.value);
        else
            result.push_back(tag.code == 310 ? TextTag{310, trimmed(tag.value)} : tag);
    }
    const std::size_t reactors = findTag(result, 102, "{ACAD_REACTORS");
    const std::size_t dictionary = findTag(result, 102, "{ACAD_XDICTIONARY");
    if (reactors < dictionary && dictionary + 3 <= result.size()) {
        const auto at = [&result](std::size_t i) { return result.begin() + static_cast<std::ptrdiff_t>(i); };
        std::rotate(at(reactors), at(dictionary), at(dictionary + 3));
    }
    return result;
}

std::map<std::string, std::string> entriesOf(const TextRecord &record)
{
    std::map<std::string, std::string> entries;
    for (std::size_t i = 0; i + 1 < record.size(); ++i) {
        if (record[i].code == 3 && (record[i + 1].code == 350 || record[i + 1].code == 360))
            entries[record[i].value] = trimmed(record[i + 1].value);
    }
    return entries;
}

/// Finds records of the same name in dictionaries of the same name.
class HandleMatcher
{
public:
    HandleMatcher(const TextRecords &read, const TextRecords &expected) : m_read(read), m_expected(expected) {}

    /// By handles of the expected drawing: those of the one that was read, where they are others.
    std::map<std::string, std::string> run()
    {
        for (const auto &[handle, record] : m_expected)
            follow(handle, handle);
        while (!m_row.empty()) {
            const auto [read, expected] = m_row.front();
            m_row.pop_front();
            const TextRecord &one = m_read.at(read);
            const TextRecord &other = m_expected.at(expected);
            follow(dictionaryOf(one), dictionaryOf(other));
            const auto entries = entriesOf(one);
            for (const auto &[name, handle] : entriesOf(other)) {
                if (const auto found = entries.find(name); found != entries.end())
                    follow(found->second, handle);
            }
        }
        return m_handles;
    }

private:
    void follow(const std::string &read, const std::string &expected)
    {
        const auto one = m_read.find(read);
        const auto other = m_expected.find(expected);
        if (one == m_read.end() || other == m_expected.end() || one->second[0].value != other->second[0].value ||
            !m_seen.insert({read, expected}).second)
            return;
        if (read != expected)
            m_handles.emplace(expected, read);
        m_row.push_back({read, expected});
    }

    const TextRecords &m_read;
    const TextRecords &m_expected;
    std::map<std::string, std::string> m_handles;
    std::set<std::pair<std::string, std::string>> m_seen;
    std::deque<std::pair<std::string, std::string>> m_row;
};

TextRecords renamed(const TextRecords &records, const std::map<std::string, std::string> &handles)
{
    TextRecords result;
    for (const auto &[handle, record] : records) {
        TextRecord one = record;
        for (TextTag &tag : one) {
            const auto found = isReference(tag.code) ? handles.find(trimmed(tag.value)) : handles.end();
            if (found != handles.end())
                tag.value = found->second;
        }
        const auto found = handles.find(handle);
        result[found != handles.end() ? found->second : handle] = std::move(one);
    }
    return result;
}

std::string differenceOf(const TextRecord &read, const TextRecord &expected)
{
    const TextRecord one = inOneForm(read);
    const TextRecord other = inOneForm(expected);
    std::size_t i = 0;
    while (i < one.size() && i < other.size() && isSame(one[i], other[i]))
        ++i;
    if (i == one.size() && i == other.size())
        return {};
    const auto told = [i](const TextRecord &record) {
        return i < record.size() ? std::to_string(record[i].code) + " \"" + record[i].value.substr(0, 60) + '"'
                                 : std::string("the end");
    };
    return told(one) + ", expected " + told(other);
}

} // namespace

TextRecords readRecords(std::string_view text)
{
    TextRecords records;
    TextRecord record;
    std::string section;
    const auto finish = [&] {
        if (record.empty())
            return;
        const std::string &type = record[0].value;
        if (type == "CLASS" && record.size() > 1)
            records["CLASS " + record[1].value] = record;
        else if (type[0] == '$')
            records[type] = record;
        const int handleCode = type == "DIMSTYLE" ? 105 : 5;
        for (std::size_t i = 1; i < record.size() && record[i].code != 100 && type[0] != '$'; ++i) {
            if (record[i].code == handleCode) {
                records[trimmed(record[i].value)] = record;
                break;
            }
        }
    };
    while (!text.empty()) {
        const int code = std::atoi(std::string(takeLine(text)).c_str());
        const std::string_view value = takeLine(text);
        if (code == 0 || (code == 9 && section == "HEADER")) {
            finish();
            record.clear();
        } else if (code == 2 && record.size() == 1 && record[0].value == "SECTION") {
            section = value;
        }
        record.push_back({code, std::string(value)});
    }
    finish();
    return records;
}

PairOutcome comparePair(const TextRecords &read, TextRecords expected)
{
    expected = renamed(expected, HandleMatcher(read, expected).run());
    PairOutcome outcome;
    for (const auto &[handle, record] : expected) {
        const std::string name = record[0].value + ' ' + handle;
        const auto found = read.find(handle);
        if (found == read.end()) {
            outcome.missing.push_back(name);
            continue;
        }
        const std::string difference = differenceOf(found->second, record);
        if (difference.empty())
            ++outcome.equal;
        else
            outcome.different.push_back(name + ": " + difference);
    }
    for (const auto &[handle, record] : read) {
        if (!expected.contains(handle))
            outcome.extra.push_back(record[0].value + ' ' + handle);
    }
    return outcome;
}

} // namespace host::dwg::test
