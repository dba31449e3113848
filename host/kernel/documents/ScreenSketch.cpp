#include "host/kernel/documents/ScreenSketch.h"

#include <algorithm>

namespace host::kernel {

namespace {

/// A program that moves something draws it again soon; looking through all would cost the square of their number.
constexpr std::ptrdiff_t searchedLines = 4096;

} // namespace

void ScreenSketch::draw(const Line &line)
{
    if (line.colour == inverted) {
        const auto from = m_lines.end() - std::min<std::ptrdiff_t>(searchedLines, std::ssize(m_lines));
        if (const auto same = std::find(from, m_lines.end(), line); same != m_lines.end()) {
            m_lines.erase(same);
            return;
        }
    }
    if (m_lines.size() < mostLines)
        m_lines.push_back(line);
}

} // namespace host::kernel
