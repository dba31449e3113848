#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace host::view {

/// Goes through things that contain each other, each once and behind all that it contains. Works without recursion, so
/// that a chain of any length is gone through. A thing that is met again while it is open contains itself: the inner
/// mention is passed over.
class PostOrder
{
public:
    /// Things are numbered from 0; `count` may be exceeded.
    explicit PostOrder(std::size_t count = 0) : m_isMet(count, 0) {}

    /// `contained` gives the numbers of what a thing contains; `leave` is called for each thing not met before.
    template <class Contained, class Leave>
    void visit(std::size_t thing, const Contained &contained, const Leave &leave)
    {
        enter(thing, contained);
        while (!m_open.empty()) {
            auto &[open, inner] = m_open.back();
            if (inner.empty()) {
                leave(open);
                m_open.pop_back();
            } else {
                const std::size_t next = inner.back();
                inner.pop_back();
                enter(next, contained);
            }
        }
    }

private:
    template <class Contained>
    void enter(std::size_t thing, const Contained &contained)
    {
        if (m_isMet.size() <= thing)
            m_isMet.resize(thing + 1, 0);
        if (std::exchange(m_isMet[thing], 1) == 0)
            m_open.emplace_back(thing, contained(thing));
    }

    std::vector<char> m_isMet;
    std::vector<std::pair<std::size_t, std::vector<std::size_t>>> m_open; ///< with what is left to enter
};

} // namespace host::view
