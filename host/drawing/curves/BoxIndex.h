#pragma once

#include "host/drawing/math/Vec.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace host::drawing {

/// Finds those of many boxes that touch a given one: a tree of boxes, packed once. n log n to make; a question costs
/// the logarithm of their number and what it finds, for boxes that are not all in one heap. Boxes may be infinite, or
/// empty, which none touches. All three dimensions count.
class BoxIndex
{
public:
    explicit BoxIndex(const std::vector<Box> &boxes);

    /// Calls with the number of each box that touches `box`, its faces included, in no order.
    void touching(const Box &box, const std::function<void(size_t)> &found) const;
    /// Whether any box that touches `box` is one of those looked for; it ends with the first.
    bool anyTouching(const Box &box, const std::function<bool(size_t)> &isSought) const;

private:
    struct Node
    {
        Box box;
        std::uint32_t first = 0; ///< of its children among the nodes; the number of the box for a leaf
        std::uint32_t count = 0; ///< 0: a leaf
    };
    void addLevel(std::vector<Node> level);

    std::vector<Node> m_nodes; ///< the root last
};

} // namespace host::drawing
