#pragma once

#include "host/view/build/Scene.h"

#include <QHash>

namespace host::view {

/// Works out what can be seen of a block, layer by layer, through all blocks that it refers to. Each block is measured
/// at most twice: with layer 0 seen through its insert, and without.
class VisibleExtents
{
public:
    /// The scene must be prepared for the blocks asked for.
    VisibleExtents(Scene &scene, Seen seen) : m_scene(scene), m_seen(seen) {}

    Box of(int block);

private:
    /// A block with whether layer 0 is seen in it, as one number.
    using Seeing = std::size_t;
    static Seeing seeing(int block, bool showsLayer0) { return 2 * static_cast<Seeing>(block) + (showsLayer0 ? 1 : 0); }

    Box of(Seeing whole);
    template <class Visit>
    void forEachOfReferences(Seeing what, const Visit &visit);
    void addPlain(Seeing what, Box &box);
    std::vector<Seeing> shownBy(Seeing what);
    void measure(Seeing what);
    bool isSeen(const Style &style, Seeing what) const;
    std::optional<Seeing> through(const Reference &reference, const Style &style, Seeing what) const;
    bool isShown(int layer) const;

    Scene &m_scene;
    const Seen m_seen;
    QHash<Seeing, Box> m_known;
    RecordDisplay m_made; ///< of the record looked at
};

} // namespace host::view
