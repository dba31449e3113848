#include "host/lisp/Text.h"

#include "host/lisp/CaseTable.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace host::lisp {

bool isAscii(std::string_view text) noexcept
{
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// The length of the valid character at `position`; 0 when the bytes there are none.
static std::size_t validLength(std::string_view text, std::size_t position) noexcept
{
    const auto byte = [&](std::size_t offset) -> unsigned {
        const std::size_t at = position + offset;
        return at < text.size() ? static_cast<unsigned char>(text[at]) : 0U;
    };
    const auto follows = [&](std::size_t offset) { return (byte(offset) & 0xC0U) == 0x80U; };
    const unsigned lead = byte(0);
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead <= 0xDF)
        return follows(1) ? 2 : 0;
    if (lead >= 0xE0 && lead <= 0xEF) {
        const bool overlong = lead == 0xE0 && byte(1) < 0xA0;
        const bool surrogate = lead == 0xED && byte(1) > 0x9F;
        return follows(1) && follows(2) && !overlong && !surrogate ? 3 : 0;
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        const bool overlong = lead == 0xF0 && byte(1) < 0x90;
        const bool tooLarge = lead == 0xF4 && byte(1) > 0x8F;
        return follows(1) && follows(2) && follows(3) && !overlong && !tooLarge ? 4 : 0;
    }
    return 0;
}

/// How many bytes from `position` on are characters of one byte, as nearly all are: looked at by eights.
static std::size_t plainLength(std::string_view text, std::size_t position) noexcept
{
    constexpr std::uint64_t highBits = 0x8080808080808080U;
    const std::size_t begin = position;
    for (std::uint64_t eight = 0; text.size() - position >= sizeof eight; position += sizeof eight) {
        std::memcpy(&eight, text.data() + position, sizeof eight);
        if ((eight & highBits) != 0)
            break;
    }
    while (position < text.size() && static_cast<unsigned char>(text[position]) < 0x80)
        ++position;
    return position - begin;
}

bool isValidUtf8(std::string_view text) noexcept
{
    for (std::size_t position = plainLength(text, 0); position < text.size();) {
        const std::size_t length = validLength(text, position);
        if (length == 0)
            return false;
        position += length;
    }
    return true;
}

char32_t takeCharacter(std::string_view text, std::size_t &position) noexcept
{
    const std::size_t length = std::max<std::size_t>(1, validLength(text, position));
    const auto lead = static_cast<unsigned char>(text[position]);
    if (length == 1) {
        ++position;
        return lead;
    }
    char32_t character = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i)
        character = (character << 6U) | (static_cast<unsigned char>(text[position + i]) & 0x3FU);
    position += length;
    return character;
}

std::size_t characterCount(std::string_view text) noexcept
{
    std::size_t count = plainLength(text, 0);
    for (std::size_t position = count; position < text.size(); ++count)
        position += std::max<std::size_t>(1, validLength(text, position));
    return count;
}

std::size_t byteOffset(std::string_view text, std::size_t index) noexcept
{
    std::size_t position = plainLength(text.substr(0, index), 0);
    for (index -= position; index > 0 && position < text.size(); --index)
        position += std::max<std::size_t>(1, validLength(text, position));
    return position;
}

void appendCharacter(std::string &text, char32_t character)
{
    const auto put = [&](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    const auto putTail = [&](unsigned shift) { put(0x80U | ((character >> shift) & 0x3FU)); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0U | (character >> 6U));
        putTail(0);
    } else if (character >= 0xD800 && character <= 0xDFFF) {
        return;
    } else if (character < 0x10000) {
        put(0xE0U | (character >> 12U));
        putTail(6);
        putTail(0);
    } else if (character <= 0x10FFFF) {
        put(0xF0U | (character >> 18U));
        putTail(12);
        putTail(6);
        putTail(0);
    }
}

std::vector<char32_t> toCharacters(std::string_view text)
{
    std::vector<char32_t> characters;
    characters.reserve(text.size());
    for (std::size_t position = 0; position < text.size();)
        characters.push_back(takeCharacter(text, position));
    return characters;
}

std::string fromCharacters(const std::vector<char32_t> &characters)
{
    std::string text;
    text.reserve(characters.size());
    for (const char32_t character : characters)
        appendCharacter(text, character);
    return text;
}

char32_t CaseTable::single(char32_t character) const noexcept
{
    const auto behind = std::ranges::upper_bound(runs, character, {}, &CaseRun::first);
    if (behind == runs.begin())
        return character;
    const CaseRun &run = *(behind - 1);
    const bool isOfRun = character <= run.last && (character - run.first) % run.step == 0;
    return isOfRun ? static_cast<char32_t>(static_cast<std::int32_t>(character) + run.distance) : character;
}

const CaseExpansion *CaseTable::several(char32_t character) const noexcept
{
    const auto found = std::ranges::lower_bound(expansions, character, {}, &CaseExpansion::character);
    return found != expansions.end() && found->character == character ? &*found : nullptr;
}

char32_t upperCharacter(char32_t c) noexcept
{
    if (c < 0x80)
        return c >= U'a' && c <= U'z' ? c - 32 : c;
    return upperTable.single(c);
}

char32_t lowerCharacter(char32_t c) noexcept
{
    if (c < 0x80)
        return c >= U'A' && c <= U'Z' ? c + 32 : c;
    return lowerTable.single(c);
}

/// `append(mapped, character)` adds what becomes of a character.
template <typename Append>
static std::string mapCharacters(std::string_view text, Append append)
{
    std::string mapped;
    mapped.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t begin = position;
        const char32_t character = takeCharacter(text, position);
        // A stray byte stays the byte it is: only whole characters are written anew.
        if (position - begin == 1 && character >= 0x80)
            mapped.push_back(text[begin]);
        else
            append(mapped, character);
    }
    return mapped;
}

std::string toUpperCase(std::string_view text)
{
    return mapCharacters(text, [](std::string &mapped, char32_t c) { appendCharacter(mapped, upperCharacter(c)); });
}

std::string toLowerCase(std::string_view text)
{
    return mapCharacters(text, [](std::string &mapped, char32_t c) { appendCharacter(mapped, lowerCharacter(c)); });
}

std::string toFullCase(std::string_view text, const CaseTable &table)
{
    return mapCharacters(text, [&table](std::string &mapped, char32_t c) {
        if (const CaseExpansion *expansion = table.several(c)) {
            for (const char32_t each : expansion->mapped)
                if (each != 0)
                    appendCharacter(mapped, each);
        } else {
            appendCharacter(mapped, &table == &upperTable ? upperCharacter(c) : lowerCharacter(c));
        }
    });
}

} // namespace host::lisp
