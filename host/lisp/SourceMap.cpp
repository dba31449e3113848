#include "host/lisp/SourceMap.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace host::lisp {

Location SourceMap::begin(std::string_view name, int firstLine, std::size_t count)
{
    if (count > std::numeric_limits<Location>::max() - m_next - 1)
        return 0;
    const auto lines = static_cast<Location>(count);
    if (!m_sources.empty()) {
        const Source &last = m_sources.back();
        const bool continues = last.name == name && firstLine >= last.firstLine;
        const Location location = last.first + static_cast<Location>(firstLine - last.firstLine);
        if (continues && location <= m_next) {
            m_next = std::max(m_next, location + lines);
            return location;
        }
    }
    m_sources.push_back({m_next, firstLine, std::string(name)});
    m_next += lines;
    return m_sources.back().first;
}

SourceMap::Place SourceMap::place(Location location) const
{
    const auto next = std::upper_bound(m_sources.begin(), m_sources.end(), location,
                                       [](Location wanted, const Source &source) { return wanted < source.first; });
    if (location == 0 || next == m_sources.begin())
        return {};
    const Source &source = *std::prev(next);
    return {source.name, source.firstLine + static_cast<int>(location - source.first)};
}

} // namespace host::lisp
