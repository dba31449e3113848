#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/KeptValues.h"
#include "host/commands/curves/CuttingEdges.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/Picker.h"
#include "host/kernel/languages/Texts.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::EntityCurve;
using drawing::Extension;
using drawing::RecordId;
using drawing::Vec3;
using Parts = std::vector<std::pair<double, double>>;

/// What TRIM and EXTEND have in common: edges, and steps that can be taken back one by one.
struct TrimSession
{
    CommandContext &context;
    CuttingEdges edges;
    bool isExtending;

    std::vector<CurveStep> steps;

    QString verb() const { return isExtending ? u"EXTEND"_s : u"TRIM"_s; }
    bool apply(const PickedCurve &picked);
    void note(RecordId entity, drawing::FieldList before, std::vector<RecordId> made);
    void undo();
    void readModes();
};

void TrimSession::readModes()
{
    using Projection = CuttingEdges::Projection;
    const SystemVariables &variables = context.document().variables();
    const int mode = variables.integer(u"PROJMODE", 1);
    edges.set(mode == 0   ? Projection::None
              : mode == 2 ? Projection::View
                          : Projection::User,
              variables.integer(u"EDGEMODE") != 0);
}

/// What is left when the part with `at` in it is cut out between its neighbours of `cuts`; nothing when there are none.
std::optional<Parts> partsLeft(const EntityCurve &curve, const std::vector<double> &cuts, double at)
{
    const double start = curve.startParameter();
    const double end = curve.endParameter();
    const double tolerance = curve.tolerance(); // a pass over the curve
    const auto isAtEnd = [&](double cut) {
        const auto isNear = [&](double limit) {
            return std::isfinite(limit) && (curve.point(cut) - curve.point(limit)).length() <= tolerance;
        };
        return !curve.isClosed() && (isNear(start) || isNear(end));
    };
    std::vector<double> usable;
    std::ranges::copy_if(cuts, std::back_inserter(usable), [&](double cut) { return !isAtEnd(cut); });
    const auto above = std::ranges::upper_bound(usable, at);
    if (curve.isClosed()) {
        if (usable.size() < 2)
            return {};
        const double from = above == usable.end() ? usable.front() : *above;
        const double to = above == usable.begin() ? usable.back() : *std::prev(above);
        return Parts{{from, to}};
    }
    if (usable.empty())
        return {};
    Parts parts;
    if (above != usable.begin())
        parts.emplace_back(start, *std::prev(above));
    if (above != usable.end())
        parts.emplace_back(*above, end);
    return parts;
}

/// Where the end that is nearer to the pick comes to lie; nothing when no edge is there.
std::optional<Parts> partExtended(TrimSession &session, const PickedCurve &picked)
{
    const EntityCurve &curve = picked.curve;
    const bool atStart = picked.isNearStart();
    const EntityCurve longer = curve.extended(atStart ? Extension::Start : Extension::End);
    const double start = curve.startParameter();
    const double end = curve.endParameter();
    const double tolerance = curve.tolerance();
    std::optional<double> nearest;
    for (const double cut : session.edges.on(picked.entity, longer)) {
        const bool isBeyond = atStart ? cut < start : cut > end;
        const Vec3 limit = atStart ? curve.startPoint() : curve.endPoint();
        if (!isBeyond || (longer.point(cut) - limit).length() <= tolerance)
            continue;
        if (!nearest || (atStart ? cut > *nearest : cut < *nearest))
            nearest = cut;
    }
    if (!nearest)
        return {};
    return Parts{{atStart ? *nearest : start, atStart ? end : *nearest}};
}

bool TrimSession::apply(const PickedCurve &picked)
{
    const bool canExtend = !picked.curve.isClosed() && picked.curve.kind() != EntityCurve::Kind::Spline;
    if (isExtending && !canExtend) {
        context.print(Commands::tr("\nCannot EXTEND this object."));
        return false;
    }
    const std::optional<Parts> parts =
        isExtending ? partExtended(*this, picked)
                    : partsLeft(picked.curve, edges.onAndWithin(picked.entity, picked.curve), picked.parameter);
    if (!parts) {
        context.print(Commands::tr("\nObject does not intersect an edge."));
        return false;
    }
    drawing::FieldList before = context.drawing().fields(picked.entity);
    std::vector<RecordId> made;
    if (!replaceByParts(context, picked.entity, *parts, &made)) {
        context.print(Commands::tr("\nCannot %1 this object.").arg(verb()));
        return false;
    }
    note(picked.entity, std::move(before), std::move(made));
    return true;
}

void TrimSession::note(RecordId entity, drawing::FieldList before, std::vector<RecordId> made)
{
    edges.changed(entity, made);
    steps.push_back({entity, std::move(before), std::move(made)});
}

void TrimSession::undo()
{
    if (steps.empty())
        return context.print(Commands::tr("\nCommand has been completely undone."));
    takeBack(context, steps.back());
    steps.pop_back();
    edges.forget();
}

/// Each of the entities that a path crosses, at the first place where it does.
void applyAlong(TrimSession &session, const std::vector<RecordId> &entities, const std::vector<Vec3> &path)
{
    const EntityCurve fence = EntityCurve::through(path);
    const Vec3 above{0, 0, 1};
    for (const RecordId entity : editable(session.context, entities)) {
        if (!session.context.drawing().isAlive(entity))
            continue;
        const std::optional<EntityCurve> curve = EntityCurve::ofEntity(session.context.drawing(), entity);
        if (!curve)
            continue;
        const auto met = apparentCrossings(*curve, fence, above);
        const double at = met.empty() ? curve->closestProjected(path.front(), above) : met.front().first;
        session.apply({entity, *curve, at});
    }
}

