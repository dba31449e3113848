#include "host/view/display/StyleTable.h"

#include <bit>

namespace host::view {

std::size_t StyleTable::Hash::operator()(const Style &style) const
{
    std::size_t hash = static_cast<std::size_t>(style.colour.kind);
    const auto add = [&hash](std::uint64_t part) {
        hash = (hash ^ part) * 0x9E37'79B9'7F4A'7C15ULL;
        hash ^= hash >> 29;
    };
    add(style.colour.value);
    add(static_cast<std::uint64_t>(style.layer));
    add(static_cast<std::uint64_t>(style.linetype));
    add(static_cast<std::uint64_t>(style.lineweight));
    add(std::bit_cast<std::uint64_t>(style.linetypeScale));
    return hash;
}

std::uint32_t StyleTable::number(const Style &style)
{
    if (m_last < m_styles.size() && m_styles[m_last] == style)
        return m_last;
    const auto [found, isNew] = m_numbers.try_emplace(style, static_cast<std::uint32_t>(m_styles.size()));
    if (isNew)
        m_styles.push_back(style);
    m_last = found->second;
    return m_last;
}

void StyleTable::clear()
{
    m_styles.clear();
    m_numbers.clear();
    m_last = 0;
}

} // namespace host::view
