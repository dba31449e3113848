#include "host/commands/curves/SplineJoin.h"

#include "host/commands/curves/PickedCurve.h"
#include "host/drawing/curves/BoxIndex.h"
#include "host/drawing/curves/CurveSpline.h"

#include <algorithm>

namespace host::kernel {

using drawing::EntityCurve;
using drawing::Spline;
using drawing::Vec3;

namespace {

/// The ends of parts by their places: end 2n is the start of part n.
class SplineEnds
{
public:
    explicit SplineEnds(const CurveParts &parts) : m_parts(parts), m_isUsed(parts.size()), m_index(boxesOf(parts)) {}

    Vec3 at(std::size_t end) const { return pointOf(m_parts, end); }
    void use(std::size_t part) { m_isUsed[part] = true; }
    /// An end of a part that is left, in the same place.
    std::optional<std::size_t> meeting(const Vec3 &place) const
    {
        std::optional<std::size_t> found;
        m_index.touching({place, place}, [&](std::size_t end) {
            if (!m_isUsed[end / 2] && (!found || end < *found))
                found = end;
        });
        return found;
    }

private:
    static Vec3 pointOf(const CurveParts &parts, std::size_t end)
    {
        const EntityCurve &curve = parts[end / 2].curve;
        return end % 2 == 0 ? curve.startPoint() : curve.endPoint();
    }
    static std::vector<drawing::Box> boxesOf(const CurveParts &parts)
    {
        const Vec3 reach{sameCurveEnd, sameCurveEnd, sameCurveEnd};
        std::vector<drawing::Box> boxes;
        for (std::size_t end = 0; end < 2 * parts.size(); ++end)
            boxes.push_back({pointOf(parts, end) - reach, pointOf(parts, end) + reach});
        return boxes;
    }

    const CurveParts &m_parts;
    std::vector<bool> m_isUsed;
    drawing::BoxIndex m_index;
};

/// The ends by which parts are entered, one behind the other, from a place on.
std::vector<std::size_t> entriesFrom(SplineEnds &ends, Vec3 place, const Vec3 &goal)
{
    std::vector<std::size_t> entries;
    while ((place - goal).length() > sameCurveEnd) {
        const std::optional<std::size_t> next = ends.meeting(place);
        if (!next)
            break;
        ends.use(*next / 2);
        entries.push_back(*next);
        place = ends.at(*next ^ 1);
    }
    return entries;
}

Spline splineOfPart(const drawing::Drawing &drawing, const CurvePart &part, bool isReversed)
{
    Spline spline = drawing.isType(part.entity, "SPLINE") ? drawing::shownSpline(drawing.tags(part.entity))
                                                          : drawing::exactSpline(part.curve);
    spline.fitPoints.clear();
    spline.isClosed = false;
    return isReversed ? reversedSpline(spline) : spline;
}

} // namespace

std::optional<JoinedSpline> joinAsSpline(const drawing::Drawing &drawing, const CurveParts &parts, std::size_t first)
{
    SplineEnds ends(parts);
    ends.use(first);
    const std::vector<std::size_t> onward = entriesFrom(ends, ends.at(2 * first + 1), ends.at(2 * first));
    const Vec3 last = onward.empty() ? ends.at(2 * first + 1) : ends.at(onward.back() ^ 1);
    std::vector<std::size_t> order = entriesFrom(ends, ends.at(2 * first), last);
    // Those in front were found going back.
    std::ranges::reverse(order);
    for (std::size_t &entry : order)
        entry ^= 1;
    order.push_back(2 * first);
    order.insert(order.end(), onward.begin(), onward.end());
    if (order.size() < 2)
        return {};
    JoinedSpline joined;
    std::vector<Spline> splines;
    for (const std::size_t entry : order) {
        joined.taken.push_back(entry / 2);
        splines.push_back(splineOfPart(drawing, parts[entry / 2], entry % 2 == 1));
    }
    joined.spline = drawing::splineChain(splines);
    return joined;
}

} // namespace host::kernel
