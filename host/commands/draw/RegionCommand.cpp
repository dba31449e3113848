#include "host/commands/Commands.h"
#include "host/commands/common/BoundaryCurve.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/RegionDraft.h"
#include "host/drawing/curves/BoxIndex.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::EntityCurve;
using drawing::RecordId;
using drawing::RegionLoop;
using drawing::Vec3;

/// A curve that was chosen, with its edges.
struct RegionPart
{
    RecordId entity;
    RegionLoop edges;
    Vec3 ends[2];
};

/// A closed loop with the entities that it goes along.
struct FoundLoop
{
    RegionLoop edges;
    std::vector<RecordId> entities;
};

/// What could not become a region, and why.
struct RejectedLoops
{
    int crossing = 0;
    int notFlat = 0;
    int degenerate = 0;
    int open = 0;        ///< curves
    int unsupported = 0; ///< objects

    void count(LoopFault fault)
    {
        (fault == LoopFault::Crossing ? crossing : fault == LoopFault::NotFlat ? notFlat : degenerate) += 1;
    }
    void print(CommandContext &context) const
    {
        const auto tell = [&](int number, const QString &one, const QString &several) {
            if (number > 0)
                context.print(u'\n' + (number == 1 ? one : several.arg(number)));
        };
        tell(crossing, Commands::tr("1 loop rejected: it crosses itself or branches."),
             Commands::tr("%1 loops rejected: it crosses itself or branches."));
        tell(notFlat, Commands::tr("1 loop rejected: it does not lie in a plane."),
             Commands::tr("%1 loops rejected: it does not lie in a plane."));
        tell(degenerate, Commands::tr("1 loop rejected: it encloses nothing."),
             Commands::tr("%1 loops rejected: it encloses nothing."));
        tell(open, Commands::tr("1 curve rejected: it is not part of a closed loop."),
             Commands::tr("%1 curves rejected: it is not part of a closed loop."));
        tell(unsupported, Commands::tr("1 object rejected: it is no curve."),
             Commands::tr("%1 objects rejected: it is no curve."));
    }
};

/// Joins open curves end to end. Where more than two meet there is no loop.
class LoopFinder
{
public:
    explicit LoopFinder(std::vector<RegionPart> parts) : m_parts(std::move(parts)), m_isUsed(m_parts.size())
    {
        numberEnds();
    }

    std::vector<FoundLoop> loops(RejectedLoops &rejected)
    {
        dropLooseEnds(rejected);
        std::vector<FoundLoop> found;
        for (std::size_t part = 0; part < m_parts.size(); ++part) {
            if (m_isUsed[part])
                continue;
            bool isClear = true;
            FoundLoop loop = walk(part, isClear);
            if (isClear)
                found.push_back(std::move(loop));
            else
                ++rejected.crossing;
        }
        return found;
    }

private:
    /// End 2n is the start of part n; ends in one place have the number of the first of them.
    void numberEnds()
    {
        constexpr double samePlace = 1e-6;
        const Vec3 reach{samePlace, samePlace, samePlace};
        std::vector<drawing::Box> boxes;
        for (const RegionPart &part : m_parts)
            for (const Vec3 &end : part.ends)
                boxes.push_back({end - reach, end + reach});
        const drawing::BoxIndex index(boxes);
        m_place.resize(boxes.size());
        for (std::size_t end = 0; end < boxes.size(); ++end) {
            std::size_t first = end;
            const Vec3 at = m_parts[end / 2].ends[end % 2];
            index.touching({at, at}, [&](std::size_t other) {
                const bool isSame = (m_parts[other / 2].ends[other % 2] - at).length() <= samePlace;
                if (isSame && other < end)
                    first = std::min(first, m_place[other]);
            });
            m_place[end] = first;
        }
        m_ends.resize(boxes.size());
        for (std::size_t end = 0; end < boxes.size(); ++end)
            m_ends[m_place[end]].push_back(end);
    }

