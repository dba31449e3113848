#include "host/kernel/input/ObjectSnap.h"

#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/view/paint/NearEntities.h"

namespace host::kernel {

namespace {

/// Entities, and cells of arrays, that one question may cost; the pointer asks with every move.
constexpr std::int64_t snapWork = 20'000;
constexpr int usualAperture = 10;

} // namespace

int ObjectSnap::runningModes() const
{
    const int modes = m_document.variables().integer(u"OSMODE");
    return (modes & drawing::SnapsSwitchedOff) ? 0 : modes;
}

std::optional<drawing::SnapPoint> ObjectSnap::find(const drawing::Vec3 &place, int kinds,
                                                   const std::optional<drawing::Vec3> &base) const
{
    if (kinds == 0)
        return {};
    const double reach = m_document.variables().integer(u"APERTURE", usualAperture) * m_document.view().unitsPerPixel();
    view::Scene &scene = m_document.scene();
    const drawing::Drawing &drawing = m_document.drawing();
    drawing::WorkBudget work(snapWork);
    std::vector<drawing::SnapTarget> targets;
    for (const view::NearEntity &near :
         view::entitiesNear(scene, scene.block(currentSpaceBlock(drawing)), place.xy(), reach, work)) {
        targets.push_back(drawing::snapTarget(drawing, near.entity, near.toWorld, work));
        targets.back().isInBlock = near.isInBlock;
    }
    return drawing::findSnap(
        targets, {.point = place, .reach = reach, .kinds = kinds, .base = base, .userAxes = m_document.userAxes()});
}

} // namespace host::kernel
