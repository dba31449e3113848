#pragma once

#include "host/drawing/curves/BoxIndex.h"
#include "host/drawing/curves/EntityCurve.h"

namespace host::drawing {

// Where curves meet: cross, touch or end on each other. Points count as one within EntityCurve::tolerance() of the
// larger curve. Where two curves run along each other they have no crossing but such an end as they share.
//
// Lines with lines, circles and ellipses, and circles of one plane, are solved in closed form; all else is halved until
// one step of Newton's rule after another leads to the point.

/// A point that two curves have in common.
struct CurveCrossing
{
    double first = 0.0;  ///< its parameter on the first curve
    double second = 0.0; ///< and on the second one
    Vec3 point;          ///< on the first curve
};

/// All crossings of two curves in space, along the first one, each once. Give extended() curves to find those beyond
/// their ends. Costs n log n of the pieces of both and what is found.
std::vector<CurveCrossing> crossings(const EntityCurve &first, const EntityCurve &second);

/// Those seen along a direction, whatever the heights: `point` is on the first curve in space.
std::vector<CurveCrossing> apparentCrossings(const EntityCurve &first, const EntityCurve &second,
                                             const Vec3 &direction);

/// Where a curve crosses itself: `first` below `second`. Neighbouring pieces do not cross where they join.
std::vector<CurveCrossing> selfCrossings(const EntityCurve &curve);

/// Many curves, for asking again and again where others cross them. Keeps copies.
class CurveCrosser
{
public:
    struct Crossing : CurveCrossing
    {
        size_t curve = 0; ///< the number of the curve that `second` is of
    };

    explicit CurveCrosser(std::vector<EntityCurve> curves);
    const std::vector<EntityCurve> &curves() const { return m_curves; }
    /// Crossings of `curve` with all of them, along it. Costs its pieces times the logarithm of theirs, and what is
    /// found.
    std::vector<Crossing> crossings(const EntityCurve &curve) const;
    /// With those of them alone that `isWanted` says by their number.
    std::vector<Crossing> crossings(const EntityCurve &curve, const std::function<bool(size_t)> &isWanted) const;

private:
    struct Place
    {
        std::uint32_t curve;
        std::uint32_t piece;
    };

    std::vector<EntityCurve> m_curves;
    std::vector<double> m_tolerances; ///< of each
    std::vector<Place> m_places;
    std::optional<BoxIndex> m_index;
};

/// What crossings of two pieces amount to, unsorted and with doubles; for those above. Returns the work it was, in
/// microseconds or so: little for lines and circles, some thousands for curves that run along each other.
int appendCrossings(std::vector<CurveCrossing> &found, const CurvePiece &first, const CurvePiece &second,
                    double tolerance);

} // namespace host::drawing
