#pragma once

#include "host/view/display/Display.h"

#include <unordered_map>

namespace host::view {

/// Styles by number, each once: drawings have few of them for many entities.
class StyleTable
{
public:
    std::uint32_t number(const Style &style);
    const Style &operator[](std::uint32_t number) const { return m_styles[number]; }
    const std::vector<Style> &styles() const { return m_styles; }
    void clear();

private:
    struct Hash
    {
        std::size_t operator()(const Style &style) const;
    };

    std::vector<Style> m_styles;
    std::unordered_map<Style, std::uint32_t, Hash> m_numbers;
    std::uint32_t m_last = 0; ///< the one asked for before, which is mostly wanted again
};

} // namespace host::view
