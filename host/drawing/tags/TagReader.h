#pragma once

#include "host/drawing/tags/Tag.h"

#include <QtEndian>

#include <bit>
#include <cstring>

namespace host::drawing {

/// Where the lines of a file end; one kind holds for all of it.
enum class LineEnds
{
    LineFeed, ///< carriage returns right before the line feed belong to the line end, others to the text
    Any       ///< CR LF, LF and CR alike
};

/// Whether the text is a word of the format, in any letter case; the word is not empty and in upper case. The first
/// letter decides nearly always, without a call.
inline bool isWord(QByteArrayView text, QByteArrayView upperWord)
{
    return text.size() == upperWord.size() && (text[0] | 0x20) == (upperWord[0] | 0x20) &&
           text.compare(upperWord, Qt::CaseInsensitive) == 0;
}

/// The first line feed, null when there is none. As std::memchr(), whose calls take most of the time of going through
/// lines as short as those of drawings: most are found in the first two words.
inline const char *findLineFeed(const char *begin, const char *end)
{
    constexpr quint64 ones = 0x0101010101010101;
    constexpr quint64 highBits = 0x8080808080808080;
    for (int words = 0; words < 3 && end - begin >= 8; ++words, begin += 8) {
        const quint64 word = qFromLittleEndian<quint64>(begin) ^ (ones * '\n');
        if (const quint64 zeros = (word - ones) & ~word & highBits; zeros != 0)
            return begin + std::countr_zero(zeros) / 8;
    }
    return static_cast<const char *>(std::memchr(begin, '\n', static_cast<size_t>(end - begin)));
}

/// The end of the line that starts at `begin`, before its line end; `next` becomes the start of the next line. A last
/// line without line end stops at `end`. All of them point into the same bytes, `begin` not behind `end`; at `end` an
/// empty line comes back, again and again. Inline, as every line of a file passes through here.
inline const char *findLineEnd(const char *begin, const char *end, LineEnds lineEnds, const char *&next)
{
    const char *stop = nullptr;
    if (lineEnds == LineEnds::LineFeed) {
        stop = findLineFeed(begin, end);
        next = stop ? stop + 1 : end;
        stop = stop ? stop : end;
        while (stop > begin && stop[-1] == '\r')
            --stop;
        return stop;
    }
    stop = std::find_if(begin, end, [](char c) { return c == '\n' || c == '\r'; });
    next = stop == end ? end : stop + ((*stop == '\r' && stop + 1 < end && stop[1] == '\n') ? 2 : 1);
    return stop;
}

/// The group code on a line, blanks and tabs around it allowed: -5 to 1071, without a plus sign. False when the line is
/// something else; `code` has no meaning then.
inline bool parseGroupCode(const char *begin, const char *end, int &code)
{
    while (begin < end && (*begin == ' ' || *begin == '\t'))
        ++begin;
    const bool isNegative = begin < end && *begin == '-';
    begin += isNegative ? 1 : 0;
    int number = 0;
    const char *firstDigit = begin;
    for (; begin < end && *begin >= '0' && *begin <= '9' && number <= 1071; ++begin)
        number = number * 10 + (*begin - '0');
    const bool hasDigits = begin > firstDigit;
    while (begin < end && (*begin == ' ' || *begin == '\t'))
        ++begin;
    code = isNegative ? -number : number;
    return hasDigits && begin == end && code >= -5 && code <= 1071;
}

/// As findLineEnd() and parseGroupCode() in one for how nearly all files write codes: digits behind blanks, and a line
/// end that counts everywhere. The start of the next line; null for any other line, which may be a code as well.
inline const char *readUsualGroupCode(const char *begin, const char *end, int &code)
{
    while (begin < end && *begin == ' ')
        ++begin;
    const char *const firstDigit = begin;
    int number = 0;
    for (; begin < end && *begin >= '0' && *begin <= '9' && number <= 1071; ++begin)
        number = number * 10 + (*begin - '0');
    if (begin == firstDigit || number > 1071)
        return nullptr;
    if (begin < end && *begin == '\r')
        ++begin;
    code = number;
    return begin < end && *begin == '\n' ? begin + 1 : nullptr;
}

/// Goes through the tags of bytes that were checked before, such as a record's. Copies nothing: the tags are views into
/// the bytes and live as long as they do.
class TagReader
{
public:
    /// `bytes` begin with a group code.
    TagReader(QByteArrayView bytes, LineEnds lineEnds)
        : m_next(bytes.data()), m_end(bytes.data() + bytes.size()), m_lineEnds(lineEnds)
    {
    }

    /// Takes the next two lines. False at the end, or where the bytes are no tags; the reader stays there. A last code
    /// without a value line has an empty value.
    bool read(Tag &tag)
    {
        const char *begin = m_next;
        if (begin >= m_end)
            return false;
        const char *valueBegin = readUsualGroupCode(begin, m_end, tag.code);
        if (!valueBegin) {
            const char *codeEnd = findLineEnd(begin, m_end, m_lineEnds, valueBegin);
            if (!parseGroupCode(begin, codeEnd, tag.code))
                return false;
        }
        const char *valueEnd = findLineEnd(valueBegin, m_end, m_lineEnds, m_next);
        tag.value = QByteArrayView(valueBegin, valueEnd);
        tag.whole = QByteArrayView(begin, m_next);
        return true;
    }

private:
    const char *m_next; ///< where the next group code begins
    const char *m_end;
    LineEnds m_lineEnds;
};

} // namespace host::drawing
