#include "host/view/text/LetterWidths.h"

#include <QFontMetricsF>

namespace host::view {

namespace {

/// Hebrew to Hangul letters, which are joined or change places, pairs, and marks that stand over other letters.
bool standsAlone(QChar letter)
{
    const char16_t code = letter.unicode();
    if (code < 0x300)
        return true;
    return !letter.isSurrogate() && !letter.isMark() && letter.category() != QChar::Other_Format &&
           !(code >= 0x590 && code < 0x1e00);
}

} // namespace

LetterWidths::LetterWidths(const QFont &font) : m_font(font)
{
    for (std::atomic<float> &width : m_quick)
        width.store(-1.0F, std::memory_order_relaxed);
}

double LetterWidths::width(QStringView text) const
{
    if (!std::ranges::all_of(text, standsAlone)) {
        const std::scoped_lock lock(m_measuring);
        return measured(text);
    }
    double sum = 0.0;
    for (const QChar letter : text)
        sum += letterWidth(letter);
    return sum;
}

double LetterWidths::letterWidth(QChar letter) const
{
    const std::size_t index = letter.unicode();
    if (index < m_quick.size())
        if (const float known = m_quick[index].load(std::memory_order_relaxed); known >= 0.0F)
            return static_cast<double>(known);
    const std::scoped_lock lock(m_measuring);
    if (index < m_quick.size()) {
        const double width = measured(QStringView(&letter, 1));
        m_quick[index].store(static_cast<float>(width), std::memory_order_relaxed);
        return static_cast<double>(static_cast<float>(width));
    }
    const auto known = m_others.find(letter.unicode());
    if (known != m_others.end())
        return known->second;
    return m_others.emplace(letter.unicode(), measured(QStringView(&letter, 1))).first->second;
}

double LetterWidths::measured(QStringView text) const
{
    return std::max(0.0, QFontMetricsF(m_font).horizontalAdvance(text.toString()));
}

} // namespace host::view