    void dropLooseEnds(RejectedLoops &rejected)
    {
        std::vector<std::size_t> loose;
        for (std::size_t place = 0; place < m_ends.size(); ++place)
            if (m_ends[place].size() == 1)
                loose.push_back(place);
        while (!loose.empty()) {
            const std::size_t place = loose.back();
            loose.pop_back();
            if (m_ends[place].size() != 1)
                continue;
            const std::size_t end = m_ends[place].front();
            m_isUsed[end / 2] = true;
            ++rejected.open;
            m_ends[place].clear();
            std::vector<std::size_t> &others = m_ends[m_place[end ^ 1]];
            std::erase(others, end ^ 1);
            if (others.size() == 1)
                loose.push_back(m_place[end ^ 1]);
        }
    }

    /// From part to part, through all that hangs together where it branches.
    FoundLoop walk(std::size_t first, bool &isClear)
    {
        FoundLoop loop;
        std::vector<std::size_t> waiting = {2 * first};
        while (!waiting.empty()) {
            const std::size_t end = waiting.back();
            waiting.pop_back();
            if (m_isUsed[end / 2])
                continue;
            m_isUsed[end / 2] = true;
            append(loop, m_parts[end / 2], end % 2 == 1);
            for (const std::size_t place : {m_place[end], m_place[end ^ 1]})
                isClear = isClear && m_ends[place].size() == 2;
            for (const std::size_t next : m_ends[m_place[end]])
                waiting.push_back(next);
            for (const std::size_t next : m_ends[m_place[end ^ 1]])
                waiting.push_back(next);
        }
        return loop;
    }

    static void append(FoundLoop &loop, const RegionPart &part, bool isReversed)
    {
        RegionLoop edges = part.edges;
        if (isReversed) {
            std::ranges::reverse(edges);
            for (drawing::RegionEdge &edge : edges)
                edge.isReversed = !edge.isReversed;
        }
        loop.edges.insert(loop.edges.end(), edges.begin(), edges.end());
        loop.entities.push_back(part.entity);
    }

    std::vector<RegionPart> m_parts;
    std::vector<bool> m_isUsed;
    std::vector<std::size_t> m_place;
    std::vector<std::vector<std::size_t>> m_ends; ///< in each place
};

std::vector<FoundLoop> findLoops(const drawing::Drawing &drawing, const std::vector<RecordId> &entities,
                                 RejectedLoops &rejected)
{
    std::vector<FoundLoop> loops;
    std::vector<RegionPart> open;
    for (const RecordId entity : entities) {
        const std::optional<EntityCurve> curve = boundaryCurve(drawing, entity);
        RegionLoop edges = curve && !curve->isEndless() ? regionEdges(curve->pieces()) : RegionLoop();
        if (edges.empty())
            ++rejected.unsupported;
        else if (curve->isClosed())
            loops.push_back({std::move(edges), {entity}});
        else
            open.push_back({entity, std::move(edges), {curve->startPoint(), curve->endPoint()}});
    }
    for (FoundLoop &loop : LoopFinder(std::move(open)).loops(rejected))
        loops.push_back(std::move(loop));
    return loops;
}

// Closed curves, and curves that make closed loops end to end: a region each.
CommandTask region(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    if (context.drawing().version() < drawing::Version::R13)
        co_return context.fail(Commands::tr("Drawings of R12 have no regions."));
    RejectedLoops rejected;
    std::vector<RecordId> used;
    int made = 0;
    for (const FoundLoop &loop : findLoops(context.drawing(), chosen.entities, rejected)) {
        const LoopCheck check = checkLoop(loop.edges);
        if (check.fault != LoopFault::None) {
            rejected.count(check.fault);
        } else if (isValid(createRegion(context, {{loop.edges}}, check.normal))) {
            ++made;
            used.insert(used.end(), loop.entities.begin(), loop.entities.end());
        }
    }
    if (context.document().variables().integer(u"DELOBJ", 1) != 0)
        eraseAll(context, editable(context, used));
    rejected.print(context);
    context.print(made == 1 ? Commands::tr("\n1 loop extracted.\n1 Region created.")
                            : Commands::tr("\n%1 loops extracted.\n%1 Regions created.").arg(made));
}

} // namespace

std::vector<CommandRow> regionCommands()
{
    return {{"REGION", region, "makes regions of closed loops"}};
}

} // namespace host::kernel
