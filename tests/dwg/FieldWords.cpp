#include "tests/dwg/FieldWords.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace host::dwg::test {

namespace {

Point pointOf(const std::string &text)
{
    const std::vector<std::string> parts = wordsOf(text, ',');
    const auto at = [&parts](std::size_t i) { return i < parts.size() ? std::stod(parts[i]) : 0.0; };
    return {at(0), at(1), at(2)};
}

std::string blankText(std::string text)
{
    std::replace(text.begin(), text.end(), '_', ' ');
    return text;
}

/// A colour that is coded as from R2004 on in every release: an index, or behind # the whole number.
void writeLongColour(ObjectWriter &o, const std::string &value)
{
    constexpr std::uint32_t byIndex = 0xc3000000;
    const bool isWhole = value[0] == '#';
    const auto number =
        static_cast<std::uint32_t>(std::stoul(value.substr(isWhole ? 1 : 0), nullptr, isWhole ? 16 : 10));
    o.int16(0);
    o.int32(static_cast<std::int32_t>(isWhole ? number : byIndex | number));
    o.small(0);
}

void writeField(ObjectWriter &o, char kind, const std::string &value)
{
    const auto number = [&value] { return std::stoi(value); };
    switch (kind) {
    case 'b':
        return o.flag(number() != 0);
    case 'c':
        return o.small(number());
    case 's':
        return o.int16(number());
    case 'l':
        return o.int32(number());
    case 'd':
        return o.real(std::stod(value));
    case 'r':
        return o.rawReal(std::stod(value));
    case 'w':
        return o.values().raw16(static_cast<std::uint32_t>(number()));
    case 'p':
        return o.point(pointOf(value));
    case 'f':
        return o.rawFlatPoint(pointOf(value).x, pointOf(value).y);
    case 't':
        return o.text(blankText(value));
    case 'h':
        return o.reference(std::stoull(value, nullptr, 16));
    case 'C':
        return o.colour(number());
    case 'K':
        return writeLongColour(o, value);
    case 'n':
        return o.entryHead(value);
    default:
        FAIL() << "no kind of field: " << kind;
    }
}

} // namespace

std::vector<std::string> wordsOf(std::string_view text, char separator)
{
    std::vector<std::string> words;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(separator), text.size());
        if (end > 0)
            words.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return words;
}

MadeDrawing::Write writerOf(const std::string &fields)
{
    return [fields](ObjectWriter &o) {
        for (const std::string &word : wordsOf(fields, ' '))
            writeField(o, word[0], word.substr(1));
    };
}

} // namespace host::dwg::test
