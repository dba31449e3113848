#pragma once

#include "host/commands/curves/PickedCurve.h"
#include "host/drawing/curves/Crossings.h"

#include <map>
#include <set>

namespace host::kernel {

/// The curves that others are trimmed and extended to: entities, what block references show of curves, and the edges of
/// regions.
///
/// They may change on the way. What changed is gathered, a few by themselves and the others in groups that double in
/// size, so that n changes cost n log n of their number each way.
class CuttingEdges
{
public:
    /// What PROJMODE says: where curves meet.
    enum class Projection
    {
        None, ///< in space
        User, ///< as seen along the z axis of the user's coordinate system
        View  ///< from where the view looks: from above
    };

    CuttingEdges(CommandContext &context, const std::vector<drawing::RecordId> &edges);

    /// With EDGEMODE edges count as far as they can be extended.
    void set(Projection projection, bool areExtended);
    /// To be told of entities that were made from an edge or changed.
    void changed(drawing::RecordId entity, const std::vector<drawing::RecordId> &made);
    void forget();

    /// The parameters, sorted, at which a curve meets the edges, itself left out.
    std::vector<double> on(drawing::RecordId entity, const drawing::EntityCurve &curve);
    /// Those too at which it crosses itself, if it is an edge.
    std::vector<double> onAndWithin(drawing::RecordId entity, const drawing::EntityCurve &curve);

private:
    drawing::EntityCurve prepared(const drawing::EntityCurve &curve, bool isEdge) const;
    void look();
    void note(drawing::RecordId edge);
    void settle();

    /// A curve as it was when its entity had changed so often.
    struct Known
    {
        drawing::RecordId edge = drawing::noRecord;
        unsigned version = 0;
    };
    struct Group
    {
        drawing::CurveCrosser crosser;
        std::vector<Known> known; ///< of each of its curves
    };
    bool isCurrent(const Known &known) const;

    CommandContext &m_context;
    std::set<drawing::RecordId> m_edges;
    Projection m_projection = Projection::User;
    bool m_areExtended = false;
    bool m_isLooked = false;
    std::vector<Group> m_groups; ///< the largest first
    std::vector<std::pair<Known, drawing::EntityCurve>> m_recent;
    std::map<drawing::RecordId, unsigned> m_versions; ///< of those that changed
};

} // namespace host::kernel
