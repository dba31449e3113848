#pragma once

#include "host/drawing/geometry/SnapPoints.h"
#include "host/kernel/input/PromptRequest.h"

namespace host::kernel {

class Document;

/// What has moved a point that is shown by hand.
enum class HandRule
{
    None,
    Snap,  ///< object snap: entities
    Lock,  ///< a length or an angle that was typed for it, see PointAim
    Polar, ///< polar tracking: an angle from the base
    Ortho, ///< the axes through the base
    Grid   ///< the points of SNAPUNIT
};

/// Where a point that is shown by hand comes to lie; world coordinates.
struct HandPoint
{
    drawing::Vec3 point;
    HandRule rule = HandRule::None;
    std::optional<drawing::SnapPoint> snap{}; ///< of the rule of that name
};

/// What becomes of a place that the pointer shows to a prompt: prompts take it, and a window shows it beforehand. Of
/// the rules of HandRule the first that applies counts, in their order. What is locked holds for all: a locked length
/// goes in the direction that the others make, a locked angle takes what of theirs lies along it. Places that are not
/// snapped come to lie in the user's plane at ELEVATION, straight below or above where they were.
class HandAim
{
public:
    explicit HandAim(Document &document) : m_document(document) {}

    /// `place` is in world coordinates. Of prompts that take no points only their own snaps count.
    HandPoint find(const drawing::Vec3 &place, const PromptRequest &request) const;
    /// Without object snaps.
    HandPoint constrained(const drawing::Vec3 &place, const PromptRequest &request) const;
    /// A point that object snap has found, where nothing is locked; otherwise what the locks make of it.
    drawing::Vec3 lockedFrom(const drawing::Vec3 &snapped, const PromptRequest &request) const;
    /// Along the user's axis, turned by SNAPANG, or the axis of the isometric plane, that is nearest to a direction in
    /// user coordinates: what ORTHOMODE makes of it.
    drawing::Vec3 straightened(const drawing::Vec3 &away) const;

private:
    std::optional<drawing::Vec3> tracked(const drawing::Vec3 &base, const drawing::Vec3 &user) const;
    HandPoint directed(const drawing::Vec3 &base, const drawing::Vec3 &user) const;
    drawing::Vec3 locked(const drawing::Vec3 &base, const drawing::Vec3 &user, const drawing::Vec3 &directed) const;
    drawing::Vec3 onUserPlane(const drawing::Vec3 &place) const;

    Document &m_document;
};

} // namespace host::kernel
