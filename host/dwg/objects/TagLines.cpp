#include "host/dwg/objects/TagLines.h"

#include "host/dwg/bits/Words.h"
#include "host/dwg/objects/RealText.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstring>
#include <numeric>

namespace host::dwg {

namespace {

constexpr char hexDigits[] = "0123456789ABCDEF";

/// The two digits of each byte.
constexpr auto hexPairs = [] {
    std::array<std::array<char, 2>, 256> pairs{};
    for (std::size_t byte = 0; byte < pairs.size(); ++byte)
        pairs[byte] = {hexDigits[byte >> 4], hexDigits[byte & 0xf]};
    return pairs;
}();

/// The line of a group code, which has three places at least. Eight bytes, which are copied at one go with the size.
struct CodeLine
{
    std::array<char, 7> text{};
    std::uint8_t size = 0;
};

constexpr std::size_t usualCodes = 1080;

constexpr std::array<CodeLine, usualCodes> codeLines()
{
    std::array<CodeLine, usualCodes> lines{};
    for (std::size_t code = 0; code < usualCodes; ++code) {
        CodeLine &line = lines[code];
        line.size = code < 1000 ? 3 : 4;
        line.text.fill(' ');
        std::size_t left = code;
        for (std::size_t i = line.size; i > 0 && (left > 0 || i == line.size); left /= 10)
            line.text[--i] = static_cast<char>('0' + left % 10);
        line.text[line.size++] = '\n';
    }
    return lines;
}

constexpr auto usualCodeLines = codeLines();

/// Room for the line of any code.
constexpr std::size_t mostOfACode = 16;
constexpr std::size_t mostOfANumber = 40;

std::size_t hexDigitCount(std::uint32_t number)
{
    return (static_cast<std::size_t>(std::bit_width(number | 1)) + 3) / 4;
}

/// The last `count` of eight digits, which are made all at the same time: each in a byte, the first one in the lowest.
char *putHexadecimal(std::uint32_t number, std::size_t count, char *to)
{
    constexpr std::uint64_t each = 0x0101'0101'0101'0101;
    std::uint64_t digits = number >> 16 | static_cast<std::uint64_t>(number) << 32;
    digits = (digits >> 8 & 0x0000'00ff'0000'00ff) | (digits & 0x0000'00ff'0000'00ff) << 16;
    digits = (digits >> 4 & 0x000f'000f'000f'000f) | (digits & 0x000f'000f'000f'000f) << 8;
    const std::uint64_t areLetters = (digits + each * 6) >> 4 & each;
    storeLowestFirst((digits + each * '0' + areLetters * ('A' - '9' - 1)) >> 8 * (8 - count), to);
    return to + count;
}

char *putUnusualCode(int code, char *to)
{
    char digits[mostOfACode];
    const std::string_view text(digits, std::to_chars(digits, digits + sizeof digits, code).ptr);
    to = std::fill_n(to, text.size() < 3 ? 3 - text.size() : 0, ' ');
    to = std::copy(text.begin(), text.end(), to);
    *to++ = '\n';
    return to;
}

char *putCode(int code, char *to)
{
    if (static_cast<std::size_t>(code) >= usualCodes)
        return putUnusualCode(code, to);
    const CodeLine &line = usualCodeLines[static_cast<std::size_t>(code)];
    std::memcpy(to, &line, sizeof line);
    return to + line.size;
}

bool needsCaret(char c)
{
    return static_cast<unsigned char>(c) < 0x20 || c == '^';
}

template <typename Word>
Word wordAt(const char *bytes)
{
    Word word;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

/// All bytes of a text of at most seven, some of them more than once.
std::uint64_t shortWord(std::string_view text)
{
    if (text.size() >= 4)
        return wordAt<std::uint32_t>(text.data()) |
               static_cast<std::uint64_t>(wordAt<std::uint32_t>(text.data() + text.size() - 4)) << 32;
    constexpr std::uint64_t blanks = 0x2020'2020'2020'2020;
    if (text.empty())
        return blanks;
    const auto byte = [&](std::size_t i) { return static_cast<std::uint64_t>(static_cast<unsigned char>(text[i])); };
    return blanks << 24 | byte(0) | byte(text.size() / 2) << 8 | byte(text.size() - 1) << 16;
}

/// Whether any of eight bytes needs a caret: one that is smaller than another borrows the highest bit when that is
/// taken from it.
bool needCaret(std::uint64_t word)
{
    constexpr std::uint64_t each = 0x0101'0101'0101'0101;
    const std::uint64_t carets = word ^ each * '^';
    return ((((word - each * 0x20) & ~word) | ((carets - each) & ~carets)) & each * 0x80) != 0;
}

bool needsNoCaret(std::string_view text)
{
    constexpr std::size_t step = sizeof(std::uint64_t);
    if (text.size() < step)
        return !needCaret(shortWord(text));
    for (std::size_t i = 0; i + step < text.size(); i += step) {
        if (needCaret(wordAt<std::uint64_t>(text.data() + i)))
            return false;
    }
    return !needCaret(wordAt<std::uint64_t>(text.data() + text.size() - step));
}

char *putText(std::string_view text, DoubleBytes page, char *to)
{
    if (needsNoCaret(text))
        return std::copy(text.begin(), text.end(), to);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        // The second byte of a character may look like a sign.
        if (beginsWithTwoBytes(text.substr(i), page)) {
            *to++ = c;
            *to++ = text[++i];
            continue;
        }
        // What would end the line, and the sign that stands for it.
        if (needsCaret(c))
            *to++ = '^';
        *to++ = c == '^' ? ' ' : needsCaret(c) ? static_cast<char>(c + 0x40) : c;
    }
    return to;
}

} // namespace

void addTagLines(int code, std::string_view value, std::string &text)
{
    // In one piece, as most of them are short.
    std::array<char, 64> lines;
    char *end = putCode(code, lines.data());
    if (value.size() < lines.size() - mostOfACode) {
        end = std::copy(value.begin(), value.end(), end);
        *end++ = '\n';
        text.append(lines.data(), end);
        return;
    }
    text.append(lines.data(), end);
    text += value;
    text += '\n';
}

void TagLines::clear(std::size_t most)
{
    m_size = headRoom;
    m_most = most + std::min(headRoom, ~most);
    m_isFull = false;
    m_tags.clear();
    m_isInOrder = true;
}

void TagLines::grow(std::size_t bytes)
{
    const std::size_t room = std::max(2 * m_room, m_size + bytes + 4096);
    auto lines = std::make_unique_for_overwrite<char[]>(room);
    if (m_lines)
        std::copy_n(m_lines.get(), m_size, lines.get());
    m_lines = std::move(lines);
    m_room = room;
}

inline char *TagLines::begin(int code, std::size_t most)
{
    const std::size_t bytes = mostOfACode + most + 1;
    if (m_room < m_size + bytes)
        grow(bytes);
    return putCode(code, m_lines.get() + m_size);
}

inline void TagLines::finish(int code, char *end)
{
    *end++ = '\n';
    const auto size = static_cast<std::size_t>(end - m_lines.get()) - m_size;
    if (size > m_most - m_size) {
        m_isFull = true;
        return;
    }
    m_tags.push_back({m_size, static_cast<std::uint32_t>(size), code});
    m_size += size;
}

void TagLines::addInteger(int code, std::int64_t value)
{
    char *const to = begin(code, mostOfANumber);
    finish(code, std::to_chars(to, to + mostOfANumber, value).ptr);
}

void TagLines::addReal(int code, double value)
{
    finish(code, writeReal(value, begin(code, mostOfAReal)));
}

void TagLines::addHandle(int code, std::uint64_t handle)
{
    char *to = begin(code, mostOfANumber);
    const auto high = static_cast<std::uint32_t>(handle >> 32);
    if (high != 0)
        to = putHexadecimal(high, hexDigitCount(high), to);
    const auto low = static_cast<std::uint32_t>(handle);
    finish(code, putHexadecimal(low, high != 0 ? 8 : hexDigitCount(low), to));
}

void TagLines::addText(int code, std::string_view text)
{
    finish(code, putText(text, m_doubleBytes, begin(code, 2 * text.size())));
}

void TagLines::addBytes(int code, std::string_view bytes)
{
    char *to = begin(code, 2 * bytes.size());
    for (const char c : bytes) {
        std::memcpy(to, hexPairs[static_cast<unsigned char>(c)].data(), 2);
        to += 2;
    }
    finish(code, to);
}

TagLines::Kept TagLines::keep(std::size_t from) const
{
    Kept kept;
    write(kept.lines, from, m_tags.size());
    for (std::size_t i = from; i < m_tags.size(); ++i)
        kept.tags.push_back({m_tags[i].size, m_tags[i].code});
    return kept;
}

void TagLines::add(const Kept &kept)
{
    if (m_room < m_size + kept.lines.size())
        grow(kept.lines.size());
    if (kept.lines.size() > m_most - m_size) {
        m_isFull = true;
        return;
    }
    std::copy(kept.lines.begin(), kept.lines.end(), m_lines.get() + m_size);
    for (const Kept::Tag &tag : kept.tags) {
        m_tags.push_back({m_size, tag.size, tag.code});
        m_size += tag.size;
    }
}

/// Whether the tags have the order of the codes; not found out where a code that comes twice has several tags.
bool TagLines::isArranged(std::size_t from, std::initializer_list<int> codes) const
{
    const int *last = codes.begin();
    for (std::size_t i = from; i < m_tags.size(); ++i) {
        const int *const place = std::find(codes.begin(), codes.end(), m_tags[i].code);
        const bool isAgain = i > from && place == last && place != codes.end();
        if (place < last || (isAgain && std::find(place + 1, codes.end(), *place) != codes.end()))
            return false;
        last = place;
    }
    return true;
}

void TagLines::arrange(std::size_t from, std::initializer_list<int> codes)
{
    // As most objects are, since what is to be moved is left out where it is as usual.
    if (isArranged(from, codes))
        return;
    // Where each tag goes among the codes; which place of a code that comes again is its next one.
    m_ranks.clear();
    m_places.assign(codes.size() + 2, 0);
    std::vector<std::size_t> &taken = m_places;
    const auto rankOf = [&](int code) {
        std::size_t rank = codes.size();
        for (std::size_t i = 0; i < codes.size(); ++i) {
            if (codes.begin()[i] != code)
                continue;
            rank = i;
            if (taken[i] == 0)
                break;
        }
        return rank;
    };
    for (std::size_t i = from; i < m_tags.size(); ++i) {
        const std::size_t rank = rankOf(m_tags[i].code);
        m_ranks.push_back(rank);
        ++taken[rank];
    }
    std::exclusive_scan(m_places.begin(), m_places.end(), m_places.begin(), std::size_t(0));
    m_arranged.resize(m_ranks.size());
    for (std::size_t i = 0; i < m_ranks.size(); ++i)
        m_arranged[m_places[m_ranks[i]]++] = m_tags[from + i];
    std::copy(m_arranged.begin(), m_arranged.end(), m_tags.begin() + static_cast<std::ptrdiff_t>(from));
    m_isInOrder = false;
}

void TagLines::moveRange(std::size_t from, std::size_t end, std::size_t to)
{
    const auto at = [this](std::size_t place) { return m_tags.begin() + static_cast<std::ptrdiff_t>(place); };
    std::rotate(at(to), at(from), at(end));
    m_isInOrder = m_isInOrder && (to == from || from == end);
}

void TagLines::drop(std::size_t from)
{
    if (m_isInOrder && from < m_tags.size())
        m_size = m_tags[from].begin;
    m_tags.resize(from);
}

void TagLines::repeat(std::size_t from, std::size_t end)
{
    for (std::size_t i = from; i < end; ++i)
        m_tags.push_back(m_tags[i]);
    m_isInOrder = m_isInOrder && from == end;
}

void TagLines::write(std::string &text, std::size_t from, std::size_t end) const
{
    if (from >= end)
        return;
    if (m_isInOrder) {
        const std::size_t begin = m_tags[from].begin;
        text.append(m_lines.get() + begin, m_tags[end - 1].begin + m_tags[end - 1].size - begin);
        return;
    }
    for (std::size_t i = from; i < end; ++i)
        text.append(m_lines.get() + m_tags[i].begin, m_tags[i].size);
}

void TagLines::writeRecord(std::string_view type, std::string &text, std::size_t end) const
{
    constexpr std::string_view begin = "  0\n";
    const std::size_t size = begin.size() + type.size() + 1;
    if (!m_isInOrder || end == 0 || size > headRoom) {
        addTagLines(0, type, text);
        write(text, 0, end);
        return;
    }
    char *const head = m_lines.get() + headRoom - size;
    *std::copy(type.begin(), type.end(), std::copy(begin.begin(), begin.end(), head)) = '\n';
    text.append(head, m_lines.get() + m_tags[end - 1].begin + m_tags[end - 1].size);
}

} // namespace host::dwg
