#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/curves/CarrierUnion.h"
#include "host/commands/curves/PickedCurve.h"
#include "host/commands/curves/PolylineJoin.h"
#include "host/commands/curves/SplineJoin.h"
#include "host/drawing/curves/BoxIndex.h"
#include "host/drawing/curves/Carriers.h"
#include "host/kernel/languages/Texts.h"

#include <map>
#include <numeric>
#include <set>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::EntityCurve;
using drawing::RecordId;
using drawing::Vec3;

struct JoinSession
{
    CommandContext &context;
    std::vector<RecordId> erased; ///< what went into others; erased at the end, in one go
    size_t joined = 0;            ///< how many found others

    bool isPolyline(const CurvePart &part) const
    {
        const auto kind = part.curve.kind();
        return kind == EntityCurve::Kind::LightPolyline || kind == EntityCurve::Kind::Polyline;
    }
};

CurveParts openCurves(CommandContext &context, const std::vector<RecordId> &entities)
{
    CurveParts parts;
    for (const RecordId entity : entities) {
        std::optional<EntityCurve> curve = EntityCurve::ofEntity(context.drawing(), entity);
        const bool isLeader = curve && curve->kind() == EntityCurve::Kind::Leader;
        if (curve && !curve->isClosed() && !curve->isEndless() && !isLeader)
            parts.push_back({entity, std::move(*curve)});
    }
    return parts;
}

/// Those that lie on the carrier of the first one, with all that is between them.
void joinOnCarrier(JoinSession &session, const CurveParts &parts)
{
    if (!uniteOnCarrier(session.context, parts))
        return;
    for (size_t i = 1; i < parts.size(); ++i)
        session.erased.push_back(parts[i].entity);
    session.joined += parts.size();
    const auto sourceKind = parts.front().curve.kind();
    const QString told = sourceKind == EntityCurve::Kind::Line  ? Commands::tr("\n%1 lines joined into 1 line")
                         : sourceKind == EntityCurve::Kind::Arc ? Commands::tr("\n%1 arcs joined into 1 arc")
                                                                : Commands::tr("\n%1 ellipses joined into 1 ellipse");
    session.context.print(told.arg(parts.size()));
}

/// The direction of the plane in which parts are joined: that of the first one that has a plane.
Vec3 planeOf(const CommandContext &context, const CurveParts &parts)
{
    for (const CurvePart &part : parts)
        if (const std::optional<Vec3> normal = part.curve.normal())
            return *normal;
    return userNormal(context);
}

/// The first of the parts and what it meets, at its ends and on, as one polyline; what is left over comes back.
CurveParts joinToPolyline(JoinSession &session, const CurveParts &parts)
{
    const drawing::Drawing &drawing = session.context.drawing();
    const Vec3 normal = planeOf(session.context, parts);
    std::vector<EditedPolyline> others;
    std::vector<size_t> numbers;
    for (size_t i = 0; i < parts.size(); ++i) {
        const bool isSpline = parts[i].curve.kind() == EntityCurve::Kind::Spline;
        std::optional<EditedPolyline> other = readPolyline(drawing, parts[i].entity);
        if (!other && !isSpline)
            other = polylineLike(drawing, parts[i].entity, normal);
        if (!other || other->isSpatial || other->smoothing != Smoothing::None)
            continue;
        others.push_back(std::move(*other));
        numbers.push_back(i);
    }
    if (others.size() < 2)
        return {};
    EditedPolyline polyline = std::move(others.front());
    others.erase(others.begin());
    const std::vector<size_t> taken = joinTo(polyline, others, {});
    CurveParts rest;
    const std::set<size_t> isTaken(taken.begin(), taken.end());
    for (size_t i = 0; i < others.size(); ++i) {
        if (isTaken.contains(i))
            session.erased.push_back(parts[numbers[i + 1]].entity);
        else
            rest.push_back(parts[numbers[i + 1]]);
    }
    if (taken.empty())
        return rest;
    const StoredPolyline stored = storePolyline(session.context, polyline);
    if (stored.record != parts[numbers.front()].entity)
        session.erased.push_back(parts[numbers.front()].entity);
    session.joined += taken.size() + 1;
    session.context.print(Commands::tr("\n%1 objects converted to 1 polyline").arg(taken.size() + 1));
    return rest;
}

/// The fields of the entity as a spline, which may leave its plane.
drawing::FieldList splineFields(CommandContext &context, const CurvePart &part, const drawing::Spline &spline)
{
    constexpr qint64 planarFlag = 8;
    drawing::FieldList fields = context.drawing().fields(part.entity);
    const bool isEllipse = part.curve.kind() == EntityCurve::Kind::Ellipse;
    const bool isFlat = EntityCurve::spline(spline).isPlanar();
    std::erase_if(fields, [&](const drawing::Field &field) {
        return (isEllipse && field.code == 42) || (!isFlat && field.code == 210);
    });
    fields = drawing::withSpline(fields, spline);
    if (drawing::Field *flags = drawing::findField(fields, 70))
        flags->value = (flags->integer() & ~planarFlag) | (isFlat ? planarFlag : 0);
    return fields;
}

