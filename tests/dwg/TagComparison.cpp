#include "tests/dwg/TagComparison.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace host::dwg::test {

namespace {

using Tags = std::vector<TextTag>;

bool isReal(int code)
{
    return (code >= 10 && code <= 59) || (code >= 110 && code <= 149) || (code >= 210 && code <= 239) ||
           (code >= 460 && code <= 469) || (code >= 1010 && code <= 1059);
}

bool isText(int code)
{
    return code <= 4 || (code >= 6 && code <= 9) || (code >= 100 && code <= 104) || (code >= 300 && code <= 309) ||
           (code >= 410 && code <= 419) || (code >= 430 && code <= 439) || (code >= 470 && code <= 479) ||
           (code >= 1000 && code <= 1003);
}

/// The other program writes 16 digits, and none behind the 16th after the point, or earlier ones.
bool isSameReal(const std::string &read, const std::string &expected, double lastDigit)
{
    const double a = std::strtod(read.c_str(), nullptr);
    const double b = std::strtod(expected.c_str(), nullptr);
    return std::abs(a - b) <= std::max(1.01 * lastDigit, std::max(std::abs(a), std::abs(b)) * 2e-15);
}

/// The other files have lost the blanks at the ends of their lines.
std::string_view withoutEnd(std::string_view text)
{
    while (text.ends_with(' '))
        text.remove_suffix(1);
    return text;
}

bool isSame(const TextTag &read, const TextTag &expected, double lastDigit)
{
    if (read.code != expected.code)
        return false;
    if (isText(read.code))
        return withoutEnd(read.value) == withoutEnd(expected.value);
    if (trimmed(read.value) == trimmed(expected.value))
        return true;
    return isReal(read.code) && isSameReal(read.value, expected.value, lastDigit);
}

/// Binary data in one tag, however it was cut.
Tags inOneForm(const Tags &tags)
{
    Tags result;
    for (const TextTag &tag : tags) {
        if (tag.code == 310 && !result.empty() && result.back().code == 310)
            result.back().value += trimmed(tag.value);
        else
            result.push_back(tag.code == 310 ? TextTag{310, trimmed(tag.value)} : tag);
    }
    return result;
}

/// Which tags of two records have no counterpart: the longest common row of both is left out. Records whose differing
/// parts are very long are not looked at closely.
class TagComparison
{
public:
    TagComparison(const Tags &read, const Tags &expected, double lastDigit)
        : m_read(read), m_expected(expected), m_lastDigit(lastDigit)
    {
        while (m_from < std::min(read.size(), expected.size()) && isSame(read[m_from], expected[m_from], lastDigit))
            ++m_from;
        m_rows = read.size() - m_from;
        m_columns = expected.size() - m_from;
        while (m_rows > 0 && m_columns > 0 && isSameAt(m_rows - 1, m_columns - 1)) {
            --m_rows;
            --m_columns;
        }
    }

    void run(Difference &difference)
    {
        constexpr std::size_t most = 4'000'000;
        if (m_rows * m_columns > most)
            return tellRun(0, m_rows, 0, m_columns, difference);
        measure();
        std::size_t row = 0;
        std::size_t column = 0;
        while (row < m_rows || column < m_columns) {
            const std::size_t firstRow = row;
            const std::size_t firstColumn = column;
            while ((row < m_rows || column < m_columns) &&
                   !(row < m_rows && column < m_columns && isSameAt(row, column)))
                isRowLonger(row, column) ? ++row : ++column;
            tellRun(firstRow, row, firstColumn, column, difference);
            for (; row < m_rows && column < m_columns && isSameAt(row, column); ++row)
                ++column;
        }
    }

private:
    bool isSameAt(std::size_t row, std::size_t column) const
    {
        return isSame(m_read[m_from + row], m_expected[m_from + column], m_lastDigit);
    }

    std::size_t &common(std::size_t row, std::size_t column) { return m_common[row * (m_columns + 1) + column]; }

    /// How many tags are common behind each place.
    void measure()
    {
        m_common.assign((m_rows + 1) * (m_columns + 1), 0);
        for (std::size_t row = m_rows; row-- > 0;) {
            for (std::size_t column = m_columns; column-- > 0;)
                common(row, column) = isSameAt(row, column)
                                          ? common(row + 1, column + 1) + 1
                                          : std::max(common(row + 1, column), common(row, column + 1));
        }
    }

    bool isRowLonger(std::size_t row, std::size_t column)
    {
        if (row == m_rows || column == m_columns)
            return column == m_columns;
        return common(row + 1, column) >= common(row, column + 1);
    }

    void tellRun(std::size_t row, std::size_t rowEnd, std::size_t column, std::size_t columnEnd, Difference &difference)
    {
        if (row == rowEnd && column == columnEnd)
            return;
        difference.told += difference.told.empty() ? "" : "; ";
        tellSide(m_read, row, rowEnd, difference);
        difference.told += ", expected ";
        tellSide(m_expected, column, columnEnd, difference);
    }

    void tellSide(const Tags &tags, std::size_t at, std::size_t end, Difference &difference) const
    {
        constexpr std::size_t mostTold = 4;
        if (at == end)
            difference.told += "nothing";
        for (std::size_t i = at; i < end; ++i) {
            const TextTag &tag = tags[m_from + i];
            difference.groups.push_back(tag.code);
            if (i - at < mostTold)
                difference.told +=
                    (i == at ? "" : " ") + std::to_string(tag.code) + " \"" + tag.value.substr(0, 60) + '"';
            else if (i - at == mostTold)
                difference.told += " ...";
        }
    }

    const Tags &m_read;
    const Tags &m_expected;
    double m_lastDigit;
    std::size_t m_from = 0; ///< so many tags are the same in front
    std::size_t m_rows = 0;
    std::size_t m_columns = 0;
    std::vector<std::size_t> m_common;
};

} // namespace

bool isReference(int code)
{
    return code == 5 || code == 105 || (code >= 320 && code <= 369) || (code >= 390 && code <= 399) ||
           (code >= 480 && code <= 481) || code == 1005;
}

void compareTags(const std::vector<TextTag> &read, const std::vector<TextTag> &expected, Difference &difference,
                 double lastDigit)
{
    const Tags one = inOneForm(read);
    const Tags other = inOneForm(expected);
    TagComparison(one, other, lastDigit).run(difference);
}

} // namespace host::dwg::test
