#include "host/commands/curves/CuttingEdges.h"

namespace host::kernel {

using drawing::EntityCurve;
using drawing::RecordId;
using drawing::Vec3;

CuttingEdges::CuttingEdges(CommandContext &context, const std::vector<RecordId> &edges)
    : m_context(context), m_edges(edges.begin(), edges.end())
{
}

void CuttingEdges::set(Projection projection, bool areExtended)
{
    m_projection = projection;
    m_areExtended = areExtended;
    forget();
}

EntityCurve CuttingEdges::prepared(const EntityCurve &curve, bool isEdge) const
{
    const EntityCurve known = isEdge && m_areExtended ? curve.extended(drawing::Extension::Both) : curve;
    if (m_projection == Projection::None)
        return known;
    return known.flattened(m_projection == Projection::User ? userNormal(m_context) : Vec3{0, 0, 1});
}

void CuttingEdges::look()
{
    std::vector<EntityCurve> curves;
    m_known.clear();
    m_changed.clear();
    for (const RecordId edge : m_edges) {
        if (!m_context.drawing().isAlive(edge))
            continue;
        if (const auto curve = EntityCurve::ofEntity(m_context.drawing(), edge)) {
            curves.push_back(prepared(*curve, true));
            m_known.push_back(edge);
        }
    }
    m_crosser.emplace(std::move(curves));
}

void CuttingEdges::changed(RecordId entity, const std::vector<RecordId> &made)
{
    if (!m_edges.contains(entity))
        return;
    m_edges.insert(made.begin(), made.end());
    constexpr size_t fewChanges = 64; // above which all are looked up again
    if (m_changed.size() >= fewChanges)
        return forget();
    const auto note = [&](RecordId id) {
        const bool isThere = m_context.drawing().isAlive(id);
        std::optional<EntityCurve> curve;
        if (isThere)
            curve = EntityCurve::ofEntity(m_context.drawing(), id);
        m_changed.insert_or_assign(id, curve ? std::optional(prepared(*curve, true)) : std::nullopt);
    };
    note(entity);
    for (const RecordId id : made)
        note(id);
}

std::vector<double> CuttingEdges::onAndWithin(RecordId entity, const EntityCurve &curve)
{
    std::vector<double> found = on(entity, curve);
    if (!m_edges.contains(entity))
        return found;
    for (const drawing::CurveCrossing &crossing : drawing::selfCrossings(prepared(curve, false))) {
        found.push_back(crossing.first);
        found.push_back(crossing.second);
    }
    std::ranges::sort(found);
    return found;
}

std::vector<double> CuttingEdges::on(RecordId entity, const EntityCurve &curve)
{
    if (!m_crosser)
        look();
    const EntityCurve own = prepared(curve, false);
    std::vector<double> found;
    for (const auto &crossing : m_crosser->crossings(own)) {
        const RecordId edge = m_known[crossing.curve];
        if (edge != entity && !m_changed.contains(edge))
            found.push_back(crossing.first);
    }
    for (const auto &[edge, changed] : m_changed) {
        if (edge == entity || !changed)
            continue;
        for (const drawing::CurveCrossing &crossing : drawing::crossings(own, *changed))
            found.push_back(crossing.first);
    }
    std::ranges::sort(found);
    return found;
}

} // namespace host::kernel