/// Splines and parts of ellipses with all that meets them, each as one spline; what is left over comes back.
CurveParts joinToSplines(JoinSession &session, CurveParts parts)
{
    for (std::size_t first = 0; first < parts.size();) {
        const auto kind = parts[first].curve.kind();
        const bool isCurved = kind == EntityCurve::Kind::Spline || kind == EntityCurve::Kind::Ellipse;
        const auto joined =
            isCurved ? joinAsSpline(session.context.drawing(), parts, first) : std::optional<JoinedSpline>();
        if (!joined) {
            ++first;
            continue;
        }
        const CurvePart source = parts[first];
        replaceCurve(session.context.drawing(), source.entity,
                     {splineFields(session.context, source, joined->spline), {}});
        const std::set<size_t> isTaken(joined->taken.begin(), joined->taken.end());
        CurveParts rest;
        for (size_t i = 0; i < parts.size(); ++i) {
            if (!isTaken.contains(i))
                rest.push_back(parts[i]);
            else if (i != first)
                session.erased.push_back(parts[i].entity);
        }
        session.joined += isTaken.size();
        session.context.print(Commands::tr("\n%1 objects converted to 1 spline").arg(isTaken.size()));
        parts = std::move(rest);
    }
    return parts;
}

/// Which parts hang together by their ends: of each the number of one of its group. n log n.
std::vector<size_t> groupsByEnds(const CurveParts &parts)
{
    std::vector<size_t> group(parts.size());
    std::iota(group.begin(), group.end(), size_t(0));
    const auto root = [&](size_t i) {
        while (group[i] != i)
            i = group[i] = group[group[i]];
        return i;
    };
    std::vector<std::pair<Vec3, size_t>> ends;
    for (size_t i = 0; i < parts.size(); ++i) {
        ends.emplace_back(parts[i].curve.startPoint(), i);
        ends.emplace_back(parts[i].curve.endPoint(), i);
    }
    std::vector<drawing::Box> boxes;
    for (const auto &[point, part] : ends) {
        const Vec3 reach{sameCurveEnd, sameCurveEnd, sameCurveEnd};
        boxes.push_back({point - reach, point + reach});
    }
    const drawing::BoxIndex index(boxes);
    for (const auto &[point, part] : ends)
        index.touching({point, point}, [&, part = part](size_t end) { group[root(ends[end].second)] = root(part); });
    for (size_t i = 0; i < parts.size(); ++i)
        group[i] = root(i);
    return group;
}

/// Chains become splines or polylines; what is left of them comes back.
CurveParts joinChains(JoinSession &session, const CurveParts &parts)
{
    const std::vector<size_t> group = groupsByEnds(parts);
    std::map<size_t, CurveParts> chains;
    for (size_t i = 0; i < parts.size(); ++i)
        chains[group[i]].push_back(parts[i]);
    CurveParts left;
    for (auto &[number, chain] : chains) {
        std::ranges::stable_partition(
            chain, [](const CurvePart &part) { return part.curve.kind() == EntityCurve::Kind::Spline; });
        chain = joinToSplines(session, std::move(chain));
        // A polyline keeps its properties and its handle.
        std::ranges::stable_partition(chain, [&](const CurvePart &part) { return session.isPolyline(part); });
        while (chain.size() > 1) {
            const size_t before = session.joined;
            CurveParts rest = joinToPolyline(session, chain);
            if (session.joined == before)
                break;
            chain = std::move(rest);
        }
        left.insert(left.end(), chain.begin(), chain.end());
    }
    return left;
}

void joinGroupsOnCarriers(JoinSession &session, const CurveParts &parts)
{
    std::vector<EntityCurve> curves;
    for (const CurvePart &part : parts)
        curves.push_back(part.curve);
    for (const std::vector<size_t> &group : drawing::groupsByCarrier(curves, sameCurveEnd)) {
        CurveParts members;
        for (const size_t number : group)
            members.push_back(parts[number]);
        if (members.size() > 1)
            joinOnCarrier(session, members);
    }
}

void joinAll(JoinSession &session, const CurveParts &parts, size_t chosen)
{
    std::vector<EntityCurve> curves;
    for (const CurvePart &part : parts)
        curves.push_back(part.curve);
    const auto groups = drawing::groupsByCarrier(curves, sameCurveEnd);
    if (groups.size() == 1 && groups.front().size() == parts.size() && parts.size() > 1)
        joinOnCarrier(session, parts);
    else
        joinGroupsOnCarriers(session, joinChains(session, parts));
    eraseAll(session.context, session.erased);
    if (session.joined < chosen)
        session.context.print(Commands::tr("\n%1 objects discarded from the operation").arg(chosen - session.joined));
}

// Curves joined to a source, or all with each other: on one straight line or circle across gaps, otherwise end to end.
CommandTask join(CommandContext &context)
{
    PromptReply chosen =
        co_await context.selection(Commands::tr("Select source object or multiple objects to join at once: "));
    std::vector<RecordId> entities = editable(context, chosen.entities);
    CurveParts parts = openCurves(context, entities);
    if (parts.empty())
        co_return;
    if (entities.size() == 1) {
        const auto kind = parts.front().curve.kind();
        const bool isRound = kind == EntityCurve::Kind::Arc || kind == EntityCurve::Kind::Ellipse;
        const QString prompt = isRound ? Commands::tr("Select arcs to join to source or [cLose]: ")
                                       : Commands::tr("Select objects to join: ");
        const PromptReply more = co_await context.selection(prompt);
        if (more.isKeyword(u"cLose"))
            co_return closeRound(context, parts.front());
        for (const RecordId entity : editable(context, more.entities))
            if (entity != parts.front().entity)
                entities.push_back(entity);
        parts = openCurves(context, entities);
    }
    JoinSession session{context, {}};
    joinAll(session, parts, entities.size());
}

} // namespace

std::vector<CommandRow> joinCommands()
{
    return {{"JOIN", join, "makes one curve of several that meet or lie on one line or circle"}};
}

} // namespace host::kernel