Dialogue<bool> trimByFence(TrimSession &session)
{
    CommandContext &context = session.context;
    std::vector<Vec3> path;
    PromptReply next = co_await context.point(Commands::tr("Specify first fence point: "));
    while (next.hasValue() || next.isKeyword(u"Undo")) {
        if (next.hasValue())
            path.push_back(next.point);
        else if (path.size() > 1)
            path.pop_back();
        if (path.empty())
            break;
        next = co_await context.point(Commands::tr("Specify next fence point or [Undo]: "), {}, path.back());
    }
    if (path.size() > 1)
        applyAlong(session, Picker(context.document()).inShape(ShapeKind::Fence, path), path);
    co_return true;
}

Dialogue<bool> trimByWindow(TrimSession &session)
{
    CommandContext &context = session.context;
    const PromptReply first = co_await context.point(Commands::tr("Specify first corner: "));
    if (!first.hasValue())
        co_return false;
    PromptRequest request;
    request.kind = PromptKind::Corner;
    request.prompt = Commands::tr("Specify opposite corner: ");
    request.base = first.point;
    const PromptReply second = co_await context.ask(request);
    if (!second.hasValue())
        co_return false;
    const Vec3 &a = first.point;
    const Vec3 &b = second.point;
    const std::vector<Vec3> frame = {a, {b.x, a.y, a.z}, b, {a.x, b.y, a.z}, a};
    applyAlong(session, Picker(context.document()).inShape(ShapeKind::Crossing, {a, b}), frame);
    co_return true;
}

Dialogue<bool> askProjection(TrimSession &session)
{
    static const QStringList modes = {u"None"_s, u"Ucs"_s, u"View"_s};
    CommandContext &context = session.context;
    const int now = std::clamp(context.document().variables().integer(u"PROJMODE", 1), 0, 2);
    const QString chosen =
        co_await askUsualOption(context, Commands::tr("Enter a projection option [None/Ucs/View]"), modes[now]);
    keepValue(context, u"PROJMODE", static_cast<qint32>(modes.indexOf(chosen)));
    session.readModes();
    co_return true;
}

Dialogue<bool> askEdgeMode(TrimSession &session)
{
    static const QStringList modes = {u"No extend"_s, u"Extend"_s};
    CommandContext &context = session.context;
    const int now = context.document().variables().integer(u"EDGEMODE") != 0 ? 1 : 0;
    const QString chosen = co_await askUsualOption(
        context, Commands::tr("Enter an implied edge extension mode [Extend/No extend]"), modes[now]);
    keepValue(context, u"EDGEMODE", chosen == modes[1] ? 1 : 0);
    session.readModes();
    co_return true;
}

Dialogue<bool> eraseSome(TrimSession &session)
{
    CommandContext &context = session.context;
    const PromptReply chosen = co_await context.selection();
    for (const RecordId entity : editable(context, chosen.entities)) {
        drawing::FieldList before = context.drawing().fields(entity);
        eraseAll(context, {entity});
        session.note(entity, std::move(before), {});
    }
    co_return true;
}

Dialogue<bool> chooseOption(TrimSession &session, PromptReply reply)
{
    if (reply.isKeyword(u"Fence"))
        co_await trimByFence(session);
    else if (reply.isKeyword(u"Crossing"))
        co_await trimByWindow(session);
    else if (reply.isKeyword(u"Project"))
        co_await askProjection(session);
    else if (reply.isKeyword(u"Edge"))
        co_await askEdgeMode(session);
    else if (reply.isKeyword(u"eRase"))
        co_await eraseSome(session);
    else
        session.undo();
    co_return true;
}

void printModes(CommandContext &context)
{
    const SystemVariables &variables = context.document().variables();
    const int projection = std::clamp(variables.integer(u"PROJMODE", 1), 0, 2);
    const QString names[] = {u"None"_s, u"UCS"_s, u"View"_s};
    context.print(Commands::tr("\nCurrent settings: Projection=%1, Edge=%2")
                      .arg(names[projection], variables.integer(u"EDGEMODE") != 0 ? u"Extend"_s : u"None"_s));
}

// Cutting edges, or all there is; then curves one by one, each cut back to its edges on both sides of the pick.
Dialogue<bool> trimOrExtend(CommandContext &context, bool isExtending)
{
    printModes(context);
    context.print(isExtending ? Commands::tr("\nSelect boundary edges ...")
                              : Commands::tr("\nSelect cutting edges ..."));
    const PromptReply chosen = co_await context.selection();
    const std::vector<RecordId> edges =
        chosen.entities.empty() ? Picker(context.document()).visible() : chosen.entities;
    TrimSession session{context, CuttingEdges(context, edges), isExtending, {}};
    session.readModes();
    const QString prompt = isExtending
                               ? Commands::tr("Select object to extend or [Fence/Crossing/Project/Edge/Undo]: ")
                               : Commands::tr("Select object to trim or [Fence/Crossing/Project/Edge/eRase/Undo]: ");
    for (;;) {
        const CurveAnswer answer = co_await askCurve(context, prompt, session.verb());
        if (answer.picked)
            session.apply(*answer.picked);
        else if (answer.reply.kind == ReplyKind::Keyword)
            co_await chooseOption(session, answer.reply);
        else
            co_return true;
    }
}

CommandTask trim(CommandContext &context)
{
    co_await trimOrExtend(context, false);
}

CommandTask extend(CommandContext &context)
{
    co_await trimOrExtend(context, true);
}

} // namespace

std::vector<CommandRow> trimCommands()
{
    return {
        {"EXTEND", extend, "lengthens curves up to others", WhenCancelled::KeepDone},
        {"TRIM", trim, "cuts curves off at others", WhenCancelled::KeepDone},
    };
}

} // namespace host::kernel
