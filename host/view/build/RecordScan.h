#pragma once

#include "host/view/build/Scene.h"

namespace host::view {

/// The first look at the records of a block, on several threads: what can be made anywhere is summed up, the rest is
/// left to the scene.
class RecordScan
{
public:
    /// A record that the scene has to build, or to keep what was built of it.
    struct Left
    {
        std::uint32_t place = 0;
        std::optional<RecordDisplay> display{};
    };

    /// `space`: records of other spaces are only marked as elsewhere. `names` are asked on all threads.
    RecordScan(Scene &scene, const Appearance &names, std::optional<drawing::Space> space)
        : m_scene(scene), m_drawing(scene.drawing()), m_names(names), m_space(space)
    {
    }

    /// Fills the summaries of `records`, which are as many and not touched where `isKnown` says so. Numbers of styles
    /// are given in order once all is done. Returns what is left to do.
    std::vector<Left> run(const std::vector<RecordId> &records, std::vector<RecordSummary> &summaries,
                          StyleTable &styles, int threads, const std::function<bool(std::size_t)> &isKnown);
    qint64 builtRecords() const { return m_built; }

private:
    /// What one piece of the records came to.
    struct Piece
    {
        std::vector<Left> left{};
        StyleTable styles{};
        qint64 built = 0;
    };
    void scan(RecordId record, RecordSummary &summary, std::size_t place, StyleNames &names, Piece &piece) const;

    Scene &m_scene;
    const drawing::Drawing &m_drawing;
    const Appearance &m_names;
    const std::optional<drawing::Space> m_space;
    qint64 m_built = 0;
};

} // namespace host::view
