#include "host/drawing/curves/BoxIndex.h"

namespace host::drawing {

namespace {

constexpr size_t childrenOfNode = 8;

bool boxesTouch(const Box &a, const Box &b)
{
    return a.touchesFlat(b) && a.low.z <= b.high.z && b.low.z <= a.high.z;
}

/// The middle for sorting; endless boxes go where their finite end is.
double middleOf(double low, double high)
{
    if (std::isfinite(low) && std::isfinite(high))
        return low / 2.0 + high / 2.0;
    return std::isfinite(low) ? low : std::isfinite(high) ? high : 0.0;
}

} // namespace

BoxIndex::BoxIndex(const std::vector<Box> &boxes)
{
    std::vector<Node> leaves;
    for (size_t i = 0; i < boxes.size(); ++i) {
        if (!boxes[i].isEmpty())
            leaves.push_back({boxes[i], static_cast<std::uint32_t>(i), 0});
    }
    // Strips along x, each sorted along y, so that neighbours in the list are neighbours in the plane.
    const auto byX = [](const Node &a, const Node &b) {
        return middleOf(a.box.low.x, a.box.high.x) < middleOf(b.box.low.x, b.box.high.x);
    };
    const auto byY = [](const Node &a, const Node &b) {
        return middleOf(a.box.low.y, a.box.high.y) < middleOf(b.box.low.y, b.box.high.y);
    };
    std::ranges::sort(leaves, byX);
    const double strips = std::ceil(std::sqrt(static_cast<double>(leaves.size()) / childrenOfNode));
    const auto strip = std::max<size_t>(1, static_cast<size_t>(std::ceil(strips * childrenOfNode)));
    for (size_t i = 0; i < leaves.size(); i += strip)
        std::sort(leaves.begin() + static_cast<std::ptrdiff_t>(i),
                  leaves.begin() + static_cast<std::ptrdiff_t>(std::min(i + strip, leaves.size())), byY);
    if (!leaves.empty())
        addLevel(std::move(leaves));
}

void BoxIndex::addLevel(std::vector<Node> level)
{
    while (level.size() > 1) {
        std::vector<Node> above;
        for (size_t i = 0; i < level.size(); i += childrenOfNode) {
            Node &node = above.emplace_back();
            node.first = static_cast<std::uint32_t>(m_nodes.size() + i);
            node.count = static_cast<std::uint32_t>(std::min(childrenOfNode, level.size() - i));
            for (size_t k = i; k < i + node.count; ++k)
                node.box.add(level[k].box);
        }
        m_nodes.insert(m_nodes.end(), level.begin(), level.end());
        level = std::move(above);
    }
    m_nodes.push_back(level.front());
}

void BoxIndex::touching(const Box &box, const std::function<void(size_t)> &found) const
{
    anyTouching(box, [&](size_t number) {
        found(number);
        return false;
    });
}

bool BoxIndex::anyTouching(const Box &box, const std::function<bool(size_t)> &isSought) const
{
    if (m_nodes.empty())
        return false;
    std::vector<std::uint32_t> open = {static_cast<std::uint32_t>(m_nodes.size() - 1)};
    while (!open.empty()) {
        const Node &node = m_nodes[open.back()];
        open.pop_back();
        if (!boxesTouch(node.box, box))
            continue;
        if (node.count == 0 && isSought(node.first))
            return true;
        for (std::uint32_t i = 0; i < node.count; ++i)
            open.push_back(node.first + i);
    }
    return false;
}

} // namespace host::drawing
