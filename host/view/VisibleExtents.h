#pragma once

#include "host/view/Scene.h"

#include <QHash>

namespace host::view {

/// Works out what can be seen of a block, layer by layer, through all blocks that it refers to. Each block is measured
/// at most twice: with layer 0 seen through its insert, and without.
class VisibleExtents
{
public:
    /// The scene must be prepared for the blocks asked for.
    VisibleExtents(const Scene &scene, Seen seen) : m_scene(scene), m_seen(seen) {}

    Box of(int block) { return measure(block, isShown(0)); }

private:
    Box measure(int block, bool showsLayer0);
    void add(const std::vector<DisplayItem> &items, bool showsLayer0, Box &box);
    bool isShown(int layer) const;

    const Scene &m_scene;
    const Seen m_seen;
    QHash<std::pair<int, bool>, Box> m_known;
};

} // namespace host::view
