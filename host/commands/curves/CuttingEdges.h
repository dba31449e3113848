#pragma once

#include "host/commands/curves/PickedCurve.h"
#include "host/drawing/curves/Crossings.h"

#include <map>
#include <set>

namespace host::kernel {

/// The curves that others are trimmed and extended to. They are looked up again when they change on the way.
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
    void forget() { m_crosser.reset(); }

    /// The parameters, sorted, at which a curve meets the edges, itself left out.
    std::vector<double> on(drawing::RecordId entity, const drawing::EntityCurve &curve);
    /// Those too at which it crosses itself, if it is an edge.
    std::vector<double> onAndWithin(drawing::RecordId entity, const drawing::EntityCurve &curve);

private:
    drawing::EntityCurve prepared(const drawing::EntityCurve &curve, bool isEdge) const;
    void look();

    CommandContext &m_context;
    std::set<drawing::RecordId> m_edges;
    Projection m_projection = Projection::User;
    bool m_areExtended = false;
    std::optional<drawing::CurveCrosser> m_crosser; ///< of those that did not change since
    std::vector<drawing::RecordId> m_known;         ///< the entity of each of its curves
    std::map<drawing::RecordId, std::optional<drawing::EntityCurve>> m_changed;
};

} // namespace host::kernel
