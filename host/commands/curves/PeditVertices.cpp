#include "host/commands/curves/PeditVertices.h"

#include "host/commands/common/KeptValues.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::Vec3;

namespace {

/// A polyline with the vertex that is marked.
struct VertexWalk
{
    EditedPolyline polyline;
    std::size_t at = 0;

    std::vector<EditedVertex> &vertices() { return polyline.vertices; }
    EditedVertex &marked() { return polyline.vertices[at]; }
    Vec3 world() const { return polyline.toWorld().point(polyline.vertices[at].point); }
    void next() { at = std::min(at + 1, polyline.vertices.size() - 1); }
    void previous() { at = at > 0 ? at - 1 : 0; }
};

/// Asks for the other vertex of a stretch, beginning at the marked one; nothing for eXit.
Dialogue<std::optional<std::size_t>> askOtherVertex(CommandContext &context, VertexWalk walk)
{
    for (;;) {
        const PromptReply reply =
            co_await context.keyword(Commands::tr("Enter an option [Next/Previous/Go/eXit] <N>: "), {}, u"Next"_s);
        if (reply.text == u"Go")
            co_return walk.at;
        if (reply.text == u"eXit")
            co_return std::nullopt;
        if (reply.text == u"Previous")
            walk.previous();
        else
            walk.next();
    }
}

/// Takes the stretch between two vertices out. What is behind it comes back where there is something.
std::optional<EditedPolyline> breakBetween(CommandContext &context, VertexWalk &walk, std::size_t other)
{
    std::vector<EditedVertex> &vertices = walk.vertices();
    const auto [first, last] = std::minmax(walk.at, other);
    if (walk.polyline.isClosed) {
        // What is left of a closed one goes on across its first vertex.
        walk.polyline.isClosed = false;
        std::vector<EditedVertex> rest(vertices.begin() + static_cast<qsizetype>(last), vertices.end());
        rest.insert(rest.end(), vertices.begin(), vertices.begin() + static_cast<qsizetype>(first) + 1);
        vertices = std::move(rest);
        walk.at = 0;
        return {};
    }
    std::vector<EditedVertex> behind(vertices.begin() + static_cast<qsizetype>(last), vertices.end());
    if ((first == 0 && behind.size() < 2) || (first == last && (first == 0 || behind.size() < 2))) {
        context.print(Commands::tr("\nNothing would be left on one side."));
        return {};
    }
    vertices.resize(first + 1);
    walk.at = std::min(walk.at, first);
    if (vertices.size() < 2) {
        vertices = std::move(behind);
        return {};
    }
    if (behind.size() < 2)
        return {};
    EditedPolyline rest = walk.polyline;
    rest.record = drawing::noRecord;
    rest.vertices = std::move(behind);
    return rest;
}

VertexEdit brokenAt(CommandContext &context, VertexWalk &walk, std::size_t other)
{
    std::optional<EditedPolyline> rest = breakBetween(context, walk, other);
    return {walk.polyline, std::move(rest)};
}

void straightenBetween(VertexWalk &walk, std::size_t other)
{
    const auto [first, last] = std::minmax(walk.at, other);
    walk.vertices()[first].bulge = 0.0;
    if (last > first + 1)
        walk.vertices().erase(walk.vertices().begin() + static_cast<qsizetype>(first) + 1,
                              walk.vertices().begin() + static_cast<qsizetype>(last));
    walk.at = first;
}

Dialogue<bool> askSegmentWidths(CommandContext &context, VertexWalk &walk)
{
    const double start = co_await askUsualLength(context, Commands::tr("Specify starting width for next segment"),
                                                 walk.marked().startWidth);
    const double end = co_await askUsualLength(context, Commands::tr("Specify ending width for next segment"), start);
    walk.marked().startWidth = start;
    walk.marked().endWidth = end;
    co_return true;
}

Dialogue<bool> askNewVertex(CommandContext &context, VertexWalk &walk)
{
    const PromptReply place =
        co_await context.neededPoint(Commands::tr("Specify location for new vertex: "), walk.world());
    EditedVertex vertex = walk.marked();
    vertex.point = walk.polyline.fromWorld(place.point);
    vertex.bulge = 0.0;
    vertex.startWidth = walk.marked().endWidth;
    vertex.tangent.reset();
    walk.marked().bulge = 0.0;
    walk.vertices().insert(walk.vertices().begin() + static_cast<qsizetype>(walk.at) + 1, vertex);
    co_return true;
}

Dialogue<bool> askVertexTangent(CommandContext &context, VertexWalk &walk)
{
    const PromptReply to = co_await context.orientation(Commands::tr("Specify direction of vertex tangent: "), {},
                                                        walk.world(), {}, NoEmptyAnswer);
    walk.marked().tangent = to.real;
    co_return true;
}

} // namespace

Dialogue<VertexEdit> askVertexEdits(CommandContext &context, EditedPolyline polyline)
{
    VertexWalk walk{std::move(polyline)};
    const QString flat = walk.polyline.isSpatial ? u""_s : u"Tangent/Width/"_s;
    const QString prompt =
        Commands::tr("Enter a vertex editing option [Next/Previous/Break/Insert/Move/Regen/Straighten/%1eXit] <N>: ")
            .arg(flat);
    for (;;) {
        const PromptReply reply = co_await context.keyword(prompt, {}, u"Next"_s);
        const QString option = reply.hasValue() ? reply.text : u"Next"_s;
        if (option == u"eXit")
            co_return VertexEdit{walk.polyline, {}};
        if (option == u"Next") {
            walk.next();
        } else if (option == u"Previous") {
            walk.previous();
        } else if (option == u"Insert") {
            co_await askNewVertex(context, walk);
        } else if (option == u"Move") {
            const PromptReply place =
                co_await context.neededPoint(Commands::tr("Specify new location for marked vertex: "), walk.world());
            walk.marked().point = walk.polyline.fromWorld(place.point);
        } else if (option == u"Width") {
            co_await askSegmentWidths(context, walk);
        } else if (option == u"Tangent") {
            co_await askVertexTangent(context, walk);
        } else if (option == u"Break" || option == u"Straighten") {
            const std::optional<std::size_t> other = co_await askOtherVertex(context, walk);
            if (other && option == u"Straighten")
                straightenBetween(walk, *other);
            else if (other)
                co_return brokenAt(context, walk, *other);
        }
    }
}

} // namespace host::kernel
