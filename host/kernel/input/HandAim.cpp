#include "host/kernel/input/HandAim.h"

#include "host/drawing/math/Angles.h"
#include "host/kernel/documents/CurrentView.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/GridLattice.h"
#include "host/kernel/input/ObjectSnap.h"
#include "host/kernel/input/PointAim.h"
#include "host/kernel/input/PolarTracking.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/variables/SystemVariables.h"

#include <cmath>

namespace host::kernel {

using drawing::Vec2;
using drawing::Vec3;

namespace {

/// Polar tracking takes what comes within so many pixels of one of its rays.
constexpr double trackingReach = 8.0;

Vec3 unitAt(double angle)
{
    return {std::cos(angle), std::sin(angle), 0.0};
}

/// The directions of ORTHOMODE.
std::pair<double, double> orthoAngles(const SystemVariables &variables)
{
    const double turn = variables.real(u"SNAPANG");
    if (variables.integer(u"SNAPSTYL") == 0)
        return {turn, turn + 90.0 * drawing::radians};
    constexpr std::pair<double, double> planes[] = {{90.0, 150.0}, {30.0, 150.0}, {30.0, 90.0}};
    const auto [first, second] = planes[std::clamp(variables.integer(u"SNAPISOPAIR"), 0, 2)];
    return {turn + first * drawing::radians, turn + second * drawing::radians};
}

} // namespace

Vec3 HandAim::onUserPlane(const Vec3 &place) const
{
    const drawing::Matrix axes = m_document.userAxes();
    const Vec3 origin = axes.point({0.0, 0.0, m_document.variables().real(u"ELEVATION")});
    // A plane that is seen edge-on has no point below the pointer.
    constexpr double steepest = 1e-6;
    if (std::abs(axes.zAxis.z) < steepest)
        return place;
    const Vec3 flat{place.x - origin.x, place.y - origin.y, 0.0};
    return {place.x, place.y, origin.z - dot(axes.zAxis, flat) / axes.zAxis.z};
}

Vec3 HandAim::straightened(const Vec3 &away) const
{
    const auto [first, second] = orthoAngles(m_document.variables());
    const Vec3 x = unitAt(first);
    const Vec3 y = unitAt(second);
    return std::abs(dot(away, x)) >= std::abs(dot(away, y)) ? x * dot(away, x) : y * dot(away, y);
}

std::optional<Vec3> HandAim::tracked(const Vec3 &base, const Vec3 &user) const
{
    const PolarTracking tracking(m_document.variables(), m_document.aim().direction);
    const Vec3 away = user - base;
    if (!tracking.isOn())
        return {};
    const Vec2 seen = toWorld(m_document, user).xy();
    double reach = trackingReach * workedLength(m_document, m_document.view().unitsPerPixel());
    std::optional<Vec3> best;
    for (const double angle : tracking.anglesNear(std::atan2(away.y, away.x))) {
        const Vec3 along = unitAt(angle);
        const double distance = dot(away, along);
        const double off = (toWorld(m_document, base + along * distance).xy() - seen).length();
        if (!(distance > 0.0) || off > reach)
            continue;
        reach = off;
        best = base + along * tracking.stepped(distance);
    }
    return best;
}

HandPoint HandAim::directed(const Vec3 &base, const Vec3 &user) const
{
    if (const std::optional<Vec3> onRay = tracked(base, user))
        return {*onRay, HandRule::Polar};
    if (m_document.variables().integer(u"ORTHOMODE") != 0)
        return {base + straightened(user - base), HandRule::Ortho};
    return {user, HandRule::None};
}

Vec3 HandAim::locked(const Vec3 &base, const Vec3 &user, const Vec3 &directed) const
{
    const PointAim &aim = m_document.aim();
    if (!aim.lockedAngle)
        return base + aim.from(base, directed) * *aim.lockedLength;
    const Vec3 along = unitAt(*aim.lockedAngle);
    return base + along * aim.lockedLength.value_or(dot(user - base, along));
}

HandPoint HandAim::constrained(const Vec3 &place, const PromptRequest &request) const
{
    if (!takesPoints(request.kind))
        return {place};
    const Vec3 flat = onUserPlane(place);
    Vec3 user = toUser(m_document, flat);
    if (request.base && !asksForBox(request)) {
        const Vec3 base = toUser(m_document, *request.base);
        HandPoint found = directed(base, user);
        if (m_document.aim().isLocked())
            found = {locked(base, user, found.point), HandRule::Lock};
        if (found.rule != HandRule::None)
            return {toWorld(m_document, found.point), found.rule};
    }
    const SystemVariables &variables = m_document.variables();
    const std::optional<GridLattice> steps = variables.integer(u"SNAPMODE") != 0 && variables.integer(u"SNAPTYPE") == 0
                                                 ? snapLattice(variables)
                                                 : std::nullopt;
    if (!steps)
        return {flat};
    const Vec2 stepped = steps->nearest(user.xy());
    return {toWorld(m_document, {stepped.x, stepped.y, user.z}), HandRule::Grid};
}

Vec3 HandAim::lockedFrom(const Vec3 &snapped, const PromptRequest &request) const
{
    if (!m_document.aim().isLocked() || !request.base || !takesPoints(request.kind))
        return snapped;
    const Vec3 user = toUser(m_document, snapped);
    return toWorld(m_document, locked(toUser(m_document, *request.base), user, user));
}

HandPoint HandAim::find(const Vec3 &place, const PromptRequest &request) const
{
    const ObjectSnap snaps(m_document);
    const int kinds = request.snaps.value_or(takesPoints(request.kind) ? snaps.runningModes() : 0);
    if (const auto snap = snaps.find(place, kinds, request.base))
        return {lockedFrom(snap->point, request), HandRule::Snap, snap};
    return constrained(place, request);
}

} // namespace host::kernel
