#include "host/drawing/solids/SolidText.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace host::drawing {

namespace {

constexpr int cipherSum = 159;

char ciphered(char letter)
{
    const int code = static_cast<unsigned char>(letter);
    return code > ' ' && code < cipherSum - ' ' ? static_cast<char>(cipherSum - code) : letter;
}

/// Letters are written as what they lack to 159, but for blanks. In files "^ " is a single letter.
void decipher(std::string &text, int code, QByteArrayView value, bool isOfFile)
{
    if (code == 1 && !text.empty())
        text += '\n';
    for (qsizetype i = 0; i < value.size(); ++i) {
        text += ciphered(value[i]);
        if (isOfFile && value[i] == '^' && i + 1 < value.size() && value[i + 1] == ' ')
            ++i;
    }
}

bool isModelText(int code)
{
    return code == 1 || code == 3;
}

} // namespace

std::string solidText(const TagList &tags)
{
    std::string text;
    for (const Tag &tag : tags.own())
        if (isModelText(tag.code))
            decipher(text, tag.code, tag.value, true);
    return text;
}

std::string solidText(const FieldList &fields)
{
    std::string text;
    for (auto field = fields.begin(); field != ownEnd(fields); ++field)
        if (isModelText(field->code))
            decipher(text, field->code, field->text().toLatin1(), false);
    return text;
}

FieldList solidTextFields(std::string_view text)
{
    constexpr int longest = 254;
    FieldList fields;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        fields.push_back({1, QString()});
        QString line;
        int length = 0;
        for (const char letter : text.substr(at, end - at)) {
            if (length >= longest) {
                fields.back().value = line;
                fields.push_back({3, QString()});
                line.clear();
                length = 0;
            }
            line += QLatin1Char(ciphered(letter));
            length += line.back() == u'^' ? 2 : 1; // as files have it
        }
        fields.back().value = line;
        at = end + 1;
    }
    return fields;
}

SolidRecords::SolidRecords(std::string text) : m_text(std::move(text)), m_records(1)
{
    const std::string_view all = m_text;
    for (std::size_t at = 0; at < all.size();) {
        if (all[at] == ' ' || all[at] == '\n') {
            ++at;
            continue;
        }
        const std::size_t end = std::min(all.find_first_of(" \n", at), all.size());
        const std::string_view word = all.substr(at, end - at);
        if (word == "#")
            m_records.emplace_back();
        else
            m_records.back().push_back(word);
        at = end;
    }
    m_records.pop_back(); // what follows the last one is no record
}

int SolidRecords::version() const
{
    const bool hasHead = !m_records.empty() && !m_records.front().empty();
    return static_cast<int>(hasHead ? std::clamp(number(m_records.front().front()).value_or(0.0), 0.0, 1e6) : 0.0);
}

std::string_view SolidRecords::kindOf(const Words &record)
{
    constexpr std::array kinds = {"edge", "vertex", "point", "body", "transform", "loop", "coedge"};
    for (const std::string_view word : record) {
        if (word.starts_with('$'))
            break;
        if (std::ranges::find(kinds, word) != kinds.end() || word.ends_with("-curve") || word.ends_with("-surface"))
            return word;
    }
    return {};
}

std::optional<std::size_t> SolidRecords::place(std::string_view word)
{
    std::size_t place = 0;
    if (word.size() < 2 || word[0] != '$')
        return std::nullopt;
    const auto [end, error] = std::from_chars(word.data() + 1, word.data() + word.size(), place);
    return error == std::errc() && end == word.data() + word.size() ? std::optional(place) : std::nullopt;
}

std::optional<double> SolidRecords::number(std::string_view word)
{
    double value = 0.0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    return error == std::errc() && end == word.data() + word.size() ? std::optional(value) : std::nullopt;
}

std::vector<double> SolidRecords::numbersOf(const Words &record)
{
    std::vector<double> numbers;
    for (const std::string_view word : record) {
        if (word.starts_with('$'))
            numbers.clear();
        else if (const auto value = number(word))
            numbers.push_back(*value);
    }
    return numbers;
}

std::optional<bool> SolidRecords::sense(std::string_view word)
{
    if (word == "0" || word == "forward")
        return false;
    return word == "1" || word == "reversed" ? std::optional(true) : std::nullopt;
}

std::vector<const SolidRecords::Words *> SolidRecords::referred(const Words &record, std::string_view ending) const
{
    std::vector<const Words *> found;
    for (const std::string_view word : record) {
        const auto at = place(word);
        if (!at || *at >= m_records.size())
            continue;
        const std::string_view kind = kindOf(m_records[*at]);
        if (kind == ending || (ending.starts_with('-') && kind.ends_with(ending)))
            found.push_back(&m_records[*at]);
    }
    return found;
}

const SolidRecords::Words *SolidRecords::first(std::string_view kind) const
{
    const auto found = std::ranges::find(m_records, kind, kindOf);
    return found == m_records.end() ? nullptr : &*found;
}

} // namespace host::drawing
