#include "host/drawing/curves/Crossings.h"

#include <map>

namespace host::drawing {

namespace {

Box grown(Box box, double by)
{
    const Vec3 all{by, by, by};
    return {box.low - all, box.high + all};
}

/// Whether two crossings are one that was found in two pieces: the curve does not leave the point between them.
bool isSameCrossing(const EntityCurve &curve, const CurveCrossing &a, const CurveCrossing &b, double tolerance)
{
    const Vec3 between = curve.point((a.first + b.first) / 2.0);
    return (a.point - b.point).length() <= tolerance && (between - a.point).length() <= tolerance;
}

/// Sorts along the curve and leaves out doubles: those of neighbouring pieces, and of a closed curve's two ends.
void tidyCrossings(std::vector<CurveCrossing> &found, const EntityCurve &curve, double tolerance)
{
    std::ranges::stable_sort(found, {}, &CurveCrossing::first);
    std::vector<CurveCrossing> kept;
    for (const CurveCrossing &crossing : found) {
        if (kept.empty() || !isSameCrossing(curve, kept.back(), crossing, tolerance))
            kept.push_back(crossing);
    }
    const auto isAt = [&](const CurveCrossing &crossing, double end) {
        return (curve.point(end) - crossing.point).length() <= tolerance &&
               (curve.point((end + crossing.first) / 2.0) - crossing.point).length() <= tolerance;
    };
    if (curve.isClosed() && kept.size() > 1 && isAt(kept.front(), curve.startParameter()) &&
        isAt(kept.back(), curve.endParameter()))
        kept.pop_back();
    found = std::move(kept);
}

} // namespace

std::vector<CurveCrossing> crossings(const EntityCurve &first, const EntityCurve &second)
{
    const double tolerance = std::max(first.tolerance(), second.tolerance());
    std::vector<CurveCrossing> found;
    if (first.pieces().size() * second.pieces().size() <= 16) {
        for (const CurvePiece &piece : first.pieces()) {
            for (const CurvePiece &other : second.pieces())
                appendCrossings(found, piece, other, tolerance);
        }
    } else {
        const CurveCrosser crosser({second});
        for (const CurveCrosser::Crossing &crossing : crosser.crossings(first))
            found.push_back(crossing);
        return found;
    }
    tidyCrossings(found, first, tolerance);
    return found;
}

std::vector<CurveCrossing> apparentCrossings(const EntityCurve &first, const EntityCurve &second, const Vec3 &direction)
{
    std::vector<CurveCrossing> found = crossings(first.flattened(direction), second.flattened(direction));
    for (CurveCrossing &crossing : found)
        crossing.point = first.point(crossing.first);
    return found;
}

std::vector<CurveCrossing> selfCrossings(const EntityCurve &curve)
{
    const std::span<const CurvePiece> pieces = curve.pieces();
    const double tolerance = curve.tolerance();
    std::vector<Box> boxes;
    for (const CurvePiece &piece : pieces)
        boxes.push_back(grown(piece.box(), tolerance));
    const BoxIndex index(boxes);
    std::vector<CurveCrossing> found;
    for (size_t i = 0; i < pieces.size(); ++i) {
        index.touching(boxes[i], [&](size_t k) {
            if (k > i)
                appendCrossings(found, pieces[i], pieces[k], tolerance);
        });
    }
    const double half = (curve.endParameter() - curve.startParameter()) / 2.0;
    const auto isJoint = [&](const CurveCrossing &crossing) {
        const bool isSeam = curve.isClosed() && crossing.second - crossing.first > half &&
                            (curve.startPoint() - crossing.point).length() <= tolerance;
        const Vec3 between = curve.point((crossing.first + crossing.second) / 2.0);
        return isSeam || (between - crossing.point).length() <= tolerance;
    };
    std::erase_if(found, isJoint);
    tidyCrossings(found, curve, tolerance);
    return found;
}

CurveCrosser::CurveCrosser(std::vector<EntityCurve> curves) : m_curves(std::move(curves))
{
    std::vector<Box> boxes;
    for (size_t i = 0; i < m_curves.size(); ++i) {
        const double tolerance = m_tolerances.emplace_back(m_curves[i].tolerance());
        for (size_t k = 0; k < m_curves[i].pieces().size(); ++k) {
            m_places.push_back({static_cast<std::uint32_t>(i), static_cast<std::uint32_t>(k)});
            boxes.push_back(grown(m_curves[i].pieces()[k].box(), tolerance));
        }
    }
    m_index.emplace(boxes);
}

std::vector<CurveCrosser::Crossing> CurveCrosser::crossings(const EntityCurve &curve) const
{
    return crossings(curve, [](size_t) { return true; });
}

std::vector<CurveCrosser::Crossing> CurveCrosser::crossings(const EntityCurve &curve,
                                                            const std::function<bool(size_t)> &isWanted) const
{
    const double own = curve.tolerance();
    std::map<size_t, std::vector<CurveCrossing>> byCurve;
    for (const CurvePiece &piece : curve.pieces()) {
        m_index->touching(grown(piece.box(), own), [&](size_t number) {
            const Place &place = m_places[number];
            if (!isWanted(place.curve))
                return;
            appendCrossings(byCurve[place.curve], piece, m_curves[place.curve].pieces()[place.piece],
                            std::max(own, m_tolerances[place.curve]));
        });
    }
    std::vector<Crossing> found;
    for (auto &[number, ofOne] : byCurve) {
        tidyCrossings(ofOne, curve, std::max(own, m_tolerances[number]));
        for (const CurveCrossing &crossing : ofOne)
            found.push_back({crossing, number});
    }
    std::ranges::stable_sort(found, {}, &CurveCrossing::first);
    return found;
}

} // namespace host::drawing
