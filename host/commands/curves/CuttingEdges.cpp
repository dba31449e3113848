#include "host/commands/curves/CuttingEdges.h"

#include "host/commands/common/BoundaryCurve.h"

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

void CuttingEdges::forget()
{
    m_isLooked = false;
    m_groups.clear();
    m_recent.clear();
    m_versions.clear();
}

void CuttingEdges::look()
{
    m_isLooked = true;
    const drawing::Drawing &drawing = m_context.drawing();
    const QSet<QString> hidden = hiddenLayerNames(drawing);
    drawing::WorkBudget work(drawing::outlineWork);
    std::vector<EntityCurve> curves;
    std::vector<Known> known;
    for (const RecordId edge : m_edges) {
        if (!drawing.isAlive(edge))
            continue;
        for (const EntityCurve &curve : shownCurves(drawing, edge, hidden, work)) {
            curves.push_back(prepared(curve, true));
            known.push_back({edge, 0});
        }
    }
    m_groups.push_back({drawing::CurveCrosser(std::move(curves)), std::move(known)});
}

bool CuttingEdges::isCurrent(const Known &known) const
{
    const auto version = m_versions.find(known.edge);
    return known.version == (version == m_versions.end() ? 0 : version->second);
}

void CuttingEdges::changed(RecordId entity, const std::vector<RecordId> &made)
{
    if (!m_edges.contains(entity))
        return;
    m_edges.insert(made.begin(), made.end());
    if (!m_isLooked)
        return;
    note(entity);
    for (const RecordId edge : made)
        note(edge);
    constexpr size_t fewChanges = 32; // which are gone through one by one
    if (m_recent.size() > fewChanges)
        settle();
}

void CuttingEdges::note(RecordId edge)
{
    const unsigned version = ++m_versions[edge];
    if (!m_context.drawing().isAlive(edge))
        return;
    if (const auto curve = EntityCurve::ofEntity(m_context.drawing(), edge))
        m_recent.push_back({{edge, version}, prepared(*curve, true)});
}

/// What changed lately becomes a group, together with those that are no larger.
void CuttingEdges::settle()
{
    std::vector<EntityCurve> curves;
    std::vector<Known> known;
    const auto take = [&](const Known &one, const EntityCurve &curve) {
        if (isCurrent(one)) {
            known.push_back(one);
            curves.push_back(curve);
        }
    };
    for (const auto &[one, curve] : m_recent)
        take(one, curve);
    m_recent.clear();
    while (!m_groups.empty() && m_groups.back().known.size() <= 2 * known.size()) {
        const Group group = std::move(m_groups.back());
        m_groups.pop_back();
        for (size_t i = 0; i < group.known.size(); ++i)
            take(group.known[i], group.crosser.curves()[i]);
    }
    m_groups.push_back({drawing::CurveCrosser(std::move(curves)), std::move(known)});
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
    if (!m_isLooked)
        look();
    const EntityCurve own = prepared(curve, false);
    const auto isEdge = [&](const Known &known) { return known.edge != entity && isCurrent(known); };
    std::vector<double> found;
    for (const Group &group : m_groups) {
        const auto isWanted = [&](size_t number) { return isEdge(group.known[number]); };
        for (const auto &crossing : group.crosser.crossings(own, isWanted))
            found.push_back(crossing.first);
    }
    for (const auto &[known, recent] : m_recent) {
        if (!isEdge(known))
            continue;
        for (const drawing::CurveCrossing &crossing : drawing::crossings(own, recent))
            found.push_back(crossing.first);
    }
    std::ranges::sort(found);
    return found;
}

} // namespace host::kernel
