#pragma once

#include <algorithm>
#include <cstdint>

namespace host::drawing {

/// How much work a few bytes of a drawing may cause.
///
/// What a drawing holds is worked through once, however much it is: that costs time in proportion to the file and needs
/// no leave. What is multiplied does: the lines of a hatch pattern, the dashes of a linetype, the pieces of a curve
/// beyond its own points, a block that is shown a second time and every further cell of an array. Who makes such things
/// takes units first; when they are refused it makes something coarser or nothing, and says so to the user.
///
/// One budget serves one picture, one pick or one measurement with all who work for it, so that many small excesses add
/// up to no more than one large one. A unit is about a microsecond: what a short line costs on the screen.
class WorkBudget
{
public:
    explicit WorkBudget(std::int64_t units) : m_left(units) {}

    /// Whether so many units were left; they are taken then. Otherwise nothing is taken, and it counts as a refusal.
    bool take(std::int64_t units)
    {
        const bool isGranted = units <= m_left;
        m_left -= isGranted ? units : 0;
        m_refusals += isGranted ? 0 : 1;
        return isGranted;
    }
    /// Something is made coarser or left out because too little is left.
    void refuse() { ++m_refusals; }
    /// For work that is done already: takes as much of it as is left.
    void charge(std::int64_t units) { m_left -= std::clamp<std::int64_t>(units, 0, m_left); }
    /// For what was made and is gone again.
    void giveBack(std::int64_t units) { m_left += units; }

    std::int64_t left() const { return m_left; }
    std::int64_t refusals() const { return m_refusals; }

private:
    std::int64_t m_left;
    std::int64_t m_refusals = 0;
};

// What is granted. Drawings of a million entities, each block of them shown some ten times, stay well below.
inline constexpr std::int64_t displayWork = 20'000'000; ///< pieces kept of one drawing beyond its own points
inline constexpr std::int64_t pictureWork = 8'000'000;  ///< of one picture in pixels
inline constexpr std::int64_t vectorWork = 2'000'000;   ///< of one file of lines; a unit is some fifty bytes there
inline constexpr std::int64_t pickWork = 4'000'000;     ///< of one pick, where nothing is painted
inline constexpr std::int64_t measureWork = 20'000'000; ///< of boxes through blocks, until the drawing changes
inline constexpr std::int64_t outlineWork = 2'000'000;  ///< of outlines through blocks; of a space, some more an entity

} // namespace host::drawing
